#pragma once

#include "league/fixture.h"
#include "context.h"

#include <QString>

#include <optional>

namespace game {

// The rival of the week has no manager: at each opening of a week his best player of each
// of the seven positions is named to start, into the table jugar. Where a position has no
// single best man (nobody, or two or more tied at the top), the club silently brings in a
// player of that position from a club outside the league or from the released players.
//
//   RivalSquad(context).prepare(panel.fixture());
class RivalSquad
{
public:
    // After this many draws without a candidate the lowest id that qualifies is taken.
    static constexpr int kMaxDraws = 20000;

    // A player as a starter's row in jugar repeats him.
    struct Player
    {
        int id = 0;
        int club = 0;
        QString nombre;
        QString apellidos;
        int media = 0;
        QString posicion;
    };

    explicit RivalSquad(Context context) : m_context(context) {}

    // Names the rival's seven for the week's match; a week without a match does nothing.
    // False when the store failed: the player has been told, nothing was written, and the
    // rival has no side yet.
    bool prepare(const std::optional<Fixture> &fixture);

private:
    Context m_context;
};

} // namespace game
