#include "ledgerscreen.h"

#include "common/charts.h"
#include "common/indexedlabel.h"
#include "common/plainlabel.h"
#include "common/theme.h"
#include "money.h"

#include <QChartView>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace ui {

namespace {

struct Line
{
    const char *label;
    const char *caption;
};

const Line kIncome[] = {{"lblTaquilla", "TAQUILLA"},       {"lblPublicidad", "PUBLICIDAD"},
                        {"lblTelevision", "TELEVISIÓN"},   {"lblVenta", "VENTA JUGADORES"},
                        {"lblTiendas", "TIENDAS + CAFETERIAS"}, {"lblTI", "TOTAL INGRESOS"}};
const Line kSpending[] = {{"lblContratar", "CONTRATAR JUGADOR"}, {"lblRescindir", "RESCISIÓN JUGADORES"},
                          {"lblSalario", "SALARIO JUGADORES"},   {"lblHospitales", "HOSPITALES"},
                          {"lblEmpleados", "SALARIO EMPLEADOS"}, {"lblRemodelar", "REMODELAR ESTADIO"},
                          {"lblTG", "TOTAL GASTOS"}};

// A line's caption; the totals stand out in amber.
QLabel *captionLabel(const char *text, bool total = false)
{
    return theme::label(total ? "caption" : "muted", QString::fromUtf8(text));
}

QLabel *amountLabel(const char *name, int index)
{
    QLabel *label = indexed::label(name, index);
    label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    label->setMinimumWidth(130);
    label->setProperty("role", QStringLiteral("value"));
    return label;
}

void addLines(QGridLayout *grid, int column, const char *heading, const Line *lines, int count, int index)
{
    grid->addWidget(theme::label("section", QString::fromUtf8(heading)), 0, column, 1, 2);
    for (int i = 0; i < count; ++i) {
        const bool total = i == count - 1;
        grid->addWidget(captionLabel(lines[i].caption, total), i + 1, column);
        grid->addWidget(amountLabel(lines[i].label, index), i + 1, column + 1);
    }
}

} // namespace

LedgerScreen::LedgerScreen(game::Context context, int currentWeek, QWidget *parent)
    : Page("Caja", tr("LA CAJA"), tr("LA CAJA"), parent), m_context(context), m_browser(currentWeek)
{
    m_week = buildFrame("FSemana", tr("Semana"), 0);
    m_season = buildFrame("FTemp", tr("Temporada"), 1);
    m_season->setVisible(false);

    // The week before, shown with the week.
    auto *before = new QGridLayout;
    before->addWidget(theme::label("section", tr("SEMANA ANTERIOR")), 0, 0, 1, 2);
    const std::pair<const char *, const char *> previous[] = {
        {"lblIngresosAnterior", "INGRESOS"}, {"lblGastosAnterior", "GASTOS"}, {"lblCajaAnterior", "CAJA"}};
    int row = 1;
    for (const auto &[name, caption] : previous) {
        before->addWidget(captionLabel(caption), row, 0);
        auto *amount = theme::label("value");
        amount->setObjectName(QString::fromLatin1(name));
        amount->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        before->addWidget(amount, row++, 1);
    }
    // The week before stands beside the week shown.
    auto *weekTotals = m_week->findChild<QHBoxLayout *>(QStringLiteral("totals"));
    weekTotals->addLayout(before);
    weekTotals->addStretch();

    m_weekBox = new QLineEdit(QStringLiteral("Act"));
    m_weekBox->setObjectName(QStringLiteral("txtSemana"));
    m_weekBox->setReadOnly(true);
    m_weekBox->setAlignment(Qt::AlignCenter);
    m_weekBox->setFixedWidth(70);
    auto *less = new QPushButton(QStringLiteral("<"));
    less->setObjectName(QStringLiteral("cmdmenos"));
    less->setToolTip(tr("Semana anterior"));
    less->setMinimumWidth(44);
    auto *more = new QPushButton(QStringLiteral(">"));
    more->setObjectName(QStringLiteral("cmdmas"));
    more->setToolTip(tr("Semana siguiente"));
    more->setMinimumWidth(44);
    connect(less, &QPushButton::clicked, this, [this] {
        m_browser.back();
        fill();
    });
    connect(more, &QPushButton::clicked, this, [this] {
        m_browser.forward();
        fill();
    });
    auto *seasonButton = new QPushButton(tr("INGRESOS + GASTOS TEMPORADA"));
    seasonButton->setObjectName(QStringLiteral("Command1"));
    seasonButton->setProperty("role", QStringLiteral("secondary"));
    connect(seasonButton, &QPushButton::clicked, this, [this] {
        // Hide before showing, or for a moment both frames ask for room and the window grows.
        m_week->setVisible(false);
        m_season->setVisible(true);
    });
    auto *weekButton = new QPushButton(tr("INGRESOS + GASTOS POR SEMANA"));
    weekButton->setObjectName(QStringLiteral("cmdSemana"));
    weekButton->setProperty("role", QStringLiteral("secondary"));
    connect(weekButton, &QPushButton::clicked, this, [this] {
        m_season->setVisible(false);
        m_week->setVisible(true);
    });

    auto *stepper = new QHBoxLayout;
    stepper->addWidget(plainLabel(tr("SEMANA")));
    stepper->addWidget(less);
    stepper->addWidget(m_weekBox);
    stepper->addWidget(more);
    stepper->addStretch();
    stepper->addWidget(weekButton);
    stepper->addWidget(seasonButton);

    // The figures at the left, the season so far drawn at their right.
    auto *body = new QHBoxLayout;
    body->setSpacing(16);
    body->addWidget(m_week, 3);
    body->addWidget(m_season, 3);
    body->addWidget(seasonChart(), 2);

    addLayout(stepper);
    addLayout(body, 1);
    fill();
}

