#pragma once

#include "context.h"

#include <QString>

#include <vector>

namespace game {

// The eight matches of a league round, as the season's fixture template places the clubs, so
// a round still to come shows its fixtures without scores. A match without goals (not
// played yet, or 0-0) shows no score.
//
//   RoundResults results(context);
//   int round = results.currentRound();
//   for (const auto &match : results.round(round)) show(match);
class RoundResults
{
public:
    static constexpr int kFirstRound = 1;
    static constexpr int kLastRound = 30;

    struct Match
    {
        QString home;
        QString away;
        QString homeGoals;  // empty when the match shows no score
        QString awayGoals;
        bool users = false; // the user's club plays it
    };

    explicit RoundResults(Context context) : m_context(context) {}

    // The round of the current week: the week less the friendlies, 1 in the pre-season.
    int currentRound();
    std::vector<Match> round(int round);

    static int next(int round) { return round >= kLastRound ? kLastRound : round + 1; }
    static int previous(int round) { return round <= kFirstRound ? kFirstRound : round - 1; }

private:
    Context m_context;
};

} // namespace game
