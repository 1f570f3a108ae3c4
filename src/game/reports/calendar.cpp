#include "calendar.h"

#include "store/gamestore.h"

namespace game {

std::vector<Calendar::Row> Calendar::rows(int week, int userClub)
{
    std::vector<Row> rows(kWeeksShown);
    for (int i = 0; i < kWeeksShown; ++i) {
        m_store.attempt([&] {
            const std::optional<Fixture> fixture = fixtureOfWeek(m_store, week + i, userClub);
            if (!fixture)
                return;
            Row &row = rows[std::size_t(i)];
            row.empty = false;
            row.fixture = fixture->homeName + QStringLiteral(" - ") + fixture->awayName;
            row.date = shownDate(fixture->date);
            if (fixture->isLeague()) {
                row.type = QStringLiteral("Liga ASOBAL");
                row.subtype = QStringLiteral("Jornada ") + QString::number(fixture->round);
            } else {
                row.type = QStringLiteral("Pretemporada");
                // The fifth slot is the presentation of the squad to the home crowd.
                row.subtype = fixture->idpartido == 5 ? QStringLiteral("Presentación") : QStringLiteral("Preparación");
            }
        });
    }
    return rows;
}

} // namespace game
