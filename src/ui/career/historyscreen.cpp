#include "historyscreen.h"

#include "common/charts.h"
#include "common/rowsmodel.h"
#include "common/theme.h"
#include "league/careerrow.h"
#include "money.h"

#include <QChartView>
#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QTableView>
#include <QVBoxLayout>

namespace ui {

namespace {

using Season = game::History::Season;
using Scorer = game::History::Scorer;

QTableView *table(const char *name, QAbstractItemModel *model)
{
    auto *view = new QTableView;
    view->setObjectName(QString::fromLatin1(name));
    view->setModel(model);
    view->setSelectionBehavior(QAbstractItemView::SelectRows);
    view->setSelectionMode(QAbstractItemView::SingleSelection);
    view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    view->setAlternatingRowColors(true);
    view->setWordWrap(false);
    view->verticalHeader()->setVisible(false);
    view->horizontalHeader()->setStretchLastSection(true);
    return view;
}

QString nameAndSum(const QString &name, qint64 sum)
{
    return name.isEmpty() ? QString() : name + QStringLiteral(" (") + game::euros(sum) + QLatin1Char(')');
}

} // namespace

HistoryScreen::HistoryScreen(game::Context context, QWidget *parent)
    : Page("Historial", tr("Historial"), tr("HISTORIAL DE LA CARRERA"), parent), m_history(context)
{
    setFrame(24, 10, 8);
    const std::vector<Season> seasons = m_history.seasons();

    auto *seasonsModel = new RowsModel<Season>(
        {{tr("Temporada"), [](const Season &s) { return s.years; }},
         {tr("Campeón"), [](const Season &s) { return s.champion; }},
         {tr("Puesto"), [](const Season &s) { return QString::number(s.place); }},
         {tr("Ptos"), [](const Season &s) { return QString::number(s.points); }},
         {tr("PG"), [](const Season &s) { return QString::number(s.won); }},
         {tr("PE"), [](const Season &s) { return QString::number(s.drawn); }},
         {tr("PP"), [](const Season &s) { return QString::number(s.lost); }},
         {tr("G F"), [](const Season &s) { return QString::number(s.goalsFor); }},
         {tr("G C"), [](const Season &s) { return QString::number(s.goalsAgainst); }},
         {tr("Presupuesto"), [](const Season &s) { return game::euros(s.budget); }},
         {tr("Máximo goleador"),
          [](const Season &s) {
              return s.topScorer.isEmpty() ? QString() : QStringLiteral("%1 (%2)").arg(s.topScorer).arg(s.topScorerGoals);
          }},
         {tr("Fichaje más caro"), [](const Season &s) { return nameAndSum(s.signing, s.signingSum); }},
         {tr("Venta más cara"), [](const Season &s) { return nameAndSum(s.sale, s.saleSum); }}},
        this);
    seasonsModel->setRows(seasons);
    QTableView *seasonsTable = table("DGTemporadas", seasonsModel);
    // The figures take the room they need; the names share the rest, cut short when they must
    // (a cell cut short shows its whole text under the pointer).
    QHeaderView *columns = seasonsTable->horizontalHeader();
    columns->setSectionResizeMode(QHeaderView::ResizeToContents);
    for (const int name : {1, 10, 11, 12})
        columns->setSectionResizeMode(name, QHeaderView::Stretch);
    seasonsTable->setTextElideMode(Qt::ElideRight);
    seasonsTable->setMinimumHeight(120);

    if (seasons.empty()) {
        QLabel *none = theme::label("hint", tr("Todavía no has terminado ninguna temporada: al cerrar la primera, "
                                               "aquí quedará su historia."));
        none->setObjectName(QStringLiteral("lblSinHistoria"));
        none->setWordWrap(true);
        addWidget(none);
    }
    addWidget(seasonsTable, 2);

    // The scorers of the season chosen, the one under way first.
    m_season = new QComboBox;
    m_season->setObjectName(QStringLiteral("cboTemporada"));
    const int current = m_history.currentSeason();
    for (int season = current; season >= 1; --season) {
        m_season->addItem(game::seasonYears(season) + (season == current ? tr(" (en curso)") : QString()), season);
    }
    m_scorers = new RowsModel<Scorer>({{tr("Jugador"), [](const Scorer &s) { return s.name; }},
                                       {tr("Goles"), [](const Scorer &s) { return QString::number(s.goals); }}},
                                      this);
    QTableView *scorersTable = table("DGGoleadores", m_scorers);
    scorersTable->horizontalHeader()->setStretchLastSection(false);
    scorersTable->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
    scorersTable->horizontalHeader()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
    auto *scorers = new QVBoxLayout;
    scorers->addWidget(theme::label("caption", tr("GOLEADORES DEL EQUIPO")));
    scorers->addWidget(m_season);
    scorers->addWidget(scorersTable, 1);
    connect(m_season, &QComboBox::currentIndexChanged, this,
            [this](int index) { showScorers(m_season->itemData(index).toInt()); });
    showScorers(current);

    // The two charts: the place (the champion at the top) and the budget at each close.
    charts::Line places{tr("Puesto por temporada"), {}, true, 1, 16, 5};
    charts::Line budgets{tr("Presupuesto al cierre (millones de €)"), {}, false, 0, 0, 1, QStringLiteral("%.1f")};
    for (const Season &season : seasons) {
        // "04-05": four seasons and more still fit under a chart.
        const QString years = season.years.mid(2, 3) + season.years.mid(7, 2);
        places.points.push_back({years, double(season.place)});
        budgets.points.push_back({years, double(season.budget) / 1e6});
    }
    auto *lower = new QHBoxLayout;
    lower->setSpacing(12);
    lower->addLayout(scorers, 2);
    lower->addWidget(charts::line("chartPuestos", places), 3);
    lower->addWidget(charts::line("chartPresupuesto", budgets), 3);
    addLayout(lower, 5);
}

void HistoryScreen::showScorers(int season)
{
    m_scorers->setRows(m_history.scorers(season));
}

} // namespace ui
