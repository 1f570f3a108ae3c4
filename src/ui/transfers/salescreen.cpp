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

SaleScreen::SaleScreen(game::Context context, QWidget *parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("Fichar_EnVenta"));
    setWindowTitle(tr("JUGADORES A LA VENTA"));
    setAttribute(Qt::WA_StyledBackground);
    setStyleSheet(QStringLiteral("QWidget#Fichar_EnVenta { background-color: #0f1e3c; }"));

    game::Market market(context);
    QGridLayout *grids = groupGrids({PlayerGrid::Column::Nombre, PlayerGrid::Column::Apellidos, PlayerGrid::Column::Edad,
                                     PlayerGrid::Column::Posicion, PlayerGrid::Column::Media},
                                    [&market](game::Market::Group group) { return market.forSale(group); },
                                    [this](int player) { emit playerPicked(player); }, 20);

    auto *back = theme::backButton();
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
