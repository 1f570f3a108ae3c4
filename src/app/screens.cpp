// The table of the game's screens: how each is made, shown and closed, and what it asks of
// the navigator. A new screen is one entry here; the panel enables its button by itself.

#include "navigator.h"

#include "career/infopage.h"
#include "career/mainmenu.h"
#include "career/newcareerscreen.h"
#include "career/preseasonscreen.h"
#include "career/splashscreen.h"
#include "career/weekpanel.h"
#include "dialogs.h"
#include "match/callupscreen.h"
#include "match/matchscreen.h"
#include "match/tacticsscreen.h"
#include "reports/calendarscreen.h"
#include "stadium/broadcastscreen.h"
#include "stadium/ledgerscreen.h"
#include "stadium/stadiumscreen.h"
#include "transfers/addyouthscreen.h"

#include <QMainWindow>

namespace app {

namespace {

using Mode = ScreenKind::Mode;

// The screen's own way back ("<- VOLVER" and the like) closes it, and what it covered is back.
template<typename Screen>
Screen *closing(Navigator &navigator, Screen *screen, const QString &name)
{
    QObject::connect(screen, &Screen::closeRequested, &navigator, [&navigator, name] { navigator.close(name); });
    return screen;
}

// A dialog closed by the player (its button, Esc or its frame) is closed for the navigator.
template<typename Dialog>
Dialog *dismissible(Navigator &navigator, Dialog *dialog, const QString &name)
{
    QObject::connect(dialog, &QDialog::rejected, &navigator, [&navigator, name] { navigator.close(name); });
    return dialog;
}

// The two web pages. The game does not test the connection, so the warning comes at every
// opening; the page itself opens in the system's browser.
ScreenKind webPage(ui::InfoPage::Kind kind, const QString &name, const QUrl &address)
{
    return {Mode::Dialog, true, false,
            [kind, name](Navigator &navigator) { return dismissible(navigator, new ui::InfoPage(kind), name); },
            [address](Navigator &navigator, QWidget *page) {
                navigator.context().dialogs.tell(QObject::tr("Es Necesario Tener Conexion a Intetnet"));
                navigator.openUrl(address);
                page->resize(720, 420);
            }};
}

} // namespace

void registerScreens(Navigator &nav)
{
    // Before a career.
    nav.add(QStringLiteral("frmSplash"),
            {Mode::Page, false, true,
             [](Navigator &navigator) {
                 auto *splash = new ui::SplashScreen;
                 QObject::connect(splash, &ui::SplashScreen::finished, &navigator, [&navigator] {
                     navigator.showMenu();
                     navigator.close(QStringLiteral("frmSplash"));
                 });
                 return splash;
             },
             [](Navigator &, QWidget *splash) { static_cast<ui::SplashScreen *>(splash)->start(); }});

    nav.add(QStringLiteral("Form1"),
            {Mode::Page, false, true,
             [](Navigator &navigator) {
                 auto *menu = new ui::MainMenu;
                 auto opens = [&navigator](const char *name) {
                     return [&navigator, name] { navigator.open(QString::fromLatin1(name)); };
                 };
                 QObject::connect(menu, &ui::MainMenu::newCareerRequested, &navigator, opens("Liga_Manager"));
                 QObject::connect(menu, &ui::MainMenu::addYouthRequested, &navigator, opens("Agregar_Juveniles"));
                 QObject::connect(menu, &ui::MainMenu::historyRequested, &navigator, opens("Historia"));
                 QObject::connect(menu, &ui::MainMenu::informationRequested, &navigator, opens("infoHandball"));
                 QObject::connect(menu, &ui::MainMenu::instructionsRequested, &navigator, opens("Instrucciones"));
                 QObject::connect(menu, &ui::MainMenu::quitRequested, &navigator, &Navigator::quitGame);
                 return menu;
             },
             // A menu reached from anywhere starts clean: a new career or a planner left over
             // goes away.
             [](Navigator &navigator, QWidget *) {
                 navigator.close(QStringLiteral("Liga_Manager"));
                 navigator.close(QStringLiteral("Pretemporada"));
             }});

    nav.add(QStringLiteral("Liga_Manager"),
            {Mode::Dialog, false, false,
             [](Navigator &navigator) {
                 auto *screen = new ui::NewCareerScreen(navigator.context());
                 QObject::connect(screen, &ui::NewCareerScreen::careerStarted, &navigator, [&navigator] {
                     navigator.close(QStringLiteral("Liga_Manager"));
                     navigator.open(QStringLiteral("Pretemporada"));
                 });
                 return dismissible(navigator, screen, QStringLiteral("Liga_Manager"));
             },
             {}});

    nav.add(QStringLiteral("Agregar_Juveniles"),
            {Mode::Dialog, false, false,
             [](Navigator &navigator) {
                 return dismissible(navigator, new ui::AddYouthScreen(navigator.context()),
                                    QStringLiteral("Agregar_Juveniles"));
             },
             {}});

    nav.add(QStringLiteral("Instrucciones"),
            {Mode::Window, true, false,
             [](Navigator &navigator) {
                 return dismissible(navigator, new ui::InfoPage(ui::InfoPage::Kind::Instructions),
                                    QStringLiteral("Instrucciones"));
             },
             [](Navigator &navigator, QWidget *page) { page->resize(navigator.window().size() * 0.9); }});
    nav.add(QStringLiteral("Historia"),
            webPage(ui::InfoPage::Kind::History, QStringLiteral("Historia"), ui::InfoPage::historyPage()));
    nav.add(QStringLiteral("infoHandball"),
            webPage(ui::InfoPage::Kind::Handball, QStringLiteral("infoHandball"), ui::InfoPage::handballSite()));

    // The season: its planner, then week after week.
    nav.add(QStringLiteral("Pretemporada"),
            {Mode::Page, false, false,
             [](Navigator &navigator) {
                 auto *planner = new ui::PreseasonScreen(navigator.context());
                 QObject::connect(planner, &ui::PreseasonScreen::seasonPlanned, &navigator, &Navigator::beginSeason);
                 QObject::connect(planner, &ui::PreseasonScreen::backToMenu, &navigator, &Navigator::showMenu);
                 return planner;
             },
             // The career has begun: the menu goes, and comes back afresh when it is left.
             [](Navigator &navigator, QWidget *) { navigator.close(QStringLiteral("Form1")); }});

    nav.add(QStringLiteral("Panel_Control_Manager"),
            {Mode::Page, true, true,
             [](Navigator &navigator) {
                 auto *panel = new ui::WeekPanel(navigator.week(),
                                                 [&navigator](const QString &screen) { return navigator.has(screen); });
                 QObject::connect(panel, &ui::WeekPanel::openRequested, &navigator,
                                  [&navigator](const QString &screen) { navigator.open(screen); });
                 QObject::connect(panel, &ui::WeekPanel::nextWeekRequested, &navigator, &Navigator::nextWeek);
                 QObject::connect(panel, &ui::WeekPanel::leaveRequested, &navigator, &Navigator::leaveCareer);
                 return panel;
             },
             [](Navigator &, QWidget *panel) { static_cast<ui::WeekPanel *>(panel)->showWeek(); }});

    // Match day.
    nav.add(QStringLiteral("Alinear"),
            {Mode::Page, true, false,
             [](Navigator &navigator) {
                 auto *callUp = new ui::CallUpScreen(navigator.context());
                 QObject::connect(callUp, &ui::CallUpScreen::playRequested, &navigator, &Navigator::playMatch);
                 return closing(navigator, callUp, QStringLiteral("Alinear"));
             },
             [](Navigator &, QWidget *callUp) { static_cast<ui::CallUpScreen *>(callUp)->reload(); }});

    nav.add(QStringLiteral("Tactica"),
            {Mode::Page, false, true,
             [](Navigator &navigator) {
                 return closing(navigator, new ui::TacticsScreen(navigator.context()), QStringLiteral("Tactica"));
             },
             {}});

    nav.add(QStringLiteral("partido"),
            {Mode::Dialog, false, true,
             [](Navigator &navigator) -> QWidget * {
                 // The match opens through the week, which settles its crowd once.
                 const std::optional<game::Week::Kickoff> kickoff = navigator.week().kickOff();
                 if (!kickoff)
                     return nullptr;
                 auto *match = new ui::MatchScreen(navigator.context(), *navigator.week().fixture(), *kickoff);
                 QObject::connect(match, &ui::MatchScreen::left, &navigator, [&navigator, match] {
                     navigator.matchOver(match->engine().score(0), match->engine().score(1));
                 });
                 return match;
             },
             {}});

    // Reports and the club's money.
    nav.add(QStringLiteral("Calendario"),
            {Mode::Page, false, false,
             [](Navigator &navigator) {
                 return closing(navigator, new ui::CalendarScreen(navigator.context(), navigator.week().number()),
                                QStringLiteral("Calendario"));
             },
             {}});

    nav.add(QStringLiteral("Caja"),
            {Mode::Page, false, false,
             [](Navigator &navigator) {
                 return closing(navigator, new ui::LedgerScreen(navigator.context(), navigator.week().number()),
                                QStringLiteral("Caja"));
             },
             {}});

    // The stadium: works, prices, and the television's money.
    nav.add(QStringLiteral("estadios"),
            {Mode::Page, false, false,
             [](Navigator &navigator) {
                 return closing(navigator, new ui::StadiumScreen(navigator.context(), navigator.week()),
                                QStringLiteral("estadios"));
             },
             {}});

    nav.add(QStringLiteral("Tele"),
            {Mode::Dialog, false, false,
             [](Navigator &navigator) -> QWidget * {
                 // Only a week whose match television has bought shows it, and only until the
                 // player has acknowledged it.
                 if (!navigator.week().broadcast())
                     return nullptr;
                 auto *tele = new ui::BroadcastScreen(navigator.week());
                 QObject::connect(tele, &QDialog::accepted, &navigator,
                                  [&navigator] { navigator.close(QStringLiteral("Tele")); });
                 return tele;
             },
             {}});
}

} // namespace app
