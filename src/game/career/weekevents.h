#pragma once

#include "league/fixture.h"

#include <array>
#include <bitset>
#include <functional>
#include <optional>
#include <type_traits>

namespace game {

// What happens to the club at the start of each week, once, after the week's fixture is
// known and before the player can act, always in this order: the rival completes and names
// his seven, offers made three weeks ago are answered, stadium works that are due end and the
// shop pays, a club may bid for a listed player, television may buy the match.
//
// Each step says whether it went through. One that failed (the store refused it) has written
// nothing and is tried again at the next run; the steps that went through are never run again.
class WeekEvents
{
public:
    enum class Step { RivalSquad, Offers, Stadium, Bids, Television };
    static constexpr std::size_t kSteps = 5;
    // The steps of a week that have gone through.
    using Done = std::bitset<kSteps>;

    using Routine = std::function<bool(const std::optional<Fixture> &)>;

    // A routine that returns nothing cannot fail: it always goes through.
    template<typename F>
    void set(Step step, F routine)
    {
        if constexpr (std::is_void_v<std::invoke_result_t<F &, const std::optional<Fixture> &>>) {
            m_routines[index(step)] = [routine](const std::optional<Fixture> &fixture) mutable {
                routine(fixture);
                return true;
            };
        } else {
            m_routines[index(step)] = std::move(routine);
        }
    }

    // Runs, in the fixed order, every step not done yet, and marks those that go through. A
    // step without a routine has nothing to do and counts as done.
    void run(const std::optional<Fixture> &fixture, Done &done) const
    {
        for (std::size_t step = 0; step < kSteps; ++step) {
            if (!done[step] && (!m_routines[step] || m_routines[step](fixture)))
                done[step] = true;
        }
    }

    static constexpr std::size_t index(Step step) { return static_cast<std::size_t>(step); }

private:
    std::array<Routine, kSteps> m_routines;
};

} // namespace game
