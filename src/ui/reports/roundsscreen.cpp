#include "roundsscreen.h"

#include "common/indexedlabel.h"
#include "common/plainlabel.h"
#include "common/theme.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QPushButton>

namespace ui {

RoundsScreen::RoundsScreen(game::Context context, QWidget *parent)
    : Page("Resultados", tr("Resultados"), tr("RESULTADOS ASOBAL"), parent), m_results(context)
{
    setFrame(28, 16, 14);
    QLabel *league = theme::label("subheading", tr("LIGA - ASOBAL"));
    league->setAlignment(Qt::AlignCenter);

    m_roundLabel = plainLabel();
    m_roundLabel->setObjectName(QStringLiteral("lblJornada"));
    m_roundLabel->setAlignment(Qt::AlignCenter);
    m_roundLabel->setFixedWidth(56);
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
    roundBar->addWidget(theme::label("caption", tr("PARTIDOS DE LA JORNADA")));
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
        auto place = [&](const char *name, int column, Qt::Alignment alignment, const char *role) {
            QLabel *label = indexed::label(name, i);
            label->setAlignment(alignment | Qt::AlignVCenter);
            label->setFixedHeight(36);
            label->setProperty("role", QString::fromLatin1(role));
            grid->addWidget(label, i, column);
            return label;
        };
        m_home[std::size_t(i)] = place("lblEquipoL", 0, Qt::AlignRight, "cell");
        m_homeGoals[std::size_t(i)] = place("lblRL", 1, Qt::AlignHCenter, "goals");
        QLabel *dash = theme::label("field", QStringLiteral("-"));
        dash->setAlignment(Qt::AlignCenter);
        grid->addWidget(dash, i, 2);
        m_awayGoals[std::size_t(i)] = place("lblRV", 3, Qt::AlignHCenter, "goals");
        m_away[std::size_t(i)] = place("lblEquipoV", 4, Qt::AlignLeft, "cell");
        m_homeGoals[std::size_t(i)]->setFixedWidth(56);
        m_awayGoals[std::size_t(i)]->setFixedWidth(56);
    }
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(4, 1);

    addWidget(league);
    addLayout(roundBar);
    addSpacing(6);
    addWidget(table, 0, Qt::AlignHCenter);
    addStretch();

    showRound(m_results.currentRound());
}

void RoundsScreen::showRound(int round)
{
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
        // The user's match stands out on both names, whichever side it plays; the highlight
        // leaves the row when another round gives it to other clubs.
        theme::restyle(m_home[std::size_t(i)], "users", match.users);
        theme::restyle(m_away[std::size_t(i)], "users", match.users);
    }
}

} // namespace ui
