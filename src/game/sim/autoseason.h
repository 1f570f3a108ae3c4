#pragma once

#include "career/career.h"
#include "context.h"

#include <QString>

#include <memory>
#include <optional>

namespace game {

// A manager without a window: he leads a game::Career as a player leads it from the screens,
// for the headless simulator and the benchmarks. Every question is answered No, every
// message acknowledged.
//
// A quiet manager only plays his matches. A busy one also runs the club the way an eager
// player would: whenever a group of the stadium has no work under way he orders its cheapest
// work on offer, before each home match he puts the ticket up a step until it reaches the
// top, and he takes every broadcast television offers. In the market he makes one offer a
// week for a listed player at the player's own terms, lists his weakest man while the squad
// has more than sixteen, sells to every bid, and renews a contract down to its last year.
//
//   AutoSeason season(context, {.club = 4, .friendlies = 2, .policy = AutoSeason::Policy::Busy});
//   season.begin();
//   while (season.playWeek()) {}
//   season.closeSeason();                  // the verdict read, the orders settled, planned again
class AutoSeason
{
public:
    enum class Policy { Quiet, Busy };

    struct Options
    {
        int club = 1;
        int friendlies = 0;
        Policy policy = Policy::Quiet;
    };

    struct Totals
    {
        int weeks = 0;
        int matches = 0;
        int goalsFor = 0;
        int goalsAgainst = 0;
        int worksOrdered = 0;
        int worksFinished = 0;
        qint64 tvIncome = 0;   // broadcast fees booked
        qint64 shopIncome = 0; // the club shop's weekly takings
        qint64 gateIncome = 0; // tickets and boards of the user's home matches
        int offersMade = 0;
        int signings = 0;
        int refusals = 0;
        int sales = 0;
        int renewals = 0;
        int dismissals = 0;
    };

    AutoSeason(Context context, Options options);
    ~AutoSeason();

    // Starts the career and plans the pre-season: the first friendlies against clubs drawn
    // from the other countries, the rest declined. False when that failed.
    bool begin();
    // Takes up the career a save left in the working file, where it stood (its club is the
    // saved career's). False when the file holds no career.
    bool resume();

    // What a closed season leaves for the record.
    struct SeasonSummary
    {
        QString champion;
        int place = 0;        // the user's place in the final table, 1 at the top
        int points = 0;
        int goalsFor = 0;
        int goalsAgainst = 0;
        qint64 budget = 0;    // the club's budget once every order has been settled
    };
    // After the season's last week (its close has ranked the league; a close that failed is
    // tried again): the verdict is read,
    // every order settled, and the next pre-season planned, its friendlies drawn again.
    // False when that failed.
    bool closeSeason(SeasonSummary *summary = nullptr);

    // Lives the open week as a player does (the season's first opens when the planned season
    // begins): its events run, the best fourteen are called up, both halves are played
    // through the engine and the result is recorded, and the next week opens. False once the
    // season is over or a routine failed.
    bool playWeek();

    const Totals &totals() const { return m_totals; }
    const QString &failure() const { return m_failure; }
    Career &career() { return m_career; }

private:
    bool playWeekBody();
    bool planPreseason();
    // What a busy manager does once the week's events have run, before the match.
    void actBusy();
    void orderCheapestWorks();
    void makeAnOffer();
    void listASpareMan();
    void renewAShortContract();

    // How the manager answers: a busy one sells every player a club bids for.
    std::unique_ptr<Dialogs> m_answers;
    Context m_context;
    Options m_options;
    Career m_career;
    Totals m_totals;
    QString m_failure;
};

} // namespace game
