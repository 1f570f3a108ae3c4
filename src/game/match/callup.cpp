#include "callup.h"

#include "league/leagueclubs.h"
#include "league/careerrow.h"
#include "dialogs.h"
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
    m_context.store.attempt([&] {
        GameStore::Query rows = m_context.store.query(
            "select Pos_Partido, idjugador, Nombre, Apellidos, Posicion, Media from miequipo order by rowid");
        while (rows.next())
            list.push_back({rows.text(0), rows.integer(1), rows.text(2), rows.text(3), rows.text(4), rows.integer(5)});
    });
    return list;
}

std::vector<CallUp::Player> CallUp::squad()
{
    std::vector<Player> players;
    m_context.store.attempt([&] {
        GameStore::Query rows = m_context.store.query(
            "select idjugador, Nombre, Apellidos, Posicion, Media, Dorsal, Lesiones from jugadores"
            " where idequipo = ? order by Posicion, idjugador",
            userClub(m_context.store));
        while (rows.next()) {
            players.push_back({rows.integer(0), rows.text(1), rows.text(2), rows.text(3), rows.integer(4),
                               rows.integer(5), rows.integer(6)});
        }
    });
    return players;
}

std::vector<CallUp::Player> CallUp::calledUp()
{
    std::vector<Player> players;
    m_context.store.attempt([&] {
        GameStore::Query rows = m_context.store.query(
            "select m.idjugador, m.Nombre, m.Apellidos, m.Posicion, m.Media, coalesce(j.Dorsal, 0),"
            " coalesce(j.Lesiones, 0) from miequipo m left join jugadores j on j.idjugador = m.idjugador"
            " order by m.rowid");
        while (rows.next()) {
            players.push_back({rows.integer(0), rows.text(1), rows.text(2), rows.text(3), rows.integer(4),
                               rows.integer(5), rows.integer(6)});
        }
    });
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
        GameStore::Query player = store.query(
            "select Nombre, Apellidos, Media, Posicion from jugadores where idjugador = ? and idequipo = ?", playerId, club);
        if (!player.next())
            return;
        const QString key = store.text("select Pos_Partido from miequipo order by rowid limit 1 offset ?", placeIndex);
        // Out of the place he held, if any: it reads as free again.
        store.execute("update miequipo set Nombre = Pos_Partido, Apellidos = '', idjugador = 0, Posicion = ''"
                      " where idjugador = ?",
                      playerId);
        store.execute("update miequipo set idequipo = ?, idjugador = ?, Nombre = ?, Apellidos = ?, Media = ?,"
                      " Posicion = ? where Pos_Partido = ?",
                      club, playerId, player.text(0), player.text(1), player.integer(2), player.text(3), key);
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
        [&] { filled = m_context.store.integer("select count(idjugador) from miequipo where idjugador <> 0"); });
    if (filled != kPlaces) {
        m_context.dialogs.tell(QObject::tr("Debes Seleccionar 14 Jugadores para la Covocatoria"));
        return false;
    }
    return true;
}

void CallUp::chooseBest()
{
    // The squad from the best down; among equals, as the squad lists them (by position, then
    // id). Only what the choice needs is read, straight from the club's index.
    struct Candidate {
        int id = 0;
        QString posicion;
    };
    std::vector<Candidate> players;
    m_context.store.attempt([&] {
        GameStore::Query rows = m_context.store.query("select idjugador, Posicion from jugadores where idequipo = ?"
                                                      " order by Media desc, Posicion, idjugador",
                                                      userClub(m_context.store));
        while (rows.next())
            players.push_back({rows.integer(0), rows.text(1)});
    });
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
