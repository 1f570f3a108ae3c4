#pragma once

#include "transfers/market.h"
#include "transfers/offers.h"
#include "transfers/rivalsquad.h"
#include "transfers/youthacademy.h"

#include <QString>
#include <QStringList>
#include <QtGlobal>

#include <optional>
#include <vector>

namespace game {

class GameStore;

// Every statement of the players' moves: the squads and the market's lists, contracts and
// listings, the offers waiting in selects, the bids, the rival's starters in jugar and the
// youth pool. Each reads or writes one thing and hands it back in the game's own terms; all
// throw on a store failure, for use inside a routine.
namespace sql::transfers {

// A club's squad: how many, the highest shirt, the ids of its men on the list.
int squadSize(GameStore &store, int club);
int highestShirt(GameStore &store, int club);
std::vector<int> listedOf(GameStore &store, int club);
// The club's lowest-rated man not on the list (the lowest id among equals); 0 when none.
int weakestUnlisted(GameStore &store, int club);
// The lowest id of the club's men with a year or less left on their contracts; 0 when none.
int firstInLastYear(GameStore &store, int club);
int highestPlayerId(GameStore &store);
QString clubName(GameStore &store, int club);

// A player's name and his present contract.
struct Contract
{
    QString nombre;
    QString apellidos;
    qint64 clausula = 0;
    qint64 ficha = 0;
    qint64 years = 0;
    QString club; // his club's name; empty when it has none
};
std::optional<Contract> contract(GameStore &store, int player);

// A player changes club, keeping his shirt, wage, clause, contract and listing.
void moveTo(GameStore &store, int player, int club);
// The place a player held among the fourteen called up takes its empty form again.
void freeCallUpPlace(GameStore &store, int player);
// A new clause and wage, and years added to the contract.
void renew(GameStore &store, int player, int clausula, int ficha, int years);
// What a dismissal pays: every year left of his wage.
qint64 wageOfYearsLeft(GameStore &store, int player);
void toggleListing(GameStore &store, int player);
bool isListed(GameStore &store, int player);

// The market's lists, each in its order: the four sale grids, a club's squad by position
// group, the clubs of a country, a club's players, the scout's searches, everybody and the
// youth pool by position.
std::vector<Market::Line> forSale(GameStore &store, Market::Group group);
std::vector<Market::Line> squadIn(GameStore &store, Market::Group group, int club);
QStringList clubsOf(GameStore &store, int countryCode, int userClub);
std::vector<Market::Line> playersOf(GameStore &store, const QString &clubName);
std::vector<Market::Line> searchAll(GameStore &store, const QString &nombre, const QString &apellidos, int media,
                                    const QString &posicion, int edad);
std::vector<Market::Line> searchByRating(GameStore &store, const QString &nombre, const QString &apellidos, int media);
std::vector<Market::Line> searchByAge(GameStore &store, const QString &nombre, const QString &apellidos, int edad);
std::vector<Market::Line> searchByPosition(GameStore &store, const QString &nombre, const QString &apellidos,
                                           const QString &posicion);
std::vector<Market::Line> everybody(GameStore &store);
std::vector<Market::Line> youths(GameStore &store, const QString &posicion);
std::optional<Market::Card> card(GameStore &store, int player);

// The players of the four sale grids but one club's: whether one is among them, how many
// they are, and the nth of them (from 1) in id order, 0 past the last.
bool isForSale(GameStore &store, int player, int exceptClub);
int countForSale(GameStore &store, int exceptClub);
int nthForSale(GameStore &store, int exceptClub, int nth);

// An offer waiting in selects: the order that moves the player, written with its numbers
// when the offer was made, and the terms offered.
struct WaitingOffer
{
    qint64 rowid = 0;
    QString order;
    int oferta = 0;
    int clausula = 0;
    int ficha = 0;
    int player = 0;
};
// Queues an offer made in a week: the club that signs him, the shirt he will wear, the terms.
void queueOffer(GameStore &store, int week, int club, int shirt, const Offers::Terms &terms, int player);
// The offers made up to a week, or all of them, in the order they were made; offers of 0 for
// the club are none.
std::vector<WaitingOffer> offersUpTo(GameStore &store, int week);
std::vector<WaitingOffer> allOffers(GameStore &store);
// Moves the player as the offer's order says, with its numbers bound. False, with nothing
// written, when the order is not one the game wrote.
bool carryOut(GameStore &store, const QString &order);
// The first waiting offer with these terms for the player goes; a twin stays.
void dropOffer(GameStore &store, const WaitingOffer &offer);

// The rival's starters: the players of the club in a position with its highest rating (two
// at most: enough to tell a tie), any player by id, the lowest id of a position among the
// clubs that can lose him, and the rival's best man out of the position not named yet.
std::vector<RivalSquad::Player> bestInPosition(GameStore &store, int club, const QString &position);
int playerCount(GameStore &store);
std::optional<RivalSquad::Player> player(GameStore &store, int id);
std::optional<RivalSquad::Player> firstOfPositionAbroad(GameStore &store, const QString &position);
std::optional<RivalSquad::Player> bestUnnamedOutOfPosition(GameStore &store, int club, const QString &position);
void clearStarters(GameStore &store, int club);
void nameStarter(GameStore &store, int club, const RivalSquad::Player &player, int plaza);
void moveWithShirt(GameStore &store, int player, int club, qint64 shirt);

// A youth into the pool, on the terms every youth joins on.
void addYouth(GameStore &store, int id, const NewYouth &youth, int edad, int dorsal);

// The club's signings and sales, kept for the career's history (traspasos).
inline constexpr const char *kSigning = "fichaje";
inline constexpr const char *kSale = "venta";
void recordMove(GameStore &store, int season, int week, int player, const char *kind, qint64 sum);

} // namespace sql::transfers

} // namespace game
