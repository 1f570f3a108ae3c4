#pragma once

#include "dialogs.h"

#include <chrono>

// What the benchmarks share: dialogs that say nothing and answer No, and the clock.
class SilentDialogs final : public game::Dialogs
{
public:
    void tell(const QString &, Icon, const QString &) override {}
    bool ask(const QString &, const QString &) override { return false; }
};

using Clock = std::chrono::steady_clock;

inline double seconds(Clock::duration d)
{
    return std::chrono::duration<double>(d).count();
}
