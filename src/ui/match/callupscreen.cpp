#include "callupscreen.h"

#include "common/gridstyle.h"
#include "common/plainlabel.h"
#include "common/rowsmodel.h"
#include "common/theme.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>

namespace ui {

CallUpScreen::CallUpScreen(game::Context context, QWidget *parent)
    : QWidget(parent), m_context(context), m_callUp(context)
{
    setObjectName(QStringLiteral("Alinear"));
    setWindowTitle(tr("Preparando Partido"));
    setAttribute(Qt::WA_StyledBackground);
    setStyleSheet(QStringLiteral("QWidget#Alinear { background-color: #0f1e3c; }"));

    m_players = new RowsModel({tr("Nº"), tr("Nombre"), tr("Apellidos"), tr("Posición"),
                               tr("Media"), tr("Dorsal"), tr("Lesión")},
                              this);
    m_grid = new QTableView;
    m_grid->setObjectName(QStringLiteral("DataGrid1"));
    m_grid->setModel(m_players);
    styleGrid(m_grid);

    m_places = new QListWidget;
    m_places->setObjectName(QStringLiteral("list1"));
    m_places->setStyleSheet(QStringLiteral(
        "QListWidget { background: #f4f6fb; color: #10203f; border: 1px solid #3a5486; }"
        "QListWidget::item { padding: 4px; }"
        "QListWidget::item:selected { background: #e8a33d; color: #10203f; }"));

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
    auto *back = theme::backButton();
    connect(back, &QPushButton::clicked, this, &CallUpScreen::closeRequested);

    auto *left = new QVBoxLayout;
    auto *playersCaption = plainLabel(tr("JUGADORES DEL CLUB"));
    playersCaption->setStyleSheet(QStringLiteral("color: #e8a33d; font-weight: bold;"));
    left->addWidget(playersCaption);
    left->addWidget(m_grid, 1);
    auto *right = new QVBoxLayout;
    auto *placesCaption = plainLabel(tr("CONVOCATORIA"));
    placesCaption->setStyleSheet(QStringLiteral("color: #e8a33d; font-weight: bold;"));
    right->addWidget(placesCaption);
    right->addWidget(m_places, 1);
    auto *hint = plainLabel(tr("Elige un jugador en la tabla y una plaza en la lista, y pulsa «Añadir»."));
    hint->setProperty("role", QStringLiteral("hint"));
    hint->setWordWrap(true);
    right->addWidget(hint);
    right->addWidget(add);

    auto *body = new QHBoxLayout;
    body->setSpacing(20);
    body->addLayout(left, 3);
    body->addLayout(right, 2);

    auto *buttons = new QHBoxLayout;
    buttons->addWidget(back);
    buttons->addStretch();
    buttons->addWidget(play);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(28, 16, 28, 16);
    layout->setSpacing(12);
    layout->addWidget(theme::heading(tr("PREPARANDO PARTIDO")));
    layout->addLayout(body, 1);
    layout->addLayout(buttons);
    reload();
}

void CallUpScreen::reload()
{
    // The picks outlive a reload: the player picked in the grid and the place picked in the
    // list stay picked, so that he can be moved on to another place with one more press.
    // The grid is read afresh, so its pick is kept by the player's id, not by its row.
    const int pickedId = pickedPlayerId();
    const int pickedColumn = std::max(m_grid->currentIndex().column(), 0);
    std::vector<QStringList> rows;
    int pickedRow = -1;
    for (const game::CallUp::Player &player : m_callUp.squad()) {
        if (player.id == pickedId)
            pickedRow = int(rows.size());
        rows.push_back({QString::number(player.id), player.nombre, player.apellidos, player.posicion,
                        QString::number(player.media), QString::number(player.dorsal), QString::number(player.lesiones)});
    }
    m_players->setRows(std::move(rows));
    m_grid->resizeColumnsToContents();
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
    return picked.isValid() ? m_players->row(picked.row()).at(0).toInt() : 0;
}

void CallUpScreen::add()
{
    if (m_callUp.place(m_places->currentRow(), pickedPlayerId()))
        reload();
}

} // namespace ui
