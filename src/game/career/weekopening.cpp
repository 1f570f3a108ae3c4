#include "weekopening.h"

#include "dialogs.h"
#include "stadium/ledger.h"
#include "store/gamestore.h"

namespace game {

int WeekOpening::currentWeek(GameStore &store)
{
    return static_cast<int>(store.integer("select jornada from datos_jugador"));
}

int WeekOpening::userClub(GameStore &store)
{
    return static_cast<int>(store.integer("select idequipo from datos_jugador"));
}

int WeekOpening::userClubOrZero(GameStore &store)
{
    int club = 0;
    store.attempt([&] { club = userClub(store); });
    return club;
}

std::optional<WeekOpening::Opened> WeekOpening::open()
{
    GameStore &store = m_context.store;
    Opened opened;
    const Result result = store.run([&] {
        store.execute("update datos_jugador set jornada = jornada + 1");
        opened.week = currentWeek(store);
        const int club = userClub(store);

        // A season with k friendlies ends when week k + 31 opens, a week the calendar does not
        // have. An empty calendar has not ended.
        const qint64 lastWeek = store.integer("select max(semana) from calendario");
        if (lastWeek > 0 && opened.week == lastWeek + 1) {
            opened.seasonOver = true;
            return;
        }
        Ledger(store).openWeek(opened.week, club);
        store.execute("delete from jugar");
    });
    if (!result) {
        m_context.dialogs.tell(result.message(), Dialogs::Icon::Exclamation);
        return std::nullopt;
    }
    return opened;
}

} // namespace game
