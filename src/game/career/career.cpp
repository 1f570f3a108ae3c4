#include "career.h"

#include "store/gamestore.h"

namespace game::Career {

CareerRow read(GameStore &store)
{
    CareerRow row;
    GameStore::Query career = store.query("select jornada, nombre, apellidos, idequipo, NombreEquipo from datos_jugador");
    if (career.next()) {
        row.week = career.integer(0);
        row.nombre = career.text(1);
        row.apellidos = career.text(2);
        row.club = career.integer(3);
        row.clubName = career.text(4);
    }
    return row;
}

int club(GameStore &store)
{
    return static_cast<int>(store.integer("select idequipo from datos_jugador"));
}

CareerRow current(Context context)
{
    CareerRow row;
    context.store.attempt([&] { row = read(context.store); });
    return row;
}

Result discard(Context context)
{
    return context.store.restore();
}

} // namespace game::Career
