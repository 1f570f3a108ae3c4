#include "youthscreen.h"

#include "league/leagueclubs.h"
#include "common/plainlabel.h"
#include "common/theme.h"
#include "playergrid.h"
#include "transfers/market.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

namespace ui {

YouthScreen::YouthScreen(game::Context context, QWidget *parent) : QWidget(parent), m_context(context)
{
    setObjectName(QStringLiteral("Juveniles"));
    setWindowTitle(tr("Búsqueda de Jóvenes Promesas"));
    setAttribute(Qt::WA_StyledBackground);
    setStyleSheet(QStringLiteral("QWidget#Juveniles { background-color: #0f1e3c; }"));

    m_positions = new QListWidget;
    m_positions->setObjectName(QStringLiteral("list1"));
    m_positions->setStyleSheet(QStringLiteral(
        "QListWidget { background: #f4f6fb; color: #10203f; border: 1px solid #3a5486; }"
        "QListWidget::item { padding: 6px; }"
        "QListWidget::item:selected { background: #e8a33d; color: #10203f; }"));
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
    auto *positionsCaption = plainLabel(tr("POSICIÓN"));
    positionsCaption->setStyleSheet(QStringLiteral("color: #e8a33d; font-weight: bold;"));
    left->addWidget(positionsCaption);
    left->addWidget(m_positions, 1);
    left->addWidget(search);
    auto *right = new QVBoxLayout;
    auto *youthsCaption = plainLabel(tr("JÓVENES PROMESAS"));
    youthsCaption->setStyleSheet(QStringLiteral("color: #e8a33d; font-weight: bold;"));
    right->addWidget(youthsCaption);
    right->addWidget(m_youths, 1);

    auto *body = new QHBoxLayout;
    body->setSpacing(20);
    body->addLayout(left);
    body->addLayout(right, 1);

    auto *back = theme::backButton();
    connect(back, &QPushButton::clicked, this, &YouthScreen::closeRequested);
    auto *hint = plainLabel(tr("Elige una posición y pulsa «BUSCAR PROMESA»; pulsa sobre un joven para hacerle una "
                               "oferta."));
    hint->setProperty("role", QStringLiteral("hint"));
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(back);
    buttons->addSpacing(16);
    buttons->addWidget(hint);
    buttons->addStretch();

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(28, 16, 28, 16);
    layout->setSpacing(12);
    layout->addWidget(theme::heading(tr("BÚSQUEDA DE JÓVENES PROMESAS")));
    layout->addLayout(body, 1);
    layout->addLayout(buttons);
}

void YouthScreen::search()
{
    const QListWidgetItem *position = m_positions->currentItem();
    m_youths->setPlayers(position ? game::Market(m_context).youths(position->text())
                                  : std::vector<game::Market::Line>{});
}

} // namespace ui
