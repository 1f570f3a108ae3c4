#pragma once

#include "league/careerrow.h"
#include "league/fixture.h"
#include "context.h"

#include <optional>

namespace game {

// The ticket and board prices the player sets before a home match. Each press steps the
// price and writes it at once; the gate reads them at every match from then on. The bounds
// are tested for equality, as the buttons always did: a price off the grid of steps passes
// its bound (28 and "+" gives 33).
//
//   Prices prices(context);
//   if (Prices::homeWeek(week.fixture(), week.career())) prices.raiseTicket();
class Prices
{
public:
    static constexpr int kTicketLowest = 5;
    static constexpr int kTicketHighest = 30;
    static constexpr int kTicketStep = 5;
    static constexpr int kBoardsLowest = 900;
    static constexpr int kBoardsHighest = 1800;
    static constexpr int kBoardsStep = 100;

    explicit Prices(Context context) : m_context(context) {}

    // The prices as stored; 0 when they cannot be read.
    int ticket();
    int boards();

    // One press: the new price, written. A price at its bound stays and is written again.
    // On a failure of the store the player is told and the old price is returned.
    int raiseTicket();
    int lowerTicket();
    int raiseBoards();
    int lowerBoards();

    // The step of one press with an equality bound.
    static int stepped(int price, int bound, int step) { return price == bound ? bound : price + step; }

    // Prices are set only in a week when the user's club plays at home.
    static bool homeWeek(const std::optional<Fixture> &fixture, const CareerRow &career);

private:
    int press(int row, int bound, int step);
    Context m_context;
};

} // namespace game
