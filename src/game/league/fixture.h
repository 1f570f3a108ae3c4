#pragma once

#include <QDate>
#include <QString>

#include <optional>

namespace game {

class GameStore;

// The user's match of one week, as the panel shows it and the other screens receive it.
struct Fixture
{
    enum class Type { Friendly, League };

    int week = 0;
    Type type = Type::League;
    int idpartido = 0;   // 1 to 5 for a friendly (its slot), else the league fixture
    int round = 0;       // the league round; 0 for a friendly
    int homeId = 0;
    QString homeName;
    int awayId = 0;
    QString awayName;
    int rivalId = 0;
    QDate date;          // as it falls in the career's season

    bool isLeague() const { return type == Type::League; }
    // "LIGA" or "AMISTOSO", as the panel labels the week.
    QString typeText() const;
};

// Finds the match of a week: through the calendar to a friendly of the pre-season or to a
// league fixture, whose template positions become clubs through last season's places.
// Reads only, so it can run at any repaint.
std::optional<Fixture> fixtureOfWeek(GameStore &store, int week, int userClub);

// A date of the store (ISO text) as the game shows it: 21/08/2004.
QString shownDate(const QDate &date);

// A big match: both clubs of the same class, or next to each other in the league table (one
// place apart; two clubs on the same place are not neighbours). A club with no class or no
// place, such as a club from abroad in a friendly, cannot be compared, and that counts as a
// big match too. A big match fills the house, and it is the match television buys. Reads
// that fail count as a club that cannot be compared.
bool isBigMatch(GameStore &store, int homeClub, int awayClub);

} // namespace game
