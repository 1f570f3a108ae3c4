#include "rivalsquad.h"

#include "league/careerrow.h"
#include "league/leagueclubs.h"
#include "dialogs.h"
#include "random.h"
#include "store/gamestore.h"
#include "transfers/statements.h"

namespace game {

namespace {

using Player = RivalSquad::Player;

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
    const std::vector<Player> best = sql::transfers::bestInPosition(store, club, position);
    if (best.size() != 1)
        return std::nullopt; // nobody, or a tie: the club cannot choose between them
    return best.front();
}

// A player of this position from a club that can lose him, drawn at random among all the
// players. The draw counts on idjugador running from 1 to the number of players; a gap only
// costs a draw. Where the draws keep missing (the candidates are few, or there are none) the
// lowest id that qualifies is taken, so the search always ends.
std::optional<Player> drawNewcomer(GameStore &store, Random &random, const QString &position)
{
    const int players = sql::transfers::playerCount(store);
    for (int tries = 0; tries < RivalSquad::kMaxDraws; ++tries) {
        const std::optional<Player> drawn = sql::transfers::player(store, random.draw(players));
        if (drawn && canJoinRival(*drawn, position))
            return drawn;
    }
    return sql::transfers::firstOfPositionAbroad(store, position);
}

} // namespace

bool RivalSquad::prepare(const std::optional<Fixture> &fixture)
{
    if (!fixture)
        return true; // no match this week, so no side to name

    GameStore &store = m_context.store;
    const int rival = fixture->rivalId;
    const Result written = store.run([&] {
        const int userClub = game::userClub(store);
        sql::transfers::clearStarters(store, userClub);

        for (int plaza = 1; plaza <= static_cast<int>(kPositions.size()); ++plaza) {
            const QString position = QString::fromUtf16(kPositions[plaza - 1]);
            if (const std::optional<Player> best = singleBest(store, rival, position)) {
                sql::transfers::nameStarter(store, rival, *best, plaza);
                continue;
            }

            // The newcomer starts at once, whatever his rating: even a weaker man than the
            // tied ones takes the place. The move is for good and free: he keeps his wage,
            // clause and contract, and wears the highest number of the user's club.
            if (const std::optional<Player> newcomer = drawNewcomer(store, m_context.random, position)) {
                const int shirt = sql::transfers::highestShirt(store, userClub);
                sql::transfers::moveWithShirt(store, newcomer->id, rival, shirt);
                sql::transfers::nameStarter(store, rival, *newcomer, plaza);
                continue;
            }

            // With no candidate for the position anywhere, the rival's best man not yet named
            // starts in the place out of position, so the match can still be played.
            if (const std::optional<Player> substitute = sql::transfers::bestUnnamedOutOfPosition(store, rival, position))
                sql::transfers::nameStarter(store, rival, *substitute, plaza);
        }
    });
    if (!written)
        m_context.dialogs.tell(written.message(), Dialogs::Icon::Exclamation);
    return bool(written);
}

} // namespace game
