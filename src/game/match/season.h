#pragma once

#include "career/week.h"
#include "context.h"

#include <QString>

#include <optional>

namespace game {

// A career played without a window, through the same routines the screens call: the
// headless simulator and the benchmarks use it. Every question is answered No, every
// message acknowledged.
//
//   AutoSeason season(context, {.club = 4, .friendlies = 2});
//   season.begin();
//   while (season.playWeek()) {}
class AutoSeason
{
public:
    struct Options
    {
        int club = 1;
        int friendlies = 0;
    };

    struct Totals
    {
        int weeks = 0;
        int matches = 0;
        int goalsFor = 0;
        int goalsAgainst = 0;
    };

    AutoSeason(Context context, Options options) : m_context(context), m_options(options), m_week(context) {}

    // Starts the career and plans the pre-season: the first friendlies against clubs drawn
    // from the other countries, the rest declined. False when that failed.
    bool begin();

    // Lives the next week as the window does, through the same week: it opens, its events
    // run, the best fourteen are called up, both halves are played through the engine and
    // the result is recorded. False once the season is over or a routine failed.
    bool playWeek();

    const Totals &totals() const { return m_totals; }
    const QString &failure() const { return m_failure; }

private:
    bool playWeekBody();

    Context m_context;
    Options m_options;
    Week m_week;
    Totals m_totals;
    QString m_failure;
};

} // namespace game
