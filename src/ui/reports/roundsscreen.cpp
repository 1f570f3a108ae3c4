#include "roundsscreen.h"

#include "common/indexedlabel.h"
#include "common/plainlabel.h"
#include "common/theme.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

namespace ui {

namespace {

const QString kNameCell = QStringLiteral("color: #ffffff; background: #162a50; padding: 4px 12px;");
// The user's club stands out in dark yellow on both names of its match, whichever side it plays.
const QString kUserNameCell =
    QStringLiteral("color: #10203f; background: rgb(192, 192, 0); font-weight: bold; padding: 4px 12px;");
const QString kGoalsCell =
    QStringLiteral("color: #ffffff; background: #1b2f57; border: 1px solid #3a5486; font-weight: bold; font-size: 16px;");

} // namespace

RoundsScreen::RoundsScreen(game::Context context, QWidget *parent) : QWidget(parent), m_results(context)
{
    setObjectName(QStringLiteral("Resultados"));
    setWindowTitle(tr("Resultados"));
    setAttribute(Qt::WA_StyledBackground);
    setStyleSheet(QStringLiteral("QWidget#Resultados { background-color: #0f1e3c; }"));

    QLabel *league = plainLabel(tr("LIGA - ASOBAL"));
    league->setAlignment(Qt::AlignCenter);
    league->setStyleSheet(QStringLiteral("color: #b9c3d8; font-size: 16px; font-weight: bold; letter-spacing: 1px;"));

    QLabel *matchesOf = plainLabel(tr("PARTIDOS DE LA JORNADA"));
    matchesOf->setStyleSheet(QStringLiteral("color: #e8a33d; font-weight: bold;"));
    m_roundLabel = plainLabel();
    m_roundLabel->setObjectName(QStringLiteral("lblJornada"));
    m_roundLabel->setAlignment(Qt::AlignCenter);
    m_roundLabel->setFixedWidth(56);
    m_roundLabel->setStyleSheet(QStringLiteral("color: #ffffff; font-size: 20px; font-weight: bold;"));
    auto *less = new QPushButton(QStringLiteral("<"));
    less->setObjectName(QStringLiteral("cmdmenos"));
    less->setToolTip(tr("Jornada anterior"));
    less->setMinimumWidth(44);
    auto *more = new QPushButton(QStringLiteral(">"));
    more->setObjectName(QStringLiteral("cmdmas"));
    more->setToolTip(tr("Jornada siguiente"));
    more->setMinimumWidth(44);
    // The walk stops at the first and the last round: a click beyond them does nothing.
    connect(less, &QPushButton::clicked, this, [this] {
        if (m_round > game::RoundResults::kFirstRound)
            showRound(game::RoundResults::previous(m_round));
    });
    connect(more, &QPushButton::clicked, this, [this] {
        if (m_round < game::RoundResults::kLastRound)
            showRound(game::RoundResults::next(m_round));
    });
    auto *roundBar = new QHBoxLayout;
    roundBar->setSpacing(12);
    roundBar->addStretch();
    roundBar->addWidget(matchesOf);
    roundBar->addSpacing(12);
    roundBar->addWidget(less);
    roundBar->addWidget(m_roundLabel);
    roundBar->addWidget(more);
    roundBar->addStretch();

    // The matches stand in a column of their own in the middle, home and away face to face.
    auto *table = new QWidget;
    table->setFixedWidth(960);
    auto *grid = new QGridLayout(table);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(8);
    grid->setVerticalSpacing(10);
    for (int i = 0; i < kMatches; ++i) {
        auto place = [&](const char *name, int column, Qt::Alignment alignment) {
            QLabel *label = indexed::label(name, i);
            label->setAlignment(alignment | Qt::AlignVCenter);
            label->setFixedHeight(36);
            grid->addWidget(label, i, column);
            return label;
        };
        m_home[std::size_t(i)] = place("lblEquipoL", 0, Qt::AlignRight);
        m_homeGoals[std::size_t(i)] = place("lblRL", 1, Qt::AlignHCenter);
        QLabel *dash = plainLabel(QStringLiteral("-"));
        dash->setAlignment(Qt::AlignCenter);
        dash->setStyleSheet(QStringLiteral("color: #b9c3d8; font-weight: bold;"));
        grid->addWidget(dash, i, 2);
        m_awayGoals[std::size_t(i)] = place("lblRV", 3, Qt::AlignHCenter);
        m_away[std::size_t(i)] = place("lblEquipoV", 4, Qt::AlignLeft);
        m_homeGoals[std::size_t(i)]->setFixedWidth(56);
        m_awayGoals[std::size_t(i)]->setFixedWidth(56);
        m_homeGoals[std::size_t(i)]->setStyleSheet(kGoalsCell);
        m_awayGoals[std::size_t(i)]->setStyleSheet(kGoalsCell);
    }
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(4, 1);

    auto *back = new QPushButton(tr("<- VOLVER"));
    back->setObjectName(QStringLiteral("cmdVOLVER"));
    connect(back, &QPushButton::clicked, this, &RoundsScreen::closeRequested);
    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(back);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(28, 16, 28, 16);
    layout->setSpacing(14);
    layout->addWidget(theme::heading(tr("RESULTADOS ASOBAL")));
    layout->addWidget(league);
    layout->addLayout(roundBar);
    layout->addSpacing(6);
    layout->addWidget(table, 0, Qt::AlignHCenter);
    layout->addStretch();
    layout->addLayout(buttons);

    showRound(m_results.currentRound());
}

void RoundsScreen::restart()
{
    for (int i = 0; i < kMatches; ++i) {
        m_home[std::size_t(i)]->setStyleSheet(kNameCell);
        m_away[std::size_t(i)]->setStyleSheet(kNameCell);
    }
}

void RoundsScreen::showRound(int round)
{
    restart();
    m_round = round;
    m_roundLabel->setText(QString::number(round));
    const std::vector<game::RoundResults::Match> matches = m_results.round(round);
    for (int i = 0; i < kMatches; ++i) {
        // A round the store could not read leaves its rows empty.
        const game::RoundResults::Match match =
            i < int(matches.size()) ? matches[std::size_t(i)] : game::RoundResults::Match{};
        m_home[std::size_t(i)]->setText(match.home);
        m_homeGoals[std::size_t(i)]->setText(match.homeGoals);
        m_awayGoals[std::size_t(i)]->setText(match.awayGoals);
        m_away[std::size_t(i)]->setText(match.away);
        if (match.users) {
            m_home[std::size_t(i)]->setStyleSheet(kUserNameCell);
            m_away[std::size_t(i)]->setStyleSheet(kUserNameCell);
        }
    }
}

} // namespace ui
