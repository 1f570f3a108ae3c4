#pragma once

#include "context.h"

namespace game {

// The contract office for the user's own players: renewing a contract, dismissing a player
// and putting him on the market or taking him off it. A renewal is answered at once, by
// three tests: no more than ten years in all, a clause of at most one and a half times the
// present one, and a wage of at least 1000 more. A dismissed player goes to the pool of
// released players (club 85) and the club pays him every year left of his wage; the board
// allows no dismissal that would leave fewer than eleven.
//
//   Contracts office(context);
//   office.renew(player, {clause, wage, years});
class Contracts
{
public:
    static constexpr int kMostYears = 10;
    static constexpr int kWageRise = 1000;
    static constexpr int kSmallestSquadToDismiss = 12;

    struct Renewal
    {
        int clausula = 0;
        int ficha = 0;
        int years = 1;
    };

    explicit Contracts(Context context) : m_context(context) {}

    // True when the player took the new contract (both messages told); false when he
    // refused (his reason told) or the store failed (told); nothing changes then.
    bool renew(int player, const Renewal &renewal);

    enum class Dismissal { Kept, Refused, Dismissed };
    // Asks the player first ("Despedir"); a No keeps him.
    Dismissal dismiss(int player);

    // Lists the player, or takes him off the list when he is on it. The new state; the old
    // one when the store failed.
    bool toggleListing(int player);

private:
    Context m_context;
};

} // namespace game
