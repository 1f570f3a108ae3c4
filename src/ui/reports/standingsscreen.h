#pragma once

#include "common/page.h"
#include "context.h"

namespace ui {

// "Clasificacion": the league table. Reading it writes each club's place, which is the
// standing the gate and television go by until the table is read again.
class StandingsScreen : public Page
{
    Q_OBJECT

public:
    explicit StandingsScreen(game::Context context, QWidget *parent = nullptr);
};

} // namespace ui
