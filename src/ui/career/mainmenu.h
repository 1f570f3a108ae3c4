#pragma once

#include <QWidget>

class QToolButton;

namespace ui {

// The main menu: a picture with eight picture buttons that carry no captions, only tooltips
// naming what each does.
class MainMenu : public QWidget
{
    Q_OBJECT

public:
    explicit MainMenu(QWidget *parent = nullptr);

signals:
    void newCareerRequested();
    // "CONTINUAR": the latest career, where it stood; "CARGAR": the list of careers kept.
    void continueRequested();
    void loadRequested();
    void addYouthRequested();
    void historyRequested();
    void informationRequested();
    void instructionsRequested();
    void quitRequested();

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    QToolButton *addButton(const char *name, int icon, const QString &tip, void (MainMenu::*signal)());

    QList<QToolButton *> m_buttons;
};

} // namespace ui
