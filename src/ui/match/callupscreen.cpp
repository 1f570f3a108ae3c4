#include "callupscreen.h"

#include "common/grid.h"
#include "common/theme.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace ui {

std::vector<RowsModel<game::CallUp::Player>::Column> squadColumns()
{
    using Player = game::CallUp::Player;
    return {{CallUpScreen::tr("Nº"), [](const Player &p) { return QString::number(p.id); }},
            {CallUpScreen::tr("Nombre"), [](const Player &p) { return p.nombre; }},
            {CallUpScreen::tr("Apellidos"), [](const Player &p) { return p.apellidos; }},
            {CallUpScreen::tr("Posición"), [](const Player &p) { return p.posicion; }},
            {CallUpScreen::tr("Media"), [](const Player &p) { return QString::number(p.media); }},
            {CallUpScreen::tr("Dorsal"), [](const Player &p) { return QString::number(p.dorsal); }},
            {CallUpScreen::tr("Lesión"), [](const Player &p) { return QString::number(p.lesiones); }}};
}

CallUpScreen::CallUpScreen(game::Context context, QWidget *parent)
    : Page("Alinear", tr("Preparando Partido"), tr("PREPARANDO PARTIDO"), {Back::Side::Left}, parent),
      m_context(context), m_callUp(context)
{
    m_players = new RowsModel<game::CallUp::Player>(squadColumns(), this);
    m_grid = new Grid("DataGrid1", this);
    m_grid->setModel(m_players);

    m_places = theme::list("list1", "places");

    auto *add = new QPushButton(tr("Añadir"));
    add->setObjectName(QStringLiteral("cmdAñadir"));
    add->setToolTip(tr("Pon al jugador elegido en la plaza elegida"));
    connect(add, &QPushButton::clicked, this, &CallUpScreen::add);
    auto *play = new QPushButton(tr("JUGAR->"));
    play->setObjectName(QStringLiteral("cmdJugar"));
    connect(play, &QPushButton::clicked, this, [this] {
        if (m_callUp.readyToPlay())
            emit playRequested();
    });

    auto *left = new QVBoxLayout;
    left->addWidget(theme::label("caption", tr("JUGADORES DEL CLUB")));
    left->addWidget(m_grid, 1);
    auto *right = new QVBoxLayout;
    right->addWidget(theme::label("caption", tr("CONVOCATORIA")));
    right->addWidget(m_places, 1);
    auto *hint = theme::label("hint", tr("Elige un jugador en la tabla y una plaza en la lista, y pulsa «Añadir»."));
    hint->setWordWrap(true);
    right->addWidget(hint);
    right->addWidget(add);

    auto *body = new QHBoxLayout;
    body->setSpacing(20);
    body->addLayout(left, 3);
    body->addLayout(right, 2);
    addLayout(body, 1);
    foot()->addWidget(play);
}

void CallUpScreen::reload()
{
    // The picks outlive a reload: the player picked in the grid and the place picked in the
    // list stay picked, so that he can be moved on to another place with one more press.
    // The grid is read afresh, so its pick is kept by the player's id, not by its row.
    const int pickedId = pickedPlayerId();
    const int pickedColumn = std::max(m_grid->currentIndex().column(), 0);
    std::vector<game::CallUp::Player> squad = m_callUp.squad();
    const auto picked = std::find_if(squad.begin(), squad.end(),
                                     [pickedId](const game::CallUp::Player &player) { return player.id == pickedId; });
    const int pickedRow = picked == squad.end() ? -1 : int(picked - squad.begin());
    m_players->setRows(std::move(squad));
    m_grid->fitColumns();
    if (pickedRow >= 0)
        m_grid->setCurrentIndex(m_players->index(pickedRow, pickedColumn));

    const int current = m_places->currentRow();
    m_places->clear();
    for (const game::CallUp::Place &place : m_callUp.places())
        m_places->addItem(place.listText());
    if (current >= 0)
        m_places->setCurrentRow(current);
}

int CallUpScreen::pickedPlayerId() const
{
    // The id of the row picked in the grid, whichever cell of it was pressed.
    const QModelIndex picked = m_grid->currentIndex();
    return picked.isValid() ? m_players->row(picked.row()).id : 0;
}

void CallUpScreen::add()
{
    if (m_callUp.place(m_places->currentRow(), pickedPlayerId()))
        reload();
}

} // namespace ui
