#include "youthscreen.h"

#include "league/leagueclubs.h"
#include "common/theme.h"
#include "playergrid.h"
#include "transfers/market.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

namespace ui {

YouthScreen::YouthScreen(game::Context context, QWidget *parent)
    : Page("Juveniles", tr("Búsqueda de Jóvenes Promesas"), tr("BÚSQUEDA DE JÓVENES PROMESAS"), {Back::Side::Left},
           parent),
      m_context(context)
{
    m_positions = theme::list("list1", "positions");
    for (const char16_t *position : game::kPositions)
        m_positions->addItem(QString::fromUtf16(position));
    m_positions->setCurrentRow(0);
    m_positions->setFixedWidth(240);

    auto *search = new QPushButton(tr("BUSCAR PROMESA"));
    search->setObjectName(QStringLiteral("Command1"));
    connect(search, &QPushButton::clicked, this, &YouthScreen::search);

    using Column = PlayerGrid::Column;
    m_youths = new PlayerGrid("DGJugadores", {Column::Nombre, Column::Apellidos, Column::Edad, Column::Posicion,
                                               Column::Media, Column::Dorsal, Column::Nacionalidad});
    connect(m_youths, &PlayerGrid::playerPicked, this, &YouthScreen::playerPicked);

    auto *left = new QVBoxLayout;
    left->addWidget(theme::label("caption", tr("POSICIÓN")));
    left->addWidget(m_positions, 1);
    left->addWidget(search);
    auto *right = new QVBoxLayout;
    right->addWidget(theme::label("caption", tr("JÓVENES PROMESAS")));
    right->addWidget(m_youths, 1);

    auto *body = new QHBoxLayout;
    body->setSpacing(20);
    body->addLayout(left);
    body->addLayout(right, 1);

    addLayout(body, 1);
    setHint(tr("Elige una posición y pulsa «BUSCAR PROMESA»; pulsa sobre un joven para hacerle una oferta."));
}

void YouthScreen::search()
{
    const QListWidgetItem *position = m_positions->currentItem();
    m_youths->setPlayers(position ? game::Market(m_context).youths(position->text())
                                  : std::vector<game::Market::Line>{});
}

} // namespace ui
