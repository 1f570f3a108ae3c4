#pragma once

#include "common/page.h"
#include "context.h"
#include "reports/roundresults.h"

#include <array>

class QLabel;

namespace ui {

// "Resultados": the eight matches of one league round, with their scores. It opens on the
// round of the current week, and the player can walk through all thirty. It writes nothing.
class RoundsScreen : public Page
{
    Q_OBJECT

public:
    explicit RoundsScreen(game::Context context, QWidget *parent = nullptr);

private:
    static constexpr int kMatches = 8;

    void showRound(int round);

    game::RoundResults m_results;
    int m_round = game::RoundResults::kFirstRound;
    QLabel *m_roundLabel;
    std::array<QLabel *, kMatches> m_home{};
    std::array<QLabel *, kMatches> m_homeGoals{};
    std::array<QLabel *, kMatches> m_awayGoals{};
    std::array<QLabel *, kMatches> m_away{};
};

} // namespace ui
