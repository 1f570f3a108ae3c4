#include "standings.h"

#include "reports/statements.h"
#include "store/gamestore.h"

namespace game {

std::vector<Standings::Row> Standings::table()
{
    std::vector<Row> rows;
    m_context.store.attempt([&] { rows = sql::reports::table(m_context.store); });
    for (Row &row : rows)
        row.played = row.won + row.drawn + row.lost;
    return rows;
}

std::vector<Standings::Row> Standings::look()
{
    const std::vector<Row> rows = table();
    // Writing the places is no act of the player's: a place the store refuses is skipped, the
    // others are written, and the table is shown all the same, without a word.
    GameStore &store = m_context.store;
    (void)store.run([&] {
        int place = 0;
        for (const Row &row : rows) {
            ++place;
            store.attempt([&] { sql::reports::writePlace(store, row.club, place); });
        }
    });
    return rows;
}

} // namespace game
