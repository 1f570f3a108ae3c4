#include "standingsscreen.h"

#include "league/careerrow.h"
#include "common/artwork.h"
#include "common/indexedlabel.h"
#include "common/plainlabel.h"
#include "common/theme.h"
#include "reports/standings.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

namespace ui {

namespace {

constexpr int kPlaces = 16;
const QSize kCrest(22, 22);

// The columns of the table: the label of each row, its header, and whether it is a number.
struct Column
{
    const char *name;
    const char *header;
    bool number;
};

const Column kColumns[] = {
    {"lblPos", "POS", true},  {"lblEquipo", "EQUIPO", false}, {"lblPJ", "PJ", true},
    {"lblPG", "PG", true},    {"lblPE", "PE", true},          {"lblPP", "PP", true},
    {"lbGF", "G F", true},    {"lbGC", "G C", true},          {"lblPtos", "Ptos", true},
};

} // namespace

StandingsScreen::StandingsScreen(game::Context context, QWidget *parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("Clasificacion"));
    setWindowTitle(tr("La Clasificación"));
    setAttribute(Qt::WA_StyledBackground);
    setStyleSheet(QStringLiteral("QWidget#Clasificacion { background-color: #0f1e3c; }"));

    // The table is read afresh at every opening, and reading it writes the places.
    const std::vector<game::Standings::Row> rows = game::Standings(context).look();
    const int userClub = game::CareerRow::current(context).club;

    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(6);
    grid->setVerticalSpacing(5);
    // The crest stands in a column of its own, between the place and the name.
    auto gridColumn = [](int column) { return column == 0 ? 0 : column + 1; };
    for (int column = 0; column < int(std::size(kColumns)); ++column) {
        QLabel *header = plainLabel(tr(kColumns[column].header));
        header->setStyleSheet(QStringLiteral("color: #e8a33d; font-weight: bold;"));
        header->setAlignment(kColumns[column].number ? Qt::AlignCenter : Qt::AlignLeft | Qt::AlignVCenter);
        // The name's header stands over the crests as well.
        if (column == 1)
            grid->addWidget(header, 0, 1, 1, 2);
        else
            grid->addWidget(header, 0, gridColumn(column));
    }

    const QString cell = QStringLiteral("color: #ffffff; background: #162a50; padding: 2px 8px;");
    const QString userCell = QStringLiteral(
        "color: #10203f; background: #e8a33d; font-weight: bold; padding: 2px 8px;");
    for (int i = 0; i < kPlaces; ++i) {
        // The places are fixed; a club missing from the store leaves its row empty.
        const game::Standings::Row *row = i < int(rows.size()) ? &rows[std::size_t(i)] : nullptr;
        const bool users = row && row->club == userClub;
        const QString values[] = {
            QString::number(i + 1),
            row ? row->name : QString(),
            row ? QString::number(row->played) : QString(),
            row ? QString::number(row->won) : QString(),
            row ? QString::number(row->drawn) : QString(),
            row ? QString::number(row->lost) : QString(),
            row ? QString::number(row->goalsFor) : QString(),
            row ? QString::number(row->goalsAgainst) : QString(),
            row ? QString::number(row->points) : QString(),
        };
        for (int column = 0; column < int(std::size(kColumns)); ++column) {
            QLabel *label = indexed::label(kColumns[column].name, i);
            label->setText(values[column]);
            // The points are what the table is ordered by, so they stand out.
            label->setStyleSheet(users ? userCell : column == 8 ? cell + QStringLiteral("font-weight: bold;") : cell);
            label->setAlignment(kColumns[column].number ? Qt::AlignCenter : Qt::AlignLeft | Qt::AlignVCenter);
            label->setFixedHeight(26);
            grid->addWidget(label, i + 1, gridColumn(column));
        }
        QLabel *crest = plainLabel();
        crest->setFixedSize(kCrest);
        if (row)
            crest->setPixmap(artwork::crest(row->club, kCrest));
        grid->addWidget(crest, i + 1, 1);
    }
    grid->setColumnStretch(2, 6);
    for (int column = 3; column < 10; ++column)
        grid->setColumnStretch(column, 1);
    grid->setColumnMinimumWidth(0, 56);

    auto *back = new QPushButton(tr("<- VOLVER"));
    back->setObjectName(QStringLiteral("cmdVOLVER"));
    connect(back, &QPushButton::clicked, this, &StandingsScreen::closeRequested);
    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(back);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(28, 12, 28, 12);
    layout->setSpacing(10);
    layout->addWidget(theme::heading(tr("LA CLASIFICACIÓN")));
    layout->addLayout(grid);
    layout->addStretch();
    layout->addLayout(buttons);
}

} // namespace ui
