#include "standingsscreen.h"

#include "league/careerrow.h"
#include "common/artwork.h"
#include "common/indexedlabel.h"
#include "common/plainlabel.h"
#include "common/theme.h"
#include "reports/standings.h"

#include <QGridLayout>

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
constexpr int kPointsColumn = 8;

} // namespace

StandingsScreen::StandingsScreen(game::Context context, QWidget *parent)
    : Page("Clasificacion", tr("La Clasificación"), tr("LA CLASIFICACIÓN"), parent)
{
    setFrame(28, 12, 10);
    // The table is read afresh at every opening, and reading it writes the places.
    const std::vector<game::Standings::Row> rows = game::Standings(context).look();
    const int userClub = game::CareerRow::current(context).club;

    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(6);
    grid->setVerticalSpacing(5);
    // The crest stands in a column of its own, between the place and the name.
    auto gridColumn = [](int column) { return column == 0 ? 0 : column + 1; };
    for (int column = 0; column < int(std::size(kColumns)); ++column) {
        QLabel *header = theme::label("caption", tr(kColumns[column].header));
        header->setAlignment(kColumns[column].number ? Qt::AlignCenter : Qt::AlignLeft | Qt::AlignVCenter);
        // The name's header stands over the crests as well.
        if (column == 1)
            grid->addWidget(header, 0, 1, 1, 2);
        else
            grid->addWidget(header, 0, gridColumn(column));
    }

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
            label->setProperty("role", QStringLiteral("cell"));
            // The user's club is the one row that stands out; the points are what the table is
            // ordered by, so they stand out too.
            label->setProperty("users", users);
            label->setProperty("strong", column == kPointsColumn);
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

    addLayout(grid);
    addStretch();
}

} // namespace ui
