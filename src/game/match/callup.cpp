#include "callup.h"

#include "league/leagueclubs.h"
#include "league/careerrow.h"
#include "dialogs.h"
#include "match/statements.h"
#include "store/gamestore.h"

#include <QObject>

#include <set>

namespace game {

QString CallUp::Place::listText() const
{
    return key + QStringLiteral(": ") + nombre + QLatin1Char(' ') + apellidos + QStringLiteral(" - ") + posicion;
}

std::vector<CallUp::Place> CallUp::places()
{
    std::vector<Place> list;
    m_context.store.attempt([&] { list = sql::match::places(m_context.store); });
    return list;
}

std::vector<CallUp::Player> CallUp::squad()
{
    std::vector<Player> players;
    m_context.store.attempt([&] { players = sql::match::squad(m_context.store, userClub(m_context.store)); });
    return players;
}

std::vector<CallUp::Player> CallUp::calledUp()
{
    std::vector<Player> players;
    m_context.store.attempt([&] { players = sql::match::calledUp(m_context.store); });
    return players;
}

bool CallUp::place(int placeIndex, int playerId)
{
    if (placeIndex < 0 || placeIndex >= kPlaces || playerId <= 0)
        return false;
    GameStore &store = m_context.store;
    bool placed = false;
    const Result result = store.run([&] {
        const int club = userClub(store);
        const std::optional<Player> player = sql::match::clubPlayer(store, playerId, club);
        if (!player)
            return;
        const QString key = sql::match::placeKey(store, placeIndex);
        // Out of the place he held, if any: it reads as free again.
        sql::match::leavePlace(store, playerId);
        sql::match::takePlace(store, key, club, *player);
        placed = true;
    });
    if (!result) {
        m_context.dialogs.tell(result.message(), Dialogs::Icon::Exclamation);
        return false;
    }
    return placed;
}

bool CallUp::readyToPlay()
{
    qint64 filled = 0;
    m_context.store.attempt(
        [&] { filled = sql::match::filledPlaces(m_context.store); });
    if (filled != kPlaces) {
        m_context.dialogs.tell(QObject::tr("Debes Seleccionar 14 Jugadores para la Covocatoria"));
        return false;
    }
    return true;
}

void CallUp::chooseBest()
{
    // The squad from the best down; among equals, as the squad lists them (by position, then
    // id).
    using Candidate = sql::match::Candidate;
    std::vector<Candidate> players;
    m_context.store.attempt([&] { players = sql::match::bestFirst(m_context.store, userClub(m_context.store)); });
    std::set<int> chosen;
    std::vector<int> lineUp;
    for (const char16_t *position : kPositions) {
        const QString wanted = QString::fromUtf16(position);
        int best = 0;
        for (const Candidate &player : players) {
            if (player.posicion == wanted && !chosen.count(player.id)) {
                best = player.id;
                break;
            }
        }
        // A position nobody plays goes to the best player left.
        if (best == 0) {
            for (const Candidate &player : players) {
                if (!chosen.count(player.id)) {
                    best = player.id;
                    break;
                }
            }
        }
        chosen.insert(best);
        lineUp.push_back(best);
    }
    for (const Candidate &player : players) {
        if (lineUp.size() == std::size_t(kPlaces))
            break;
        if (!chosen.count(player.id)) {
            chosen.insert(player.id);
            lineUp.push_back(player.id);
        }
    }
    // Only the places that change are written: a squad that stays as it was costs nothing.
    const std::vector<Place> current = places();
    const Result result = m_context.store.run([&] {
        for (std::size_t place = 0; place < lineUp.size(); ++place) {
            if (place >= current.size() || current[place].playerId != lineUp[place])
                this->place(int(place), lineUp[place]);
        }
    });
    if (!result)
        m_context.dialogs.tell(result.message(), Dialogs::Icon::Exclamation);
}

} // namespace game
