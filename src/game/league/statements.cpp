#include "statements.h"

#include "store/gamestore.h"

namespace game::sql::league {

namespace {

std::optional<int> firstInteger(GameStore &store, const char *sql, int key)
{
    GameStore::Query query = store.query(sql, key);
    if (!query.next())
        return std::nullopt;
    return query.integer(0);
}

} // namespace

CareerRow careerRow(GameStore &store)
{
    CareerRow row;
    GameStore::Query career = store.query("select d.jornada, d.nombre, d.apellidos, d.idequipo, d.NombreEquipo,"
                                          " coalesce((select temporada from partida), 1) from datos_jugador d");
    if (career.next()) {
        row.week = career.integer(0);
        row.nombre = career.text(1);
        row.apellidos = career.text(2);
        row.club = career.integer(3);
        row.clubName = career.text(4);
        row.season = career.integer(5);
    }
    return row;
}

int season(GameStore &store)
{
    return int(store.integer("select coalesce((select temporada from partida), 1)"));
}

int userClub(GameStore &store)
{
    return static_cast<int>(store.integer("select idequipo from datos_jugador"));
}

std::optional<int> matchOfWeek(GameStore &store, int week)
{
    return firstInteger(store, "select idpartido from calendario where semana = ?", week);
}

std::optional<Fixture> friendly(GameStore &store, int idpartido)
{
    GameStore::Query row = store.query(
        "select p.equipo_local, p.equipo_visitante, p.fecha, l.NombreEquipo, v.NombreEquipo"
        " from pretemporada p join equipos l on l.idequipo = p.equipo_local"
        " join equipos v on v.idequipo = p.equipo_visitante where p.idpartido = ?",
        idpartido);
    if (!row.next())
        return std::nullopt;
    Fixture fixture;
    fixture.type = Fixture::Type::Friendly;
    fixture.idpartido = idpartido;
    fixture.homeId = row.integer(0);
    fixture.awayId = row.integer(1);
    fixture.date = QDate::fromString(row.text(2), Qt::ISODate);
    fixture.homeName = row.text(3);
    fixture.awayName = row.text(4);
    return fixture;
}

std::optional<Fixture> leagueFixture(GameStore &store, int idpartido)
{
    GameStore::Query row = store.query(
        "select f.jornada, f.fecha, h.teams, a.teams, eh.NombreEquipo, ea.NombreEquipo"
        " from liga_asobal f"
        " join asobal h on h.puesto_anterior = f.pos_equipo_local"
        " join asobal a on a.puesto_anterior = f.pos_equipo_visitante"
        " join equipos eh on eh.idequipo = h.teams join equipos ea on ea.idequipo = a.teams"
        " where f.idpartido = ?",
        idpartido);
    if (!row.next())
        return std::nullopt;
    Fixture fixture;
    fixture.type = Fixture::Type::League;
    fixture.idpartido = idpartido;
    fixture.round = row.integer(0);
    fixture.date = QDate::fromString(row.text(1), Qt::ISODate);
    fixture.homeId = row.integer(2);
    fixture.awayId = row.integer(3);
    fixture.homeName = row.text(4);
    fixture.awayName = row.text(5);
    return fixture;
}

std::optional<int> clubClass(GameStore &store, int club)
{
    return firstInteger(store, "select categoria from equipos where idequipo = ?", club);
}

std::optional<int> tablePlace(GameStore &store, int club)
{
    return firstInteger(store, "select puesto_actual from asobal where teams = ?", club);
}

} // namespace game::sql::league
