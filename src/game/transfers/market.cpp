#include "market.h"

#include "league/careerrow.h"
#include "league/leagueclubs.h"
#include "random.h"
#include "store/gamestore.h"

#include <string_view>

namespace game {

static_assert(std::u16string_view(kPositions[5]) == u"Pivote", "the pivot is the one position no grid lists");

namespace {

// The four grids together are every listed player but the pivots: goalkeepers, wings (either
// side), backs (either side) and centres. A player's position is always one of the seven names,
// so leaving the pivot out by name picks the same players as the grids' likes, without a like
// on every row of a market that, late in a long career, holds most of the league.
constexpr const char *kOnSaleButOneClub = "from jugadores where venta = 1 and idequipo <> ? and Posicion <> ? ";

QString pivot()
{
    return QString::fromUtf16(kPositions[5]);
}

// The columns every list reads, in Line's order.
constexpr const char *kColumns = "select idjugador, Nombre, Apellidos, Edad, Posicion, Media, Dorsal, Nacionalidad,"
                                 " \"Años_Contrato\", idequipo from jugadores ";

template<typename... Args>
std::vector<Market::Line> linesOf(GameStore &store, const std::string &where, const Args &...args)
{
    std::vector<Market::Line> lines;
    store.attempt([&] {
        GameStore::Query rows = store.query(kColumns + where, args...);
        while (rows.next()) {
            lines.push_back({rows.integer(0), rows.text(1), rows.text(2), rows.integer(3), rows.text(4),
                             rows.integer(5), rows.integer(6), rows.text(7), rows.integer(8), rows.integer(9)});
        }
    });
    return lines;
}

// A number box as the scout reads it: its number, 0 when empty or not a number.
int numberOf(const QString &box)
{
    bool ok = false;
    const int value = box.trimmed().toInt(&ok);
    return ok && value > 0 ? value : 0;
}

// A name box: empty when blank, otherwise as typed, for "starts with".
QString prefixOf(const QString &box)
{
    return box.trimmed().isEmpty() ? QString() : box;
}

} // namespace

std::vector<Market::Line> Market::forSale(Group group)
{
    GameStore &store = m_context.store;
    switch (group) {
    case Group::Goalkeepers:
        return linesOf(store, "where venta = 1 and Posicion = 'Portero' order by idjugador");
    case Group::Wings:
        return linesOf(store, "where venta = 1 and Posicion like '%Extremo %' order by idjugador");
    case Group::Backs:
        return linesOf(store, "where venta = 1 and Posicion like '%Lateral%' order by idjugador");
    case Group::Centres:
        return linesOf(store, "where venta = 1 and lower(Posicion) = 'central' order by idjugador");
    }
    return {};
}

int Market::drawForSale(int exceptClub)
{
    GameStore &store = m_context.store;
    // First a few blind draws among every player's id, as a bid draws: late in a career, when
    // the lists hold most of the league, one of them lands without counting a thousand rows.
    // A blind draw is as likely to land on any player of the lists, so the pick stays even;
    // when they all miss (a small market), the lists are counted and one is drawn among them.
    const int highest = int(store.integer("select max(idjugador) from jugadores"));
    for (int draw = 0; draw < kBlindDraws && highest > 0; ++draw) {
        const int player = m_context.random.draw(highest);
        if (isForSale(player, exceptClub))
            return player;
    }
    const int candidates = countForSale(exceptClub);
    return candidates == 0 ? 0 : idForSale(exceptClub, m_context.random.draw(candidates));
}

bool Market::isForSale(int player, int exceptClub)
{
    return m_context.store.integer(std::string("select count(*) ") + kOnSaleButOneClub + "and idjugador = ?",
                                   exceptClub, pivot(), player)
        == 1;
}

int Market::countForSale(int exceptClub)
{
    return int(m_context.store.integer(std::string("select count(*) ") + kOnSaleButOneClub, exceptClub, pivot()));
}

int Market::idForSale(int exceptClub, int nth)
{
    if (nth < 1)
        return 0;
    return int(m_context.store.integer(std::string("select idjugador ") + kOnSaleButOneClub
                                           + "order by idjugador limit 1 offset ?",
                                       exceptClub, pivot(), nth - 1));
}

std::vector<Market::Line> Market::squad(Group group)
{
    GameStore &store = m_context.store;
    const int club = CareerRow::current(m_context).club;
    const char *positions[] = {"Portero", "Extremo%", "Lateral%", "Central"};
    return linesOf(store, "where Posicion like ? and idequipo = ? order by idjugador",
                   positions[static_cast<int>(group)], club);
}

QStringList Market::clubsOf(int countryCode)
{
    GameStore &store = m_context.store;
    QStringList clubs;
    store.attempt([&] {
        const int userClub = CareerRow::current(m_context).club;
        GameStore::Query rows = countryCode == 0
            ? store.query("select NombreEquipo from equipos order by idequipo")
            : store.query("select NombreEquipo from equipos where codpais = ? and (codpais <> 1 or idequipo <> ?)"
                          " order by idequipo",
                          countryCode, userClub);
        while (rows.next())
            clubs << rows.text(0);
    });
    return clubs;
}

std::vector<Market::Line> Market::playersOf(const QString &clubName)
{
    return linesOf(m_context.store,
                   "where idequipo = (select idequipo from equipos where NombreEquipo = ?) order by idjugador",
                   clubName);
}

std::vector<Market::Line> Market::search(const Search &criteria)
{
    GameStore &store = m_context.store;
    const QString nombre = prefixOf(criteria.nombre);
    const QString apellidos = prefixOf(criteria.apellidos);
    const QString posicion = criteria.posicion == QStringLiteral("TODOS") ? QString() : criteria.posicion;
    const int media = numberOf(criteria.media);
    const int edad = numberOf(criteria.edad);
    const std::string names = "where Nombre like ? || '%' and Apellidos like ? || '%' ";
    if (!nombre.isEmpty() && !apellidos.isEmpty() && media > 0 && edad > 0) {
        return linesOf(store, names + "and Media = ? and Posicion like ? || '%' and Edad = ? order by idjugador",
                       nombre, apellidos, media, posicion, edad);
    }
    if (media > 0)
        return linesOf(store, names + "and Media = ? order by idjugador", nombre, apellidos, media);
    if (edad > 0)
        return linesOf(store, names + "and Edad = ? order by idjugador", nombre, apellidos, edad);
    return linesOf(store, names + "and Posicion like ? || '%' order by idjugador", nombre, apellidos, posicion);
}

std::vector<Market::Line> Market::everybody()
{
    return linesOf(m_context.store, "order by Nombre, idjugador");
}

std::vector<Market::Line> Market::youths(const QString &posicion)
{
    return linesOf(m_context.store, "where idequipo = ? and Posicion like ? order by idjugador", kYouthPool, posicion);
}

std::optional<Market::Card> Market::card(int player)
{
    GameStore &store = m_context.store;
    std::optional<Card> card;
    store.attempt([&] {
        GameStore::Query row = store.query(
            "select j.idjugador, j.idequipo, j.Nombre, j.Apellidos, j.Edad, j.Nacionalidad, j.Posicion,"
            " coalesce(l.nombre_lesion, ''), j.Media, coalesce(e.NombreEquipo, ''), j.Clausula_Recision, j.Ficha,"
            " j.\"Años_Contrato\", j.venta from jugadores j left join lesiones l on l.idlesion = j.Lesiones"
            " left join equipos e on e.idequipo = j.idequipo where j.idjugador = ?",
            player);
        if (row.next()) {
            card = Card{row.integer(0), row.integer(1), row.text(2),  row.text(3),    row.integer(4),
                        row.text(5),    row.text(6),    row.text(7),  row.integer(8), row.text(9),
                        row.integer(10), row.integer(11), row.integer(12), row.integer(13) == 1};
        }
    });
    return card;
}

} // namespace game
