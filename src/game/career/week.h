#pragma once

#include "career/weekevents.h"
#include "context.h"
#include "league/careerrow.h"
#include "league/fixture.h"
#include "match/engine.h"
#include "match/gate.h"

#include <optional>

namespace game {

// One week of the career, from its opening to the result of its match: it opens (the number
// moves on, the end of the season is tested, wages and staff are paid, the ledger row opens,
// last week's rival line-up goes), its events run once, its match kicks off with the crowd
// settled once, and its result is recorded. The career (game::Career) leads it through these
// steps in this order, in the window and headless alike; the screens read it.
//
// Every step that writes is one transaction: when it fails it leaves nothing behind, the
// player is told in Spanish, and the week stays where it was.
//
//   Week week(context);
//   if (week.open() && !week.seasonOver()) {
//       week.runEvents();                          // the panel's first tick
//       if (auto kickoff = week.kickOff()) {       // the match screen opens
//           MatchEngine engine(random, kickoff->setup);
//           ... both halves ...
//           week.recordResult(engine.score(0), engine.score(1));
//       }
//   }
class Week
{
public:
    // What a match needs as it opens: both sides and the crowd.
    struct Kickoff
    {
        MatchEngine::Setup setup;
        Gate::Report gate;
    };

    // The week of the game with its five events, the offers, the stadium, the bids and the
    // television reporting back to this week.
    explicit Week(Context context);
    // A week with the given events as they are (tests, benchmarks).
    Week(Context context, WeekEvents events);
    // The week's events may report back to it (the broadcast, the works), so it stays where
    // it was made.
    Week(const Week &) = delete;
    Week &operator=(const Week &) = delete;

    // Opens the next week of the career. When the week is the one after the calendar's last,
    // the season is over: nothing is charged and there is no match. False when the store
    // failed: nothing was written, the player has been told, and the week is as it was.
    bool open();
    // The career is left: no week is open any more.
    void close();
    // Takes up the week the store has open, as a save left it, without writing anything:
    // whether its events have run, the broadcast waiting for the player's OK, whether its
    // gate is in the ledger, whether its match has been recorded.
    void reopen(unsigned eventsDone, const std::optional<QString> &broadcast, bool gatePosted, bool played);

    int number() const { return m_number; }
    bool isOpen() const { return m_number > 0; }
    bool seasonOver() const { return m_seasonOver; }
    // The career row as the week found it at its opening.
    const CareerRow &career() const { return m_career; }
    // The week's match, found at its opening; nothing in a week without one.
    const std::optional<Fixture> &fixture() const { return m_fixture; }

    // The week's events: the rival names his seven, offers are answered, works end, clubs
    // bid, television buys. Each step runs once a week: one that failed (the store refused
    // it, and nothing of it was written) is tried again at the next call, and the steps that
    // went through are not run again. A call made while the events are running (behind one
    // of their message boxes) does nothing.
    void runEvents();
    // Every step of the week's events has gone through.
    bool eventsRun() const { return m_done.all(); }
    // The events that have run, a bit each in their order, for a save.
    unsigned eventsDone() const { return unsigned(m_done.to_ulong()); }
    bool eventsRunning() const { return m_eventsRunning; }
    bool stepDone(WeekEvents::Step step) const;

    // The week's match opens: its events first if they have not been tried, then both sides
    // and the crowd. The match never opens without the rival's seven: while his step has not
    // gone through the kick-off is refused with a message (runEvents() tries the step
    // again). The gate is settled once a week: a match opened again (after a result that
    // could not be written) shows the same crowd and pays nothing more. Nothing when the week
    // has no match or it has been played.
    std::optional<Kickoff> kickOff();

    // Records the week's result and plays the rest of its round. False when the store failed
    // (the player has been told, nothing was written and the match can be played again).
    bool recordResult(int homeGoals, int awayGoals);
    bool played() const { return m_played; }

    // The channel that bought this week's match, from the week's events until the player
    // acknowledges it; nothing in a week that was not bought or once it is acknowledged.
    const std::optional<QString> &broadcast() const { return m_broadcast; }
    // The player's OK on the broadcast: the fee is booked in the week's row, once. False
    // when there is no broadcast waiting or the store failed (the player has been told; the
    // broadcast stays, to be acknowledged again).
    bool acceptBroadcast();

    // The crowd of the week's match once it has kicked off, and whether its takings are in
    // the ledger.
    const std::optional<Gate::Report> &gate() const { return m_gate; }
    bool gatePosted() const { return m_gatePosted; }

    // What the week's events brought: works that ended, offers answered, a player sold.
    struct News
    {
        int worksFinished = 0;
        int signings = 0;
        int refusals = 0;
        bool sale = false;
    };
    const News &news() const { return m_news; }

private:
    Context m_context;
    WeekEvents m_events;
    CareerRow m_career;
    int m_number = 0;
    bool m_seasonOver = false;
    std::optional<Fixture> m_fixture;
    WeekEvents::Done m_done;
    bool m_eventsTried = false;
    bool m_eventsRunning = false;
    std::optional<Gate::Report> m_gate;
    bool m_gatePosted = false;
    bool m_played = false;
    std::optional<QString> m_broadcast;
    News m_news;
};

} // namespace game
