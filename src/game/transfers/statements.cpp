#include "statements.h"

#include "league/leagueclubs.h"
#include "store/gamestore.h"

#include <QHash>
#include <QRegularExpression>

#include <string_view>

namespace game::sql::transfers {

static_assert(std::u16string_view(kPositions[5]) == u"Pivote", "the pivot is the one position no grid lists");

namespace {

// The four sale grids together are every listed player but the pivots: goalkeepers, wings
// (either side), backs (either side) and centres. A player's position is always one of the
// seven names, so leaving the pivot out by name picks the same players as the grids' likes,
// without a like on every row of a market that, late in a long career, holds most of the
// league.
QString pivot()
{
    return QString::fromUtf16(kPositions[5]);
}

// The rows of a list read with the columns of Market::Line, in its order: every list of the
// market selects "idjugador, Nombre, Apellidos, Edad, Posicion, Media, Dorsal, Nacionalidad,
// Años_Contrato, idequipo".
std::vector<Market::Line> linesOf(GameStore::Query rows)
{
    std::vector<Market::Line> lines;
    while (rows.next()) {
        lines.push_back({rows.integer(0), rows.text(1), rows.text(2), rows.integer(3), rows.text(4), rows.integer(5),
                         rows.integer(6), rows.text(7), rows.integer(8), rows.integer(9)});
    }
    return lines;
}

// A player as a starter's row in jugar repeats him: "idjugador, idequipo, Nombre, Apellidos,
// Media, Posicion".
std::optional<RivalSquad::Player> playerOf(GameStore::Query row)
{
    if (!row.next())
        return std::nullopt;
    return RivalSquad::Player{row.integer(0), row.integer(1), row.text(2), row.text(3), row.integer(4), row.text(5)};
}

std::vector<WaitingOffer> offersIn(GameStore::Query rows)
{
    std::vector<WaitingOffer> offers;
    while (rows.next())
        offers.push_back({rows.integer64(0), rows.text(1), rows.integer(2), rows.integer(3), rows.integer(4),
                          rows.integer(5)});
    return offers;
}

} // namespace

int squadSize(GameStore &store, int club)
{
    return int(store.integer("select count(*) from jugadores where idequipo = ?", club));
}

int highestShirt(GameStore &store, int club)
{
    return int(store.integer("select max(Dorsal) from jugadores where idequipo = ?", club));
}

std::vector<int> listedOf(GameStore &store, int club)
{
    // Through the club's own players, a few dozen, not through the whole market.
    std::vector<int> players;
    GameStore::Query rows = store.query(
        "select idjugador from jugadores indexed by jugadores_por_equipo where idequipo = ? and venta = 1", club);
    while (rows.next())
        players.push_back(rows.integer(0));
    return players;
}

int weakestUnlisted(GameStore &store, int club)
{
    return int(store.integer("select idjugador from jugadores where idequipo = ? and venta = 0"
                             " order by Media, idjugador limit 1",
                             club));
}

int firstInLastYear(GameStore &store, int club)
{
    return int(store.integer("select min(idjugador) from jugadores where idequipo = ? and \"Años_Contrato\" <= 1",
                             club));
}

int highestPlayerId(GameStore &store)
{
    return int(store.integer("select max(idjugador) from jugadores"));
}

QString clubName(GameStore &store, int club)
{
    return store.text("select NombreEquipo from equipos where idequipo = ?", club);
}

std::optional<Contract> contract(GameStore &store, int player)
{
    GameStore::Query row = store.query(
        "select j.Nombre, j.Apellidos, j.Clausula_Recision, j.Ficha, j.\"Años_Contrato\", coalesce(e.NombreEquipo, '')"
        " from jugadores j left join equipos e on e.idequipo = j.idequipo where j.idjugador = ?",
        player);
    if (!row.next())
        return std::nullopt;
    return Contract{row.text(0), row.text(1), row.integer64(2), row.integer64(3), row.integer64(4), row.text(5)};
}

void moveTo(GameStore &store, int player, int club)
{
    store.execute("update jugadores set idequipo = ? where idjugador = ?", club, player);
}

void freeCallUpPlace(GameStore &store, int player)
{
    store.execute("update miequipo set idjugador = 0, Nombre = Pos_Partido, Apellidos = '', Media = 0,"
                  " Posicion = '' where idjugador = ?",
                  player);
}

void renew(GameStore &store, int player, int clausula, int ficha, int years)
{
    store.execute("update jugadores set Clausula_Recision = ?, Ficha = ?, \"Años_Contrato\" = \"Años_Contrato\" + ?"
                  " where idjugador = ?",
                  clausula, ficha, years, player);
}

qint64 wageOfYearsLeft(GameStore &store, int player)
{
    return store.integer("select Ficha * \"Años_Contrato\" from jugadores where idjugador = ?", player);
}

void toggleListing(GameStore &store, int player)
{
    store.execute("update jugadores set venta = 1 - venta where idjugador = ?", player);
}

bool isListed(GameStore &store, int player)
{
    return store.integer("select venta from jugadores where idjugador = ?", player) == 1;
}

std::vector<Market::Line> forSale(GameStore &store, Market::Group group)
{
    switch (group) {
    case Market::Group::Goalkeepers:
        return linesOf(store.query("select idjugador, Nombre, Apellidos, Edad, Posicion, Media, Dorsal, Nacionalidad,"
                                   " \"Años_Contrato\", idequipo from jugadores"
                                   " where venta = 1 and Posicion = 'Portero' order by idjugador"));
    case Market::Group::Wings:
        return linesOf(store.query("select idjugador, Nombre, Apellidos, Edad, Posicion, Media, Dorsal, Nacionalidad,"
                                   " \"Años_Contrato\", idequipo from jugadores"
                                   " where venta = 1 and Posicion like '%Extremo %' order by idjugador"));
    case Market::Group::Backs:
        return linesOf(store.query("select idjugador, Nombre, Apellidos, Edad, Posicion, Media, Dorsal, Nacionalidad,"
                                   " \"Años_Contrato\", idequipo from jugadores"
                                   " where venta = 1 and Posicion like '%Lateral%' order by idjugador"));
    case Market::Group::Centres:
        return linesOf(store.query("select idjugador, Nombre, Apellidos, Edad, Posicion, Media, Dorsal, Nacionalidad,"
                                   " \"Años_Contrato\", idequipo from jugadores"
                                   " where venta = 1 and lower(Posicion) = 'central' order by idjugador"));
    }
    return {};
}

std::vector<Market::Line> squadIn(GameStore &store, Market::Group group, int club)
{
    const char *positions[] = {"Portero", "Extremo%", "Lateral%", "Central"};
    return linesOf(store.query("select idjugador, Nombre, Apellidos, Edad, Posicion, Media, Dorsal, Nacionalidad,"
                               " \"Años_Contrato\", idequipo from jugadores"
                               " where Posicion like ? and idequipo = ? order by idjugador",
                               positions[static_cast<int>(group)], club));
}

QStringList clubsOf(GameStore &store, int countryCode, int userClub)
{
    // Spain's list leaves out the user's club; code 0 lists every club.
    QStringList clubs;
    GameStore::Query rows = countryCode == 0
        ? store.query("select NombreEquipo from equipos order by idequipo")
        : store.query("select NombreEquipo from equipos where codpais = ? and (codpais <> 1 or idequipo <> ?)"
                      " order by idequipo",
                      countryCode, userClub);
    while (rows.next())
        clubs << rows.text(0);
    return clubs;
}

std::vector<Market::Line> playersOf(GameStore &store, const QString &clubName)
{
    return linesOf(store.query("select idjugador, Nombre, Apellidos, Edad, Posicion, Media, Dorsal, Nacionalidad,"
                               " \"Años_Contrato\", idequipo from jugadores"
                               " where idequipo = (select idequipo from equipos where NombreEquipo = ?)"
                               " order by idjugador",
                               clubName));
}

// The scout's searches: name and surname always, as the start of the name.
std::vector<Market::Line> searchAll(GameStore &store, const QString &nombre, const QString &apellidos, int media,
                                    const QString &posicion, int edad)
{
    return linesOf(store.query("select idjugador, Nombre, Apellidos, Edad, Posicion, Media, Dorsal, Nacionalidad,"
                               " \"Años_Contrato\", idequipo from jugadores"
                               " where Nombre like ? || '%' and Apellidos like ? || '%'"
                               " and Media = ? and Posicion like ? || '%' and Edad = ? order by idjugador",
                               nombre, apellidos, media, posicion, edad));
}

std::vector<Market::Line> searchByRating(GameStore &store, const QString &nombre, const QString &apellidos, int media)
{
    return linesOf(store.query("select idjugador, Nombre, Apellidos, Edad, Posicion, Media, Dorsal, Nacionalidad,"
                               " \"Años_Contrato\", idequipo from jugadores"
                               " where Nombre like ? || '%' and Apellidos like ? || '%'"
                               " and Media = ? order by idjugador",
                               nombre, apellidos, media));
}

std::vector<Market::Line> searchByAge(GameStore &store, const QString &nombre, const QString &apellidos, int edad)
{
    return linesOf(store.query("select idjugador, Nombre, Apellidos, Edad, Posicion, Media, Dorsal, Nacionalidad,"
                               " \"Años_Contrato\", idequipo from jugadores"
                               " where Nombre like ? || '%' and Apellidos like ? || '%'"
                               " and Edad = ? order by idjugador",
                               nombre, apellidos, edad));
}

std::vector<Market::Line> searchByPosition(GameStore &store, const QString &nombre, const QString &apellidos,
                                           const QString &posicion)
{
    return linesOf(store.query("select idjugador, Nombre, Apellidos, Edad, Posicion, Media, Dorsal, Nacionalidad,"
                               " \"Años_Contrato\", idequipo from jugadores"
                               " where Nombre like ? || '%' and Apellidos like ? || '%'"
                               " and Posicion like ? || '%' order by idjugador",
                               nombre, apellidos, posicion));
}

std::vector<Market::Line> everybody(GameStore &store)
{
    // By first name as a Spanish reader orders it: Álvaro among the A, not after the Z.
    return linesOf(store.query("select idjugador, Nombre, Apellidos, Edad, Posicion, Media, Dorsal, Nacionalidad,"
                               " \"Años_Contrato\", idequipo from jugadores order by Nombre collate espanol, idjugador"));
}

std::vector<Market::Line> youths(GameStore &store, const QString &posicion)
{
    return linesOf(store.query("select idjugador, Nombre, Apellidos, Edad, Posicion, Media, Dorsal, Nacionalidad,"
                               " \"Años_Contrato\", idequipo from jugadores"
                               " where idequipo = ? and Posicion like ? order by idjugador",
                               kYouthPool, posicion));
}

std::optional<Market::Card> card(GameStore &store, int player)
{
    GameStore::Query row = store.query(
        "select j.idjugador, j.idequipo, j.Nombre, j.Apellidos, j.Edad, j.Nacionalidad, j.Posicion,"
        " coalesce(l.nombre_lesion, ''), j.Media, coalesce(e.NombreEquipo, ''), j.Clausula_Recision, j.Ficha,"
        " j.\"Años_Contrato\", j.venta from jugadores j left join lesiones l on l.idlesion = j.Lesiones"
        " left join equipos e on e.idequipo = j.idequipo where j.idjugador = ?",
        player);
    if (!row.next())
        return std::nullopt;
    return Market::Card{row.integer(0), row.integer(1),  row.text(2),     row.text(3),     row.integer(4),
                        row.text(5),    row.text(6),     row.text(7),     row.integer(8),  row.text(9),
                        row.integer(10), row.integer(11), row.integer(12), row.integer(13) == 1};
}

bool isForSale(GameStore &store, int player, int exceptClub)
{
    return store.integer("select count(*) from jugadores where venta = 1 and idequipo <> ? and Posicion <> ?"
                         " and idjugador = ?",
                         exceptClub, pivot(), player)
        == 1;
}

int countForSale(GameStore &store, int exceptClub)
{
    return int(store.integer("select count(*) from jugadores where venta = 1 and idequipo <> ? and Posicion <> ?",
                             exceptClub, pivot()));
}

int nthForSale(GameStore &store, int exceptClub, int nth)
{
    if (nth < 1)
        return 0;
    return int(store.integer("select idjugador from jugadores where venta = 1 and idequipo <> ? and Posicion <> ?"
                             " order by idjugador limit 1 offset ?",
                             exceptClub, pivot(), nth - 1));
}

void queueOffer(GameStore &store, int week, int club, int shirt, const Offers::Terms &terms, int player)
{
    // The order that moves the player is kept as the game writes it, of numbers only.
    const QString order = QStringLiteral("update jugadores set idequipo=%1, dorsal=%2, ficha=%3, clausula_recision=%4,"
                                         " venta=0 , años_contrato=%5 where idjugador=%6")
                              .arg(club)
                              .arg(shirt)
                              .arg(terms.ficha)
                              .arg(terms.clausula)
                              .arg(terms.years)
                              .arg(player);
    store.execute("insert into selects (\"select\", jornada, oferta, clausula, ficha, jugador, observaciones, pago)"
                  " values (?, ?, ?, ?, ?, ?, ' ', ' ')",
                  order, week, terms.oferta, terms.clausula, terms.ficha, player);
}

std::vector<WaitingOffer> offersUpTo(GameStore &store, int week)
{
    return offersIn(store.query("select rowid, \"select\", oferta, clausula, ficha, jugador from selects"
                                " where jornada <= ? and oferta <> 0 order by rowid",
                                week));
}

std::vector<WaitingOffer> allOffers(GameStore &store)
{
    return offersIn(store.query("select rowid, \"select\", oferta, clausula, ficha, jugador from selects"
                                " where oferta <> 0 order by rowid"));
}

bool carryOut(GameStore &store, const QString &order)
{
    // The order's numbers are read back by name and written with bound values.
    static const QRegularExpression assignment(QStringLiteral("([^\\s,=]+)=(\\d+)"));
    QHash<QString, qint64> values;
    for (auto match = assignment.globalMatch(order); match.hasNext();) {
        const QRegularExpressionMatch found = match.next();
        values.insert(found.captured(1).toLower(), found.captured(2).toLongLong());
    }
    const QStringList needed{QStringLiteral("idequipo"), QStringLiteral("dorsal"), QStringLiteral("ficha"),
                             QStringLiteral("clausula_recision"), QStringLiteral("años_contrato"),
                             QStringLiteral("idjugador")};
    for (const QString &key : needed) {
        if (!values.contains(key))
            return false;
    }
    store.execute("update jugadores set idequipo = ?, Dorsal = ?, Ficha = ?, Clausula_Recision = ?, venta = 0,"
                  " \"Años_Contrato\" = ? where idjugador = ?",
                  values.value(needed[0]), values.value(needed[1]), values.value(needed[2]), values.value(needed[3]),
                  values.value(needed[4]), values.value(needed[5]));
    return true;
}

void dropOffer(GameStore &store, const WaitingOffer &offer)
{
    store.execute("delete from selects where rowid = (select rowid from selects where jugador = ?"
                  " and oferta = ? and ficha = ? and clausula = ? order by rowid limit 1)",
                  offer.player, offer.oferta, offer.ficha, offer.clausula);
}

std::vector<RivalSquad::Player> bestInPosition(GameStore &store, int club, const QString &position)
{
    GameStore::Query best = store.query("select idjugador, idequipo, Nombre, Apellidos, Media, Posicion from jugadores"
                                        " where idequipo = ?1 and Posicion = ?2 and Media >="
                                        " (select max(Media) from jugadores where idequipo = ?1 and Posicion = ?2)",
                                        club, position);
    std::vector<RivalSquad::Player> players;
    while (players.size() < 2 && best.next()) {
        players.push_back(
            {best.integer(0), best.integer(1), best.text(2), best.text(3), best.integer(4), best.text(5)});
    }
    return players;
}

int playerCount(GameStore &store)
{
    return int(store.integer("select count(*) from jugadores"));
}

std::optional<RivalSquad::Player> player(GameStore &store, int id)
{
    return playerOf(store.query("select idjugador, idequipo, Nombre, Apellidos, Media, Posicion from jugadores"
                                " where idjugador = ?",
                                id));
}

std::optional<RivalSquad::Player> firstOfPositionAbroad(GameStore &store, const QString &position)
{
    // Every club outside the league, the released players among them, but never the youth pool.
    return playerOf(store.query("select idjugador, idequipo, Nombre, Apellidos, Media, Posicion from jugadores"
                                " where Posicion = ? and idequipo > ? and idequipo <> ? order by idjugador limit 1",
                                position, kLastLeagueClub, kYouthPool));
}

std::optional<RivalSquad::Player> bestUnnamedOutOfPosition(GameStore &store, int club, const QString &position)
{
    return playerOf(store.query("select idjugador, idequipo, Nombre, Apellidos, Media, Posicion from jugadores"
                                " where idequipo = ? and Posicion <> ?"
                                " and idjugador not in (select idjugador from jugar)"
                                " order by Media desc, idjugador limit 1",
                                club, position));
}

void clearStarters(GameStore &store, int club)
{
    store.execute("delete from jugar where idequipo = ?", club);
}

void nameStarter(GameStore &store, int club, const RivalSquad::Player &player, int plaza)
{
    store.execute("insert into jugar (idequipo, idjugador, Nombre, Apellidos, Media, Posicion, plaza)"
                  " values (?, ?, ?, ?, ?, ?, ?)",
                  club, player.id, player.nombre, player.apellidos, player.media, player.posicion, plaza);
}

void moveWithShirt(GameStore &store, int player, int club, qint64 shirt)
{
    store.execute("update jugadores set idequipo = ?, Dorsal = ? where idjugador = ?", club, shirt, player);
}

void addYouth(GameStore &store, int id, const NewYouth &youth, int edad, int dorsal)
{
    // Every youth joins on the same terms: a rating of 95, a clause of 36150 €, a wage of
    // 1000 € a season, no injury, not on the market, a contract of five years.
    store.execute("insert into jugadores (idjugador, idequipo, Nombre, Apellidos, Edad, Posicion, Media, Dorsal,"
                  " Nacionalidad, Clausula_Recision, Ficha, Lesiones, venta, libre1, libre2, libre3,"
                  " \"Años_Contrato\") values (?, ?, ?, ?, ?, ?, 95, ?, ?, 36150, 1000, 0, 0, 0, 0, 0, 5)",
                  id, kYouthPool, youth.nombre, youth.apellidos, edad, youth.posicion, dorsal, youth.nacionalidad);
}

void recordMove(GameStore &store, int season, int week, int player, const char *kind, qint64 sum)
{
    store.execute("insert into traspasos (temporada, jornada, idjugador, Nombre, Apellidos, tipo, importe)"
                  " select ?, ?, idjugador, Nombre, Apellidos, ?, ? from jugadores where idjugador = ?",
                  season, week, kind, sum, player);
}

} // namespace game::sql::transfers
