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
    GameStore &store = m_context.store;
    Settled settled;
    Announcements told;
    const Result done = store.run([&] {
        settled = {};
        told.clear();
        const CareerRow career = CareerRow::read(store);
        // Read first, so that no read of selects is open while its rows go. The offers made
        // three weeks ago are due, and any older one still waiting because its answer could
        // not be written.
        for (const sql::transfers::WaitingOffer &offer :
             sql::transfers::offersUpTo(store, career.week - kWeeksToAnswer))
            answer(career, offer, false, settled, told);
    });
    if (!done) {
        m_context.dialogs.tell(done.message(), Dialogs::Icon::Exclamation);
        return {0, 0, false};
    }
    told.tellTo(m_context.dialogs);
    return settled;
}

bool Offers::answerAtClose(const CareerRow &career, const sql::transfers::WaitingOffer &offer, Settled &settled,
                           Announcements &told)
{
    return answer(career, offer, true, settled, told);
}

bool Offers::answer(const CareerRow &career, const sql::transfers::WaitingOffer &offer, bool seasonClose,
                    Settled &settled, Announcements &told)
{
    GameStore &store = m_context.store;
    // An offer is answered whole or not at all: its reads and writes stand together, and its
    // messages are kept for the moment they are written. One that fails waits for a later
    // try, and the others go on.
    Announcements messages;
    enum class Outcome { None, Signed, Refused } outcome = Outcome::None;
    const bool answered = store.attempt([&] {
        // Judged on the player's terms of this moment, which an offer answered just before may
        // have changed, and on the club that holds him now.
        if (const std::optional<sql::transfers::Contract> now = sql::transfers::contract(store, offer.player)) {
            const QString &nombre = now->nombre;
            const QString &club = now->club;
            outcome = Outcome::Refused;
            if (now->clausula > offer.oferta) {
                messages.add(QStringLiteral("El ") + club + QStringLiteral(" Ha rechazado su Oferta"),
                             Dialogs::Icon::Information);
            } else if (now->ficha > offer.ficha) {
                messages.add(nombre + QStringLiteral(" Ha rechazado su Oferta porque no está deacuedo con su Ficha"));
            } else if (2 * now->clausula < offer.clausula) {
                messages.add(nombre
                             + QStringLiteral(" Ha rechazado su Oferta porque no está deacuedo con su Clausula de Rescisión"));
            } else if (sql::transfers::carryOut(store, offer.order)) {
                messages.add(QStringLiteral("Has Fichado a ") + nombre + QStringLiteral(" del ") + club,
                             Dialogs::Icon::Information);
                sql::transfers::recordMove(store, career.season, career.week, offer.player, sql::transfers::kSigning,
                                           offer.oferta);
                // In the season the week's row pays; at its close the ledger is gone and the
                // budget pays.
                if (seasonClose)
                    sql::stadium::chargeBudget(store, career.club, offer.oferta);
                else
                    Ledger(store).postSigning(career.week, offer.oferta);
                outcome = Outcome::Signed;
            } else {
                // An order the game did not write moves nobody and costs nothing.
                messages.add(QObject::tr("La oferta por %1 no se puede cumplir: su orden no es válida.").arg(nombre),
                             Dialogs::Icon::Exclamation);
            }
        }
        // Answered, yes or no: the first order that matches goes, and a twin stays for its
        // own turn.
        sql::transfers::dropOffer(store, offer);
    });
    if (!answered)
        return false;
    told.append(messages);
    if (outcome == Outcome::Signed)
        ++settled.signings;
    else if (outcome == Outcome::Refused)
        ++settled.refusals;
    return true;
}

} // namespace game
