#pragma once

#include "context.h"

#include <QDate>
#include <QString>

namespace game {

class GameStore;

// The years of a career's season: "2004-2005" for the first, "2005-2006" for the second.
QString seasonYears(int season);
// A date of the fixtures, stored as seeded for the first season, as it falls in a later one:
// a year on for each season.
QDate dateInSeason(const QDate &stored, int season);

// The career row: who manages which club, and which week of the season is open. There is
// exactly one, and nearly every rule starts from it. Week 0 means no week is open (a career
// just set up, or the planner on screen); the week after the calendar's last means the
// season has just ended.
//
//   const CareerRow career = CareerRow::read(store);   // inside a routine: throws on failure
//   ledger.openWeek(career.week, career.club);
struct CareerRow
{
    int week = 0;
    QString nombre;
    QString apellidos;
    int club = 0;
    QString clubName;   // the club as the crest wrote it, in capitals
    int season = 1;     // the career's seasons, from 1

    // "Nombre Apellidos", as titles and lists show the manager.
    QString manager() const { return nombre + QLatin1Char(' ') + apellidos; }
    // True when the name is the user's club, capitals or not: the game tells home from away
    // by the club's name.
    bool isUserClub(const QString &name) const { return !clubName.isEmpty() && name.toUpper() == clubName.toUpper(); }

    // "2004-2005" for the first season, a year on for each after it.
    QString seasonYears() const { return game::seasonYears(season); }

    // The row as stored. Throws on a store failure, for use inside a routine.
    static CareerRow read(GameStore &store);
    // The same for a screen or a step that may fail without stopping anything: an empty row
    // (week 0, club 0) when the store cannot be read.
    static CareerRow current(Context context);
};

// The user's club alone, for a routine that needs nothing else of the row. Throws on a store
// failure.
int userClub(GameStore &store);

} // namespace game
