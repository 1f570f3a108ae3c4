#include "season.h"

#include "career/leagueclubs.h"
#include "career/newcareer.h"
#include "career/preseason.h"
#include "match/callup.h"
#include "random.h"
#include "store/gamestore.h"

namespace game {

bool AutoSeason::begin()
{
    const QString caption = leagueClubCaption(m_options.club);
    if (!NewCareer(m_context).start({QStringLiteral("Simulador"), QStringLiteral("Zarpazo"), m_options.club, caption})) {
        m_failure = QStringLiteral("the career could not start");
        return false;
    }
    Preseason planner(m_context);
    planner.begin();
    for (int slot = 0; slot < Preseason::kSlots; ++slot) {
        if (slot < m_options.friendlies) {
            // A club of another country, drawn: country 2 to 18, then a club of its list.
            const QStringList clubs = planner.clubsOf(1 + m_context.random.draw(17));
            planner.choose(clubs.at(m_context.random.draw(int(clubs.size())) - 1));
        } else {
            planner.decline();
        }
    }
    if (!planner.proceed()) {
        m_failure = QStringLiteral("the season could not be planned");
        return false;
    }
    return true;
}

bool AutoSeason::playWeek()
{
    // The whole week is one transaction: its opening, its events, the call-up, the gate and
    // the result, so a headless season never leaves a week half written.
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
    if (!m_week.open()) {
        m_failure = QStringLiteral("the week could not open");
        return false;
    }
    if (m_week.seasonOver())
        return false;
    ++m_totals.weeks;
    m_week.runEvents();
    if (!m_week.fixture())
        return true;

    CallUp callUp(m_context);
    callUp.chooseBest();
    if (!callUp.readyToPlay()) {
        m_failure = QStringLiteral("fewer than fourteen players");
        return false;
    }
    const std::optional<Week::Kickoff> kickoff = m_week.kickOff();
    if (!kickoff) {
        m_failure = QStringLiteral("the match could not start");
        return false;
    }
    MatchEngine engine(m_context.random, kickoff->setup);
    for (int half = 0; half < 2; ++half) {
        engine.start();
        while (engine.running())
            engine.tick();
    }
    if (!m_week.recordResult(engine.score(0), engine.score(1))) {
        m_failure = QStringLiteral("the result could not be recorded");
        return false;
    }
    ++m_totals.matches;
    m_totals.goalsFor += engine.score(engine.userSide());
    m_totals.goalsAgainst += engine.score(engine.rivalSide());
    return true;
}

} // namespace game
