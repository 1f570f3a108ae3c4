#include "statements.h"

#include "store/gamestore.h"

namespace game::sql::reports {

std::vector<Standings::Row> table(GameStore &store)
{
    std::vector<Standings::Row> rows;
    GameStore::Query query = store.query(
        "select a.teams, coalesce(e.NombreEquipo, ''), a.\"Partidos_ Ganados\", a.Partidos_Empatados,"
        " a.Partidos_Perdidos, a.Goles_Favor, a.Goles_Contra, a.Puntos from asobal a"
        " left join equipos e on e.idequipo = a.teams order by a.Puntos desc, a.Goles_Contra, a.teams");
    while (query.next()) {
        Standings::Row row;
        row.club = query.integer(0);
        row.name = query.text(1);
        row.won = query.integer(2);
        row.drawn = query.integer(3);
        row.lost = query.integer(4);
        row.goalsFor = query.integer(5);
        row.goalsAgainst = query.integer(6);
        row.points = query.integer(7);
        rows.push_back(row);
    }
    return rows;
}

void writePlace(GameStore &store, int club, int place)
{
    store.execute("update asobal set Puesto_Actual = ? where teams = ?", place, club);
}

int friendlies(GameStore &store)
{
    return int(store.integer("select count(*) from pretemporada"));
}

std::vector<RoundFixture> round(GameStore &store, int round)
{
    std::vector<RoundFixture> fixtures;
    GameStore::Query query = store.query(
        "select coalesce(eh.NombreEquipo, ''), coalesce(ea.NombreEquipo, ''), f.goles_equipo_local,"
        " f.goles_equipo_visitante, coalesce(h.teams, 0), coalesce(a.teams, 0) from liga_asobal f"
        " left join asobal h on h.puesto_anterior = f.pos_equipo_local"
        " left join asobal a on a.puesto_anterior = f.pos_equipo_visitante"
        " left join equipos eh on eh.idequipo = h.teams left join equipos ea on ea.idequipo = a.teams"
        " where f.jornada = ? order by f.idpartido",
        round);
    while (query.next()) {
        fixtures.push_back({query.text(0), query.text(1), query.integer(2), query.integer(3), query.integer(4),
                            query.integer(5)});
    }
    return fixtures;
}

} // namespace game::sql::reports
