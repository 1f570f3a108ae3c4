#include "salescreen.h"

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

SaleScreen::SaleScreen(game::Context context, QWidget *parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("Fichar_EnVenta"));
    setWindowTitle(tr("JUGADORES A LA VENTA"));
    setAttribute(Qt::WA_StyledBackground);
    setStyleSheet(QStringLiteral("QWidget#Fichar_EnVenta { background-color: #0f1e3c; }"));

    // The four groups of the market. Pivots have no grid of their own: a listed pivot is
    // reached through the clubs or the scout.
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
    grids->setHorizontalSpacing(20);
    grids->setVerticalSpacing(8);
    int place = 0;
    for (const Group &group : groups) {
        using Column = PlayerGrid::Column;
        auto *grid = new PlayerGrid(group.name, {Column::Nombre, Column::Apellidos, Column::Edad, Column::Posicion,
                                                 Column::Media});
        grid->setPlayers(market.forSale(group.group));
        connect(grid, &PlayerGrid::playerPicked, this, &SaleScreen::playerPicked);
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
    connect(back, &QPushButton::clicked, this, &SaleScreen::closeRequested);
    auto *offers = new QPushButton(tr("OFERTAS"));
    offers->setObjectName(QStringLiteral("cmdOfertas"));
    offers->setToolTip(tr("Busca jugadores por países y clubes, estén a la venta o no"));
    connect(offers, &QPushButton::clicked, this, &SaleScreen::offersRequested);
    auto *scout = new QPushButton(tr("SECRETARIO"));
    scout->setObjectName(QStringLiteral("cmdSecretario"));
    scout->setToolTip(tr("Busca jugadores por nombre, posición, calidad o edad"));
    connect(scout, &QPushButton::clicked, this, &SaleScreen::scoutRequested);

    auto *hint = plainLabel(tr("Pulsa sobre un jugador para hacer una oferta por él."));
    hint->setProperty("role", QStringLiteral("hint"));

    auto *buttons = new QHBoxLayout;
    buttons->addWidget(back);
    buttons->addSpacing(16);
    buttons->addWidget(hint);
    buttons->addStretch();
    buttons->addWidget(offers);
    buttons->addWidget(scout);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(28, 16, 28, 16);
    layout->setSpacing(12);
    layout->addWidget(theme::heading(tr("JUGADORES A LA VENTA")));
    layout->addLayout(grids, 1);
    layout->addLayout(buttons);
}

} // namespace ui
