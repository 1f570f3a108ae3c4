#include "results.h"

namespace game {

bool Results::record(const Fixture &, int, int)
{
    return true;
}

} // namespace game
