#include "squadscreen.h"

#include "common/gridstyle.h"
#include "common/plainlabel.h"
#include "common/rowsmodel.h"
#include "common/theme.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace ui {

namespace {

QString headerOf(PlayerTable::Column column)
{
    switch (column) {
    case PlayerTable::Column::Nombre: return QObject::tr("Nombre");
    case PlayerTable::Column::Apellidos: return QObject::tr("Apellidos");
    case PlayerTable::Column::Edad: return QObject::tr("Edad");
    case PlayerTable::Column::Posicion: return QObject::tr("Posición");
    case PlayerTable::Column::Media: return QObject::tr("Media");
    case PlayerTable::Column::Dorsal: return QObject::tr("Dorsal");
    case PlayerTable::Column::Nacionalidad: return QObject::tr("Nacionalidad");
    // On two lines, so that the four grids of the squad fit side by side, two by two.
    case PlayerTable::Column::Years: return QObject::tr("Años de\ncontrato");
    }
    return {};
}

QString cellOf(const game::Market::Line &player, PlayerTable::Column column)
{
    switch (column) {
    case PlayerTable::Column::Nombre: return player.nombre;
    case PlayerTable::Column::Apellidos: return player.apellidos;
    case PlayerTable::Column::Edad: return QString::number(player.edad);
    case PlayerTable::Column::Posicion: return player.posicion;
    case PlayerTable::Column::Media: return QString::number(player.media);
    case PlayerTable::Column::Dorsal: return QString::number(player.dorsal);
    case PlayerTable::Column::Nacionalidad: return player.nacionalidad;
    case PlayerTable::Column::Years: return QString::number(player.years);
    }
    return {};
}

QLabel *caption(const QString &text)
{
    QLabel *label = plainLabel(text);
    label->setStyleSheet(QStringLiteral("color: #e8a33d; font-weight: bold;"));
    return label;
}

} // namespace

PlayerTable::PlayerTable(const char *name, std::vector<Column> shown, QWidget *parent)
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
    connect(this, &QTableView::clicked, this, [this](const QModelIndex &index) {
        if (index.isValid())
            emit playerPicked(playerAt(index.row()));
    });
}

void PlayerTable::setPlayers(const std::vector<game::Market::Line> &players)
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

int PlayerTable::playerAt(int row) const
{
    return row >= 0 && row < m_rows->rowCount() ? m_rows->row(row).at(0).toInt() : 0;
}

SquadScreen::SquadScreen(game::Context context, QWidget *parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("Plantilla"));
    setWindowTitle(tr("LA PLANTILLA"));
    setAttribute(Qt::WA_StyledBackground);
    setStyleSheet(QStringLiteral("QWidget#Plantilla { background-color: #0f1e3c; }"));

    struct Group
    {
        const char *name;
        QString caption;
        game::Market::Group group;
    };
    const Group groups[] = {
        {"DGPorteros", tr("Porteros"), game::Market::Group::Goalkeepers},
        {"DGExtremos", tr("Extremos"), game::Market::Group::Wings},
        {"DGLaterales", tr("Laterales"), game::Market::Group::Backs},
        {"DataGrid4", tr("Centrales"), game::Market::Group::Centres},
    };
    game::Market market(context);
    auto *grids = new QGridLayout;
    grids->setHorizontalSpacing(12);
    grids->setVerticalSpacing(8);
    int place = 0;
    for (const Group &group : groups) {
        using Column = PlayerTable::Column;
        auto *grid = new PlayerTable(group.name, {Column::Nombre, Column::Apellidos, Column::Edad, Column::Posicion,
                                                  Column::Media, Column::Years});
        grid->setPlayers(market.squad(group.group));
        connect(grid, &PlayerTable::playerPicked, this, &SquadScreen::playerPicked);
        auto *box = new QVBoxLayout;
        box->setSpacing(4);
        box->addWidget(caption(group.caption));
        box->addWidget(grid, 1);
        grids->addLayout(box, place / 2, place % 2);
        ++place;
    }

    auto *back = new QPushButton(tr("<- VOLVER"));
    back->setObjectName(QStringLiteral("cmdVOLVER"));
    back->setProperty("role", QStringLiteral("secondary"));
    connect(back, &QPushButton::clicked, this, &SquadScreen::closeRequested);
    auto *youth = new QPushButton(tr("JUVENILES"));
    youth->setObjectName(QStringLiteral("cmdJuveniles"));
    youth->setToolTip(tr("Busca jóvenes promesas en la cantera"));
    connect(youth, &QPushButton::clicked, this, &SquadScreen::youthRequested);

    auto *hint = plainLabel(tr("Pulsa sobre un jugador para renovarlo, despedirlo o ponerlo a la venta."));
    hint->setProperty("role", QStringLiteral("hint"));

    auto *buttons = new QHBoxLayout;
    buttons->addWidget(back);
    buttons->addSpacing(16);
    buttons->addWidget(hint);
    buttons->addStretch();
    buttons->addWidget(youth);

    auto *layout = new QVBoxLayout(this);
    // Narrow margins leave each grid room for its six columns without scrolling.
    layout->setContentsMargins(16, 16, 16, 16);
    layout->setSpacing(12);
    layout->addWidget(theme::heading(tr("LA PLANTILLA")));
    layout->addLayout(grids, 1);
    layout->addLayout(buttons);
}

} // namespace ui
