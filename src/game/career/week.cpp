#include "week.h"

#include "dialogs.h"
#include "match/matchday.h"
#include "match/results.h"
#include "stadium/ledger.h"
#include "stadium/television.h"
#include "stadium/works.h"
#include "transfers/bids.h"
#include "transfers/offers.h"
#include "transfers/rivalsquad.h"
#include "career/statements.h"
#include "store/gamestore.h"

namespace game {

Week::Week(Context context) : m_context(context)
{
    // The offers, the stadium, the bids and the television report to this week: what they
    // brought, and the channel waiting for the player's OK.
    m_events.set(WeekEvents::Step::RivalSquad,
                 [this](const std::optional<Fixture> &fixture) { RivalSquad(m_context).prepare(fixture); });
    m_events.set(WeekEvents::Step::Offers, [this](const std::optional<Fixture> &) {
        const Offers::Settled settled = Offers(m_context).settleDue();
        m_news.signings = settled.signings;
        m_news.refusals = settled.refusals;
    });
    m_events.set(WeekEvents::Step::Stadium,
                 [this](const std::optional<Fixture> &) { m_news.worksFinished = Works(m_context).runWeek(); });
    m_events.set(WeekEvents::Step::Bids,
                 [this](const std::optional<Fixture> &) { m_news.sale = Bids(m_context).run() == Bids::Outcome::Sold; });
    m_events.set(WeekEvents::Step::Television,
                 [this](const std::optional<Fixture> &fixture) { m_broadcast = Television(m_context).run(fixture); });
}

Week::Week(Context context, WeekEvents events) : m_context(context), m_events(std::move(events))
{
}

bool Week::open()
{
    GameStore &store = m_context.store;
    CareerRow career;
    bool seasonOver = false;
    const Result result = store.run([&] {
        sql::career::moveWeekOn(store);
        career = CareerRow::read(store);
        // A season with k friendlies ends when week k + 31 opens, a week the calendar does not
        // have. An empty calendar has not ended.
        const int lastWeek = sql::career::lastWeekOfCalendar(store);
        if (lastWeek > 0 && career.week == lastWeek + 1) {
            seasonOver = true;
            return;
        }
        Ledger(store).openWeek(career.week, career.club);
        sql::career::clearLineUps(store);
    });
    if (!result) {
        m_context.dialogs.tell(result.message(), Dialogs::Icon::Exclamation);
        return false;
    }
    close();
    m_career = career;
    m_number = career.week;
    m_seasonOver = seasonOver;
    if (!seasonOver)
        store.attempt([&] { m_fixture = fixtureOfWeek(store, m_number, m_career.club); });
    return true;
}

void Week::reopen(bool eventsRun, const std::optional<QString> &broadcast, bool gatePosted, bool played)
{
    close();
    GameStore &store = m_context.store;
    store.attempt([&] {
        m_career = CareerRow::read(store);
        const int lastWeek = sql::career::lastWeekOfCalendar(store);
        m_number = m_career.week;
        m_seasonOver = lastWeek > 0 && m_number == lastWeek + 1;
        if (!m_seasonOver)
            m_fixture = fixtureOfWeek(store, m_number, m_career.club);
    });
    m_eventsRun = eventsRun;
    m_broadcast = broadcast;
    m_gatePosted = gatePosted;
    m_played = played;
}

void Week::close()
{
    m_career = {};
    m_number = 0;
    m_seasonOver = false;
    m_fixture.reset();
    m_eventsRun = false;
    m_gate.reset();
    m_gatePosted = false;
    m_played = false;
    m_broadcast.reset();
    m_news = {};
}

void Week::runEvents()
{
    if (!isOpen() || m_seasonOver || m_eventsRun)
        return;
    // Marked first: a message box of an event runs the event loop, and the week's timer must
    // not start the events again behind it.
    m_eventsRun = true;
    m_events.run(m_fixture);
}

std::optional<Week::Kickoff> Week::kickOff()
{
    if (!m_fixture || m_played)
        return std::nullopt;
    runEvents();
    Kickoff kickoff;
    kickoff.setup = MatchDay(m_context).setup(*m_fixture);
    Gate gate(m_context);
    if (!m_gate)
        m_gate = gate.draw(*m_fixture);
    // A posting that failed is tried again at the next kick-off; one that went through never
    // is.
    if (!m_gatePosted)
        m_gatePosted = gate.post(*m_gate);
    kickoff.gate = *m_gate;
    return kickoff;
}

bool Week::recordResult(int homeGoals, int awayGoals)
{
    if (!m_fixture || m_played)
        return false;
    if (!Results(m_context).record(*m_fixture, homeGoals, awayGoals))
        return false;
    m_played = true;
    return true;
}

bool Week::acceptBroadcast()
{
    if (!m_broadcast)
        return false;
    if (!Television(m_context).bookFee(m_number))
        return false; // told; the broadcast waits for another OK
    m_broadcast.reset();
    return true;
}

} // namespace game
