#include "standings.h"

#include "dialogs.h"
#include "store/gamestore.h"

namespace game {

std::vector<Standings::Row> Standings::table()
{
    std::vector<Row> rows;
    m_context.store.attempt([&] {
        GameStore::Query query = m_context.store.query(
            "select a.teams, coalesce(e.NombreEquipo, ''), a.\"Partidos_ Ganados\", a.Partidos_Empatados,"
            " a.Partidos_Perdidos, a.Goles_Favor, a.Goles_Contra, a.Puntos from asobal a"
            " left join equipos e on e.idequipo = a.teams order by a.Puntos desc, a.Goles_Contra, a.teams");
        while (query.next()) {
            Row row;
            row.club = query.integer(0);
            row.name = query.text(1);
            row.won = query.integer(2);
            row.drawn = query.integer(3);
            row.lost = query.integer(4);
            row.played = row.won + row.drawn + row.lost;
            row.goalsFor = query.integer(5);
            row.goalsAgainst = query.integer(6);
            row.points = query.integer(7);
            rows.push_back(row);
        }
    });
    return rows;
}

std::vector<Standings::Row> Standings::look()
{
    const std::vector<Row> rows = table();
    const Result written = m_context.store.run([&] {
        int place = 0;
        for (const Row &row : rows)
            m_context.store.execute("update asobal set Puesto_Actual = ? where teams = ?", ++place, row.club);
    });
    if (!written)
        m_context.dialogs.tell(written.message(), Dialogs::Icon::Exclamation);
    return rows;
}

} // namespace game
