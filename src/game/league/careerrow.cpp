#include "careerrow.h"

#include "league/statements.h"
#include "store/gamestore.h"

namespace game {

namespace {
constexpr int kFirstYear = 2004;
} // namespace

QString seasonYears(int season)
{
    const int first = kFirstYear + season - 1;
    return QStringLiteral("%1-%2").arg(first).arg(first + 1);
}

QDate dateInSeason(const QDate &stored, int season)
{
    return stored.isValid() ? stored.addYears(season - 1) : stored;
}

CareerRow CareerRow::read(GameStore &store)
{
    return sql::league::careerRow(store);
}

CareerRow CareerRow::current(Context context)
{
    CareerRow row;
    context.store.attempt([&] { row = read(context.store); });
    return row;
}

int userClub(GameStore &store)
{
    return sql::league::userClub(store);
}

} // namespace game
