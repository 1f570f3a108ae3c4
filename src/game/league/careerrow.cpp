#include "careerrow.h"

#include "league/statements.h"
#include "store/gamestore.h"

namespace game {

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
