#include "contracts.h"

#include "league/careerrow.h"
#include "league/leagueclubs.h"
#include "dialogs.h"
#include "stadium/ledger.h"
#include "store/gamestore.h"

namespace game {

bool Contracts::renew(int player, const Renewal &renewal)
{
    GameStore &store = m_context.store;
    Dialogs &dialogs = m_context.dialogs;
    bool renewed = false;
    const Result done = store.run([&] {
        QString nombre;
        qint64 years = 0;
        qint64 clause = 0;
        qint64 wage = 0;
        {
            GameStore::Query row = store.query(
                "select Nombre, \"Años_Contrato\", Clausula_Recision, Ficha from jugadores where idjugador = ?", player);
            if (!row.next())
                return;
            nombre = row.text(0);
            years = row.integer64(1);
            clause = row.integer64(2);
            wage = row.integer64(3);
        }
        if (years + renewal.years > kMostYears) {
            dialogs.tell(nombre + QStringLiteral(" Ha rechazado su Oferta porque No Quiere Ligarse más al Club"));
            return;
        }
        // At most one and a half times the clause: twice the new clause against three times
        // the old keeps the test in whole numbers.
        if (2 * qint64(renewal.clausula) > 3 * clause) {
            dialogs.tell(nombre + QStringLiteral(" Ha rechazado su Oferta porque no está de Acuedo con su Clausula de Rescisión"));
            return;
        }
        if (renewal.ficha < wage + kWageRise) {
            dialogs.tell(nombre + QStringLiteral(" Ha rechazado su Oferta porque no está de Acuedo con su Ficha"));
            return;
        }
        dialogs.tell(nombre + QStringLiteral(" Ha Renovado su Contrato"), Dialogs::Icon::Information);
        store.execute("update jugadores set Clausula_Recision = ?, Ficha = ?, \"Años_Contrato\" = \"Años_Contrato\" + ?"
                      " where idjugador = ?",
                      renewal.clausula, renewal.ficha, renewal.years, player);
        dialogs.tell(QStringLiteral("El Jugador Cobrará Lo Acordado al Finalizar Esta Temporada"));
        renewed = true;
    });
    if (!done) {
        dialogs.tell(done.message(), Dialogs::Icon::Exclamation);
        return false;
    }
    return renewed;
}

Contracts::Dismissal Contracts::dismiss(int player)
{
    GameStore &store = m_context.store;
    Dialogs &dialogs = m_context.dialogs;
    if (!dialogs.ask(QStringLiteral("Despedir"),
                     QStringLiteral("¿Está Seguro de Despedir a Éste Jugador? Tendrá que Pagarle Una Indemnización")))
        return Dismissal::Kept;
    Dismissal outcome = Dismissal::Kept;
    const Result done = store.run([&] {
        const CareerRow career = CareerRow::read(store);
        if (store.integer("select count(*) from jugadores where idequipo = ?", career.club) < kSmallestSquadToDismiss) {
            // The board's words name fourteen; the limit is twelve.
            dialogs.tell(QStringLiteral("La Directiva No Acepta Más Despidos de Jugadores, ya que el Equipo Solo Cuenta "
                                        "con 14 Jugadores."));
            outcome = Dismissal::Refused;
            return;
        }
        store.execute("update jugadores set idequipo = ? where idjugador = ?", kReleasedPool, player);
        // Every year left of his wage.
        const qint64 compensation =
            store.integer("select Ficha * \"Años_Contrato\" from jugadores where idjugador = ?", player);
        Ledger(store).postDismissal(career.week, compensation);
        // His place among the fourteen, found by his id, takes its empty form again.
        store.execute("update miequipo set idjugador = 0, Nombre = Pos_Partido, Apellidos = '', Media = 0,"
                      " Posicion = '' where idjugador = ?",
                      player);
        outcome = Dismissal::Dismissed;
    });
    if (!done) {
        dialogs.tell(done.message(), Dialogs::Icon::Exclamation);
        return Dismissal::Kept;
    }
    return outcome;
}

bool Contracts::toggleListing(int player)
{
    GameStore &store = m_context.store;
    bool listed = false;
    const Result done = store.run([&] {
        store.execute("update jugadores set venta = 1 - venta where idjugador = ?", player);
        listed = store.integer("select venta from jugadores where idjugador = ?", player) == 1;
    });
    if (!done) {
        m_context.dialogs.tell(done.message(), Dialogs::Icon::Exclamation);
        store.attempt([&] { listed = store.integer("select venta from jugadores where idjugador = ?", player) == 1; });
    }
    return listed;
}

} // namespace game
