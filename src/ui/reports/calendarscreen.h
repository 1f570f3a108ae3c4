#pragma once

#include "common/page.h"
#include "context.h"

namespace ui {

// "El Calendario": the user's match of this week and of the weeks after it.
class CalendarScreen : public Page
{
    Q_OBJECT

public:
    CalendarScreen(game::Context context, int currentWeek, QWidget *parent = nullptr);
};

} // namespace ui
