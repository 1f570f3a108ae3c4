#include "seasonclose.h"

#include "league/careerrow.h"
#include "dialogs.h"
#include "stadium/statements.h"
#include "stadium/works.h"
#include "career/statements.h"
#include "store/gamestore.h"
#include "transfers/statements.h"
#include "transfers/offers.h"

#include <algorithm>
#include <vector>

namespace game {

namespace {

// The verdict as the places stand, and the user's line as the table holds it. Throws on a
// store failure.
SeasonClose::Verdict readVerdict(GameStore &store)
{
    using namespace sql::career;
    SeasonClose::Verdict verdict;
    const CareerRow career = CareerRow::read(store);
    verdict.season = career.season;
    verdict.years = career.seasonYears();
    verdict.champion = clubAtPlace(store, 16);
    verdict.championName = clubName(store, verdict.champion);
    verdict.last = clubName(store, clubAtPlace(store, 1));
    verdict.secondLast = clubName(store, clubAtPlace(store, 2));
    verdict.userPlace = placeOf(store, career.club);
    readLine(store, career.club, verdict);
    return verdict;
}

} // namespace

std::optional<SeasonClose::Verdict> SeasonClose::close()
{
    GameStore &store = m_context.store;
    Verdict ranked;
    const Result closed = store.run([&] {
        const Verdict line = readVerdict(store); // the user's line, before the table is emptied
        // The ranking: points, then fewest goals against, then the club's id for a stable
        // order. The champion takes 16 and the last club 1.
        const std::vector<int> ranking = sql::career::finalRanking(store);
        int place = int(ranking.size()) + 1;
        for (const int club : ranking)
            sql::career::writePlace(store, club, --place);
        ranked = readVerdict(store);
        ranked.won = line.won;
        ranked.drawn = line.drawn;
        ranked.lost = line.lost;
        ranked.goalsFor = line.goalsFor;
        ranked.goalsAgainst = line.goalsAgainst;
        ranked.points = line.points;
        writeHistory(ranked);
        sql::career::emptySeason(store);
    });
    if (!closed) {
        m_context.dialogs.tell(closed.message(), Dialogs::Icon::Exclamation);
        return std::nullopt;
    }
    return ranked;
}

void SeasonClose::writeHistory(const Verdict &verdict)
{
    // What the season leaves for the career's history, before its tables are emptied: the
    // place counted the usual way, the champion 1.
    GameStore &store = m_context.store;
    sql::career::HistoryRow row;
    row.season = verdict.season;
    row.years = verdict.years;
    row.champion = verdict.championName;
    row.place = 17 - verdict.userPlace;
    row.points = verdict.points;
    row.won = verdict.won;
    row.drawn = verdict.drawn;
    row.lost = verdict.lost;
    row.goalsFor = verdict.goalsFor;
    row.goalsAgainst = verdict.goalsAgainst;
    row.budget = sql::career::budgetOf(store, userClub(store));
    if (const auto scorer = sql::career::topScorer(store, verdict.season)) {
        row.topScorer = scorer->first;
        row.topScorerGoals = int(scorer->second);
    }
    if (const auto signing = sql::career::dearestMove(store, verdict.season, sql::transfers::kSigning)) {
        row.signing = signing->first;
        row.signingSum = signing->second;
    }
    if (const auto sale = sql::career::dearestMove(store, verdict.season, sql::transfers::kSale)) {
        row.sale = sale->first;
        row.saleSum = sale->second;
    }
    sql::career::writeHistory(store, row);
}

SeasonClose::Verdict SeasonClose::verdict()
{
    Verdict verdict;
    m_context.store.attempt([&] { verdict = readVerdict(m_context.store); });
    return verdict;
}

std::optional<int> SeasonClose::settleQueue()
{
    GameStore &store = m_context.store;
    int settled = 0;
    Announcements told;
    const Result done = store.run([&] {
        settled = 0;
        told.clear();
        const CareerRow career = CareerRow::read(store);
        // The orders are settled as they stand in the queue, works and offers alike, so an
        // offer placed before a work is answered before the work is told ended.
        const std::vector<sql::transfers::WaitingOffer> offers = sql::transfers::allOffers(store);
        Works works(m_context);
        Offers answers(m_context);
        Offers::Settled answered;
        for (const sql::stadium::QueuedOrder &row : sql::stadium::queue(store)) {
            if (row.text != QLatin1String(" ")) {
                settled += works.finishAtClose(row, career.club, told) ? 1 : 0;
                continue;
            }
            const auto offer = std::ranges::find(offers, row.rowid, &sql::transfers::WaitingOffer::rowid);
            if (offer != offers.end())
                settled += answers.answerAtClose(career, *offer, answered, told) ? 1 : 0;
        }
        // Nothing waits into the next season: what is left (an offer of nothing for the club,
        // a row that is no order the game wrote) goes with the season.
        sql::career::emptyQueue(store);
    });
    if (!done) {
        m_context.dialogs.tell(done.message(), Dialogs::Icon::Exclamation);
        return std::nullopt;
    }
    told.tellTo(m_context.dialogs);
    // The planner starts from an empty pre-season.
    const Result emptied = store.run([&] { sql::career::clearPreseason(store); });
    if (!emptied) {
        m_context.dialogs.tell(emptied.message(), Dialogs::Icon::Exclamation);
        return std::nullopt;
    }
    return settled;
}

} // namespace game
