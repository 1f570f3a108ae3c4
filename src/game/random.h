#pragma once

#include <memory>
#include <random>

namespace game {

// The one source of chance of the game. Every rule draws through it, so a test can script
// the draws and know the outcome.
//
//   game::Random &chance = ...;
//   const int goalsHome = chance.draw(20) + 21;   // 22..41
class Random
{
public:
    virtual ~Random() = default;

    // A uniform real number in [0, 1).
    virtual double uniform() = 0;

    // A uniform whole number from 1 to n: floor(u * n) + 1, exactly, so a scripted u gives a
    // known draw. n below 1 gives 1.
    int draw(int n);
};

// The generator of a real game: seeded once from the system's entropy.
class SystemRandom final : public Random
{
public:
    SystemRandom();
    explicit SystemRandom(std::uint64_t seed);
    double uniform() override;

private:
    std::mt19937_64 m_engine;
    std::uniform_real_distribution<double> m_distribution{0.0, 1.0};
};

} // namespace game
