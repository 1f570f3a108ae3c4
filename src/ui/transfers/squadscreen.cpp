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

SquadScreen::SquadScreen(game::Context context, QWidget *parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("Plantilla"));
    setWindowTitle(tr("LA PLANTILLA"));
    setAttribute(Qt::WA_StyledBackground);
    setStyleSheet(QStringLiteral("QWidget#Plantilla { background-color: #0f1e3c; }"));

    game::Market market(context);
    QGridLayout *grids = groupGrids({PlayerGrid::Column::Nombre, PlayerGrid::Column::Apellidos, PlayerGrid::Column::Edad,
                                     PlayerGrid::Column::Posicion, PlayerGrid::Column::Media, PlayerGrid::Column::Years},
                                    [&market](game::Market::Group group) { return market.squad(group); },
                                    [this](int player) { emit playerPicked(player); }, 12);

    auto *back = theme::backButton();
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
