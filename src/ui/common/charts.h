#pragma once

#include <QString>

#include <vector>

class QChartView;

// The game's charts, drawn with Qt Charts in the colours of the game: the navy of its screens,
// its amber for the line that matters, a green for money that comes in and a red for money that
// goes out. Each chart is made afresh with its data; none keeps state of its own.
namespace charts {

// A point of a chart: its caption on the category axis ("1", "2004-2005") and its value.
struct Point
{
    QString caption;
    double value = 0;
};

// A line over categories. With `upsideDown` the smallest value stands at the top, as a place
// in a table does (1 at the top); `lowest` and `highest` fix the value axis when given, with a
// mark every `step` from the lowest.
struct Line
{
    QString title;
    std::vector<Point> points;
    bool upsideDown = false;
    double lowest = 0;
    double highest = 0; // with lowest: the axis's range; both 0: fitted to the values
    double step = 1;
    QString format = QStringLiteral("%.0f"); // of the values' labels
};
QChartView *line(const char *name, const Line &line);

// Bars of money in and money out for each category, with a line of a balance over them.
struct Ledger
{
    QString title;
    std::vector<QString> captions;
    std::vector<double> income;
    std::vector<double> expenses;
    std::vector<double> balance;
};
QChartView *ledger(const char *name, const Ledger &ledger);

} // namespace charts
