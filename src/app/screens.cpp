// The registry of the game's screens: how each is made, shown and closed, and what it asks of
// the navigator. A new screen is one entry here; the panel enables its button by itself.

#include "navigator.h"
#include "screennames.h"

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

// How a screen is closed by the player: by its own way back ("<- VOLVER" and the like, which
// a page reports with closeRequested), as a dialog (its button, Escape or its frame), or only
// by what the navigator does with it.
enum class Closed { ByNavigator, ByItsWayBack, AsDialog };

// One entry of the registry, typed by the screen's class: what it is made from and what is
// done with it at each opening, on the screen itself.
template<typename Screen>
struct Entry
{
    Mode mode = Mode::Page;
    bool hides = false;
    bool outlivesTheWeek = false;
    Closed closed = Closed::ByItsWayBack;
    std::function<Screen *(Navigator &)> make;
    std::function<void(Navigator &, Screen &)> opened = {};
    std::function<void(Navigator &, Screen &, const QVariant &)> about = {};
};

template<typename Screen>
void add(Navigator &navigator, const QString &name, Entry<Screen> entry)
{
    ScreenKind kind{entry.mode, entry.hides, entry.outlivesTheWeek};
    kind.make = [name, closed = entry.closed, make = std::move(entry.make)](Navigator &nav) -> QWidget * {
        Screen *screen = make(nav);
        if (!screen)
            return nullptr;
        if constexpr (requires { &Screen::closeRequested; }) {
            if (closed == Closed::ByItsWayBack)
                QObject::connect(screen, &Screen::closeRequested, &nav, [&nav, name] { nav.close(name); });
        }
        if constexpr (std::is_base_of_v<QDialog, Screen>) {
            if (closed == Closed::AsDialog)
                QObject::connect(screen, &QDialog::rejected, &nav, [&nav, name] { nav.close(name); });
        }
        return screen;
    };
    // The one place the navigator's widgets are taken back to the screens they were made as.
    if (entry.opened) {
        kind.opened = [opened = std::move(entry.opened)](Navigator &nav, QWidget *screen) {
            opened(nav, *static_cast<Screen *>(screen));
        };
    }
    if (entry.about) {
        kind.about = [about = std::move(entry.about)](Navigator &nav, QWidget *screen, const QVariant &what) {
            about(nav, *static_cast<Screen *>(screen), what);
        };
    }
    navigator.add(name, std::move(kind));
}

// The two web pages. The game does not test the connection, so the warning comes at every
// opening; the page itself opens in the system's browser.
Entry<ui::InfoPage> webPage(ui::InfoPage::Kind kind, const QUrl &address)
{
    return {.mode = Mode::Dialog,
            .hides = true,
            .closed = Closed::AsDialog,
            .make = [kind](Navigator &) { return new ui::InfoPage(kind); },
            .opened = [address](Navigator &navigator, ui::InfoPage &page) {
                navigator.context().dialogs.tell(QObject::tr("Es Necesario Tener Conexion a Intetnet"));
                page.showOpened(navigator.openUrl(address));
                page.resize(720, 420);
            }};
}

// The offer for a player, opened about {"player": id, "listed": bool}: a listed player's offer
// starts from his club's and his own terms.
QVariantMap offerAbout(int player, bool listed)
{
    return {{QStringLiteral("player"), player}, {QStringLiteral("listed"), listed}};
}

} // namespace

