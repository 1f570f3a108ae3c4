#pragma once

#include "common/page.h"
#include "context.h"
#include "playergrid.h"


namespace ui {

// "LA PLANTILLA": the user's players in four grids by position group, each with the years
// left on his contract. A player picked leads to his contract; pivots have no grid here.
// The squad is read when the screen opens, and the screen is made afresh after a change.
class SquadScreen : public Page
{
    Q_OBJECT

public:
    explicit SquadScreen(game::Context context, QWidget *parent = nullptr);

signals:
    void playerPicked(int player);
    void youthRequested();
};

} // namespace ui
