#include "career.h"

#include "dialogs.h"
#include "store/gamestore.h"

namespace game {

Career::Career(Context context, QObject *parent)
    : QObject(parent), m_context(context), m_planner(context), m_week(context)
{
}

Career::~Career() = default;

bool Career::start(const CareerChoice &choice)
{
    if (!NewCareer(m_context).start(choice))
        return false;
    m_week.close();
    m_match.reset();
    m_verdict.reset();
    plan();
    return true;
}

void Career::plan()
{
    m_planner.begin();
    m_calendarMade = false;
    m_stage = Stage::Planning;
    emit planningStarted();
}

bool Career::beginSeason()
{
    if (m_stage != Stage::Planning)
        return false;
    // The calendar and the market are made once; a week that could not open after them is
    // opened on the calendar already made.
    if (!m_calendarMade) {
        if (!m_planner.proceed())
            return false;
        m_calendarMade = true;
    }
    return openWeek();
}

bool Career::openWeek()
{
    if (!m_week.open())
        return false; // told; the career stays where it stood, to be taken up again
    m_match.reset();
    if (m_week.seasonOver()) {
        m_stage = Stage::SeasonOver;
        emit seasonEnding();
        return closeSeason();
    }
    m_stage = Stage::Week;
    emit weekOpened(m_week.number());
    return true;
}

void Career::runEvents()
{
    if (m_stage != Stage::Week)
        return;
    if (!m_week.eventsRun()) {
        m_week.runEvents();
        emit newsArrived(m_week.news());
    }
    // The broadcast waits for the player's OK, however the events came to run.
    if (m_week.broadcast())
        emit broadcastOffered(*m_week.broadcast());
}

MatchEngine *Career::kickOff()
{
    if (m_stage != Stage::Week)
        return nullptr;
    if (m_match)
        return m_match.get();
    runEvents(); // the rival must have named his seven
    const std::optional<Week::Kickoff> kickoff = m_week.kickOff();
    if (!kickoff)
        return nullptr;
    m_match = std::make_unique<MatchEngine>(m_context.random, kickoff->setup);
    return m_match.get();
}

bool Career::finishMatch()
{
    if (m_stage != Stage::Week || !m_match || !m_match->finished())
        return false;
    const bool recorded = m_week.recordResult(m_match->score(0), m_match->score(1));
    // Recorded or not, this match is over: a score that could not be written is played again.
    m_match.reset();
    if (!recorded)
        return false;
    m_stage = Stage::Played;
    return openWeek();
}

bool Career::closeSeason()
{
    m_verdict = SeasonClose(m_context).close();
    if (!m_verdict)
        return false; // told; the season stands as it was, to be closed again
    m_stage = Stage::Verdict;
    emit verdictReady(*m_verdict);
    return true;
}

bool Career::settleOrders()
{
    if (m_stage != Stage::Verdict)
        return false;
    SeasonClose(m_context).settleQueue();
    m_verdict.reset();
    m_week.close();
    emit seasonClosed();
    plan();
    return true;
}

bool Career::goOn()
{
    switch (m_stage) {
    case Stage::Planning:
        return beginSeason();
    case Stage::Played:
        return openWeek();
    case Stage::SeasonOver:
        return closeSeason();
    case Stage::Verdict:
        return settleOrders();
    case Stage::Week:
        // A week without a match (its fixture could not be found) has nothing to wait for.
        return !m_week.fixture() && openWeek();
    case Stage::None:
        break;
    }
    return false;
}

Result Career::leave()
{
    m_stage = Stage::None;
    m_match.reset();
    m_verdict.reset();
    m_week.close();
    m_calendarMade = false;
    return m_context.store.restore();
}

} // namespace game
