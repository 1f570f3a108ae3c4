#include "squadscreen.h"

#include <QGridLayout>
#include <QPushButton>

namespace ui {

SquadScreen::SquadScreen(game::Context context, QWidget *parent)
    : Page("Plantilla", tr("LA PLANTILLA"), tr("LA PLANTILLA"), {Back::Side::Left}, parent)
{
    // Narrow margins leave each grid room for its six columns without scrolling.
    setFrame(16, 16, 12);
    game::Market market(context);
    QGridLayout *grids = groupGrids(this, {PlayerGrid::Column::Nombre, PlayerGrid::Column::Apellidos, PlayerGrid::Column::Edad,
                                     PlayerGrid::Column::Posicion, PlayerGrid::Column::Media, PlayerGrid::Column::Years},
                                    [&market](game::Market::Group group) { return market.squad(group); },
                                    [this](int player) { emit playerPicked(player); }, 12);
    addLayout(grids, 1);

    auto *youth = new QPushButton(tr("JUVENILES"));
    youth->setObjectName(QStringLiteral("cmdJuveniles"));
    youth->setToolTip(tr("Busca jóvenes promesas en la cantera"));
    connect(youth, &QPushButton::clicked, this, &SquadScreen::youthRequested);
    setHint(tr("Pulsa sobre un jugador para renovarlo, despedirlo o ponerlo a la venta."));
    foot()->addWidget(youth);
}

} // namespace ui
