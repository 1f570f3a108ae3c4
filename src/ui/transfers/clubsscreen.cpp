#include "clubsscreen.h"

#include "common/countrypicker.h"
#include "common/plainlabel.h"
#include "common/theme.h"
#include "playergrid.h"
#include "transfers/market.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace ui {

ClubsScreen::ClubsScreen(game::Context context, QWidget *parent)
    : Page("Fichar", tr("Fichajes"), tr("OFERTAS"), {Back::Side::Left}, parent), m_context(context)
{
    setFrame(28, 16, 10);
    auto *countries = new CountryPicker({tr("PAÍSES"), 5, true},
                                        [this](int code) { return game::Market(m_context).clubsOf(code); });
    countries->chosen()->setMinimumHeight(24);
    // Before a country is chosen the list holds every club of the game.
    countries->listClubs(0);
    connect(countries, &CountryPicker::clubPicked, this, &ClubsScreen::chooseClub);

    auto *body = new QHBoxLayout;
    body->setSpacing(20);
    body->addWidget(countries, 0);
    body->addWidget(buildSquad(), 1);
    addLayout(body, 1);
}

QWidget *ClubsScreen::buildSquad()
{
    auto *box = new QGroupBox(tr("PLANTILLA"));
    m_clubChosen = plainLabel();
    m_clubChosen->setObjectName(QStringLiteral("lblNombreEquipo"));
    m_clubChosen->setMinimumHeight(24);

    using Column = PlayerGrid::Column;
    m_squad = new PlayerGrid("DataGrid1", {Column::Nombre, Column::Apellidos, Column::Posicion, Column::Media,
                                           Column::Nacionalidad});
    m_squad->hide();
    connect(m_squad, &PlayerGrid::playerPicked, this, &ClubsScreen::playerPicked);

    m_squadHint = theme::label("hint", tr("Elige un país y uno de sus clubes para ver su plantilla. "
                                          "Pulsa sobre un jugador para hacer una oferta por él, esté a la venta o no."));
    m_squadHint->setWordWrap(true);

    auto *layout = new QVBoxLayout(box);
    layout->addWidget(m_clubChosen);
    layout->addWidget(m_squad, 1);
    layout->addWidget(m_squadHint);
    layout->addStretch();
    return box;
}

void ClubsScreen::chooseClub(const QString &name)
{
    m_clubChosen->setText(name);
    m_squad->setPlayers(game::Market(m_context).playersOf(name));
    m_squad->show();
    m_squadHint->setText(tr("Pulsa sobre un jugador para hacer una oferta por él, esté a la venta o no."));
}

} // namespace ui
