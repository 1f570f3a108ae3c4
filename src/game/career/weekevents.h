#pragma once

#include "league/fixture.h"

#include <array>
#include <functional>
#include <optional>

namespace game {

// What happens to the club at the start of each week, once, after the week's fixture is
// known and before the player can act, always in this order: the rival completes and names
// his seven, offers made three weeks ago are answered, stadium works that are due end and the
// shop pays, a club may bid for a listed player, television may buy the match.
class WeekEvents
{
public:
    enum class Step { RivalSquad, Offers, Stadium, Bids, Television };
    static constexpr std::size_t kSteps = 5;

    using Routine = std::function<void(const std::optional<Fixture> &)>;

    void set(Step step, Routine routine) { m_routines[static_cast<std::size_t>(step)] = std::move(routine); }

    // Runs every step that has a routine, in the fixed order.
    void run(const std::optional<Fixture> &fixture) const
    {
        for (const Routine &routine : m_routines) {
            if (routine)
                routine(fixture);
        }
    }

private:
    std::array<Routine, kSteps> m_routines;
};

} // namespace game
