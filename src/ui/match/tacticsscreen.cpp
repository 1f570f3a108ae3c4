#include "tacticsscreen.h"

#include "callupscreen.h"
#include "common/artwork.h"
#include "common/grid.h"
#include "common/plainlabel.h"
#include "common/theme.h"
#include "match/tactics.h"

#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace ui {

namespace {

const QSize kDiagramSize(200, 199);

QLabel *caption(const QString &text)
{
    return theme::label("caption", text);
}

} // namespace

TacticsScreen::TacticsScreen(game::Context context, QWidget *parent)
    : Page("Tactica", tr("Táctica"), tr("TÁCTICA"), parent), m_context(context)
{
    m_defence = new QComboBox;
    m_defence->setObjectName(QStringLiteral("Combo1"));
    m_defence->addItems(game::Tactics::defences());
    m_attack = new QComboBox;
    m_attack->setObjectName(QStringLiteral("Combos2"));
    m_attack->addItems(game::Tactics::attacks());
    m_defenceDiagram = plainLabel();
    m_defenceDiagram->setObjectName(QStringLiteral("defensa"));
    m_defenceDiagram->setFixedSize(kDiagramSize);
    m_attackDiagram = plainLabel();
    m_attackDiagram->setObjectName(QStringLiteral("ataque"));
    m_attackDiagram->setFixedSize(kDiagramSize);
    connect(m_defence, &QComboBox::activated, this, [this](int index) {
        game::Tactics(m_context).setDefence(index + 1);
        showSystems();
    });
    connect(m_attack, &QComboBox::activated, this, [this](int index) {
        game::Tactics(m_context).setAttack(index + 1);
        showSystems();
    });

    // Who throws the 7 m penalties: the list is there, but the throws go to whoever has the ball.
    std::vector<game::CallUp::Player> squad = game::CallUp(context).calledUp();
    auto *thrower = new QComboBox;
    thrower->setObjectName(QStringLiteral("DataCombo1"));
    for (const game::CallUp::Player &player : squad)
        thrower->addItem(player.apellidos);
    auto *players = new RowsModel<game::CallUp::Player>(squadColumns(), this);
    players->setRows(std::move(squad));
    auto *grid = new Grid("DataGrid1", this);
    grid->setModel(players);
    grid->fitColumns();

    auto *systems = new QGridLayout;
    systems->setHorizontalSpacing(40);
    systems->addWidget(caption(tr("Táctica Defensiva:")), 0, 0);
    systems->addWidget(caption(tr("Táctica Ofensiva")), 0, 1);
    systems->addWidget(m_defence, 1, 0);
    systems->addWidget(m_attack, 1, 1);
    systems->addWidget(m_defenceDiagram, 2, 0);
    systems->addWidget(m_attackDiagram, 2, 1);
    systems->addWidget(caption(tr("Lanzador de 7m:")), 3, 0);
    systems->addWidget(thrower, 4, 0);
    systems->setRowStretch(5, 1);

    auto *body = new QHBoxLayout;
    body->setSpacing(30);
    body->addLayout(systems);
    auto *squadColumn = new QVBoxLayout;
    squadColumn->addWidget(caption(tr("CONVOCADOS")));
    squadColumn->addWidget(grid, 1);
    body->addLayout(squadColumn, 1);

    addLayout(body, 1);
    showSystems();
}

void TacticsScreen::showSystems()
{
    game::Tactics tactics(m_context);
    const int defence = tactics.defenceCode();
    const int attack = tactics.attackCode();
    // A code outside its list changes nothing on the screen.
    if (const int picture = game::Tactics::defencePicture(defence)) {
        m_defenceDiagram->setPixmap(artwork::tacticsDiagram(picture, kDiagramSize));
        QSignalBlocker blocker(m_defence);
        m_defence->setCurrentIndex(defence - 1);
    }
    if (const int picture = game::Tactics::attackPicture(attack)) {
        m_attackDiagram->setPixmap(artwork::tacticsDiagram(picture, kDiagramSize));
        QSignalBlocker blocker(m_attack);
        m_attack->setCurrentIndex(attack - 1);
    }
}

} // namespace ui
