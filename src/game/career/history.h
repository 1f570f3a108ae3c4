#pragma once

#include "career/statements.h"
#include "context.h"

#include <vector>

namespace game {

// The career's history as the history screen shows it: one row a closed season, and the
// scorers of the club, season by season, the current one included. It only reads; it never
// throws (what cannot be read is shown empty).
//
//   History history(context);
//   for (const auto &season : history.seasons()) table.add(season);
//   for (const auto &scorer : history.scorers(history.currentSeason())) list.add(scorer);
class History
{
public:
    using Season = sql::career::HistoryRow;
    using Scorer = sql::career::Scorer;

    explicit History(Context context) : m_context(context) {}

    std::vector<Season> seasons();
    std::vector<Scorer> scorers(int season);
    // The season under way, from 1.
    int currentSeason();

private:
    Context m_context;
};

} // namespace game
