#pragma once

#include <QDialog>
#include <QUrl>

#include <functional>

class QTextBrowser;

namespace ui {

// The three pages of information of the menu: the game's own instructions, and two pages
// about handball that live on the web and open in the system's browser.
class InfoPage : public QDialog
{
    Q_OBJECT

public:
    enum class Kind { Instructions, History, Handball };

    // The handball information site; the history page is a part of it.
    static const QUrl &handballSite();
    static QUrl historyPage();

    explicit InfoPage(Kind kind, QWidget *parent = nullptr);

    Kind kind() const { return m_kind; }
    // What a web page says of its opening in the browser: opened, or not, and where it is.
    void showOpened(bool opened);

private:
    Kind m_kind;
    QTextBrowser *m_page;
};

} // namespace ui
