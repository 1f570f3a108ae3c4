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

#include <QObject>
#include <QScopeGuard>

namespace game {

Week::Week(Context context) : m_context(context)
{
    // The offers, the stadium, the bids and the television report to this week: what they
    // brought, and the channel waiting for the player's OK. Each says whether it went through.
    m_events.set(WeekEvents::Step::RivalSquad,
                 [this](const std::optional<Fixture> &fixture) { return RivalSquad(m_context).prepare(fixture); });
    m_events.set(WeekEvents::Step::Offers, [this](const std::optional<Fixture> &) {
        const Offers::Settled settled = Offers(m_context).settleDue();
        m_news.signings = settled.signings;
        m_news.refusals = settled.refusals;
        return settled.done;
    });
    m_events.set(WeekEvents::Step::Stadium, [this](const std::optional<Fixture> &) {
        const std::optional<int> finished = Works(m_context).runWeek();
        m_news.worksFinished = finished.value_or(0);
        return finished.has_value();
    });
    m_events.set(WeekEvents::Step::Bids, [this](const std::optional<Fixture> &) {
        const Bids::Outcome outcome = Bids(m_context).run();
        m_news.sale = outcome == Bids::Outcome::Sold;
        return outcome != Bids::Outcome::Failed;
    });
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

void Week::reopen(unsigned eventsDone, const std::optional<QString> &broadcast, bool gatePosted, bool played)
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
    m_done = WeekEvents::Done(eventsDone);
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
    m_done.reset();
    m_eventsTried = false;
    m_gate.reset();
    m_gatePosted = false;
    m_played = false;
    m_broadcast.reset();
    m_news = {};
}

void Week::runEvents()
{
    // A message box of an event runs the event loop, and the week's timer must not start the
    // events again behind it.
    if (!isOpen() || m_seasonOver || eventsRun() || m_eventsRunning)
        return;
    m_eventsRunning = true;
    const auto running = qScopeGuard([this] { m_eventsRunning = false; });
    m_eventsTried = true;
    // Only the steps that go through count as run; one that failed is tried again next time.
    m_events.run(m_fixture, m_done);
}

bool Week::stepDone(WeekEvents::Step step) const
{
    return m_done[WeekEvents::index(step)];
}

std::optional<Week::Kickoff> Week::kickOff()
{
    if (!m_fixture || m_played)
        return std::nullopt;
    // The events have their go before the match; a step that failed is tried again by the
    // next runEvents(), which the career calls on its way to every kick-off.
    if (!m_eventsTried)
        runEvents();
    // Without the rival's seven there is no match to play.
    if (!stepDone(WeekEvents::Step::RivalSquad)) {
        m_context.dialogs.tell(QObject::tr("El rival todavía no ha podido elegir a sus siete titulares, así que el "
                                           "partido no puede empezar. Inténtalo de nuevo."),
                               Dialogs::Icon::Exclamation);
        return std::nullopt;
    }
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
