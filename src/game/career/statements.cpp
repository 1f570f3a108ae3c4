#include "statements.h"

#include "store/gamestore.h"

namespace game::sql::career {

void appointCoach(GameStore &store, int club, const QString &nombre, const QString &apellidos)
{
    // The board and the public start with a middling confidence in him.
    store.execute("update entrenadores set nombre = ?, apellidos = ?,"
                  " confianza_directivos = 5, confianza_publico = 5, puntuacion = 5"
                  " where idEntrenador = ?",
                  nombre, apellidos, club);
}

void clearLastCareer(GameStore &store)
{
    store.execute("delete from pretemporada");
    store.execute("delete from calendario");
    // A new career starts with an empty market.
    store.execute("update jugadores set venta = 0 where venta <> 0");
    store.execute("delete from caja");
    store.execute("delete from selects");
    store.execute("delete from jugar");
}

void writeCareerRow(GameStore &store, const QString &nombre, const QString &apellidos, int club,
                    const QString &clubCaption)
{
    store.execute("update datos_jugador set jornada = 0, nombre = ?, apellidos = ?,"
                  " idequipo = ?, NombreEquipo = ?",
                  nombre, apellidos, club, clubCaption);
}

void setWeek(GameStore &store, int week)
{
    store.execute("update datos_jugador set jornada = ?", week);
}

void moveWeekOn(GameStore &store)
{
    store.execute("update datos_jugador set jornada = jornada + 1");
}

int lastWeekOfCalendar(GameStore &store)
{
    return int(store.integer("select max(semana) from calendario"));
}

void clearLineUps(GameStore &store)
{
    store.execute("delete from jugar");
}

int clubNamed(GameStore &store, const QString &name)
{
    return int(store.integer("select idequipo from equipos where NombreEquipo = ?", name));
}

void writeFriendly(GameStore &store, int slot, int home, int away, const QDate &date)
{
    store.execute("insert into pretemporada (idpartido, equipo_local, equipo_visitante, fecha)"
                  " values (?, ?, ?, ?)",
                  slot, home, away, date.toString(Qt::ISODate));
}

std::optional<Friendly> friendly(GameStore &store, int slot)
{
    GameStore::Query row = store.query(
        "select l.NombreEquipo, v.NombreEquipo, p.fecha from pretemporada p"
        " join equipos l on l.idequipo = p.equipo_local join equipos v on v.idequipo = p.equipo_visitante"
        " where p.idpartido = ?",
        slot);
    if (!row.next())
        return std::nullopt;
    return Friendly{row.text(0), row.text(1), QDate::fromString(row.text(2), Qt::ISODate)};
}

void eraseFriendly(GameStore &store, int slot)
{
    store.execute("delete from pretemporada where idpartido = ?", slot);
}

void clearPreseason(GameStore &store)
{
    store.execute("delete from pretemporada");
}

void emptyQueue(GameStore &store)
{
    store.execute("delete from selects");
}

std::vector<CalendarMatch> friendliesPlanned(GameStore &store)
{
    std::vector<CalendarMatch> matches;
    GameStore::Query rows = store.query("select idpartido, fecha from pretemporada order by idpartido");
    while (rows.next())
        matches.push_back({rows.integer(0), rows.text(1)});
    return matches;
}

std::vector<CalendarMatch> leagueMatchesOf(GameStore &store, int club)
{
    std::vector<CalendarMatch> matches;
    GameStore::Query rows = store.query(
        "select idpartido, fecha from liga_asobal"
        " where pos_equipo_local = (select puesto_anterior from asobal where teams = ?1)"
        " or pos_equipo_visitante = (select puesto_anterior from asobal where teams = ?1)"
        " order by jornada, idpartido",
        club);
    while (rows.next())
        matches.push_back({rows.integer(0), rows.text(1)});
    return matches;
}

void writeCalendarWeek(GameStore &store, int week, const CalendarMatch &match)
{
    store.execute("insert into calendario (semana, idpartido, fecha) values (?, ?, ?)", week, match.idpartido,
                  match.date);
}

int playerCount(GameStore &store)
{
    return int(store.integer("select count(*) from jugadores"));
}

void listPlayerUnlessOf(GameStore &store, int player, int poolOne, int poolTwo, int userClub)
{
    store.execute("update jugadores set venta = 1 where idjugador = ? and idequipo <> ? and idequipo <> ?"
                  " and idequipo <> ?",
                  player, poolOne, poolTwo, userClub);
}

std::vector<int> finalRanking(GameStore &store)
{
    // Points, then fewest goals against, then the club's id for a stable order.
    std::vector<int> ranking;
    GameStore::Query table = store.query("select teams from asobal order by Puntos desc, Goles_Contra, teams");
    while (table.next())
        ranking.push_back(table.integer(0));
    return ranking;
}

void writePlace(GameStore &store, int club, int place)
{
    store.execute("update asobal set Puesto_Actual = ?, puesto_anterior = ? where teams = ?", place, place, club);
}

void emptySeason(GameStore &store)
{
    store.execute("delete from calendario");
    store.execute("update asobal set \"Partidos_ Ganados\" = 0, Partidos_Empatados = 0, Partidos_Perdidos = 0,"
                  " Goles_Favor = 0, Goles_Contra = 0, Puntos = 0");
    store.execute("update liga_asobal set goles_equipo_local = 0, goles_equipo_visitante = 0");
    store.execute("update datos_jugador set jornada = 0");
    store.execute("delete from caja");
}

int clubAtPlace(GameStore &store, int place)
{
    return int(store.integer("select teams from asobal where puesto_anterior = ?", place));
}

QString clubName(GameStore &store, int club)
{
    return store.text("select NombreEquipo from equipos where idequipo = ?", club);
}

int placeOf(GameStore &store, int club)
{
    return int(store.integer("select puesto_anterior from asobal where teams = ?", club));
}

void readLine(GameStore &store, int club, SeasonClose::Verdict &verdict)
{
    GameStore::Query line = store.query("select \"Partidos_ Ganados\", Partidos_Empatados, Partidos_Perdidos,"
                                        " Goles_Favor, Goles_Contra, Puntos from asobal where teams = ?",
                                        club);
    if (!line.next())
        return;
    verdict.won = line.integer(0);
    verdict.drawn = line.integer(1);
    verdict.lost = line.integer(2);
    verdict.goalsFor = line.integer(3);
    verdict.goalsAgainst = line.integer(4);
    verdict.points = line.integer(5);
}

Standing standing(GameStore &store)
{
    Standing standing;
    GameStore::Query row = store.query("select carrera, temporada, etapa, eventos, canal, taquilla from partida");
    if (row.next())
        standing = {row.text(0), row.integer(1), row.text(2), unsigned(row.integer(3)), row.text(4), row.integer(5) != 0};
    return standing;
}

void writeStanding(GameStore &store, const Standing &standing)
{
    store.execute("update partida set carrera = ?, temporada = ?, etapa = ?, eventos = ?, canal = ?, taquilla = ?",
                  standing.career, standing.season, standing.stage, int(standing.eventsDone), standing.channel,
                  standing.gatePosted ? 1 : 0);
}

void writeSeason(GameStore &store, const QString &career, int season)
{
    store.execute("update partida set carrera = ?, temporada = ?", career, season);
}

void describeForSave(GameStore &store, const QDateTime &savedAt, int format)
{
    store.execute("update partida set formato = ?,"
                  " (nombre, apellidos, idequipo, equipo, jornada) ="
                  " (select nombre, apellidos, idequipo, NombreEquipo, jornada from datos_jugador),"
                  " presupuesto = coalesce((select i.presupuesto from infoteams i join datos_jugador d"
                  " on d.idequipo = i.idequipo), 0), guardada = ?",
                  format, savedAt.toString(Qt::ISODateWithMs));
}

std::optional<SaveRecord> saveRecord(GameStore &store)
{
    GameStore::Query row = store.query("select formato, carrera, nombre, apellidos, idequipo, equipo, temporada,"
                                       " jornada, etapa, guardada, presupuesto from partida");
    if (!row.next())
        return std::nullopt;
    SaveRecord record;
    record.format = row.integer(0);
    record.career = row.text(1);
    record.nombre = row.text(2);
    record.apellidos = row.text(3);
    record.club = row.integer(4);
    record.clubName = row.text(5);
    record.season = row.integer(6);
    record.week = row.integer(7);
    record.stage = row.text(8);
    record.savedAt = QDateTime::fromString(row.text(9), Qt::ISODateWithMs);
    record.budget = row.integer64(10);
    return record;
}

namespace {

// Every table of the game: a file without one of them cannot be played on.
const char *const kGameTables[] = {
    "datos_jugador", "equipos",      "jugadores", "lesiones",    "infoteams",  "estadios",     "entradas",
    "televisiones",  "entrenadores", "asobal",    "liga_asobal", "miequipo",   "pretemporada", "calendario",
    "caja",          "selects",      "jugar",     "partida",     "historial",  "goleadores",   "traspasos",
};

bool hasTable(GameStore &store, const char *table)
{
    return store.integer("select count(*) from sqlite_master where type = 'table' and name = ?", table) == 1;
}

} // namespace

bool holdsTheGame(GameStore &store)
{
    if (store.text("pragma quick_check") != QLatin1String("ok"))
        return false;
    for (const char *table : kGameTables) {
        if (!hasTable(store, table))
            return false;
    }
    return true;
}

bool hasStanding(GameStore &store)
{
    return hasTable(store, "partida");
}

void writeHistory(GameStore &store, const HistoryRow &row)
{
    store.execute("insert or replace into historial (temporada, anos, campeon, puesto, puntos, ganados, empatados,"
                  " perdidos, goles_favor, goles_contra, presupuesto, goleador, goles_goleador, fichaje,"
                  " importe_fichaje, venta, importe_venta) values (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)",
                  row.season, row.years, row.champion, row.place, row.points, row.won, row.drawn, row.lost,
                  row.goalsFor, row.goalsAgainst, row.budget, row.topScorer, row.topScorerGoals, row.signing,
                  row.signingSum, row.sale, row.saleSum);
}

void setHistoryBudget(GameStore &store, int season, qint64 budget)
{
    store.execute("update historial set presupuesto = ? where temporada = ?", budget, season);
}

std::vector<HistoryRow> history(GameStore &store)
{
    std::vector<HistoryRow> rows;
    GameStore::Query query = store.query(
        "select temporada, anos, campeon, puesto, puntos, ganados, empatados, perdidos, goles_favor, goles_contra,"
        " presupuesto, goleador, goles_goleador, fichaje, importe_fichaje, venta, importe_venta from historial"
        " order by temporada");
    while (query.next()) {
        rows.push_back({query.integer(0), query.text(1), query.text(2), query.integer(3), query.integer(4),
                        query.integer(5), query.integer(6), query.integer(7), query.integer(8), query.integer(9),
                        query.integer64(10), query.text(11), query.integer(12), query.text(13),
                        query.integer64(14), query.text(15), query.integer64(16)});
    }
    return rows;
}

std::optional<std::pair<QString, qint64>> topScorer(GameStore &store, int season)
{
    GameStore::Query row = store.query("select Nombre || ' ' || Apellidos, goles from goleadores where temporada = ?"
                                       " and goles > 0 order by goles desc, idjugador limit 1",
                                       season);
    if (!row.next())
        return std::nullopt;
    return std::make_pair(row.text(0), row.integer64(1));
}

std::optional<std::pair<QString, qint64>> dearestMove(GameStore &store, int season, const char *kind)
{
    GameStore::Query row = store.query("select Nombre || ' ' || Apellidos, importe from traspasos where temporada = ?"
                                       " and tipo = ? order by importe desc, rowid limit 1",
                                       season, kind);
    if (!row.next())
        return std::nullopt;
    return std::make_pair(row.text(0), row.integer64(1));
}

void addGoals(GameStore &store, int season, int player, int goals)
{
    store.execute("insert into goleadores (temporada, idjugador, Nombre, Apellidos, goles)"
                  " select ?1, idjugador, Nombre, Apellidos, ?3 from jugadores where idjugador = ?2"
                  " on conflict (temporada, idjugador) do update set goles = goles + excluded.goles",
                  season, player, goals);
}

std::vector<Scorer> scorers(GameStore &store, int season)
{
    std::vector<Scorer> list;
    GameStore::Query rows = store.query("select idjugador, Nombre || ' ' || Apellidos, goles from goleadores"
                                        " where temporada = ? and goles > 0 order by goles desc, idjugador",
                                        season);
    while (rows.next())
        list.push_back({rows.integer(0), rows.text(1), rows.integer(2)});
    return list;
}

qint64 budgetOf(GameStore &store, int club)
{
    return store.integer("select presupuesto from infoteams where idequipo = ?", club);
}

} // namespace game::sql::career
