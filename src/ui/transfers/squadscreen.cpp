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

QLabel *caption(const QString &text)
{
    QLabel *label = plainLabel(text);
    label->setStyleSheet(QStringLiteral("color: #e8a33d; font-weight: bold;"));
    return label;
}

} // namespace

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
        using Column = PlayerGrid::Column;
        auto *grid = new PlayerGrid(group.name, {Column::Nombre, Column::Apellidos, Column::Edad, Column::Posicion,
                                                  Column::Media, Column::Years});
        grid->setPlayers(market.squad(group.group));
        connect(grid, &PlayerGrid::playerPicked, this, &SquadScreen::playerPicked);
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