QWidget *LedgerScreen::seasonChart()
{
    // Every week of the season on file: what came in and what went out as bars, and the cash
    // the week closed with as a line over them, so a season's drift shows at a glance.
    charts::Ledger weeks{tr("La temporada, semana a semana"), {}, {}, {}, {}};
    for (const game::Ledger::Row &week : game::Ledger(m_context.store).season()) {
        weeks.captions.push_back(QString::number(week.semana));
        weeks.income.push_back(double(week.ingresos));
        weeks.expenses.push_back(double(week.gastos));
        weeks.balance.push_back(double(week.caja));
    }
    return charts::ledger("chartCaja", weeks);
}

QGroupBox *LedgerScreen::buildFrame(const char *name, const QString &caption, int index)
{
    auto *frame = new QGroupBox(caption);
    frame->setObjectName(QString::fromLatin1(name));
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(18);
    grid->setVerticalSpacing(8);
    addLines(grid, 0, "INGRESOS", kIncome, int(std::size(kIncome)), index);
    addLines(grid, 3, "GASTOS", kSpending, int(std::size(kSpending)), index);
    grid->setColumnMinimumWidth(2, 40);

    auto *current = new QGridLayout;
    current->addWidget(theme::label("section", index == 0 ? tr("SEMANA ACTUAL") : tr("TEMPORADA ACTUAL")), 0, 0,
                       1, 2);
    const std::pair<const char *, const char *> totals[] = {{"lblISA", "INGRESOS"}, {"lblGSA", "GASTOS"}, {"lblCA", "CAJA"}};
    int row = 1;
    for (const auto &[label, text] : totals) {
        current->addWidget(captionLabel(text), row, 0);
        current->addWidget(amountLabel(label, index), row++, 1);
    }

    auto *totalsRow = new QHBoxLayout;
    totalsRow->setObjectName(QStringLiteral("totals"));
    totalsRow->setSpacing(60);
    totalsRow->addLayout(current);

    auto *layout = new QVBoxLayout(frame);
    layout->addLayout(grid);
    layout->addSpacing(16);
    layout->addLayout(totalsRow);
    layout->addStretch();
    return frame;
}

void LedgerScreen::setAmount(const char *label, int index, qint64 amount)
{
    if (QLabel *widget = indexed::find(this, QString::fromLatin1(label), index))
        widget->setText(game::euros(amount));
}

void LedgerScreen::fill()
{
    m_weekBox->setText(m_browser.weekText());
    const game::Ledger::Sheet sheet = game::Ledger(m_context.store).sheet(m_browser.viewedWeek());
    const game::Ledger::Row &week = sheet.week;
    const game::Ledger::Row &season = sheet.season;
    const qint64 weekValues[] = {week.taquilla, week.publicidad, week.television, week.ventaJugadores,
                                 week.tiendas, week.ingresos, week.fichajes, week.despidos,
                                 week.salarios, week.hospitales, week.empleados, week.remodelaciones,
                                 week.gastos};
    const qint64 seasonValues[] = {season.taquilla, season.publicidad, season.television, season.ventaJugadores,
                                   season.tiendas, season.ingresos, season.fichajes, season.despidos,
                                   season.salarios, season.hospitales, season.empleados, season.remodelaciones,
                                   season.gastos};
    int i = 0;
    for (const Line &line : kIncome) {
        setAmount(line.label, 0, weekValues[i]);
        setAmount(line.label, 1, seasonValues[i++]);
    }
    for (const Line &line : kSpending) {
        setAmount(line.label, 0, weekValues[i]);
        setAmount(line.label, 1, seasonValues[i++]);
    }
    setAmount("lblISA", 0, week.ingresos);
    setAmount("lblGSA", 0, week.gastos);
    setAmount("lblCA", 0, week.caja);
    setAmount("lblISA", 1, season.ingresos);
    setAmount("lblGSA", 1, season.gastos);
    setAmount("lblCA", 1, sheet.seasonCash);

    findChild<QLabel *>(QStringLiteral("lblIngresosAnterior"))->setText(game::euros(sheet.before.ingresos));
    findChild<QLabel *>(QStringLiteral("lblGastosAnterior"))->setText(game::euros(sheet.before.gastos));
    findChild<QLabel *>(QStringLiteral("lblCajaAnterior"))->setText(game::euros(sheet.before.caja));
}

} // namespace ui
