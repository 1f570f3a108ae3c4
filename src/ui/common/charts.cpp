#include "charts.h"

#include "theme.h"

#include <QBarCategoryAxis>
#include <QBarSeries>
#include <QBarSet>
#include <QCategoryAxis>
#include <QChart>
#include <QChartView>
#include <QLineSeries>
#include <QValueAxis>

#include <algorithm>

namespace charts {

namespace {

const QColor kText(0xf1, 0xf3, 0xf8);
const QColor kGrid(0x3a, 0x54, 0x86);
const QColor kIncome(0x3c, 0xb3, 0x71);
const QColor kExpenses(0xd9, 0x4b, 0x4b);

QChart *themedChart(const QString &title)
{
    auto *chart = new QChart;
    chart->setTitle(title);
    chart->setTitleBrush(kText);
    QFont font = chart->titleFont();
    font.setBold(true);
    chart->setTitleFont(font);
    chart->setBackgroundBrush(theme::kNavy);
    chart->setBackgroundRoundness(0);
    chart->setPlotAreaBackgroundVisible(false);
    chart->legend()->setLabelColor(kText);
    chart->setMargins(QMargins(4, 4, 4, 4));
    // Charts are read, not watched: they appear at once.
    chart->setAnimationOptions(QChart::NoAnimation);
    return chart;
}

void styleAxis(QAbstractAxis *axis)
{
    axis->setLabelsColor(kText);
    axis->setTruncateLabels(false);
    axis->setLinePenColor(kGrid);
    axis->setGridLineColor(kGrid);
}

QChartView *viewOf(const char *name, QChart *chart)
{
    auto *view = new QChartView(chart);
    view->setObjectName(QString::fromLatin1(name));
    view->setRenderHint(QPainter::Antialiasing);
    view->setBackgroundBrush(theme::kNavy);
    view->setMinimumHeight(180);
    return view;
}

} // namespace

QChartView *line(const char *name, const Line &line)
{
    QChart *chart = themedChart(line.title);
    auto *series = new QLineSeries;
    series->setPen(QPen(theme::kAmber, 3));
    series->setPointsVisible(true);
    QStringList captions;
    double low = 0;
    double high = 0;
    for (std::size_t i = 0; i < line.points.size(); ++i) {
        const Point &point = line.points[i];
        series->append(double(i), point.value);
        captions << point.caption;
        low = i == 0 ? point.value : std::min(low, point.value);
        high = i == 0 ? point.value : std::max(high, point.value);
    }
    chart->addSeries(series);
    chart->legend()->hide();

    auto *categories = new QBarCategoryAxis;
    categories->append(captions.isEmpty() ? QStringList{QString()} : captions);
    auto *values = new QValueAxis;
    if (line.lowest != line.highest) {
        values->setRange(line.lowest, line.highest);
        values->setTickType(QValueAxis::TicksDynamic);
        values->setTickAnchor(line.lowest);
        values->setTickInterval(line.step);
    } else {
        const double margin = std::max(1.0, (high - low) * 0.1);
        values->setRange(low - margin, high + margin);
    }
    values->setLabelFormat(line.format);
    values->setReverse(line.upsideDown);
    styleAxis(categories);
    styleAxis(values);
    chart->addAxis(categories, Qt::AlignBottom);
    chart->addAxis(values, Qt::AlignLeft);
    series->attachAxis(categories);
    series->attachAxis(values);
    return viewOf(name, chart);
}

QChartView *ledger(const char *name, const Ledger &ledger)
{
    QChart *chart = themedChart(ledger.title);
    auto *income = new QBarSet(QObject::tr("Ingresos"));
    auto *expenses = new QBarSet(QObject::tr("Gastos"));
    income->setColor(kIncome);
    income->setBorderColor(kIncome);
    expenses->setColor(kExpenses);
    expenses->setBorderColor(kExpenses);
    double low = 0;
    double high = 0;
    for (std::size_t i = 0; i < ledger.captions.size(); ++i) {
        *income << ledger.income[i];
        *expenses << ledger.expenses[i];
        low = std::min({low, ledger.balance[i], ledger.income[i], ledger.expenses[i]});
        high = std::max({high, ledger.balance[i], ledger.income[i], ledger.expenses[i]});
    }
    auto *bars = new QBarSeries;
    bars->append(income);
    bars->append(expenses);
    auto *balance = new QLineSeries;
    balance->setName(QObject::tr("Caja"));
    balance->setPen(QPen(theme::kAmber, 3));
    for (std::size_t i = 0; i < ledger.balance.size(); ++i)
        balance->append(double(i), ledger.balance[i]);
    chart->addSeries(bars);
    chart->addSeries(balance);
    chart->legend()->setAlignment(Qt::AlignBottom);

    // Every category is captioned when they are few; of many (a whole season's weeks), the
    // first and every fifth, so that the numbers never run into each other.
    const int count = int(ledger.captions.size());
    const int every = count <= 12 ? 1 : 5;
    auto *weeks = new QCategoryAxis;
    weeks->setLabelsPosition(QCategoryAxis::AxisLabelsPositionOnValue);
    weeks->setRange(-0.5, std::max(count, 1) - 0.5);
    for (int i = 0; i < count; ++i) {
        if (i == 0 || (i + 1) % every == 0)
            weeks->append(ledger.captions[std::size_t(i)], i);
    }
    auto *euros = new QValueAxis;
    // Marks at round sums, which a reader takes in at once; money that never went below nought
    // stands on the nought line.
    const double margin = std::max(1.0, (high - low) * 0.05);
    euros->setRange(low < 0 ? low - margin : 0, high + margin);
    euros->applyNiceNumbers();
    euros->setLabelFormat(QStringLiteral("%.0f"));
    styleAxis(weeks);
    styleAxis(euros);
    chart->addAxis(weeks, Qt::AlignBottom);
    chart->addAxis(euros, Qt::AlignLeft);
    bars->attachAxis(weeks);
    bars->attachAxis(euros);
    balance->attachAxis(weeks);
    balance->attachAxis(euros);
    return viewOf(name, chart);
}

} // namespace charts
