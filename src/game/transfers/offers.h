#pragma once

#include "context.h"

#include <QString>

#include <optional>

namespace game {

class Announcements;
struct CareerRow;
namespace sql::transfers {
struct WaitingOffer;
}

// Offers for players. An offer is a pending order in `selects`: the sum for the player's
// club, the release clause and the yearly wage offered to the player, the contract's years,
// and the finished order that moves him, with the shirt number he will wear fixed at the
// offer. Nothing happens when it is made; three weeks later, at the opening of the week, it
// is answered by three comparisons with the player's terms of that moment: the club wants
// at least his release clause, the player at least his present wage, and he will not take a
// clause above twice his present one. A yes moves him and charges the sum to the week's
// ledger row; the order goes either way.
//
//   Offers offers(context);
//   if (auto terms = Offers::termsFrom(u"1.000 €"_s, u"2000 €"_s, u"900 €"_s, u"3"_s, dialogs))
//       offers.make(player, *terms);
//   offers.settleDue();   // at each week's opening
class Offers
{
public:
    static constexpr int kWeeksToAnswer = 3;

    struct Terms
    {
        int oferta = 0;     // for the club
        int clausula = 0;   // the new release clause
        int ficha = 0;      // the new yearly wage
        int years = 1;      // 1 to 6
    };

    explicit Offers(Context context) : m_context(context) {}

    // The offer screen's boxes as the player left them: the digits of each money box (an
    // empty box counts as 1 €), and the years box, which counts as 1 unless it holds a
    // number from 1 to 6. A sum too large for the game (above 2147483647) is refused with a
    // message and nothing.
    static std::optional<Terms> termsFrom(const QString &oferta, const QString &clausula, const QString &ficha,
                                          const QString &years, Dialogs &dialogs);

    // Records an offer for the player in one transaction. No money, squad or earlier offer
    // stands in its way. False when the store failed (the player has been told).
    bool make(int player, const Terms &terms);

    // The week's event: every offer made three weeks ago is answered, each on its own, with
    // its messages, told once the answers are written. An offer whose answer could not be
    // written waits, and is answered at a later opening with the offers of its week, so the
    // offers three weeks old or older are due. Offers of 0 for the club are no offers and
    // stay. done is false when the store failed: nothing was answered, and the step is to be
    // tried again.
    struct Settled
    {
        int signings = 0;
        int refusals = 0;
        bool done = true;
    };
    Settled settleDue();

    // The season's close answers every offer waiting, however young, the same way, in the
    // queue's order among the works: a yes is paid out of the budget, the season's ledger
    // being gone. Its messages go to told, to be told once the close is written. False, with
    // nothing of it written, when the store failed on it.
    bool answerAtClose(const CareerRow &career, const sql::transfers::WaitingOffer &offer, Settled &settled,
                       Announcements &told);

private:
    bool answer(const CareerRow &career, const sql::transfers::WaitingOffer &offer, bool seasonClose,
                Settled &settled, Announcements &told);
    Context m_context;
};

} // namespace game
