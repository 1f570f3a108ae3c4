#include "random.h"

#include <cmath>

namespace game {

int Random::draw(int n)
{
    if (n < 1)
        return 1;
    const int value = static_cast<int>(std::floor(uniform() * n)) + 1;
    return value > n ? n : value; // guards a generator that returns 1.0 by rounding
}

SystemRandom::SystemRandom() : m_engine(std::random_device{}()) {}

SystemRandom::SystemRandom(std::uint64_t seed) : m_engine(seed) {}

double SystemRandom::uniform()
{
    return m_distribution(m_engine);
}

} // namespace game
