#pragma once

#include "context.h"

#include <QString>

#include <optional>

namespace game {

// The close of a season, at the opening of the week after the calendar's last. The league is
// ranked into both place columns of asobal, the champion 16 and the last club 1 (the new
// previous place is each club's slot in next season's fixtures); the season's calendar,
// counters, goals, week and ledger are emptied, all in one transaction. Then the verdict is
// shown, and every order still waiting is settled at once: works end at the budget's cost,
// offers are answered and a yes is paid from the budget. The planner of the next season
// follows. There is no promotion or relegation: the two bottom clubs are only named.
//
//   SeasonClose close(context);
//   if (auto verdict = close.close()) { show(*verdict); close.settleQueue(); planner.begin(); }
class SeasonClose
{
public:
    struct Verdict
    {
        int champion = 0;
        QString championName;
        QString last;        // place 1: "Desciende:" and "Compra Plaza:"
        QString secondLast;  // place 2
        int userPlace = 0;   // as stored: 16 for the champion, 1 for the last
        int season = 0;      // the career's season, from 1
        QString years;       // "2004-2005"
        // The user's line of the final table, read before the table is emptied.
        int won = 0;
        int drawn = 0;
        int lost = 0;
        int goalsFor = 0;
        int goalsAgainst = 0;
        int points = 0;
    };

    explicit SeasonClose(Context context) : m_context(context) {}

    // Ranks the season, writes its history and empties it, in one transaction. The verdict,
    // or nothing when the store failed (the player has been told and the season stands as it
    // was).
    std::optional<Verdict> close();

    // The verdict as the places stand (the user's line as the table holds it now).
    Verdict verdict();

    // Every order still waiting is settled in the queue's order, works and offers as they
    // come, and the queue is emptied; the messages are told once it is all written. Then the
    // pre-season is emptied for the planner. Returns the orders settled.
    std::optional<int> settleQueue();

private:
    void writeHistory(const Verdict &verdict);

    Context m_context;
};

} // namespace game
