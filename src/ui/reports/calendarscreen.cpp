#include "calendarscreen.h"

#include "league/careerrow.h"
#include "common/indexedlabel.h"
#include "common/theme.h"
#include "reports/calendar.h"

#include <QGridLayout>

namespace ui {

CalendarScreen::CalendarScreen(game::Context context, int currentWeek, QWidget *parent)
    : Page("Calendario", tr("El Calendario"), tr("EL CALENDARIO"), parent)
{
    setFrame(28, 16, 14);
    const int club = game::CareerRow::current(context).club;
    const std::vector<game::Calendar::Row> rows = game::Calendar(context.store).rows(currentWeek, club);

    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(24);
    grid->setVerticalSpacing(14);
    const char *headers[] = {"PARTIDO", "COMPETICIÓN", "", "FECHA"};
    for (int column = 0; column < 4; ++column)
        grid->addWidget(theme::label("caption", tr(headers[column])), 0, column);
    // Every week of the walk gets its whole row: fixture, competition, round and date. A week
    // past the season's last match has no fixture, and its row stays empty. This week's row
    // stands out.
    for (int i = 0; i < game::Calendar::kWeeksShown; ++i) {
        const game::Calendar::Row &row = rows[std::size_t(i)];
        auto place = [&](const char *name, int column, const QString &text) {
            QLabel *label = indexed::label(name, i);
            label->setText(text);
            label->setProperty("role", QStringLiteral("cell"));
            label->setProperty("current", i == 0);
            label->setMinimumHeight(30);
            grid->addWidget(label, i + 1, column);
        };
        place("lblEquiposHoy", 0, row.fixture);
        place("lblTipo", 1, row.type);
        place("lblTipo2", 2, row.subtype);
        place("lblFecha", 3, row.date);
    }
    grid->setColumnStretch(0, 3);
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(2, 1);
    grid->setColumnStretch(3, 1);

    addLayout(grid);
    addStretch();
}

} // namespace ui
