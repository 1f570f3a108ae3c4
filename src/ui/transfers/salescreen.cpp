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

QLabel *caption(const QString &text)
{
    QLabel *label = plainLabel(text);
    label->setStyleSheet(QStringLiteral("color: #e8a33d; font-weight: bold;"));
    return label;
}

} // namespace

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
