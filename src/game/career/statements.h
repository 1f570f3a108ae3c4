#pragma once

#include "career/seasonclose.h"

#include <QDate>
#include <QString>

#include <optional>
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

} // namespace sql::career

} // namespace game
