#include "salescreen.h"

#include <QGridLayout>
#include <QPushButton>

namespace ui {

SaleScreen::SaleScreen(game::Context context, QWidget *parent)
    : Page("Fichar_EnVenta", tr("JUGADORES A LA VENTA"), tr("JUGADORES A LA VENTA"), {Back::Side::Left}, parent)
{
    game::Market market(context);
    QGridLayout *grids = groupGrids(this, {PlayerGrid::Column::Nombre, PlayerGrid::Column::Apellidos, PlayerGrid::Column::Edad,
                                     PlayerGrid::Column::Posicion, PlayerGrid::Column::Media},
                                    [&market](game::Market::Group group) { return market.forSale(group); },
                                    [this](int player) { emit playerPicked(player); }, 20);
    addLayout(grids, 1);

    auto *offers = new QPushButton(tr("OFERTAS"));
    offers->setObjectName(QStringLiteral("cmdOfertas"));
    offers->setToolTip(tr("Busca jugadores por países y clubes, estén a la venta o no"));
    connect(offers, &QPushButton::clicked, this, &SaleScreen::offersRequested);
    auto *scout = new QPushButton(tr("SECRETARIO"));
    scout->setObjectName(QStringLiteral("cmdSecretario"));
    scout->setToolTip(tr("Busca jugadores por nombre, posición, calidad o edad"));
    connect(scout, &QPushButton::clicked, this, &SaleScreen::scoutRequested);
    setHint(tr("Pulsa sobre un jugador para hacer una oferta por él."));
    foot()->addWidget(offers);
    foot()->addWidget(scout);
}

} // namespace ui
