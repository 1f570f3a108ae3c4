#include "seasonclose.h"

#include "league/careerrow.h"
#include "dialogs.h"
#include "stadium/works.h"
#include "career/statements.h"
#include "store/gamestore.h"
#include "transfers/offers.h"

#include <vector>

namespace game {

std::optional<SeasonClose::Verdict> SeasonClose::close()
{
    GameStore &store = m_context.store;
    Verdict line;
    const Result closed = store.run([&] {
        line = verdict(); // the user's line, before the table is emptied
        // The ranking: points, then fewest goals against, then the club's id for a stable
        // order. The champion takes 16 and the last club 1.
        const std::vector<int> ranking = sql::career::finalRanking(store);
        int place = int(ranking.size()) + 1;
        for (const int club : ranking)
            sql::career::writePlace(store, club, --place);
        sql::career::emptySeason(store);
    });
    if (!closed) {
        m_context.dialogs.tell(closed.message(), Dialogs::Icon::Exclamation);
        return std::nullopt;
    }
    Verdict ranked = verdict();
    ranked.won = line.won;
    ranked.drawn = line.drawn;
    ranked.lost = line.lost;
    ranked.goalsFor = line.goalsFor;
    ranked.goalsAgainst = line.goalsAgainst;
    ranked.points = line.points;
    return ranked;
}

SeasonClose::Verdict SeasonClose::verdict()
{
    GameStore &store = m_context.store;
    Verdict verdict;
    store.attempt([&] {
        using namespace sql::career;
        verdict.champion = clubAtPlace(store, 16);
        verdict.championName = clubName(store, verdict.champion);
        verdict.last = clubName(store, clubAtPlace(store, 1));
        verdict.secondLast = clubName(store, clubAtPlace(store, 2));
        const int club = userClub(store);
        verdict.userPlace = placeOf(store, club);
        readLine(store, club, verdict);
    });
    return verdict;
}

int SeasonClose::settleQueue()
{
    GameStore &store = m_context.store;
    const int works = Works(m_context).finishAll();
    const Offers::Settled offers = Offers(m_context).settleAllAtClose();
    // The planner starts from an empty pre-season.
    const Result emptied = store.run([&] { sql::career::clearPreseason(store); });
    if (!emptied)
        m_context.dialogs.tell(emptied.message(), Dialogs::Icon::Exclamation);
    return works + offers.signings + offers.refusals;
}

} // namespace game
