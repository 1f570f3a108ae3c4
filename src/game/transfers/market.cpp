#include "market.h"

#include "league/careerrow.h"
#include "random.h"
#include "store/gamestore.h"
#include "transfers/statements.h"

namespace game {

namespace {

// A list read as a screen reads it: one that cannot be read shows nothing.
template<typename Read>
std::vector<Market::Line> linesOf(GameStore &store, Read read)
{
    std::vector<Market::Line> lines;
    store.attempt([&] { lines = read(); });
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
    return linesOf(store, [&] { return sql::transfers::forSale(store, group); });
}

int Market::drawForSale(int exceptClub)
{
    GameStore &store = m_context.store;
    // First a few blind draws among every player's id, as a bid draws: late in a career, when
    // the lists hold most of the league, one of them lands without counting a thousand rows.
    // A blind draw is as likely to land on any player of the lists, so the pick stays even;
    // when they all miss (a small market), the lists are counted and one is drawn among them.
    const int highest = sql::transfers::highestPlayerId(store);
    for (int draw = 0; draw < kBlindDraws && highest > 0; ++draw) {
        const int player = m_context.random.draw(highest);
        if (sql::transfers::isForSale(store, player, exceptClub))
            return player;
    }
    const int candidates = sql::transfers::countForSale(store, exceptClub);
    return candidates == 0 ? 0 : sql::transfers::nthForSale(store, exceptClub, m_context.random.draw(candidates));
}

std::vector<Market::Line> Market::squad(Group group)
{
    GameStore &store = m_context.store;
    const int club = CareerRow::current(m_context).club;
    return linesOf(store, [&] { return sql::transfers::squadIn(store, group, club); });
}

QStringList Market::clubsOf(int countryCode)
{
    GameStore &store = m_context.store;
    QStringList clubs;
    store.attempt([&] {
        const int userClub = CareerRow::current(m_context).club;
        clubs = sql::transfers::clubsOf(store, countryCode, userClub);
    });
    return clubs;
}

std::vector<Market::Line> Market::playersOf(const QString &clubName)
{
    GameStore &store = m_context.store;
    return linesOf(store, [&] { return sql::transfers::playersOf(store, clubName); });
}

std::vector<Market::Line> Market::search(const Search &criteria)
{
    GameStore &store = m_context.store;
    const QString nombre = prefixOf(criteria.nombre);
    const QString apellidos = prefixOf(criteria.apellidos);
    const QString posicion = criteria.posicion == QStringLiteral("TODOS") ? QString() : criteria.posicion;
    const int media = numberOf(criteria.media);
    const int edad = numberOf(criteria.edad);
    if (!nombre.isEmpty() && !apellidos.isEmpty() && media > 0 && edad > 0)
        return linesOf(store, [&] { return sql::transfers::searchAll(store, nombre, apellidos, media, posicion, edad); });
    if (media > 0)
        return linesOf(store, [&] { return sql::transfers::searchByRating(store, nombre, apellidos, media); });
    if (edad > 0)
        return linesOf(store, [&] { return sql::transfers::searchByAge(store, nombre, apellidos, edad); });
    return linesOf(store, [&] { return sql::transfers::searchByPosition(store, nombre, apellidos, posicion); });
}

std::vector<Market::Line> Market::everybody()
{
    GameStore &store = m_context.store;
    return linesOf(store, [&] { return sql::transfers::everybody(store); });
}

std::vector<Market::Line> Market::youths(const QString &posicion)
{
    GameStore &store = m_context.store;
    return linesOf(store, [&] { return sql::transfers::youths(store, posicion); });
}

std::optional<Market::Card> Market::card(int player)
{
    GameStore &store = m_context.store;
    std::optional<Card> card;
    store.attempt([&] { card = sql::transfers::card(store, player); });
    return card;
}

} // namespace game
