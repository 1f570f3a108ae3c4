#pragma once

#include "career/weekevents.h"
#include "context.h"
#include "result.h"

#include <QObject>
#include <QPointer>
#include <QUrl>

#include <functional>

class QMainWindow;
class QStackedWidget;
class QWidget;

namespace ui {
class AddYouthScreen;
class InfoPage;
class MainMenu;
class NewCareerScreen;
class PreseasonScreen;
class SplashScreen;
class WeekPanel;
class LedgerScreen;
class CalendarScreen;
class CallUpScreen;
class TacticsScreen;
class MatchScreen;
}

namespace app {

// Opens and closes the screens of the game. Each screen exists once at most; the plain
// screens take turns in the main window and the modal ones open above it.
class Navigator : public QObject
{
    Q_OBJECT

public:
    Navigator(game::Context context, QMainWindow &window);
    ~Navigator() override;

    // How a web page is opened; the system's browser unless a test says otherwise.
    void setUrlOpener(std::function<void(const QUrl &)> opener) { m_openUrl = std::move(opener); }

    void showSplash();
    void showMenu();
    void openNewCareer();
    void openAddYouth();
    void openInfo(int kind);
    void openPreseason();
    void openWeekPanel();
    void openLedger();
    void openCalendar();
    void openCallUp();
    void openTactics();
    void openMatch();
    void leaveMatch();
    void leaveCareer();
    void quitGame();

    // The week's events; the subsystems put their routines in it.
    game::WeekEvents &weekEvents() { return m_events; }
    ui::WeekPanel *weekPanel() const;
    ui::MatchScreen *matchScreen() const;

    QWidget *current() const;

signals:
    // The player has left the game; the working file has been restored.
    void finished();

private:
    void show(QWidget *screen);
    template<typename Screen>
    void unload(QPointer<Screen> &screen);
    // Closes the screens a week leaves open, before the next one opens.
    void unloadWeekScreens();
    void backToPanel();

    game::Context m_context;
    QMainWindow &m_window;
    QStackedWidget *m_stack;
    std::function<void(const QUrl &)> m_openUrl;

    QPointer<ui::SplashScreen> m_splash;
    QPointer<ui::MainMenu> m_menu;
    QPointer<ui::NewCareerScreen> m_newCareer;
    QPointer<ui::AddYouthScreen> m_addYouth;
    QPointer<ui::InfoPage> m_instructions;
    QPointer<ui::InfoPage> m_history;
    QPointer<ui::InfoPage> m_handball;
    QPointer<ui::PreseasonScreen> m_preseason;
    QPointer<ui::WeekPanel> m_panel;
    QPointer<ui::LedgerScreen> m_ledger;
    QPointer<ui::CalendarScreen> m_calendar;
    QPointer<ui::CallUpScreen> m_callUp;
    QPointer<ui::TacticsScreen> m_tactics;
    QPointer<ui::MatchScreen> m_match;
    game::WeekEvents m_events;
};

} // namespace app
