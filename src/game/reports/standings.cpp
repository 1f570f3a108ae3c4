#include "standings.h"

#include "dialogs.h"
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
    const Result written = m_context.store.run([&] {
        int place = 0;
        for (const Row &row : rows)
            sql::reports::writePlace(m_context.store, row.club, ++place);
    });
    if (!written)
        m_context.dialogs.tell(written.message(), Dialogs::Icon::Exclamation);
    return rows;
}

} // namespace game
