#pragma once

#include "reports/standings.h"

#include <QString>

#include <vector>

namespace game {

class GameStore;

// Every statement of the reports: the league table and the places it writes, and the
// fixtures of a round. Each reads or writes one thing and hands it back in the game's own
// terms; all throw on a store failure, for use inside a routine.
namespace sql::reports {

// The clubs' lines of the table, points first, then fewest goals against, then by club; the
// matches played are left for the caller.
std::vector<Standings::Row> table(GameStore &store);
void writePlace(GameStore &store, int club, int place);

// The friendlies of the pre-season, which come before the league's first round.
int friendlies(GameStore &store);

// A fixture of a round as the season's template places the clubs: 0 goals each until it is
// played, and club 0 with no name for a position the table does not hold.
struct RoundFixture
{
    QString home;
    QString away;
    int homeGoals = 0;
    int awayGoals = 0;
    int homeClub = 0;
    int awayClub = 0;
};
std::vector<RoundFixture> round(GameStore &store, int round);

} // namespace sql::reports

} // namespace game
