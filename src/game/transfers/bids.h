#pragma once

#include "context.h"

namespace game {

// Bids for the user's players. At each week's opening the market looks, in up to 101 draws
// of an id from 1 to 1270, for one of the user's players on the list (venta 1); when one is
// found a club from 1 to 83 bids a sum for him and the player is asked. On a yes he goes,
// unless the squad would fall below fourteen: from fifteen players one may leave. His place
// among the fourteen called up is emptied and the sum named in the bid is the week's income.
// At most one bid a week, and most weeks bring none.
//
//   const Bids::Outcome outcome = Bids(context).run();
class Bids
{
public:
    static constexpr int kHighestDrawnPlayer = 1270;
    static constexpr int kDraws = 101;
    static constexpr int kHighestBidder = 83;
    static constexpr int kSmallestSquadToSell = 15;
    static constexpr int kHighestAskingSum = 298380;
    static constexpr int kHighestBid = 1075140;

    explicit Bids(Context context) : m_context(context) {}

    // Failed: the store failed and nothing was written; the week's bid is to be tried again.
    enum class Outcome { NoBid, Declined, PlayerRefused, Sold, Failed };
    Outcome run();

private:
    Context m_context;
};

} // namespace game
