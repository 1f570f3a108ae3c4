#include "roundresults.h"

#include "league/careerrow.h"
#include "reports/statements.h"
#include "store/gamestore.h"

namespace game {

int RoundResults::currentRound()
{
    int round = kFirstRound;
    m_context.store.attempt([&] {
        const int week = CareerRow::read(m_context.store).week;
        round = week - sql::reports::friendlies(m_context.store);
    });
    return round < kFirstRound ? kFirstRound : round;
}

std::vector<RoundResults::Match> RoundResults::round(int round)
{
    std::vector<Match> matches;
    m_context.store.attempt([&] {
        const CareerRow career = CareerRow::read(m_context.store);
        for (const sql::reports::RoundFixture &fixture : sql::reports::round(m_context.store, round)) {
            Match match;
            match.home = fixture.home;
            match.away = fixture.away;
            if (fixture.homeGoals != 0 || fixture.awayGoals != 0) {
                match.homeGoals = QString::number(fixture.homeGoals);
                match.awayGoals = QString::number(fixture.awayGoals);
            }
            match.users = fixture.homeClub == career.club || fixture.awayClub == career.club;
            matches.push_back(match);
        }
    });
    return matches;
}

} // namespace game
