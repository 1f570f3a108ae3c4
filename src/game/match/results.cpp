#include "results.h"

#include "dialogs.h"
#include "match/statements.h"
#include "money.h"
#include "random.h"
#include "store/gamestore.h"

namespace game {

namespace {

// Goals of a simulated fixture: anyone scores 1 to 41, the stronger side at least 21.
constexpr int kMostGoals = 41;
constexpr int kFewestGoalsOfTheStronger = 21;

} // namespace

bool Results::record(const Fixture &fixture, int homeGoals, int awayGoals)
{
    // A friendly counts for nothing in the league.
    if (!fixture.isLeague())
        return true;

    GameStore &store = m_context.store;
    const Result written = store.run([&] {
        settle(fixture.idpartido, fixture.homeId, fixture.awayId, homeGoals, awayGoals);

        // The rest of the round is played now, in fixture order. The rows are read first so
        // that no read of liga_asobal is open while its scores are written.
        for (const sql::match::RoundFixture &other : sql::match::restOfRound(store, fixture.idpartido))
            simulate(other.idpartido, other.homePosition, other.awayPosition);
    });
    if (!written) {
        m_context.dialogs.tell(written.message(), Dialogs::Icon::Exclamation);
        return false;
    }
    return true;
}

void Results::settle(int idpartido, int homeClub, int awayClub, int homeGoals, int awayGoals)
{
    GameStore &store = m_context.store;
    sql::match::writeScore(store, idpartido, homeGoals, awayGoals);
    // The winner's line is written before the loser's; in a draw the home club's comes first.
    // A win is worth two points, a draw one, a defeat none.
    if (homeGoals > awayGoals) {
        sql::match::addWin(store, homeClub, homeGoals, awayGoals);
        sql::match::addDefeat(store, awayClub, awayGoals, homeGoals);
    } else if (homeGoals < awayGoals) {
        sql::match::addWin(store, awayClub, awayGoals, homeGoals);
        sql::match::addDefeat(store, homeClub, homeGoals, awayGoals);
    } else {
        sql::match::addDraw(store, homeClub, homeGoals, awayGoals);
        sql::match::addDraw(store, awayClub, awayGoals, homeGoals);
    }
}

void Results::simulate(int idpartido, int homePosition, int awayPosition)
{
    const int homeClub = sql::match::clubAt(m_context.store, homePosition);
    const int awayClub = sql::match::clubAt(m_context.store, awayPosition);
    // Only the sign of the difference counts: the stronger squad scores 21 to 41 and the
    // other 1 to 41, so the weaker one still wins now and then. At equal strength the away
    // side is taken as the stronger. The stronger side's goals are drawn first.
    int homeGoals = 0;
    int awayGoals = 0;
    if (strength(homeClub) > strength(awayClub)) {
        homeGoals = strongerGoals();
        awayGoals = m_context.random.draw(kMostGoals);
    } else {
        awayGoals = strongerGoals();
        homeGoals = m_context.random.draw(kMostGoals);
    }
    settle(idpartido, homeClub, awayClub, homeGoals, awayGoals);
}

int Results::strength(int club)
{
    // Every player of the club counts, not just a line-up.
    const sql::match::Ratings squad = sql::match::ratings(m_context.store, club);
    return int(roundHalfEven(squad.sum, squad.players));
}

int Results::strongerGoals()
{
    int goals = 0;
    do
        goals = m_context.random.draw(kMostGoals);
    while (goals < kFewestGoalsOfTheStronger);
    return goals;
}

} // namespace game
