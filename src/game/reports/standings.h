#pragma once

#include "context.h"

#include <QString>

#include <vector>

namespace game {

// The league table: points first, then fewest goals against; goal difference and goals
// scored play no part. Clubs level on both stand by their id, so the order never wavers.
// Looking at the table writes each club's place into asobal (1 at the top), which is the
// standing the gate and television read for the next match.
//
//   const std::vector<Standings::Row> table = Standings(context).look();
class Standings
{
public:
    struct Row
    {
        int club = 0;
        QString name;
        int played = 0;
        int won = 0;
        int drawn = 0;
        int lost = 0;
        int goalsFor = 0;
        int goalsAgainst = 0;
        int points = 0;
    };

    explicit Standings(Context context) : m_context(context) {}

    // The table in its order, without writing anything.
    std::vector<Row> table();
    // The table, with the places written (1 to 16) in one transaction. A place the store
    // refuses is skipped without a word, like every failure of this routine, and the table
    // is still shown.
    std::vector<Row> look();

private:
    Context m_context;
};

} // namespace game
