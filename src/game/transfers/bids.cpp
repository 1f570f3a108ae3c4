#include "bids.h"

#include "league/careerrow.h"
#include "dialogs.h"
#include "random.h"
#include "stadium/ledger.h"
#include "store/gamestore.h"
#include "transfers/statements.h"

#include <QObject>
#include <QSet>

namespace game {

Bids::Outcome Bids::run()
{
    GameStore &store = m_context.store;
    Random &chance = m_context.random;
    Outcome outcome = Outcome::NoBid;
    Announcements told;
    const Result done = store.run([&] {
        outcome = Outcome::NoBid;
        told.clear();
        const CareerRow career = CareerRow::read(store);
        // The club's listed players are read once; the draws then look among them.
        const std::vector<int> listedIds = sql::transfers::listedOf(store, career.club);
        const QSet<int> listed(listedIds.begin(), listedIds.end());
        int player = 0;
        for (int draw = 0; draw < kDraws && player == 0; ++draw) {
            const int id = chance.draw(kHighestDrawnPlayer);
            if (listed.contains(id))
                player = id;
        }
        if (player == 0)
            return;

        const int bidder = chance.draw(kHighestBidder);
        const QString club = sql::transfers::clubName(store, bidder);
        // Two sums are drawn, as the market always did; the bid names the second, and that is
        // the sum the club pays.
        chance.draw(kHighestAskingSum);
        const int bid = chance.draw(kHighestBid);

        const std::optional<sql::transfers::Contract> contract = sql::transfers::contract(store, player);
        if (!contract)
            return;
        const QString &nombre = contract->nombre;
        const QString question = QStringLiteral("El %1 Ofrece %2€ por %3 %4 ¿Desea Aceptarla?%3 Tiene una Clausula de "
                                                "Rescisión de: %5€")
                                     .arg(club.toUpper(), QString::number(bid), nombre.toUpper(),
                                          contract->apellidos.toUpper(), QString::number(contract->clausula));
        if (!m_context.dialogs.ask(QStringLiteral("Oferta"), question)) {
            outcome = Outcome::Declined;
            return;
        }
        if (sql::transfers::squadSize(store, career.club) < kSmallestSquadToSell) {
            m_context.dialogs.tell(nombre + QStringLiteral(" Ha rechazado la Oferta del ") + club);
            outcome = Outcome::PlayerRefused;
            return;
        }
        // The sale is written whole, and told once it is: a sale that could not be written is
        // never announced.
        told.add(nombre + QStringLiteral(" Ha sido Fichado por el ") + club, Dialogs::Icon::Information);
        // Only his club changes: he stays listed, with his shirt, wage, clause and contract.
        sql::transfers::moveTo(store, player, bidder);
        // His place among the fourteen, found by his id, takes its empty form again.
        sql::transfers::freeCallUpPlace(store, player);
        Ledger(store).postSale(career.week, bid);
        sql::transfers::recordMove(store, career.season, career.week, player, sql::transfers::kSale, bid);
        outcome = Outcome::Sold;
    });
    if (!done) {
        m_context.dialogs.tell(done.message(), Dialogs::Icon::Exclamation);
        return Outcome::Failed;
    }
    told.tellTo(m_context.dialogs);
    return outcome;
}

} // namespace game
