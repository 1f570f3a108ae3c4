#include "preseasonscreen.h"

#include "league/fixture.h"
#include "common/artwork.h"
#include "common/indexedlabel.h"
#include "common/plainlabel.h"
#include "common/theme.h"

#include <QEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

namespace ui {

namespace {

QLabel *columnHeader(const QString &text)
{
    auto *label = plainLabel(text);
    label->setStyleSheet(QStringLiteral("color: #e8a33d; font-weight: bold;"));
    return label;
}

} // namespace

PreseasonScreen::PreseasonScreen(game::Career &career, QWidget *parent)
    : QWidget(parent), m_career(career), m_planner(career.planner())
{
    setObjectName(QStringLiteral("Pretemporada"));
    setWindowTitle(tr("Pretemporada"));
    setAttribute(Qt::WA_StyledBackground);
    setStyleSheet(QStringLiteral("QWidget#Pretemporada { background-color: #0f1e3c; }"));

    auto *name = plainLabel(m_planner.manager());
    name->setObjectName(QStringLiteral("lblNombre"));
    name->setProperty("role", QStringLiteral("value"));
    auto *club = plainLabel(m_planner.clubName());
    club->setObjectName(QStringLiteral("lblEquipo"));
    club->setProperty("role", QStringLiteral("value"));
    auto *who = new QHBoxLayout;
    who->addWidget(name);
    who->addStretch();
    who->addWidget(club);

    auto *seguir = new QPushButton(tr("SEGUIR"));
    seguir->setObjectName(QStringLiteral("cmdSeguir"));
    // The career makes the calendar and opens week 1; its panel follows.
    connect(seguir, &QPushButton::clicked, this, [this] { m_career.beginSeason(); });
    auto *volver = new QPushButton(tr("VOLVER"));
    volver->setObjectName(QStringLiteral("cmdVOLVER"));
    volver->setProperty("role", QStringLiteral("secondary"));
    connect(volver, &QPushButton::clicked, this, &PreseasonScreen::backToMenu);
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(volver);
    buttons->addStretch();
    buttons->addWidget(seguir);

    auto *body = new QHBoxLayout;
    body->setSpacing(24);
    body->addWidget(buildCountries(), 5);
    body->addWidget(buildSlots(), 6);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(28, 16, 28, 16);
    layout->setSpacing(10);
    layout->addWidget(theme::heading(tr("PRETEMPORADA")));
    layout->addLayout(who);
    layout->addLayout(body, 1);
    layout->addLayout(buttons);
    showSlots();
}

QWidget *PreseasonScreen::buildCountries()
{
    auto *box = new QGroupBox(tr("RIVALES PARA"));
    m_countryChosen = plainLabel();
    m_countryChosen->setObjectName(QStringLiteral("lblPaisSel"));
    m_countryChosen->setStyleSheet(QStringLiteral("color: #ffffff; font-size: 16px; font-weight: bold;"));
    m_countryHovered = plainLabel();
    m_countryHovered->setObjectName(QStringLiteral("lblPaises"));
    m_countryHovered->setProperty("role", QStringLiteral("hint"));
    m_countryHovered->setMinimumHeight(22);

    auto *flags = new QGridLayout;
    flags->setSpacing(6);
    int i = 0;
    for (const game::Preseason::Country &country : game::Preseason::countries()) {
        const QString caption = QString::fromUtf16(country.caption);
        auto *button = new QToolButton;
        button->setObjectName(QString::fromUtf8(country.button));
        button->setToolTip(caption);
        button->setProperty("caption", caption);
        button->setIcon(QIcon(artwork::flag(country.code, QSize(96, 64))));
        button->setIconSize(QSize(54, 36));
        button->setFixedSize(66, 46);
        button->setCursor(Qt::PointingHandCursor);
        button->setStyleSheet(QStringLiteral("QToolButton { background: #1b2f57; border: 1px solid #3a5486; border-radius: 4px; }"
                                             "QToolButton:hover { border-color: #e8a33d; }"));
        button->installEventFilter(this);
        connect(button, &QToolButton::clicked, this, [this, code = country.code, caption] { chooseCountry(code, caption); });
        flags->addWidget(button, i / 6, i % 6);
        ++i;
    }

    m_clubs = new QListWidget;
    m_clubs->setObjectName(QStringLiteral("DataList1"));
    m_clubs->setStyleSheet(QStringLiteral("QListWidget { background: #1b2f57; color: #ffffff; border: 1px solid #3a5486; }"
                                          "QListWidget::item { padding: 3px; }"
                                          "QListWidget::item:selected { background: #e8a33d; color: #10203f; }"));
    connect(m_clubs, &QListWidget::itemClicked, this, [this](QListWidgetItem *item) { chooseClub(item->text()); });

    m_clubChosen = plainLabel();
    m_clubChosen->setObjectName(QStringLiteral("lblNombreEquipo"));
    m_clubChosen->setProperty("role", QStringLiteral("value"));

    auto *layout = new QVBoxLayout(box);
    layout->addWidget(m_countryChosen);
    layout->addLayout(flags);
    layout->addWidget(m_countryHovered);
    layout->addWidget(m_clubs, 1);
    layout->addWidget(m_clubChosen);
    return box;
}

QWidget *PreseasonScreen::buildSlots()
{
    auto *box = new QGroupBox(tr("PARTIDOS DE PRETEMPORADA"));
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(16);
    grid->setVerticalSpacing(14);
    grid->addWidget(columnHeader(tr("PARTIDO")), 0, 0);
    grid->addWidget(columnHeader(tr("FECHA")), 0, 1);
    grid->addWidget(columnHeader(tr("EQUIPO LOCAL")), 0, 2);
    grid->addWidget(columnHeader(tr("EQUIPO VISITANTE")), 0, 3);
    for (int slot = 0; slot < game::Preseason::kSlots; ++slot) {
        auto *kind = plainLabel(slot < 4 ? tr("Preparación:") : tr("Presentación:"));
        kind->setStyleSheet(QStringLiteral("color: #b9c3d8; font-weight: bold;"));
        grid->addWidget(kind, slot + 1, 0);
        for (const char *name : {"lblFecha", "lblEquipoLocal", "lblEquipoVis"}) {
            QLabel *label = indexed::label(name, slot);
            label->setMinimumHeight(26);
            label->setStyleSheet(QStringLiteral("color: #ffffff; background: #162a50; border-radius: 3px; padding: 2px 6px;"));
            const int column = name == std::string_view("lblFecha") ? 1 : name == std::string_view("lblEquipoLocal") ? 2 : 3;
            grid->addWidget(label, slot + 1, column);
        }
    }
    grid->setColumnStretch(2, 1);
    grid->setColumnStretch(3, 1);
    grid->setColumnMinimumWidth(1, 100);

    m_decline = new QPushButton(tr("No Jugar"));
    m_decline->setObjectName(QStringLiteral("cmdNoJugar"));
    m_decline->setProperty("role", QStringLiteral("secondary"));
    connect(m_decline, &QPushButton::clicked, this, [this] {
        m_planner.decline();
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

    auto *hint = plainLabel(tr("Elige un país y pulsa sobre un club de la lista para llenar el siguiente partido, "
                               "o pulsa «No Jugar» para dejarlo libre. El quinto partido, la presentación, "
                               "se juega en casa."));
    hint->setProperty("role", QStringLiteral("hint"));
    hint->setWordWrap(true);

    auto *layout = new QVBoxLayout(box);
    layout->addLayout(grid);
    layout->addLayout(actions);
    layout->addStretch();
    layout->addWidget(hint);
    return box;
}

bool PreseasonScreen::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Enter)
        m_countryHovered->setText(watched->property("caption").toString());
    else if (event->type() == QEvent::Leave)
        m_countryHovered->clear();
    return QWidget::eventFilter(watched, event);
}

void PreseasonScreen::chooseCountry(int code, const QString &caption)
{
    m_countryChosen->setText(caption);
    m_clubs->clear();
    m_clubs->addItems(m_planner.clubsOf(code));
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
