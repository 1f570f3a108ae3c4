#pragma once

#include "league/fixture.h"
#include "context.h"

#include <QString>

#include <optional>

namespace game {

// Television rights. At each week's opening the player is told "Cargando... Pulse Aceptar
// para continuar", and television buys the week's match when the two clubs share a class,
// stand next to each other in the table, or one of them is not in the league. Chance only
// picks the channel. The fee, 450000, reaches the week's ledger row only when the player
// acknowledges the broadcast (the Tele screen's OK), once.
//
//   Television tv(context);
//   if (auto channel = tv.run(week.fixture())) { show Tele; on OK: tv.bookFee(week.number()); }
class Television
{
public:
    static constexpr int kChannels = 7;

    explicit Television(Context context) : m_context(context) {}

    // The week's event: the loading message, then the decision. The channel's name when
    // television buys the match; nothing in a week without a match or when it does not.
    std::optional<QString> run(const std::optional<Fixture> &fixture);

    // The rule alone, on the clubs' ids.
    bool buys(int homeClub, int awayClub);
    // A channel drawn with equal chance among the seven.
    QString drawChannel();
    // Books the fee in the week's ledger row. False when the store failed (told).
    bool bookFee(int week);

private:
    Context m_context;
};

} // namespace game
