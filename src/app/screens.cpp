// The table of the game's screens: how each is made, shown and closed, and what it asks of
// the navigator. A new screen is one entry here; the panel enables its button by itself.

#include "navigator.h"

#include "career/historyscreen.h"
#include "career/infopage.h"
#include "career/loadscreen.h"
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
#include "reports/roundsscreen.h"
#include "reports/standingsscreen.h"
#include "reports/verdictscreen.h"
#include "stadium/broadcastscreen.h"
#include "stadium/ledgerscreen.h"
#include "stadium/stadiumscreen.h"
#include "transfers/addyouthscreen.h"
#include "transfers/clubsscreen.h"
#include "transfers/contractscreen.h"
#include "transfers/offerscreen.h"
#include "transfers/salescreen.h"
#include "transfers/scoutscreen.h"
#include "transfers/squadscreen.h"
#include "transfers/youthscreen.h"

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
                static_cast<ui::InfoPage *>(page)->showOpened(navigator.openUrl(address));
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
                 QObject::connect(menu, &ui::MainMenu::continueRequested, &navigator,
                                  [&navigator] { navigator.continueCareer(); });
                 QObject::connect(menu, &ui::MainMenu::loadRequested, &navigator, opens("Cargar"));
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
                 // The career's planner comes up as the career starts; this screen then goes.
                 auto *screen = new ui::NewCareerScreen(navigator.career());
                 QObject::connect(screen, &ui::NewCareerScreen::careerStarted, &navigator,
                                  [&navigator] { navigator.close(QStringLiteral("Liga_Manager")); });
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
                 auto *planner = new ui::PreseasonScreen(navigator.career());
                 QObject::connect(planner, &ui::PreseasonScreen::backToMenu, &navigator, &Navigator::showMenu);
                 return planner;
             },
             // The career has begun: the menu goes, and comes back afresh when it is left.
             [](Navigator &navigator, QWidget *) { navigator.close(QStringLiteral("Form1")); }});

    nav.add(QStringLiteral("Panel_Control_Manager"),
            {Mode::Page, true, true,
             [](Navigator &navigator) {
                 auto *panel = new ui::WeekPanel(navigator.career(),
                                                 [&navigator](const QString &screen) { return navigator.has(screen); });
                 QObject::connect(panel, &ui::WeekPanel::openRequested, &navigator,
                                  [&navigator](const QString &screen) { navigator.open(screen); });
                 QObject::connect(panel, &ui::WeekPanel::goOnRequested, &navigator, &Navigator::goOn);
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
            {Mode::Page, true, true,
             [](Navigator &navigator) {
                 return closing(navigator, new ui::TacticsScreen(navigator.context()), QStringLiteral("Tactica"));
             },
             {}});

    nav.add(QStringLiteral("partido"),
            {Mode::Dialog, false, true,
             [](Navigator &navigator) -> QWidget * {
                 // The match kicks off through the career, which settles its crowd once and
                 // plays it; the screen runs its clock and shows it.
                 game::Career &career = navigator.career();
                 game::MatchEngine *engine = career.kickOff();
                 if (!engine)
                     return nullptr;
                 auto *match = new ui::MatchScreen(navigator.context(), *engine, *career.week().fixture(),
                                              *career.week().gate());
                 QObject::connect(match, &ui::MatchScreen::left, &navigator, &Navigator::matchOver);
                 return match;
             },
             {}});

    // Reports and the club's money.
    nav.add(QStringLiteral("Calendario"),
            {Mode::Page, false, false,
             [](Navigator &navigator) {
                 return closing(navigator, new ui::CalendarScreen(navigator.context(), navigator.career().week().number()),
                                QStringLiteral("Calendario"));
             },
             {}});

    nav.add(QStringLiteral("Caja"),
            {Mode::Page, false, false,
             [](Navigator &navigator) {
                 return closing(navigator, new ui::LedgerScreen(navigator.context(), navigator.career().week().number()),
                                QStringLiteral("Caja"));
             },
             {}});

    // The stadium: works, prices, and the television's money.
    nav.add(QStringLiteral("estadios"),
            {Mode::Page, false, false,
             [](Navigator &navigator) {
                 return closing(navigator, new ui::StadiumScreen(navigator.context(), navigator.career().week()),
                                QStringLiteral("estadios"));
             },
             {}});

    nav.add(QStringLiteral("Tele"),
            {Mode::Dialog, false, false,
             [](Navigator &navigator) -> QWidget * {
                 // Only a week whose match television has bought shows it, and only until the
                 // player has acknowledged it.
                 if (!navigator.career().week().broadcast())
                     return nullptr;
                 auto *tele = new ui::BroadcastScreen(navigator.career().week());
                 QObject::connect(tele, &QDialog::accepted, &navigator,
                                  [&navigator] { navigator.close(QStringLiteral("Tele")); });
                 return tele;
             },
             {}});

    // The squad and its contracts.
    // Each is made afresh at every opening. A contract changed or ended makes the squad afresh
    // under it, so that the lists show the club as it now is.
    nav.add(QStringLiteral("Plantilla"),
            {Mode::Page, false, false,
             [](Navigator &navigator) {
                 auto *squad = new ui::SquadScreen(navigator.context());
                 QObject::connect(squad, &ui::SquadScreen::playerPicked, &navigator,
                                  [&navigator](int player) { navigator.open(QStringLiteral("Renovar"), player); });
                 QObject::connect(squad, &ui::SquadScreen::youthRequested, &navigator,
                                  [&navigator] { navigator.open(QStringLiteral("Juveniles")); });
                 return closing(navigator, squad, QStringLiteral("Plantilla"));
             },
             {}});

    nav.add(QStringLiteral("Renovar"),
            {Mode::Page, false, false,
             [](Navigator &navigator) {
                 auto *contract = new ui::ContractScreen(navigator.context());
                 const auto backToSquad = [&navigator] {
                     navigator.close(QStringLiteral("Renovar"));
                     navigator.open(QStringLiteral("Plantilla"));
                 };
                 // The screen closes whatever the player answered; only a new contract changes
                 // the squad's lists.
                 QObject::connect(contract, &ui::ContractScreen::renewalDone, &navigator,
                                  [&navigator, backToSquad](bool renewed) {
                                      if (renewed)
                                          backToSquad();
                                      else
                                          navigator.close(QStringLiteral("Renovar"));
                                  });
                 QObject::connect(contract, &ui::ContractScreen::dismissed, &navigator, backToSquad);
                 return closing(navigator, contract, QStringLiteral("Renovar"));
             },
             {},
             [](Navigator &, QWidget *contract, const QVariant &player) {
                 static_cast<ui::ContractScreen *>(contract)->showPlayer(player.toInt());
             }});

    nav.add(QStringLiteral("Juveniles"),
            {Mode::Page, true, false,
             [](Navigator &navigator) {
                 auto *youth = new ui::YouthScreen(navigator.context());
                 // A youth is offered for as a listed player: from the clause and wage he asks.
                 QObject::connect(youth, &ui::YouthScreen::playerPicked, &navigator, [&navigator](int player) {
                     navigator.open(QStringLiteral("Fichar_Jugadores"),
                                    QVariantMap{{QStringLiteral("player"), player}, {QStringLiteral("listed"), true}});
                 });
                 return closing(navigator, youth, QStringLiteral("Juveniles"));
             },
             {}});

    // The offer for a player picked on a list, opened about {"player": id, "listed": bool}, or
    // about the bare id of a player who is not on the market.
    nav.add(QStringLiteral("Fichar_Jugadores"),
            {Mode::Page, false, true,
             [](Navigator &navigator) {
                 return closing(navigator, new ui::OfferScreen(navigator.context()), QStringLiteral("Fichar_Jugadores"));
             },
             {},
             [](Navigator &, QWidget *offer, const QVariant &about) {
                 const QVariantMap asked = about.toMap();
                 const int player = asked.isEmpty() ? about.toInt() : asked.value(QStringLiteral("player")).toInt();
                 const bool listed = asked.value(QStringLiteral("listed")).toBool();
                 static_cast<ui::OfferScreen *>(offer)->showPlayer(
                     player, listed ? ui::OfferScreen::Mode::Listed : ui::OfferScreen::Mode::Free);
             }});

    // The market's lists.
    // A player picked on any of them opens the offer for him. The sale lists say that he is
    // listed, and the offer then starts from his club's and his own terms.
    const auto offerFor = [](Navigator &navigator, bool listed) {
        return [&navigator, listed](int player) {
            navigator.open(QStringLiteral("Fichar_Jugadores"),
                           QVariantMap{{QStringLiteral("player"), player}, {QStringLiteral("listed"), listed}});
        };
    };

    nav.add(QStringLiteral("Fichar_EnVenta"),
            {Mode::Page, false, false,
             [offerFor](Navigator &navigator) {
                 auto *sale = new ui::SaleScreen(navigator.context());
                 QObject::connect(sale, &ui::SaleScreen::playerPicked, &navigator, offerFor(navigator, true));
                 // The clubs take the place of the sale lists: the two are never open together.
                 QObject::connect(sale, &ui::SaleScreen::offersRequested, &navigator, [&navigator] {
                     navigator.close(QStringLiteral("Fichar_EnVenta"));
                     navigator.open(QStringLiteral("Fichar"));
                 });
                 // The scout stands over the sale lists, which are back when he is left.
                 QObject::connect(sale, &ui::SaleScreen::scoutRequested, &navigator,
                                  [&navigator] { navigator.open(QStringLiteral("Secretario")); });
                 return closing(navigator, sale, QStringLiteral("Fichar_EnVenta"));
             },
             {}});

    nav.add(QStringLiteral("Fichar"),
            {Mode::Page, false, false,
             [offerFor](Navigator &navigator) {
                 auto *clubs = new ui::ClubsScreen(navigator.context());
                 QObject::connect(clubs, &ui::ClubsScreen::playerPicked, &navigator, offerFor(navigator, false));
                 return closing(navigator, clubs, QStringLiteral("Fichar"));
             },
             {}});

    nav.add(QStringLiteral("Secretario"),
            {Mode::Page, false, false,
             [offerFor](Navigator &navigator) {
                 auto *scout = new ui::ScoutScreen(navigator.context());
                 QObject::connect(scout, &ui::ScoutScreen::playerPicked, &navigator, offerFor(navigator, false));
                 return closing(navigator, scout, QStringLiteral("Secretario"));
             },
             {}});

    // The season's reports.
    // Both are read afresh at every opening; the table writes the places as it is read.
    nav.add(QStringLiteral("Clasificacion"),
            {Mode::Page, false, false,
             [](Navigator &navigator) {
                 return closing(navigator, new ui::StandingsScreen(navigator.context()),
                                QStringLiteral("Clasificacion"));
             },
             {}});

    // The career's history: its seasons, its scorers, its place and budget season by season.
    nav.add(QStringLiteral("Historial"),
            {Mode::Page, false, false,
             [](Navigator &navigator) {
                 return closing(navigator, new ui::HistoryScreen(navigator.context()), QStringLiteral("Historial"));
             },
             {}});

    // The careers kept, from the menu; the one chosen is taken up where it stood.
    nav.add(QStringLiteral("Cargar"),
            {Mode::Page, false, false,
             [](Navigator &navigator) -> QWidget * {
                 if (!navigator.saves())
                     return nullptr;
                 auto *load = new ui::LoadScreen(navigator.context(), *navigator.saves());
                 QObject::connect(load, &ui::LoadScreen::loadRequested, &navigator,
                                  [&navigator](const QString &path) { navigator.continueCareer(path); });
                 return closing(navigator, load, QStringLiteral("Cargar"));
             },
             {}});

    nav.add(QStringLiteral("Resultados"),
            {Mode::Page, false, false,
             [](Navigator &navigator) {
                 return closing(navigator, new ui::RoundsScreen(navigator.context()), QStringLiteral("Resultados"));
             },
             {}});

    // The season's verdict, once its close has ranked the league; reading it settles the
    // orders still waiting and leads to the next pre-season.
    nav.add(QStringLiteral("Finall"),
            {Mode::Dialog, false, true,
             [](Navigator &navigator) -> QWidget * {
                 if (!navigator.career().verdict())
                     return nullptr;
                 auto *verdict = new ui::VerdictScreen(*navigator.career().verdict());
                 QObject::connect(verdict, &QDialog::accepted, &navigator, &Navigator::verdictRead);
                 return verdict;
             },
             {}});
}

} // namespace app
