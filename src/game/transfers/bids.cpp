#include "bids.h"

#include "league/careerrow.h"
#include "dialogs.h"
#include "random.h"
#include "stadium/ledger.h"
#include "store/gamestore.h"

#include <QObject>
#include <QSet>

namespace game {

Bids::Outcome Bids::run()
{
    GameStore &store = m_context.store;
    Random &chance = m_context.random;
    Outcome outcome = Outcome::NoBid;
    const Result done = store.run([&] {
        const CareerRow career = CareerRow::read(store);
        // The club's listed players are read once; the draws then look among them. They are
        // found through the club's own players, a few dozen, not through the whole market.
        QSet<int> listed;
        {
            GameStore::Query rows = store.query(
                "select idjugador from jugadores indexed by jugadores_por_equipo where idequipo = ? and venta = 1",
                career.club);
            while (rows.next())
                listed.insert(rows.integer(0));
        }
        int player = 0;
        for (int draw = 0; draw < kDraws && player == 0; ++draw) {
            const int id = chance.draw(kHighestDrawnPlayer);
            if (listed.contains(id))
                player = id;
        }
        if (player == 0)
            return;

        const int bidder = chance.draw(kHighestBidder);
        const QString club = store.text("select NombreEquipo from equipos where idequipo = ?", bidder);
        // Two sums are drawn, as the market always did; the bid names the second, and that is
        // the sum the club pays.
        chance.draw(kHighestAskingSum);
        const int bid = chance.draw(kHighestBid);

        QString nombre;
        QString apellidos;
        qint64 clause = 0;
        {
            GameStore::Query row = store.query(
                "select Nombre, Apellidos, Clausula_Recision from jugadores where idjugador = ?", player);
            if (!row.next())
                return;
            nombre = row.text(0);
            apellidos = row.text(1);
            clause = row.integer64(2);
        }
        const QString question = QStringLiteral("El %1 Ofrece %2€ por %3 %4 ¿Desea Aceptarla?%3 Tiene una Clausula de "
                                                "Rescisión de: %5€")
                                     .arg(club.toUpper(), QString::number(bid), nombre.toUpper(), apellidos.toUpper(),
                                          QString::number(clause));
        if (!m_context.dialogs.ask(QStringLiteral("Oferta"), question)) {
            outcome = Outcome::Declined;
            return;
        }
        if (store.integer("select count(*) from jugadores where idequipo = ?", career.club) < kSmallestSquadToSell) {
            m_context.dialogs.tell(nombre + QStringLiteral(" Ha rechazado la Oferta del ") + club);
            outcome = Outcome::PlayerRefused;
            return;
        }
        m_context.dialogs.tell(nombre + QStringLiteral(" Ha sido Fichado por el ") + club, Dialogs::Icon::Information);
        // Only his club changes: he stays listed, with his shirt, wage, clause and contract.
        store.attempt([&] { store.execute("update jugadores set idequipo = ? where idjugador = ?", bidder, player); });
        // His place among the fourteen, found by his id, takes its empty form again.
        store.attempt([&] {
            store.execute("update miequipo set idjugador = 0, Nombre = Pos_Partido, Apellidos = '', Media = 0,"
                          " Posicion = '' where idjugador = ?",
                          player);
        });
        store.attempt([&] { Ledger(store).postSale(career.week, bid); });
        outcome = Outcome::Sold;
    });
    if (!done) {
        m_context.dialogs.tell(done.message(), Dialogs::Icon::Exclamation);
        return Outcome::NoBid;
    }
    return outcome;
}

} // namespace game
