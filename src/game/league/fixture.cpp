#include "fixture.h"

#include "league/statements.h"
#include "store/gamestore.h"

#include <cstdlib>

namespace game {

QString Fixture::typeText() const
{
    return type == Type::League ? QStringLiteral("LIGA") : QStringLiteral("AMISTOSO");
}

QString shownDate(const QDate &date)
{
    return date.isValid() ? date.toString(QStringLiteral("dd/MM/yyyy")) : QString();
}

std::optional<Fixture> fixtureOfWeek(GameStore &store, int week, int userClub)
{
    const std::optional<int> idpartido = sql::league::matchOfWeek(store, week);
    if (!idpartido)
        return std::nullopt;
    // A friendly's id is its slot, 1 to 5, and no league fixture has one of those ids: the
    // pre-season tells the two apart.
    std::optional<Fixture> fixture = sql::league::friendly(store, *idpartido);
    if (!fixture)
        fixture = sql::league::leagueFixture(store, *idpartido);
    if (!fixture)
        return std::nullopt;
    fixture->week = week;
    fixture->rivalId = fixture->homeId == userClub ? fixture->awayId : fixture->homeId;
    fixture->date = dateInSeason(fixture->date, sql::league::season(store));
    return fixture;
}

bool isBigMatch(GameStore &store, int homeClub, int awayClub)
{
    const auto read = [&](auto statement, int club) {
        std::optional<int> value;
        store.attempt([&] { value = statement(store, club); });
        return value;
    };
    const std::optional<int> homeClass = read(sql::league::clubClass, homeClub);
    const std::optional<int> awayClass = read(sql::league::clubClass, awayClub);
    if (!homeClass || !awayClass || *homeClass == *awayClass)
        return true;
    const std::optional<int> homePlace = read(sql::league::tablePlace, homeClub);
    const std::optional<int> awayPlace = read(sql::league::tablePlace, awayClub);
    return !homePlace || !awayPlace || std::abs(*homePlace - *awayPlace) == 1;
}

} // namespace game
