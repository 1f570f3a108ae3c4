#pragma once

#include "league/careerrow.h"
#include "league/fixture.h"

#include <optional>

namespace game {

class GameStore;

// Every statement of the league's basics: the career row, the week's fixture and what the
// clubs are. Each reads or writes one thing and hands it back in the game's own terms; all
// throw on a store failure, for use inside a routine.
namespace sql::league {

CareerRow careerRow(GameStore &store);
int userClub(GameStore &store);
// The career's season, from 1.
int season(GameStore &store);

// The fixture the calendar holds for a week; nothing for a week it does not have.
std::optional<int> matchOfWeek(GameStore &store, int week);
// A friendly of the pre-season by its slot, or a league fixture by its id, with the clubs
// its template positions stand for this season: week, rival and type left for the caller.
std::optional<Fixture> friendly(GameStore &store, int idpartido);
std::optional<Fixture> leagueFixture(GameStore &store, int idpartido);

// A club's class, and its place in the table as last written; nothing for a club without
// one (a club from abroad has no place).
std::optional<int> clubClass(GameStore &store, int club);
std::optional<int> tablePlace(GameStore &store, int club);

} // namespace sql::league

} // namespace game