void registerScreens(Navigator &nav)
{
    // Before a career.
    add<ui::SplashScreen>(nav, screen::Splash,
                          {.outlivesTheWeek = true,
                           .make = [](Navigator &navigator) {
                               auto *splash = new ui::SplashScreen;
                               QObject::connect(splash, &ui::SplashScreen::finished, &navigator, [&navigator] {
                                   navigator.showMenu();
                                   navigator.close(screen::Splash);
                               });
                               return splash;
                           },
                           .opened = [](Navigator &, ui::SplashScreen &splash) { splash.start(); }});

    add<ui::MainMenu>(nav, screen::Menu,
                      {.outlivesTheWeek = true,
                       .make = [](Navigator &navigator) {
                           auto *menu = new ui::MainMenu;
                           const auto opens = [&navigator](const QString &name) {
                               return [&navigator, name] { navigator.open(name); };
                           };
                           using ui::MainMenu;
                           QObject::connect(menu, &MainMenu::continueRequested, &navigator,
                                            [&navigator] { navigator.continueCareer(); });
                           QObject::connect(menu, &MainMenu::newCareerRequested, &navigator, opens(screen::NewCareer));
                           QObject::connect(menu, &MainMenu::loadRequested, &navigator, opens(screen::Load));
                           QObject::connect(menu, &MainMenu::addYouthRequested, &navigator, opens(screen::AddYouth));
                           QObject::connect(menu, &MainMenu::historyRequested, &navigator,
                                            opens(screen::HandballHistory));
                           QObject::connect(menu, &MainMenu::informationRequested, &navigator,
                                            opens(screen::HandballInfo));
                           QObject::connect(menu, &MainMenu::instructionsRequested, &navigator,
                                            opens(screen::Instructions));
                           QObject::connect(menu, &MainMenu::quitRequested, &navigator, &Navigator::quitGame);
                           return menu;
                       },
                       // A menu reached from anywhere starts clean: a new career or a planner left
                       // over goes away.
                       .opened = [](Navigator &navigator, ui::MainMenu &) {
                           navigator.close(screen::NewCareer);
                           navigator.close(screen::Planner);
                       }});

    add<ui::NewCareerScreen>(nav, screen::NewCareer,
                             {.mode = Mode::Dialog,
                              .closed = Closed::AsDialog,
                              .make = [](Navigator &navigator) {
                                  // The career's planner comes up as the career starts; this screen
                                  // then goes.
                                  auto *screen = new ui::NewCareerScreen(navigator.career());
                                  QObject::connect(screen, &ui::NewCareerScreen::careerStarted, &navigator,
                                                   [&navigator] { navigator.close(screen::NewCareer); });
                                  return screen;
                              }});

    add<ui::AddYouthScreen>(nav, screen::AddYouth,
                            {.mode = Mode::Dialog,
                             .closed = Closed::AsDialog,
                             .make = [](Navigator &navigator) { return new ui::AddYouthScreen(navigator.context()); }});

    add<ui::InfoPage>(nav, screen::Instructions,
                      {.mode = Mode::Window,
                       .hides = true,
                       .closed = Closed::AsDialog,
                       .make = [](Navigator &) { return new ui::InfoPage(ui::InfoPage::Kind::Instructions); },
                       .opened = [](Navigator &navigator, ui::InfoPage &page) {
                           page.resize(navigator.window().size() * 0.9);
                       }});
    add(nav, screen::HandballHistory, webPage(ui::InfoPage::Kind::History, ui::InfoPage::historyPage()));
    add(nav, screen::HandballInfo, webPage(ui::InfoPage::Kind::Handball, ui::InfoPage::handballSite()));

    // The careers kept; the one chosen is taken up where it stood.
    add<ui::LoadScreen>(nav, screen::Load,
                        {.make = [](Navigator &navigator) -> ui::LoadScreen * {
                            if (!navigator.saves())
                                return nullptr;
                            auto *load = new ui::LoadScreen(navigator.context(), *navigator.saves());
                            QObject::connect(load, &ui::LoadScreen::loadRequested, &navigator,
                                             [&navigator](const QString &path) { navigator.continueCareer(path); });
                            return load;
                        }});

    // The season: its planner, then week after week.
    add<ui::PreseasonScreen>(nav, screen::Planner,
                             {.closed = Closed::ByNavigator,
                              .make = [](Navigator &navigator) {
                                  auto *planner = new ui::PreseasonScreen(navigator.career());
                                  QObject::connect(planner, &ui::PreseasonScreen::backToMenu, &navigator,
                                                   &Navigator::showMenu);
                                  return planner;
                              },
                              // The career has begun: the menu goes, and comes back afresh when it
                              // is left.
                              .opened = [](Navigator &navigator, ui::PreseasonScreen &) {
                                  navigator.close(screen::Menu);
                              }});

    add<ui::WeekPanel>(nav, screen::Panel,
                       {.hides = true,
                        .outlivesTheWeek = true,
                        .make = [](Navigator &navigator) {
                            auto *panel = new ui::WeekPanel(navigator.career(), [&navigator](const QString &name) {
                                return navigator.has(name);
                            });
                            QObject::connect(panel, &ui::WeekPanel::openRequested, &navigator,
                                             [&navigator](const QString &name) { navigator.open(name); });
                            QObject::connect(panel, &ui::WeekPanel::goOnRequested, &navigator, &Navigator::goOn);
                            QObject::connect(panel, &ui::WeekPanel::leaveRequested, &navigator,
                                             &Navigator::leaveCareer);
                            return panel;
                        },
                        .opened = [](Navigator &, ui::WeekPanel &panel) { panel.showWeek(); }});

    // Match day.
    add<ui::CallUpScreen>(nav, screen::CallUp,
                          {.hides = true,
                           .make = [](Navigator &navigator) {
                               auto *callUp = new ui::CallUpScreen(navigator.context());
                               QObject::connect(callUp, &ui::CallUpScreen::playRequested, &navigator,
                                                &Navigator::playMatch);
                               return callUp;
                           },
                           .opened = [](Navigator &, ui::CallUpScreen &callUp) { callUp.reload(); }});

    add<ui::TacticsScreen>(nav, screen::Tactics,
                           {.hides = true,
                            .outlivesTheWeek = true,
                            .make = [](Navigator &navigator) { return new ui::TacticsScreen(navigator.context()); }});

    add<ui::MatchScreen>(nav, screen::Match,
                         {.mode = Mode::Dialog,
                          .outlivesTheWeek = true,
                          .closed = Closed::ByNavigator,
                          .make = [](Navigator &navigator) -> ui::MatchScreen * {
                              // The match kicks off through the career, which settles its crowd
                              // once and plays it; the screen runs its clock and shows it.
                              game::Career &career = navigator.career();
                              game::MatchEngine *engine = career.kickOff();
                              if (!engine)
                                  return nullptr;
                              auto *match = new ui::MatchScreen(navigator.context(), *engine, *career.week().fixture(),
                                                                *career.week().gate());
                              QObject::connect(match, &ui::MatchScreen::left, &navigator, &Navigator::matchOver);
                              return match;
                          }});

    // Reports and the club's money.
    add<ui::CalendarScreen>(nav, screen::Calendar,
                            {.make = [](Navigator &navigator) {
                                return new ui::CalendarScreen(navigator.context(), navigator.career().week().number());
                            }});

    add<ui::LedgerScreen>(nav, screen::Ledger,
                          {.make = [](Navigator &navigator) {
                              return new ui::LedgerScreen(navigator.context(), navigator.career().week().number());
                          }});

    // The stadium: works, prices, and the television's money.
    add<ui::StadiumScreen>(nav, screen::Stadium,
                           {.make = [](Navigator &navigator) {
                               return new ui::StadiumScreen(navigator.context(), navigator.career().week());
                           }});

    add<ui::BroadcastScreen>(nav, screen::Television,
                             {.mode = Mode::Dialog,
                              .closed = Closed::ByNavigator,
                              .make = [](Navigator &navigator) -> ui::BroadcastScreen * {
                                  // Only a week whose match television has bought shows it, and
                                  // only until the player has acknowledged it.
                                  if (!navigator.career().week().broadcast())
                                      return nullptr;
                                  auto *tele = new ui::BroadcastScreen(navigator.career().week());
                                  QObject::connect(tele, &QDialog::accepted, &navigator,
                                                   [&navigator] { navigator.close(screen::Television); });
                                  return tele;
                              }});

    // The squad and its contracts. Each is made afresh at every opening. A contract changed or
    // ended makes the squad afresh under it, so that the lists show the club as it now is.
    add<ui::SquadScreen>(nav, screen::Squad,
                         {.make = [](Navigator &navigator) {
                             auto *squad = new ui::SquadScreen(navigator.context());
                             QObject::connect(squad, &ui::SquadScreen::playerPicked, &navigator,
                                              [&navigator](int player) { navigator.open(screen::Contract, player); });
                             QObject::connect(squad, &ui::SquadScreen::youthRequested, &navigator,
                                              [&navigator] { navigator.open(screen::Youth); });
                             return squad;
                         }});

    add<ui::ContractScreen>(nav, screen::Contract,
                            {.make =
                                 [](Navigator &navigator) {
                                     auto *contract = new ui::ContractScreen(navigator.context());
                                     const auto backToSquad = [&navigator] {
                                         navigator.close(screen::Contract);
                                         navigator.open(screen::Squad);
                                     };
                                     // The screen closes whatever the player answered; only a new
                                     // contract changes the squad's lists.
                                     QObject::connect(contract, &ui::ContractScreen::renewalDone, &navigator,
                                                      [&navigator, backToSquad](bool renewed) {
                                                          if (renewed)
                                                              backToSquad();
                                                          else
                                                              navigator.close(screen::Contract);
                                                      });
                                     QObject::connect(contract, &ui::ContractScreen::dismissed, &navigator,
                                                      backToSquad);
                                     return contract;
                                 },
                             .about = [](Navigator &, ui::ContractScreen &contract, const QVariant &player) {
                                 contract.showPlayer(player.toInt());
                             }});

    add<ui::YouthScreen>(nav, screen::Youth,
                         {.hides = true,
                          .make = [](Navigator &navigator) {
                              auto *youth = new ui::YouthScreen(navigator.context());
                              // A youth is offered for as a listed player: from the clause and
                              // wage he asks.
                              QObject::connect(youth, &ui::YouthScreen::playerPicked, &navigator,
                                               [&navigator](int player) {
                                                   navigator.open(screen::Offer, offerAbout(player, true));
                                               });
                              return youth;
                          }});

    // The offer for a player picked on a list, opened about {"player": id, "listed": bool}, or
    // about the bare id of a player who is not on the market.
    add<ui::OfferScreen>(nav, screen::Offer,
                         {.outlivesTheWeek = true,
                          .make = [](Navigator &navigator) { return new ui::OfferScreen(navigator.context()); },
                          .about = [](Navigator &, ui::OfferScreen &offer, const QVariant &about) {
                              const QVariantMap asked = about.toMap();
                              const int player =
                                  asked.isEmpty() ? about.toInt() : asked.value(QStringLiteral("player")).toInt();
                              const bool listed = asked.value(QStringLiteral("listed")).toBool();
                              offer.showPlayer(player,
                                               listed ? ui::OfferScreen::Mode::Listed : ui::OfferScreen::Mode::Free);
                          }});

    // The market's lists: a player picked on any of them opens the offer for him.
    const auto offerFor = [](Navigator &navigator, bool listed) {
        return [&navigator, listed](int player) { navigator.open(screen::Offer, offerAbout(player, listed)); };
    };

    add<ui::SaleScreen>(nav, screen::Sale,
                        {.make = [offerFor](Navigator &navigator) {
                            auto *sale = new ui::SaleScreen(navigator.context());
                            QObject::connect(sale, &ui::SaleScreen::playerPicked, &navigator, offerFor(navigator, true));
                            // The clubs take the place of the sale lists: the two are never open
                            // together.
                            QObject::connect(sale, &ui::SaleScreen::offersRequested, &navigator, [&navigator] {
                                navigator.close(screen::Sale);
                                navigator.open(screen::Clubs);
                            });
                            // The scout stands over the sale lists, which are back when he is left.
                            QObject::connect(sale, &ui::SaleScreen::scoutRequested, &navigator,
                                             [&navigator] { navigator.open(screen::Scout); });
                            return sale;
                        }});

    add<ui::ClubsScreen>(nav, screen::Clubs,
                         {.make = [offerFor](Navigator &navigator) {
                             auto *clubs = new ui::ClubsScreen(navigator.context());
                             QObject::connect(clubs, &ui::ClubsScreen::playerPicked, &navigator,
                                              offerFor(navigator, false));
                             return clubs;
                         }});

    add<ui::ScoutScreen>(nav, screen::Scout,
                         {.make = [offerFor](Navigator &navigator) {
                             auto *scout = new ui::ScoutScreen(navigator.context());
                             QObject::connect(scout, &ui::ScoutScreen::playerPicked, &navigator,
                                              offerFor(navigator, false));
                             return scout;
                         }});

    // The season's reports, read afresh at every opening; the table writes the places as it
    // is read.
    add<ui::StandingsScreen>(nav, screen::Standings,
                             {.make = [](Navigator &navigator) { return new ui::StandingsScreen(navigator.context()); }});
    add<ui::RoundsScreen>(nav, screen::Rounds,
                          {.make = [](Navigator &navigator) { return new ui::RoundsScreen(navigator.context()); }});
    // The career's history: its seasons, its scorers, its place and budget season by season.
    add<ui::HistoryScreen>(nav, screen::CareerHistory,
                           {.make = [](Navigator &navigator) { return new ui::HistoryScreen(navigator.context()); }});

    // The season's verdict, once its close has ranked the league; reading it settles the
    // orders still waiting and leads to the next pre-season.
    add<ui::VerdictScreen>(nav, screen::Verdict,
                           {.mode = Mode::Dialog,
                            .outlivesTheWeek = true,
                            .closed = Closed::ByNavigator,
                            .make = [](Navigator &navigator) -> ui::VerdictScreen * {
                                if (!navigator.career().verdict())
                                    return nullptr;
                                auto *verdict = new ui::VerdictScreen(*navigator.career().verdict());
                                QObject::connect(verdict, &QDialog::accepted, &navigator, &Navigator::verdictRead);
                                return verdict;
                            }});
}

} // namespace app
