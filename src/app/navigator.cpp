#include "navigator.h"

#include "career/infopage.h"
#include "career/mainmenu.h"
#include "career/newcareerscreen.h"
#include "career/preseasonscreen.h"
#include "career/splashscreen.h"
#include "career/weekpanel.h"
#include "match/callupscreen.h"
#include "match/matchscreen.h"
#include "match/results.h"
#include "match/tacticsscreen.h"
#include "reports/calendarscreen.h"
#include "stadium/ledgerscreen.h"
#include "dialogs.h"
#include "store/gamestore.h"
#include "transfers/addyouthscreen.h"

#include <QDesktopServices>
#include <QMainWindow>
#include <QStackedWidget>

namespace app {

Navigator::Navigator(game::Context context, QMainWindow &window)
    : m_context(context), m_window(window), m_stack(new QStackedWidget(&window)),
      m_openUrl([](const QUrl &url) { QDesktopServices::openUrl(url); })
{
    m_window.setCentralWidget(m_stack);
    m_events = game::WeekEvents::standard(m_context);
}

Navigator::~Navigator() = default;

ui::WeekPanel *Navigator::weekPanel() const
{
    return m_panel;
}

ui::MatchScreen *Navigator::matchScreen() const
{
    return m_match;
}

QWidget *Navigator::current() const
{
    return m_stack->currentWidget();
}

void Navigator::show(QWidget *screen)
{
    if (m_stack->indexOf(screen) < 0)
        m_stack->addWidget(screen);
    m_stack->setCurrentWidget(screen);
    m_window.setWindowTitle(screen->windowTitle().isEmpty() ? QStringLiteral("Zarpazo") : screen->windowTitle());
}

template<typename Screen>
void Navigator::unload(QPointer<Screen> &screen)
{
    if (screen) {
        m_stack->removeWidget(screen);
        screen->hide();
        screen->deleteLater();
    }
    screen.clear();
}

void Navigator::showSplash()
{
    if (!m_splash) {
        m_splash = new ui::SplashScreen;
        connect(m_splash, &ui::SplashScreen::finished, this, [this] {
            showMenu();
            unload(m_splash);
        });
    }
    show(m_splash);
    m_splash->start();
}

void Navigator::showMenu()
{
    // A menu reached from anywhere starts clean: a new career screen left over goes away.
    unload(m_newCareer);
    unload(m_preseason);
    if (!m_menu) {
        m_menu = new ui::MainMenu;
        connect(m_menu, &ui::MainMenu::newCareerRequested, this, &Navigator::openNewCareer);
        connect(m_menu, &ui::MainMenu::addYouthRequested, this, &Navigator::openAddYouth);
        connect(m_menu, &ui::MainMenu::historyRequested, this, [this] { openInfo(int(ui::InfoPage::Kind::History)); });
        connect(m_menu, &ui::MainMenu::informationRequested, this,
                [this] { openInfo(int(ui::InfoPage::Kind::Handball)); });
        connect(m_menu, &ui::MainMenu::instructionsRequested, this,
                [this] { openInfo(int(ui::InfoPage::Kind::Instructions)); });
        connect(m_menu, &ui::MainMenu::quitRequested, this, &Navigator::quitGame);
    }
    show(m_menu);
}

void Navigator::openNewCareer()
{
    if (!m_newCareer) {
        m_newCareer = new ui::NewCareerScreen(m_context, &m_window);
        connect(m_newCareer, &ui::NewCareerScreen::careerStarted, this, &Navigator::openPreseason);
        connect(m_newCareer, &QDialog::rejected, this, [this] { unload(m_newCareer); });
    }
    m_newCareer->open();
}

void Navigator::openAddYouth()
{
    if (!m_addYouth) {
        m_addYouth = new ui::AddYouthScreen(m_context, &m_window);
        connect(m_addYouth, &QDialog::rejected, this, [this] { unload(m_addYouth); });
    }
    m_addYouth->open();
}

void Navigator::openInfo(int kind)
{
    const auto pageKind = static_cast<ui::InfoPage::Kind>(kind);
    QPointer<ui::InfoPage> &page = pageKind == ui::InfoPage::Kind::Instructions ? m_instructions
                                   : pageKind == ui::InfoPage::Kind::History    ? m_history
                                                                                : m_handball;
    if (!page)
        page = new ui::InfoPage(pageKind, &m_window);
    if (pageKind == ui::InfoPage::Kind::Instructions) {
        page->resize(m_window.size() * 0.9);
        page->show();
        page->raise();
        return;
    }
    // The game does not test the connection: the warning comes every time.
    m_context.dialogs.tell(tr("Es Necesario Tener Conexion a Intetnet"));
    m_openUrl(pageKind == ui::InfoPage::Kind::History ? ui::InfoPage::historyPage() : ui::InfoPage::handballSite());
    page->resize(720, 420);
    page->open();
}

void Navigator::openPreseason()
{
    if (m_newCareer)
        m_newCareer->hide();
    unload(m_newCareer);
    unload(m_preseason);
    m_preseason = new ui::PreseasonScreen(m_context);
    connect(m_preseason, &ui::PreseasonScreen::seasonPlanned, this, &Navigator::openWeekPanel);
    connect(m_preseason, &ui::PreseasonScreen::backToMenu, this, &Navigator::showMenu);
    show(m_preseason);
    // The menu is closed while a career runs; it is made afresh when the player comes back.
    unload(m_menu);
}

void Navigator::unloadWeekScreens()
{
    unload(m_newCareer);
    unload(m_addYouth);
    unload(m_preseason);
    unload(m_ledger);
    unload(m_calendar);
    unload(m_callUp);
    unload(m_tactics);
    unload(m_instructions);
    unload(m_history);
    unload(m_handball);
}

void Navigator::openWeekPanel()
{
    // Every load of the panel opens a new week: a fresh panel each time.
    unloadWeekScreens();
    if (m_panel)
        m_panel->retire();
    unload(m_panel);
    m_panel = new ui::WeekPanel(m_context, m_events);
    using Destination = ui::WeekPanel::Destination;
    for (Destination destination : {Destination::Standings, Destination::Results, Destination::Squad,
                                    Destination::Market, Destination::Stadium})
        m_panel->setAvailable(destination, false);
    connect(m_panel, &ui::WeekPanel::destinationRequested, this, [this](Destination destination) {
        switch (destination) {
        case Destination::Ledger:
            openLedger();
            break;
        case Destination::Calendar:
            openCalendar();
            break;
        case Destination::CallUp:
            openCallUp();
            break;
        case Destination::Tactics:
            openTactics();
            break;
        default:
            break;
        }
    });
    connect(m_panel, &ui::WeekPanel::leaveRequested, this, &Navigator::leaveCareer);
    show(m_panel);
    m_panel->openWeek();
}

void Navigator::backToPanel()
{
    if (m_panel)
        show(m_panel);
    // The call-up only hides and keeps its picks; the reports are read afresh each time.
    unload(m_ledger);
    unload(m_calendar);
    unload(m_tactics);
}

void Navigator::openCallUp()
{
    if (!m_callUp) {
        m_callUp = new ui::CallUpScreen(m_context);
        connect(m_callUp, &ui::CallUpScreen::closeRequested, this, &Navigator::backToPanel);
        connect(m_callUp, &ui::CallUpScreen::playRequested, this, &Navigator::openMatch);
    } else {
        m_callUp->reload();
    }
    show(m_callUp);
}

void Navigator::openTactics()
{
    unload(m_tactics);
    m_tactics = new ui::TacticsScreen(m_context);
    connect(m_tactics, &ui::TacticsScreen::closeRequested, this, &Navigator::backToPanel);
    show(m_tactics);
}

void Navigator::openMatch()
{
    const std::optional<game::Fixture> fixture = m_panel ? m_panel->fixture() : std::nullopt;
    if (!fixture)
        return;
    if (m_panel)
        m_panel->runWeekEvents(); // the rival must have named his seven before kick-off
    unload(m_match);
    m_match = new ui::MatchScreen(m_context, *fixture, &m_window);
    connect(m_match, &ui::MatchScreen::left, this, &Navigator::leaveMatch);
    m_match->open();
}

void Navigator::leaveMatch()
{
    if (!m_match)
        return;
    const game::Fixture fixture = m_match->fixture();
    const game::MatchEngine &engine = m_match->engine();
    const bool recorded = game::Results(m_context).record(fixture, engine.score(0), engine.score(1));
    unload(m_match);
    if (!recorded) {
        // The player has been told; the week stays open and its match can be played again.
        backToPanel();
        return;
    }
    // The next week opens with a fresh panel; there is no other way to it.
    openWeekPanel();
}

void Navigator::openLedger()
{
    unload(m_ledger);
    m_ledger = new ui::LedgerScreen(m_context, m_panel ? m_panel->week() : 0);
    connect(m_ledger, &ui::LedgerScreen::closeRequested, this, &Navigator::backToPanel);
    show(m_ledger);
}

void Navigator::openCalendar()
{
    unload(m_calendar);
    m_calendar = new ui::CalendarScreen(m_context, m_panel ? m_panel->week() : 0);
    connect(m_calendar, &ui::CalendarScreen::closeRequested, this, &Navigator::backToPanel);
    show(m_calendar);
}

void Navigator::leaveCareer()
{
    // Leaving the career throws it away and closes every screen of it; a new career gets a
    // freshly opened panel.
    if (game::Result restored = m_context.store.restore(); !restored)
        m_context.dialogs.tell(restored.message(), game::Dialogs::Icon::Exclamation);
    unloadWeekScreens();
    unload(m_match);
    if (m_panel)
        m_panel->retire();
    unload(m_panel);
    showMenu();
}

void Navigator::quitGame()
{
    // Leaving the game throws the career away: the working file goes back to the original.
    if (game::Result restored = m_context.store.restore(); !restored)
        m_context.dialogs.tell(restored.message(), game::Dialogs::Icon::Exclamation);
    emit finished();
}

} // namespace app
