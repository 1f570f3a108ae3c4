#pragma once

#include "context.h"

#include <QWidget>

namespace ui {

// "Clasificacion": the league table. Reading it writes each club's place, which is the
// standing the gate and television go by until the table is read again.
class StandingsScreen : public QWidget
{
    Q_OBJECT

public:
    explicit StandingsScreen(game::Context context, QWidget *parent = nullptr);

signals:
    void closeRequested();
};

} // namespace ui
