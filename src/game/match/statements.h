#pragma once

#include "match/callup.h"

#include <QString>
#include <QStringList>
#include <QtGlobal>

#include <optional>
#include <vector>

namespace game {

class GameStore;

// Every statement of the match day: the fourteen places of the call-up (miequipo), the
// sheets the match is played from, and what a league match leaves in the fixtures and the
// table. Each reads or writes one thing and hands it back in the game's own terms; all throw
// on a store failure, for use inside a routine.
namespace sql::match {

// The fourteen places in their order.
std::vector<CallUp::Place> places(GameStore &store);
// The key of the place at an index (0 is PORTERO); empty past the last.
QString placeKey(GameStore &store, int index);
// The places as players, a free place with id 0 and its key as the name.
std::vector<CallUp::Player> calledUp(GameStore &store);
int filledPlaces(GameStore &store);
// A player leaves the place he held, if any: it reads as free again.
void leavePlace(GameStore &store, int player);
// The player of the club takes the place of this key.
void takePlace(GameStore &store, const QString &key, int club, const CallUp::Player &player);

// A club's players ordered by position, and one of them by id; nothing when he is not the
// club's.
std::vector<CallUp::Player> squad(GameStore &store, int club);
std::optional<CallUp::Player> clubPlayer(GameStore &store, int player, int club);
// The club's players from the best down; among equals by position, then id.
struct Candidate
{
    int id = 0;
    QString posicion;
};
std::vector<Candidate> bestFirst(GameStore &store, int club);

// A man as the match's sheets name him: the user's fourteen in place order, the rival's
// seven by place on the court, and the surnames of the fourteen.
struct SheetLine
{
    int id = 0;   // 0 for a place left free
    QString nombre;
    QString apellidos;
    QString posicion;
    int media = 0;
};
std::vector<SheetLine> userSheet(GameStore &store);
std::vector<SheetLine> rivalSheet(GameStore &store);
QStringList squadSurnames(GameStore &store);

// The other fixtures of a league fixture's round, in fixture order, by their template
// positions.
struct RoundFixture
{
    int idpartido = 0;
    int homePosition = 0;
    int awayPosition = 0;
};
std::vector<RoundFixture> restOfRound(GameStore &store, int idpartido);
void writeScore(GameStore &store, int idpartido, int homeGoals, int awayGoals);
// One match more in a club's line of the table: a win (two points), a draw (one) or a defeat.
void addWin(GameStore &store, int club, int goalsFor, int goalsAgainst);
void addDraw(GameStore &store, int club, int goalsFor, int goalsAgainst);
void addDefeat(GameStore &store, int club, int goalsFor, int goalsAgainst);
// The club behind a template position this season.
int clubAt(GameStore &store, int position);
// The sum of the ratings of a club's whole squad, and its size.
struct Ratings
{
    qint64 sum = 0;
    qint64 players = 0;
};
Ratings ratings(GameStore &store, int club);

} // namespace sql::match

} // namespace game
