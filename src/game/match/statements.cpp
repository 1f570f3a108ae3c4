#include "statements.h"

#include "store/gamestore.h"

namespace game::sql::match {

namespace {

// Players read as "idjugador, Nombre, Apellidos, Posicion, Media, Dorsal, Lesiones".
std::vector<CallUp::Player> playersOf(GameStore::Query rows)
{
    std::vector<CallUp::Player> players;
    while (rows.next()) {
        players.push_back({rows.integer(0), rows.text(1), rows.text(2), rows.text(3), rows.integer(4),
                           rows.integer(5), rows.integer(6)});
    }
    return players;
}

} // namespace

std::vector<CallUp::Place> places(GameStore &store)
{
    std::vector<CallUp::Place> list;
    GameStore::Query rows =
        store.query("select Pos_Partido, idjugador, Nombre, Apellidos, Posicion, Media from miequipo order by rowid");
    while (rows.next())
        list.push_back({rows.text(0), rows.integer(1), rows.text(2), rows.text(3), rows.text(4), rows.integer(5)});
    return list;
}

QString placeKey(GameStore &store, int index)
{
    return store.text("select Pos_Partido from miequipo order by rowid limit 1 offset ?", index);
}

std::vector<CallUp::Player> calledUp(GameStore &store)
{
    return playersOf(store.query(
        "select m.idjugador, m.Nombre, m.Apellidos, m.Posicion, m.Media, coalesce(j.Dorsal, 0),"
        " coalesce(j.Lesiones, 0) from miequipo m left join jugadores j on j.idjugador = m.idjugador"
        " order by m.rowid"));
}

int filledPlaces(GameStore &store)
{
    return int(store.integer("select count(idjugador) from miequipo where idjugador <> 0"));
}

void leavePlace(GameStore &store, int player)
{
    store.execute("update miequipo set Nombre = Pos_Partido, Apellidos = '', idjugador = 0, Posicion = ''"
                  " where idjugador = ?",
                  player);
}

void takePlace(GameStore &store, const QString &key, int club, const CallUp::Player &player)
{
    store.execute("update miequipo set idequipo = ?, idjugador = ?, Nombre = ?, Apellidos = ?, Media = ?,"
                  " Posicion = ? where Pos_Partido = ?",
                  club, player.id, player.nombre, player.apellidos, player.media, player.posicion, key);
}

std::vector<CallUp::Player> squad(GameStore &store, int club)
{
    return playersOf(store.query("select idjugador, Nombre, Apellidos, Posicion, Media, Dorsal, Lesiones from jugadores"
                                 " where idequipo = ? order by Posicion, idjugador",
                                 club));
}

std::optional<CallUp::Player> clubPlayer(GameStore &store, int player, int club)
{
    GameStore::Query row = store.query(
        "select Nombre, Apellidos, Media, Posicion from jugadores where idjugador = ? and idequipo = ?", player, club);
    if (!row.next())
        return std::nullopt;
    CallUp::Player found;
    found.id = player;
    found.nombre = row.text(0);
    found.apellidos = row.text(1);
    found.media = row.integer(2);
    found.posicion = row.text(3);
    return found;
}

std::vector<Candidate> bestFirst(GameStore &store, int club)
{
    // Only what the choice needs, straight from the club's index.
    std::vector<Candidate> players;
    GameStore::Query rows = store.query("select idjugador, Posicion from jugadores where idequipo = ?"
                                        " order by Media desc, Posicion, idjugador",
                                        club);
    while (rows.next())
        players.push_back({rows.integer(0), rows.text(1)});
    return players;
}

std::vector<SheetLine> userSheet(GameStore &store)
{
    std::vector<SheetLine> lines;
    GameStore::Query places =
        store.query("select idjugador, Nombre, Apellidos, Posicion, Media from miequipo order by rowid");
    while (places.next())
        lines.push_back({places.integer(0), places.text(1), places.text(2), places.text(3), places.integer(4)});
    return lines;
}

std::vector<SheetLine> rivalSheet(GameStore &store)
{
    std::vector<SheetLine> lines;
    GameStore::Query rival = store.query("select Nombre, Apellidos, Media, Posicion from jugar order by plaza");
    while (rival.next())
        lines.push_back({0, rival.text(0), rival.text(1), rival.text(3), rival.integer(2)});
    return lines;
}

QStringList squadSurnames(GameStore &store)
{
    QStringList surnames;
    GameStore::Query places = store.query("select Apellidos from miequipo order by rowid");
    while (places.next())
        surnames << places.text(0);
    return surnames;
}

std::vector<RoundFixture> restOfRound(GameStore &store, int idpartido)
{
    std::vector<RoundFixture> others;
    GameStore::Query round = store.query(
        "select idpartido, pos_equipo_local, pos_equipo_visitante from liga_asobal"
        " where jornada = (select jornada from liga_asobal where idpartido = ?1)"
        " and idpartido <> ?1 order by idpartido",
        idpartido);
    while (round.next())
        others.push_back({round.integer(0), round.integer(1), round.integer(2)});
    return others;
}

void writeScore(GameStore &store, int idpartido, int homeGoals, int awayGoals)
{
    store.execute("update liga_asobal set goles_equipo_local = ?, goles_equipo_visitante = ? where idpartido = ?",
                  homeGoals, awayGoals, idpartido);
}

void addWin(GameStore &store, int club, int goalsFor, int goalsAgainst)
{
    store.execute("update asobal set \"Partidos_ Ganados\" = \"Partidos_ Ganados\" + 1,"
                  " Goles_Favor = Goles_Favor + ?, Goles_Contra = Goles_Contra + ?,"
                  " Puntos = Puntos + 2 where teams = ?",
                  goalsFor, goalsAgainst, club);
}

void addDraw(GameStore &store, int club, int goalsFor, int goalsAgainst)
{
    store.execute("update asobal set Partidos_Empatados = Partidos_Empatados + 1,"
                  " Goles_Favor = Goles_Favor + ?, Goles_Contra = Goles_Contra + ?,"
                  " Puntos = Puntos + 1 where teams = ?",
                  goalsFor, goalsAgainst, club);
}

void addDefeat(GameStore &store, int club, int goalsFor, int goalsAgainst)
{
    store.execute("update asobal set Partidos_Perdidos = Partidos_Perdidos + 1,"
                  " Goles_Favor = Goles_Favor + ?, Goles_Contra = Goles_Contra + ?"
                  " where teams = ?",
                  goalsFor, goalsAgainst, club);
}

int clubAt(GameStore &store, int position)
{
    return int(store.integer("select teams from asobal where puesto_anterior = ?", position));
}

Ratings ratings(GameStore &store, int club)
{
    GameStore::Query squad =
        store.query("select coalesce(sum(Media), 0), count(*) from jugadores where idequipo = ?", club);
    if (!squad.next())
        return {};
    return {squad.integer64(0), squad.integer64(1)};
}

} // namespace game::sql::match
