#include "seasonclose.h"

#include "league/careerrow.h"
#include "dialogs.h"
#include "stadium/works.h"
#include "store/gamestore.h"
#include "transfers/offers.h"

#include <vector>

namespace game {

std::optional<SeasonClose::Verdict> SeasonClose::close()
{
    GameStore &store = m_context.store;
    Verdict line;
    const Result closed = store.run([&] {
        line = verdict(); // the user's line, before the table is emptied
        // The ranking: points, then fewest goals against, then the club's id for a stable
        // order. The champion takes 16 and the last club 1.
        std::vector<int> ranking;
        {
            GameStore::Query table = store.query("select teams from asobal order by Puntos desc, Goles_Contra, teams");
            while (table.next())
                ranking.push_back(table.integer(0));
        }
        int place = int(ranking.size()) + 1;
        for (const int club : ranking) {
            --place;
            store.execute("update asobal set Puesto_Actual = ?, puesto_anterior = ? where teams = ?", place, place, club);
        }
        store.execute("delete from calendario");
        store.execute("update asobal set \"Partidos_ Ganados\" = 0, Partidos_Empatados = 0, Partidos_Perdidos = 0,"
                      " Goles_Favor = 0, Goles_Contra = 0, Puntos = 0");
        store.execute("update liga_asobal set goles_equipo_local = 0, goles_equipo_visitante = 0");
        store.execute("update datos_jugador set jornada = 0");
        store.execute("delete from caja");
    });
    if (!closed) {
        m_context.dialogs.tell(closed.message(), Dialogs::Icon::Exclamation);
        return std::nullopt;
    }
    Verdict ranked = verdict();
    ranked.won = line.won;
    ranked.drawn = line.drawn;
    ranked.lost = line.lost;
    ranked.goalsFor = line.goalsFor;
    ranked.goalsAgainst = line.goalsAgainst;
    ranked.points = line.points;
    return ranked;
}

SeasonClose::Verdict SeasonClose::verdict()
{
    GameStore &store = m_context.store;
    Verdict verdict;
    store.attempt([&] {
        auto clubAt = [&](int place) {
            return int(store.integer("select teams from asobal where puesto_anterior = ?", place));
        };
        auto nameOf = [&](int club) { return store.text("select NombreEquipo from equipos where idequipo = ?", club); };
        verdict.champion = clubAt(16);
        verdict.championName = nameOf(verdict.champion);
        verdict.last = nameOf(clubAt(1));
        verdict.secondLast = nameOf(clubAt(2));
        const int club = userClub(store);
        verdict.userPlace = int(store.integer("select puesto_anterior from asobal where teams = ?", club));
        GameStore::Query line = store.query("select \"Partidos_ Ganados\", Partidos_Empatados, Partidos_Perdidos,"
                                            " Goles_Favor, Goles_Contra, Puntos from asobal where teams = ?",
                                            club);
        if (line.next()) {
            verdict.won = line.integer(0);
            verdict.drawn = line.integer(1);
            verdict.lost = line.integer(2);
            verdict.goalsFor = line.integer(3);
            verdict.goalsAgainst = line.integer(4);
            verdict.points = line.integer(5);
        }
    });
    return verdict;
}

int SeasonClose::settleQueue()
{
    GameStore &store = m_context.store;
    const int works = Works(m_context).finishAll();
    const Offers::Settled offers = Offers(m_context).settleAllAtClose();
    // The planner starts from an empty pre-season.
    const Result emptied = store.run([&] { store.execute("delete from pretemporada"); });
    if (!emptied)
        m_context.dialogs.tell(emptied.message(), Dialogs::Icon::Exclamation);
    return works + offers.signings + offers.refusals;
}

} // namespace game
