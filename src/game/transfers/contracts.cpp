#include "contracts.h"

#include "league/careerrow.h"
#include "league/leagueclubs.h"
#include "dialogs.h"
#include "stadium/ledger.h"
#include "store/gamestore.h"
#include "transfers/statements.h"

namespace game {

bool Contracts::renew(int player, const Renewal &renewal)
{
    GameStore &store = m_context.store;
    Dialogs &dialogs = m_context.dialogs;
    bool renewed = false;
    const Result done = store.run([&] {
        const std::optional<sql::transfers::Contract> contract = sql::transfers::contract(store, player);
        if (!contract)
            return;
        const QString &nombre = contract->nombre;
        if (contract->years + renewal.years > kMostYears) {
            dialogs.tell(nombre + QStringLiteral(" Ha rechazado su Oferta porque No Quiere Ligarse más al Club"));
            return;
        }
        // At most one and a half times the clause: twice the new clause against three times
        // the old keeps the test in whole numbers.
        if (2 * qint64(renewal.clausula) > 3 * contract->clausula) {
            dialogs.tell(nombre + QStringLiteral(" Ha rechazado su Oferta porque no está de Acuedo con su Clausula de Rescisión"));
            return;
        }
        if (renewal.ficha < contract->ficha + kWageRise) {
            dialogs.tell(nombre + QStringLiteral(" Ha rechazado su Oferta porque no está de Acuedo con su Ficha"));
            return;
        }
        dialogs.tell(nombre + QStringLiteral(" Ha Renovado su Contrato"), Dialogs::Icon::Information);
        sql::transfers::renew(store, player, renewal.clausula, renewal.ficha, renewal.years);
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
        if (sql::transfers::squadSize(store, career.club) < kSmallestSquadToDismiss) {
            // The board's words name fourteen; the limit is twelve.
            dialogs.tell(QStringLiteral("La Directiva No Acepta Más Despidos de Jugadores, ya que el Equipo Solo Cuenta "
                                        "con 14 Jugadores."));
            outcome = Dismissal::Refused;
            return;
        }
        sql::transfers::moveTo(store, player, kReleasedPool);
        // Every year left of his wage.
        Ledger(store).postDismissal(career.week, sql::transfers::wageOfYearsLeft(store, player));
        // His place among the fourteen, found by his id, takes its empty form again.
        sql::transfers::freeCallUpPlace(store, player);
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
        sql::transfers::toggleListing(store, player);
        listed = sql::transfers::isListed(store, player);
    });
    if (!done) {
        m_context.dialogs.tell(done.message(), Dialogs::Icon::Exclamation);
        store.attempt([&] { listed = sql::transfers::isListed(store, player); });
    }
    return listed;
}

} // namespace game
