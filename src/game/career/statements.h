#pragma once

#include "career/saves.h"
#include "career/seasonclose.h"

#include <QDate>
#include <QDateTime>
#include <QString>

#include <optional>
#include <utility>
#include <vector>

namespace game {

class GameStore;

// Every statement of a career's life: its start, the planner of the pre-season, the opening
// of a week and the close of a season. Each reads or writes one thing and hands it back in
// the game's own terms; all throw on a store failure, for use inside a routine.
namespace sql::career {

// A new career: the manager becomes his club's coach, and whatever the last career left in
// the season's tables goes.
void appointCoach(GameStore &store, int club, const QString &nombre, const QString &apellidos);
void clearLastCareer(GameStore &store);
void writeCareerRow(GameStore &store, const QString &nombre, const QString &apellidos, int club,
                    const QString &clubCaption);

// The week number of the career row.
void setWeek(GameStore &store, int week);
void moveWeekOn(GameStore &store);
// The calendar's last week; 0 for an empty calendar.
int lastWeekOfCalendar(GameStore &store);
// The rival's line-up of the week gone.
void clearLineUps(GameStore &store);

// The planner of the pre-season.
int clubNamed(GameStore &store, const QString &name);
void writeFriendly(GameStore &store, int slot, int home, int away, const QDate &date);
struct Friendly
{
    QString home;
    QString away;
    QDate date;
};
std::optional<Friendly> friendly(GameStore &store, int slot);
void eraseFriendly(GameStore &store, int slot);
void clearPreseason(GameStore &store);
// The queue of orders in selects, emptied as a season closes.
void emptyQueue(GameStore &store);

// The calendar: the matches of the season in the order they are played.
struct CalendarMatch
{
    int idpartido = 0;
    QString date; // as stored
};
std::vector<CalendarMatch> friendliesPlanned(GameStore &store);
std::vector<CalendarMatch> leagueMatchesOf(GameStore &store, int club);
void writeCalendarWeek(GameStore &store, int week, const CalendarMatch &match);
int playerCount(GameStore &store);
// Lists the player unless he plays for one of the three clubs given (the pools, the user's).
void listPlayerUnlessOf(GameStore &store, int player, int poolOne, int poolTwo, int userClub);

// The season's close.
std::vector<int> finalRanking(GameStore &store);
void writePlace(GameStore &store, int club, int place);
void emptySeason(GameStore &store);
int clubAtPlace(GameStore &store, int place);
QString clubName(GameStore &store, int club);
int placeOf(GameStore &store, int club);
// A club's line of the table, into the verdict's fields.
void readLine(GameStore &store, int club, SeasonClose::Verdict &verdict);

// Where the career stands, as partida keeps it for a save.
struct Standing
{
    QString career;
    int season = 1;
    QString stage;
    unsigned eventsDone = 0; // the week's events that have run, a bit each in their order
    QString channel;   // a broadcast waiting for the player's OK
    bool gatePosted = false;
};
// The career's name and season alone, as a career starts and a season turns.
void writeSeason(GameStore &store, const QString &career, int season);
Standing standing(GameStore &store);
void writeStanding(GameStore &store, const Standing &standing);
// The describing half of partida, filled from the career as it is at the moment of saving.
void describeForSave(GameStore &store, const QDateTime &savedAt, int format);
// What a save's partida says; nothing when it has no row. Throws when it has no such table.
std::optional<SaveRecord> saveRecord(GameStore &store);
// True when the file holds every table of the game; false for a file SQLite finds broken.
bool holdsTheGame(GameStore &store);
// True when the file has a table partida (what a save of the game has).
bool hasStanding(GameStore &store);

// The season's history.
struct HistoryRow
{
    int season = 0;
    QString years;
    QString champion;
    int place = 0;        // 1 for the champion
    int points = 0;
    int won = 0;
    int drawn = 0;
    int lost = 0;
    int goalsFor = 0;
    int goalsAgainst = 0;
    qint64 budget = 0;
    QString topScorer;
    int topScorerGoals = 0;
    QString signing;      // the dearest of the season, with its sum
    qint64 signingSum = 0;
    QString sale;
    qint64 saleSum = 0;
};
void writeHistory(GameStore &store, const HistoryRow &row);
void setHistoryBudget(GameStore &store, int season, qint64 budget);
std::vector<HistoryRow> history(GameStore &store);
// The user's club's top scorer of a season (the lowest id among equals), and its dearest
// signing and sale: a name and a number, or nothing.
std::optional<std::pair<QString, qint64>> topScorer(GameStore &store, int season);
std::optional<std::pair<QString, qint64>> dearestMove(GameStore &store, int season, const char *kind);
qint64 budgetOf(GameStore &store, int club);
// Adds a player's goals of one match to his season's tally.
void addGoals(GameStore &store, int season, int player, int goals);
// A season's scorers of the user's club, the most goals first (by id among equals).
struct Scorer
{
    int player = 0;
    QString name;
    int goals = 0;
};
std::vector<Scorer> scorers(GameStore &store, int season);

} // namespace sql::career

} // namespace game
