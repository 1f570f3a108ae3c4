#pragma once

#include "context.h"

#include <QWidget>

namespace ui {

// "El Calendario": the user's match of this week and of the weeks after it.
class CalendarScreen : public QWidget
{
    Q_OBJECT

public:
    CalendarScreen(game::Context context, int currentWeek, QWidget *parent = nullptr);

signals:
    void closeRequested();
};

} // namespace ui
