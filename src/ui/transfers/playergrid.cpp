#include "playergrid.h"

#include "common/grid.h"
#include "common/theme.h"

#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QVBoxLayout>

namespace ui {

namespace {

using Line = game::Market::Line;

RowsModel<Line>::Column columnOf(PlayerGrid::Column column)
{
    switch (column) {
    case PlayerGrid::Column::Nombre: return {QObject::tr("Nombre"), [](const Line &p) { return p.nombre; }};
    case PlayerGrid::Column::Apellidos: return {QObject::tr("Apellidos"), [](const Line &p) { return p.apellidos; }};
    case PlayerGrid::Column::Edad: return {QObject::tr("Edad"), [](const Line &p) { return QString::number(p.edad); }};
    case PlayerGrid::Column::Posicion: return {QObject::tr("Posición"), [](const Line &p) { return p.posicion; }};
    case PlayerGrid::Column::Media: return {QObject::tr("Media"), [](const Line &p) { return QString::number(p.media); }};
    case PlayerGrid::Column::Dorsal:
        return {QObject::tr("Dorsal"), [](const Line &p) { return QString::number(p.dorsal); }};
    case PlayerGrid::Column::Nacionalidad:
        return {QObject::tr("Nacionalidad"), [](const Line &p) { return p.nacionalidad; }};
    // On two lines, so that the four grids of the squad fit side by side, two by two.
    case PlayerGrid::Column::Years:
        return {QObject::tr("Años de\ncontrato"), [](const Line &p) { return QString::number(p.years); }};
    }
    return {};
}

} // namespace

PlayerGrid::PlayerGrid(const char *name, const std::vector<Column> &shown, QWidget *parent) : Grid(name, parent)
{
    std::vector<RowsModel<Line>::Column> columns{{tr("Nº"), [](const Line &p) { return QString::number(p.id); }}};
    for (Column column : shown)
        columns.push_back(columnOf(column));
    m_rows = new RowsModel<Line>(std::move(columns), this);
    setModel(m_rows);
    setColumnHidden(0, true);
    setWordWrap(false);
    // The widths are measured on the rows on show and a hundred more, not on every one of the
    // scout's thousand and more players, so that each search comes back at once; a cell that
    // is cut short still shows its whole text under the pointer.
    horizontalHeader()->setResizeContentsPrecision(100);
    connect(this, &QTableView::clicked, this, [this](const QModelIndex &index) {
        if (index.isValid())
            emit playerPicked(playerAt(index.row()));
    });
}

void PlayerGrid::setPlayers(std::vector<game::Market::Line> players)
{
    m_rows->setRows(std::move(players));
    fitColumns();
}

int PlayerGrid::playerAt(int row) const
{
    return row >= 0 && row < m_rows->rowCount() ? m_rows->row(row).id : 0;
}

QGridLayout *groupGrids(QWidget *screen, std::vector<PlayerGrid::Column> columns,
                        const std::function<std::vector<game::Market::Line>(game::Market::Group)> &players,
                        const std::function<void(int)> &picked, int spacing)
{
    struct Group
    {
        const char *name;
        QString caption;
        game::Market::Group group;
    };
    const Group groups[] = {
        {"DGPorteros", QObject::tr("Porteros"), game::Market::Group::Goalkeepers},
        {"DGExtremos", QObject::tr("Extremos"), game::Market::Group::Wings},
        {"DGLaterales", QObject::tr("Laterales"), game::Market::Group::Backs},
        {"DataGrid4", QObject::tr("Centrales"), game::Market::Group::Centres},
    };
    auto *grids = new QGridLayout;
    grids->setHorizontalSpacing(spacing);
    grids->setVerticalSpacing(8);
    int place = 0;
    for (const Group &group : groups) {
        auto *grid = new PlayerGrid(group.name, columns, screen);
        grid->setPlayers(players(group.group));
        QObject::connect(grid, &PlayerGrid::playerPicked, grid, picked);
        auto *box = new QVBoxLayout;
        box->setSpacing(4);
        box->addWidget(theme::label("caption", group.caption, screen));
        box->addWidget(grid, 1);
        grids->addLayout(box, place / 2, place % 2);
        ++place;
    }
    return grids;
}

} // namespace ui
