#include "autoseason.h"

#include "league/leagueclubs.h"
#include "career/newcareer.h"
#include "career/preseason.h"
#include "career/seasonclose.h"
#include "dialogs.h"
#include "match/callup.h"
#include "random.h"
#include "stadium/ledger.h"
#include "stadium/prices.h"
#include "stadium/works.h"
#include "store/gamestore.h"
#include "transfers/contracts.h"
#include "transfers/market.h"
#include "transfers/offers.h"
#include "transfers/statements.h"

#include <QSet>

namespace game {

namespace {

// The manager's answers: with a busy one every bid for a player is a Yes; the rest is
// answered as the game's own dialogs answer it.
class ManagersAnswers final : public Dialogs
{
public:
    ManagersAnswers(Dialogs &inner, bool sells) : m_inner(inner), m_sells(sells) {}

    void tell(const QString &text, Icon icon, const QString &title) override { m_inner.tell(text, icon, title); }
    bool ask(const QString &title, const QString &text) override
    {
        const bool answer = m_inner.ask(title, text);
        return m_sells && title == QStringLiteral("Oferta") ? true : answer;
    }

private:
    Dialogs &m_inner;
    bool m_sells;
};

constexpr int kSquadToKeep = 16;

} // namespace

AutoSeason::AutoSeason(Context context, Options options)
    : m_answers(std::make_unique<ManagersAnswers>(context.dialogs, options.policy == Policy::Busy)),
      m_context{context.store, context.random, *m_answers}, m_options(options), m_career(m_context)
{
}

AutoSeason::~AutoSeason() = default;

bool AutoSeason::begin()
{
    const QString caption = leagueClubCaption(m_options.club);
    if (!m_career.start({QStringLiteral("Simulador"), QStringLiteral("Zarpazo"), m_options.club, caption})) {
        m_failure = QStringLiteral("the career could not start");
        return false;
    }
    return planPreseason();
}

bool AutoSeason::resume()
{
    if (!m_career.resume()) {
        m_failure = QStringLiteral("the working file holds no career");
        return false;
    }
    m_options.club = m_career.week().career().club;
    if (m_options.club == 0)
        m_context.store.attempt([&] { m_options.club = CareerRow::read(m_context.store).club; });
    return true;
}

bool AutoSeason::planPreseason()
{
    Preseason &planner = m_career.planner();
    // A planner taken up from a save goes on from the first slot not yet dealt with.
    for (int slot = planner.slotsDealt(); slot < Preseason::kSlots; ++slot) {
        if (slot < m_options.friendlies) {
            // A club of another country, drawn: country 2 to 18, then a club of its list.
            const QStringList clubs = planner.clubsOf(1 + m_context.random.draw(17));
            planner.choose(clubs.at(m_context.random.draw(int(clubs.size())) - 1));
        } else {
            planner.decline();
        }
    }
    // Week 1 opens when the season is played.
    return true;
}

bool AutoSeason::closeSeason(SeasonSummary *summary)
{
    if (m_career.stage() == Career::Stage::SeasonOver)
        m_career.goOn();
    if (!m_career.verdict()) {
        m_failure = QStringLiteral("the season is not over");
        return false;
    }
    const SeasonClose::Verdict verdict = *m_career.verdict();
    if (!m_career.settleOrders()) {
        m_failure = QStringLiteral("the season's orders could not be settled");
        return false;
    }
    if (summary) {
        summary->champion = verdict.championName;
        summary->place = 17 - verdict.userPlace; // the close stores 16 for the champion
        summary->points = verdict.points;
        summary->goalsFor = verdict.goalsFor;
        summary->goalsAgainst = verdict.goalsAgainst;
        m_context.store.attempt([&] { summary->budget = Ledger(m_context.store).budget(m_options.club); });
    }
    return planPreseason();
}

bool AutoSeason::playWeek()
{
    if (m_career.stage() == Career::Stage::Planning) {
        if (m_career.planner().slotsDealt() < Preseason::kSlots)
            planPreseason();
        if (!m_career.beginSeason()) {
            m_failure = QStringLiteral("the season could not be planned");
            return false;
        }
    }
    // A week whose match was recorded but the next could not open (a save taken then).
    if (m_career.stage() == Career::Stage::Played && !m_career.goOn()) {
        m_failure = QStringLiteral("the week could not open");
        return false;
    }
    if (m_career.stage() != Career::Stage::Week)
        return false;
    // The whole week is one transaction: its events, the call-up, the gate, the result and
    // the opening of the next week, so a headless season never leaves a week half written.
    bool goOn = false;
    const Result week = m_context.store.run([&] { goOn = playWeekBody(); });
    if (!week) {
        m_failure = week.message();
        return false;
    }
    return goOn;
}

bool AutoSeason::playWeekBody()
{
    Week &week = m_career.week();
    ++m_totals.weeks;
    m_career.runEvents();
    m_totals.worksFinished += week.news().worksFinished;
    m_totals.signings += week.news().signings;
    m_totals.refusals += week.news().refusals;
    m_totals.sales += week.news().sale ? 1 : 0;
    Ledger ledger(m_context.store);
    // Before the match the shop is the only income of its column; the cafeterias come with
    // the crowd.
    if (const std::optional<Ledger::Row> row = ledger.row(week.number()))
        m_totals.shopIncome += row->tiendas;
    if (m_options.policy == Policy::Busy)
        actBusy();
    if (!week.fixture()) {
        if (!m_career.goOn()) {
            m_failure = QStringLiteral("the week could not open");
            return false;
        }
        return true;
    }

    CallUp callUp(m_context);
    callUp.chooseBest();
    if (!callUp.readyToPlay()) {
        m_failure = QStringLiteral("fewer than fourteen players");
        return false;
    }
    MatchEngine *match = m_career.kickOff();
    if (!match) {
        m_failure = QStringLiteral("the match could not start");
        return false;
    }
    if (const std::optional<Ledger::Row> row = ledger.row(week.number()))
        m_totals.gateIncome += row->taquilla + row->publicidad;
    for (int half = 0; half < 2; ++half) {
        match->start();
        while (match->running())
            match->tick();
    }
    const int goalsFor = match->score(match->userSide());
    const int goalsAgainst = match->score(match->rivalSide());
    if (!m_career.finishMatch()) {
        if (m_career.stage() == Career::Stage::Week)
            m_failure = QStringLiteral("the result could not be recorded");
        else
            m_failure = QStringLiteral("the week could not open");
        return false;
    }
    ++m_totals.matches;
    m_totals.goalsFor += goalsFor;
    m_totals.goalsAgainst += goalsAgainst;
    return true;
}

void AutoSeason::actBusy()
{
    Week &week = m_career.week();
    if (week.broadcast() && week.acceptBroadcast())
        m_totals.tvIncome += Ledger::kTelevisionFee;
    orderCheapestWorks();
    makeAnOffer();
    listASpareMan();
    renewAShortContract();
    if (Prices::homeWeek(week.fixture(), week.career())) {
        Prices prices(m_context);
        if (prices.ticket() < Prices::kTicketHighest)
            prices.raiseTicket();
    }
}

void AutoSeason::orderCheapestWorks()
{
    Works works(m_context);
    const Works::Screen screen = works.screen();
    QSet<int> busyGroups;
    for (const Works::UnderWay &work : screen.underWay)
        busyGroups.insert(static_cast<int>(Works::groupOf(work.item)));
    std::vector<Works::Choice> choices;
    for (const Works::Group group :
         {Works::Group::Seats, Works::Group::Parking, Works::Group::Equipment, Works::Group::Services}) {
        if (busyGroups.contains(static_cast<int>(group)))
            continue;
        // The cheapest work of the group on offer; among equal prices the first the catalogue lists.
        const Works::Order *cheapest = nullptr;
        for (const Works::Order &order : Works::catalogue()) {
            if (Works::groupOf(order.item) == group && screen.offers(order.choice)
                && (!cheapest || order.cost < cheapest->cost))
                cheapest = &order;
        }
        if (cheapest)
            choices.push_back(cheapest->choice);
    }
    if (!choices.empty())
        m_totals.worksOrdered += works.order(choices);
}

void AutoSeason::makeAnOffer()
{
    // A listed player of another club, drawn among the four lists, at the terms he asks.
    const int club = m_career.week().career().club;
    Market market(m_context);
    const int player = market.drawForSale(club);
    if (player == 0)
        return;
    const std::optional<Market::Card> card = market.card(player);
    if (card && Offers(m_context).make(player, {card->clausula, card->clausula, card->ficha, 5}))
        ++m_totals.offersMade;
}

void AutoSeason::listASpareMan()
{
    GameStore &store = m_context.store;
    const int club = m_career.week().career().club;
    if (sql::transfers::squadSize(store, club) <= kSquadToKeep)
        return;
    const int weakest = sql::transfers::weakestUnlisted(store, club);
    if (weakest > 0)
        Contracts(m_context).toggleListing(weakest);
}

void AutoSeason::renewAShortContract()
{
    GameStore &store = m_context.store;
    const int club = m_career.week().career().club;
    const int player = sql::transfers::firstInLastYear(store, club);
    if (player == 0)
        return;
    const std::optional<Market::Card> card = Market(m_context).card(player);
    if (card && Contracts(m_context).renew(player, {card->clausula, card->ficha + Contracts::kWageRise, 1}))
        ++m_totals.renewals;
}

} // namespace game
