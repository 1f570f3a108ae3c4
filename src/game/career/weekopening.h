#pragma once

#include "context.h"

#include <optional>

namespace game {

// The start of a week, the only way the career moves on: the week number advances, the end
// of the season is tested, the wages and the staff are paid, the week's ledger row opens and
// last week's rival line-up is thrown away. All in one transaction.
//
//   WeekOpening opening(context);
//   if (auto week = opening.open()) panel.show(*week);
class WeekOpening
{
public:
    struct Opened
    {
        int week = 0;
        // The calendar is used up: this is the week after the season's last. The season's close
        // takes over from here, and no wages are charged for it.
        bool seasonOver = false;
    };

    explicit WeekOpening(Context context) : m_context(context) {}

    // The opened week, or nothing when the store failed (the player has been told).
    std::optional<Opened> open();

    // The career's current week and club, as the career row holds them. They throw on a store
    // failure, for use inside a routine; the *OrZero forms give 0 instead, for the screens.
    static int currentWeek(GameStore &store);
    static int userClub(GameStore &store);
    static int userClubOrZero(GameStore &store);

private:
    Context m_context;
};

} // namespace game
