#include "rivalsquad.h"

namespace game {

void RivalSquad::prepare(const std::optional<Fixture> &)
{
}

} // namespace game
