#pragma once

#include "league/fixture.h"

#include <vector>

namespace game {

class GameStore;

// The calendar report: the user's match of the current week and of the six after it.
class Calendar
{
public:
    static constexpr int kWeeksShown = 7;

    struct Row
    {
        bool empty = true;     // a week past the season's end
        QString fixture;       // "Home - Away"
        QString type;          // "Pretemporada" or "Liga ASOBAL"
        QString subtype;       // "Preparación", "Presentación" or "Jornada " and the round
        QString date;          // 21/08/2004
    };

    explicit Calendar(GameStore &store) : m_store(store) {}

    // Seven rows from the given week on.
    std::vector<Row> rows(int week, int userClub);

private:
    GameStore &m_store;
};

} // namespace game
