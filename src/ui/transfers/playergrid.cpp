#include "playergrid.h"

#include "common/gridstyle.h"
#include "common/plainlabel.h"
#include "common/rowsmodel.h"

#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QVBoxLayout>

namespace ui {

namespace {

QString headerOf(PlayerGrid::Column column)
{
    switch (column) {
    case PlayerGrid::Column::Nombre: return QObject::tr("Nombre");
    case PlayerGrid::Column::Apellidos: return QObject::tr("Apellidos");
    case PlayerGrid::Column::Edad: return QObject::tr("Edad");
    case PlayerGrid::Column::Posicion: return QObject::tr("Posición");
    case PlayerGrid::Column::Media: return QObject::tr("Media");
    case PlayerGrid::Column::Dorsal: return QObject::tr("Dorsal");
    case PlayerGrid::Column::Nacionalidad: return QObject::tr("Nacionalidad");
    // On two lines, so that the four grids of the squad fit side by side, two by two.
    case PlayerGrid::Column::Years: return QObject::tr("Años de\ncontrato");
    }
    return {};
}

QString cellOf(const game::Market::Line &player, PlayerGrid::Column column)
{
    switch (column) {
    case PlayerGrid::Column::Nombre: return player.nombre;
    case PlayerGrid::Column::Apellidos: return player.apellidos;
    case PlayerGrid::Column::Edad: return QString::number(player.edad);
    case PlayerGrid::Column::Posicion: return player.posicion;
    case PlayerGrid::Column::Media: return QString::number(player.media);
    case PlayerGrid::Column::Dorsal: return QString::number(player.dorsal);
    case PlayerGrid::Column::Nacionalidad: return player.nacionalidad;
    case PlayerGrid::Column::Years: return QString::number(player.years);
    }
    return {};
}

} // namespace

PlayerGrid::PlayerGrid(const char *name, std::vector<Column> shown, QWidget *parent)
    : QTableView(parent), m_columns(std::move(shown))
{
    setObjectName(QString::fromUtf8(name));
    QStringList headers{tr("Nº")};
    for (Column column : m_columns)
        headers << headerOf(column);
    m_rows = new RowsModel(headers, this);
    setModel(m_rows);
    styleGrid(this);
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

void PlayerGrid::setPlayers(const std::vector<game::Market::Line> &players)
{
    std::vector<QStringList> rows;
    rows.reserve(players.size());
    for (const game::Market::Line &player : players) {
        QStringList cells{QString::number(player.id)};
        for (Column column : m_columns)
            cells << cellOf(player, column);
        rows.push_back(std::move(cells));
    }
    m_rows->setRows(std::move(rows));
    resizeColumnsToContents();
}

int PlayerGrid::playerAt(int row) const
{
    return row >= 0 && row < m_rows->rowCount() ? m_rows->row(row).at(0).toInt() : 0;
}

QGridLayout *groupGrids(std::vector<PlayerGrid::Column> columns,
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
        auto *grid = new PlayerGrid(group.name, columns);
        grid->setPlayers(players(group.group));
        QObject::connect(grid, &PlayerGrid::playerPicked, grid, picked);
        QLabel *caption = plainLabel(group.caption);
        caption->setStyleSheet(QStringLiteral("color: #e8a33d; font-weight: bold;"));
        auto *box = new QVBoxLayout;
        box->setSpacing(4);
        box->addWidget(caption);
        box->addWidget(grid, 1);
        grids->addLayout(box, place / 2, place % 2);
        ++place;
    }
    return grids;
}

} // namespace ui
