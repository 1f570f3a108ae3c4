#include "calendarscreen.h"

#include "league/careerrow.h"
#include "common/indexedlabel.h"
#include "common/plainlabel.h"
#include "common/theme.h"
#include "reports/calendar.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

namespace ui {

CalendarScreen::CalendarScreen(game::Context context, int currentWeek, QWidget *parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("Calendario"));
    setWindowTitle(tr("El Calendario"));
    setAttribute(Qt::WA_StyledBackground);
    setStyleSheet(QStringLiteral("QWidget#Calendario { background-color: #0f1e3c; }"));

    const int club = game::CareerRow::current(context).club;
    const std::vector<game::Calendar::Row> rows = game::Calendar(context.store).rows(currentWeek, club);

    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(24);
    grid->setVerticalSpacing(14);
    const char *headers[] = {"PARTIDO", "COMPETICIÓN", "", "FECHA"};
    for (int column = 0; column < 4; ++column) {
        auto *header = plainLabel(tr(headers[column]));
        header->setStyleSheet(QStringLiteral("color: #e8a33d; font-weight: bold;"));
        grid->addWidget(header, 0, column);
    }
    const QString cell = QStringLiteral("color: #ffffff; background: #162a50; border-radius: 3px; padding: 4px 8px;");
    // Every week of the walk gets its whole row: fixture, competition, round and date. A week
    // past the season's last match has no fixture, and its row stays empty.
    for (int i = 0; i < game::Calendar::kWeeksShown; ++i) {
        const game::Calendar::Row &row = rows[std::size_t(i)];
        auto place = [&](const char *name, int column, const QString &text) {
            QLabel *label = indexed::label(name, i);
            label->setText(text);
            label->setStyleSheet(i == 0 ? cell + QStringLiteral("font-weight: bold; border: 1px solid #e8a33d;") : cell);
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

    auto *back = new QPushButton(tr("<- VOLVER"));
    back->setObjectName(QStringLiteral("cmdVOLVER"));
    connect(back, &QPushButton::clicked, this, &CalendarScreen::closeRequested);
    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(back);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(28, 16, 28, 16);
    layout->setSpacing(14);
    layout->addWidget(theme::heading(tr("EL CALENDARIO")));
    layout->addLayout(grid);
    layout->addStretch();
    layout->addLayout(buttons);
}

} // namespace ui
