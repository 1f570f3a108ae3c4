#pragma once

#include "career/career.h"
#include "context.h"

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QUrl>
#include <QVariant>
#include <QWidget>

#include <functional>

class QMainWindow;
class QStackedWidget;

namespace app {

class Navigator;

// How one screen of the game is made and shown. Every screen is registered once, under its
// name, and exists at most once.
struct ScreenKind
{
    enum class Mode {
        Page,    // takes the main window; closing it brings back the page it covered
        Dialog,  // opens modal above the window
        Window,  // a window of its own beside the game
    };

    Mode mode = Mode::Page;
    // Closing the screen only hides it, and it keeps what the player did on it (the call-up's
    // picks) until the week ends. Any other screen goes when it closes, and opening one that
    // is still there makes it afresh: a report is always read anew.
    bool hides = false;
    // The screen stays when a new week opens (the panel, the menu, the match on screen).
    bool outlivesTheWeek = false;
    // Makes the screen and connects what it asks of the navigator. A null pointer means it
    // cannot open now, such as a match in a week that has none.
    std::function<QWidget *(Navigator &)> make = {};
    // Runs at every opening, the first included, before the screen is shown.
    std::function<void(Navigator &, QWidget *)> opened = {};
    // Runs after `opened` when the screen is opened about something, such as the player
    // picked on a list: open(u"Fichar_Jugadores"_s, id).
    std::function<void(Navigator &, QWidget *, const QVariant &)> about = {};
};

// Opens and closes the screens of the game, and shows the career as it goes: the career
// (game::Career) says when a week opens, a verdict is ready or a pre-season is to be
// planned, and the navigator brings up the screen for it. The screens come from a table (see
// screens.cpp): adding one is one entry there, and the navigator does not change.
//
//   navigator.open(u"Calendario"_s);     // made and shown over the panel
//   navigator.close(u"Calendario"_s);    // gone; the panel is back
class Navigator : public QObject
{
    Q_OBJECT

public:
    Navigator(game::Context context, QMainWindow &window);
    ~Navigator() override;

    void add(const QString &name, ScreenKind kind);
    bool has(const QString &name) const { return m_kinds.contains(name); }

    // Opens a registered screen by name and shows it as its kind says; null when there is no
    // such screen or it cannot open now.
    QWidget *open(const QString &name, const QVariant &about = {});
    // Hides or ends a screen, as its kind says; a page gives way to the one it covered.
    void close(const QString &name);
    // The screen of that name while it exists, else null.
    QWidget *screen(const QString &name) const { return m_loaded.value(name); }
    template<typename Screen>
    Screen *screen(const QString &name) const
    {
        return qobject_cast<Screen *>(screen(name));
    }
    // The page the main window shows.
    QWidget *current() const;

    game::Context context() const { return m_context; }
    game::Career &career() { return m_career; }
    // Where careers are saved; none by default (a test), when the career is not kept.
    void setSaves(const game::Saves *saves);
    const game::Saves *saves() const { return m_saves; }
    QMainWindow &window() const { return m_window; }

    // How a web page is opened; the system's browser unless a test says otherwise. True when
    // it opened.
    void setUrlOpener(std::function<bool(const QUrl &)> opener) { m_openUrl = std::move(opener); }
    bool openUrl(const QUrl &url) const { return m_openUrl(url); }

    // The way of a career: the title, the menu, the panel of the open week, the match, the
    // end of the match, the verdict read, a step taken up again, leaving the career, leaving
    // the game.
    void showSplash();
    void showMenu();
    void showPanel();
    void playMatch();
    void matchOver();
    void verdictRead();
    void goOn();
    // Loads a saved career (the latest with no path) and shows it where it stood.
    void continueCareer(const QString &path = {});
    void leaveCareer();
    void quitGame();
    // Asks first when a career is in progress, which is then saved; false when the player
    // stays. Every way out of a career or of the game goes through it.
    bool mayLeave();

signals:
    // The player has left the game; the working file has been restored.
    void finished();

protected:
    // The main window's frame closed by the player is a way out of the game like the menu's.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void unload(const QString &name);
    // Closes what a week leaves open before the next one opens.
    void closeWeekScreens();
    void showTopPage();
    // The game ends: the working file goes back to the original.
    void endGame();
    // Brings up the screen for where the career stands.
    void showCareer();

    game::Context m_context;
    QMainWindow &m_window;
    QStackedWidget *m_stack;
    std::function<bool(const QUrl &)> m_openUrl;
    game::Career m_career;
    const game::Saves *m_saves = nullptr;
    bool m_quitting = false;
    QHash<QString, ScreenKind> m_kinds;
    QHash<QString, QPointer<QWidget>> m_loaded;
    // The pages opened one over another, the one on show last.
    QStringList m_pages;
};

// Registers every screen of the game.
void registerScreens(Navigator &navigator);

} // namespace app
