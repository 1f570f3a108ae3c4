#include "preseasonscreen.h"

#include "league/fixture.h"
#include "common/countrypicker.h"
#include "common/elidedlabel.h"
#include "common/indexedlabel.h"
#include "common/theme.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace ui {

PreseasonScreen::PreseasonScreen(game::Career &career, QWidget *parent)
    : Page("Pretemporada", tr("Pretemporada"), tr("PRETEMPORADA"), {Back::Side::Left, "cmdVOLVER", tr("VOLVER")},
           parent),
      m_career(career), m_planner(career.planner())
{
    setFrame(28, 16, 10);
    connect(this, &Page::closeRequested, this, &PreseasonScreen::backToMenu);

    // The manager at the left, his club at the right. A name as long as the form takes (fifty
    // letters and fifty more) is cut with "…" short of the club's, never over it.
    auto *name = new ElidedLabel(m_planner.manager());
    name->setObjectName(QStringLiteral("lblNombre"));
    name->setProperty("role", QStringLiteral("value"));
    name->setToolTip(m_planner.manager());
    auto *club = theme::label("value", m_planner.clubName());
    club->setObjectName(QStringLiteral("lblEquipo"));
    auto *who = new QHBoxLayout;
    who->setSpacing(24);
    who->addWidget(name, 1);
    who->addWidget(club);

    auto *seguir = new QPushButton(tr("SEGUIR"));
    seguir->setObjectName(QStringLiteral("cmdSeguir"));
    connect(seguir, &QPushButton::clicked, this, [this] {
        // The career makes the calendar and opens week 1; its panel follows.
        m_career.beginSeason();
    });
    foot()->addWidget(seguir);

    m_countries = new CountryPicker({tr("RIVALES PARA"), 6, false},
                                    [this](int code) { return m_planner.clubsOf(code); });
    connect(m_countries, &CountryPicker::clubPicked, this, &PreseasonScreen::chooseClub);
    m_clubChosen = theme::label("value");
    m_clubChosen->setObjectName(QStringLiteral("lblNombreEquipo"));
    m_countries->column()->addWidget(m_clubChosen);

    auto *body = new QHBoxLayout;
    body->setSpacing(24);
    body->addWidget(m_countries, 5);
    body->addWidget(buildSlots(), 6);

    addLayout(who);
    addLayout(body, 1);
    showSlots();
}

QWidget *PreseasonScreen::buildSlots()
{
    auto *box = new QGroupBox(tr("PARTIDOS DE PRETEMPORADA"));
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(16);
    grid->setVerticalSpacing(14);
    grid->addWidget(theme::label("caption", tr("PARTIDO")), 0, 0);
    grid->addWidget(theme::label("caption", tr("FECHA")), 0, 1);
    grid->addWidget(theme::label("caption", tr("EQUIPO LOCAL")), 0, 2);
    grid->addWidget(theme::label("caption", tr("EQUIPO VISITANTE")), 0, 3);
    for (int slot = 0; slot < game::Preseason::kSlots; ++slot) {
        grid->addWidget(theme::label("field", slot < 4 ? tr("Preparación:") : tr("Presentación:")), slot + 1, 0);
        int column = 1;
        for (const char *name : {"lblFecha", "lblEquipoLocal", "lblEquipoVis"}) {
            QLabel *label = indexed::label(name, slot);
            label->setMinimumHeight(26);
            label->setProperty("role", QStringLiteral("cell"));
            grid->addWidget(label, slot + 1, column++);
        }
    }
    grid->setColumnStretch(2, 1);
    grid->setColumnStretch(3, 1);
    grid->setColumnMinimumWidth(1, 100);

    m_decline = new QPushButton(tr("No Jugar"));
    m_decline->setObjectName(QStringLiteral("cmdNoJugar"));
    m_decline->setProperty("role", QStringLiteral("secondary"));
    connect(m_decline, &QPushButton::clicked, this, [this] {
        // With the five slots dealt with the planner refuses, and nothing on screen changes.
        if (!m_planner.decline())
            return;
        m_decline->setEnabled(m_planner.slotsDealt() < game::Preseason::kSlots);
        showSlots();
    });
    auto *erase = new QPushButton(tr("Borrar Partido"));
    erase->setObjectName(QStringLiteral("cmdBorrar"));
    erase->setProperty("role", QStringLiteral("secondary"));
    connect(erase, &QPushButton::clicked, this, [this] {
        m_decline->setEnabled(true);
        m_planner.takeBack();
        showSlots();
    });
    auto *actions = new QHBoxLayout;
    actions->addStretch();
    actions->addWidget(m_decline);
    actions->addWidget(erase);

    auto *hint = theme::label("hint", tr("Elige un país y pulsa sobre un club de la lista para llenar el siguiente "
                                         "partido, o pulsa «No Jugar» para dejarlo libre. El quinto partido, la "
                                         "presentación, se juega en casa."));
    hint->setWordWrap(true);

    auto *layout = new QVBoxLayout(box);
    layout->addLayout(grid);
    layout->addLayout(actions);
    layout->addStretch();
    layout->addWidget(hint);
    return box;
}

void PreseasonScreen::chooseClub(const QString &name)
{
    m_clubChosen->setText(name);
    m_planner.choose(name);
    showSlots();
}

void PreseasonScreen::showSlots()
{
    const auto &slotList = m_planner.friendlySlots();
    for (int slot = 0; slot < game::Preseason::kSlots; ++slot) {
        const game::Preseason::Slot &state = slotList[std::size_t(slot)];
        QString date, home, away;
        switch (state.state) {
        case game::Preseason::Slot::State::Open:
            break;
        case game::Preseason::Slot::State::Chosen:
            date = game::shownDate(state.date);
            home = state.home;
            away = state.away;
            break;
        case game::Preseason::Slot::State::Declined:
            date = QStringLiteral("-");
            home = away = tr("No Jugar");
            break;
        }
        indexed::find(this, QStringLiteral("lblFecha"), slot)->setText(date);
        indexed::find(this, QStringLiteral("lblEquipoLocal"), slot)->setText(home);
        indexed::find(this, QStringLiteral("lblEquipoVis"), slot)->setText(away);
    }
}

} // namespace ui
