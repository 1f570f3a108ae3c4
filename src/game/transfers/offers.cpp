#include "offers.h"

#include "league/careerrow.h"
#include "dialogs.h"
#include "stadium/ledger.h"
#include "stadium/statements.h"
#include "store/gamestore.h"
#include "transfers/statements.h"
#include "transfers/terms.h"

#include <QObject>

#include <limits>
#include <vector>

namespace game {

namespace {

constexpr qint64 kLargestSum = std::numeric_limits<qint32>::max();

} // namespace

std::optional<Offers::Terms> Offers::termsFrom(const QString &oferta, const QString &clausula, const QString &ficha,
                                               const QString &years, Dialogs &dialogs)
{
    const std::optional<qint64> sums[] = {sumOfBox(oferta), sumOfBox(clausula), sumOfBox(ficha)};
    for (const std::optional<qint64> &sum : sums) {
        if (!sum || *sum > kLargestSum) {
            dialogs.tell(QObject::tr("Las cantidades no pueden pasar de 2147483647 €. Corrige la oferta."),
                         Dialogs::Icon::Exclamation);
            return std::nullopt;
        }
    }
    Terms terms;
    terms.oferta = int(*sums[0]);
    terms.clausula = int(*sums[1]);
    terms.ficha = int(*sums[2]);
    terms.years = yearsOfBox(years);
    return terms;
}

bool Offers::make(int player, const Terms &terms)
{
    GameStore &store = m_context.store;
    const Result written = store.run([&] {
        const CareerRow career = CareerRow::read(store);
        // The shirt is fixed now: the next number after the highest of the squad.
        const int shirt = sql::transfers::highestShirt(store, career.club) + 1;
        sql::transfers::queueOffer(store, career.week, career.club, shirt, terms, player);
    });
    if (!written)
        m_context.dialogs.tell(written.message(), Dialogs::Icon::Exclamation);
    return bool(written);
}

Offers::Settled Offers::settleDue()
{
    return settle(false);
}

Offers::Settled Offers::settleAllAtClose()
{
    return settle(true);
}

Offers::Settled Offers::settle(bool seasonClose)
{
    GameStore &store = m_context.store;
    Settled settled;
    const Result done = store.run([&] {
        const CareerRow career = CareerRow::read(store);
        // Read first, so that no read of selects is open while its rows go. During the season
        // the offers made three weeks ago are due; at its close every offer is, however young.
        const std::vector<sql::transfers::WaitingOffer> due = seasonClose
            ? sql::transfers::allOffers(store)
            : sql::transfers::offersOf(store, career.week - kWeeksToAnswer);
        for (const sql::transfers::WaitingOffer &offer : due) {
            // Each offer is judged on the player's terms of this moment, which an offer
            // answered just before may have changed, and on the club that holds him now.
            if (const std::optional<sql::transfers::Contract> now = sql::transfers::contract(store, offer.player)) {
                const QString &nombre = now->nombre;
                const QString &club = now->club;
                const qint64 clause = now->clausula;
                const qint64 wage = now->ficha;
                bool acceptable = true;
                if (clause > offer.oferta) {
                    m_context.dialogs.tell(QStringLiteral("El ") + club + QStringLiteral(" Ha rechazado su Oferta"),
                                           Dialogs::Icon::Information);
                    acceptable = false;
                } else if (wage > offer.ficha) {
                    m_context.dialogs.tell(nombre
                                           + QStringLiteral(" Ha rechazado su Oferta porque no está deacuedo con su Ficha"));
                    acceptable = false;
                } else if (2 * clause < offer.clausula) {
                    m_context.dialogs.tell(
                        nombre + QStringLiteral(" Ha rechazado su Oferta porque no está deacuedo con su Clausula de Rescisión"));
                    acceptable = false;
                }
                if (acceptable) {
                    m_context.dialogs.tell(QStringLiteral("Has Fichado a ") + nombre + QStringLiteral(" del ") + club,
                                           Dialogs::Icon::Information);
                    store.attempt([&] { sql::transfers::carryOut(store, offer.order); });
                    store.attempt([&] {
                        sql::transfers::recordMove(store, career.season, career.week, offer.player,
                                                   sql::transfers::kSigning, offer.oferta);
                    });
                    // In the season the week's row pays; at its close the ledger is gone and
                    // the budget pays.
                    store.attempt([&] {
                        if (seasonClose)
                            sql::stadium::chargeBudget(store, career.club, offer.oferta);
                        else
                            Ledger(store).postSigning(career.week, offer.oferta);
                    });
                    ++settled.signings;
                } else {
                    ++settled.refusals;
                }
            }
            // Answered, yes or no: the first order that matches goes, and a twin stays for
            // its own turn.
            store.attempt([&] { sql::transfers::dropOffer(store, offer); });
        }
    });
    if (!done)
        m_context.dialogs.tell(done.message(), Dialogs::Icon::Exclamation);
    return settled;
}

} // namespace game
