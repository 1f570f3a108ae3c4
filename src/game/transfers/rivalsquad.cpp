#include "rivalsquad.h"

#include "league/careerrow.h"
#include "league/leagueclubs.h"
#include "dialogs.h"
#include "random.h"
#include "store/gamestore.h"

#include <string>

namespace game {

namespace {

// The columns of a player that a starter's row in jugar repeats.
struct Player
{
    int id = 0;
    int club = 0;
    QString nombre;
    QString apellidos;
    int media = 0;
    QString posicion;
};

// A read of players that playerAt() understands, narrowed by the rest of the statement.
std::string selectPlayers(const char *rest)
{
    return std::string("select idjugador, idequipo, Nombre, Apellidos, Media, Posicion from jugadores ") + rest;
}

Player playerAt(const GameStore::Query &row)
{
    return {row.integer(0), row.integer(1), row.text(2), row.text(3), row.integer(4), row.text(5)};
}

// The one row of a read that yields at most one player.
template<typename... Args>
std::optional<Player> onePlayer(GameStore &store, const std::string &sql, const Args &...args)
{
    GameStore::Query row = store.query(sql, args...);
    if (!row.next())
        return std::nullopt;
    return playerAt(row);
}

// The clubs that can lose a player to a rival: every club outside the league, the released
// players among them, but never the youth pool.
bool canJoinRival(const Player &player, const QString &position)
{
    return player.posicion == position && player.club > kLastLeagueClub && player.club != kYouthPool;
}

// The club's player of this position with the highest rating, when he is the only one with
// it. Nobody in the position, or two or more tied at the top, leave the place open.
std::optional<Player> singleBest(GameStore &store, int club, const QString &position)
{
    GameStore::Query best = store.query(selectPlayers("where idequipo = ?1 and Posicion = ?2 and Media >="
                                                      " (select max(Media) from jugadores"
                                                      " where idequipo = ?1 and Posicion = ?2)"),
                                        club, position);
    if (!best.next())
        return std::nullopt;
    const Player first = playerAt(best);
    if (best.next())
        return std::nullopt; // a tie: the club cannot choose between them
    return first;
}

// A player of this position from a club that can lose him, drawn at random among all the
// players. The draw counts on idjugador running from 1 to the number of players; a gap only
// costs a draw. Where the draws keep missing (the candidates are few, or there are none) the
// lowest id that qualifies is taken, so the search always ends.
std::optional<Player> drawNewcomer(GameStore &store, Random &random, const QString &position)
{
    const int players = static_cast<int>(store.integer("select count(*) from jugadores"));
    for (int tries = 0; tries < RivalSquad::kMaxDraws; ++tries) {
        const std::optional<Player> drawn =
            onePlayer(store, selectPlayers("where idjugador = ?"), random.draw(players));
        if (drawn && canJoinRival(*drawn, position))
            return drawn;
    }
    return onePlayer(store,
                     selectPlayers("where Posicion = ? and idequipo > ? and idequipo <> ? order by idjugador limit 1"),
                     position, kLastLeagueClub, kYouthPool);
}

// With no candidate for a position anywhere, the rival's best man not yet named starts in
// the place out of position, so the match can still be played.
std::optional<Player> standIn(GameStore &store, int rival, const QString &position)
{
    return onePlayer(store,
                     selectPlayers("where idequipo = ? and Posicion <> ?"
                                   " and idjugador not in (select idjugador from jugar)"
                                   " order by Media desc, idjugador limit 1"),
                     rival, position);
}

void name(GameStore &store, int club, const Player &player, int plaza)
{
    store.execute("insert into jugar (idequipo, idjugador, Nombre, Apellidos, Media, Posicion, plaza)"
                  " values (?, ?, ?, ?, ?, ?, ?)",
                  club, player.id, player.nombre, player.apellidos, player.media, player.posicion, plaza);
}

} // namespace

void RivalSquad::prepare(const std::optional<Fixture> &fixture)
{
    if (!fixture)
        return; // no match this week, so no side to name

    GameStore &store = m_context.store;
    const int rival = fixture->rivalId;
    const Result written = store.run([&] {
        const int userClub = game::userClub(store);
        store.execute("delete from jugar where idequipo = ?", userClub);

        for (int plaza = 1; plaza <= static_cast<int>(kPositions.size()); ++plaza) {
            const QString position = QString::fromUtf16(kPositions[plaza - 1]);
            if (const std::optional<Player> best = singleBest(store, rival, position)) {
                name(store, rival, *best, plaza);
                continue;
            }

            // The newcomer starts at once, whatever his rating: even a weaker man than the
            // tied ones takes the place. The move is for good and free: he keeps his wage,
            // clause and contract, and wears the highest number of the user's club.
            if (const std::optional<Player> newcomer = drawNewcomer(store, m_context.random, position)) {
                const qint64 shirt = store.integer("select max(Dorsal) from jugadores where idequipo = ?", userClub);
                store.execute("update jugadores set idequipo = ?, Dorsal = ? where idjugador = ?", rival, shirt,
                              newcomer->id);
                name(store, rival, *newcomer, plaza);
                continue;
            }

            if (const std::optional<Player> substitute = standIn(store, rival, position))
                name(store, rival, *substitute, plaza);
        }
    });
    if (!written)
        m_context.dialogs.tell(written.message(), Dialogs::Icon::Exclamation);
}

} // namespace game
