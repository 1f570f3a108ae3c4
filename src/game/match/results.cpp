#include "results.h"

#include "dialogs.h"
#include "money.h"
#include "random.h"
#include "store/gamestore.h"

#include <vector>

namespace game {

namespace {

// Goals of a simulated fixture: anyone scores 1 to 41, the stronger side at least 21.
constexpr int kMostGoals = 41;
constexpr int kFewestGoalsOfTheStronger = 21;

} // namespace

bool Results::record(const Fixture &fixture, int homeGoals, int awayGoals)
{
    // A friendly counts for nothing in the league.
    if (!fixture.isLeague())
        return true;

    GameStore &store = m_context.store;
    const Result written = store.run([&] {
        settle(fixture.idpartido, fixture.homeId, fixture.awayId, homeGoals, awayGoals);

        // The rest of the round is played now, in fixture order. The rows are read first so
        // that no read of liga_asobal is open while its scores are written.
        struct Other {
            int idpartido;
            int homePosition;
            int awayPosition;
        };
        std::vector<Other> others;
        {
            GameStore::Query round = store.query(
                "select idpartido, pos_equipo_local, pos_equipo_visitante from liga_asobal"
                " where jornada = (select jornada from liga_asobal where idpartido = ?1)"
                " and idpartido <> ?1 order by idpartido",
                fixture.idpartido);
            while (round.next())
                others.push_back({round.integer(0), round.integer(1), round.integer(2)});
        }
        for (const Other &other : others)
            simulate(other.idpartido, other.homePosition, other.awayPosition);
    });
    if (!written) {
        m_context.dialogs.tell(written.message(), Dialogs::Icon::Exclamation);
        return false;
    }
    return true;
}

void Results::settle(int idpartido, int homeClub, int awayClub, int homeGoals, int awayGoals)
{
    m_context.store.execute(
        "update liga_asobal set goles_equipo_local = ?, goles_equipo_visitante = ? where idpartido = ?",
        homeGoals, awayGoals, idpartido);
    // The winner's line is written before the loser's; in a draw the home club's comes first.
    if (homeGoals > awayGoals) {
        win(homeClub, homeGoals, awayGoals);
        lose(awayClub, awayGoals, homeGoals);
    } else if (homeGoals < awayGoals) {
        win(awayClub, awayGoals, homeGoals);
        lose(homeClub, homeGoals, awayGoals);
    } else {
        draw(homeClub, homeGoals, awayGoals);
        draw(awayClub, awayGoals, homeGoals);
    }
}

// A win is worth two points, a draw one, a defeat none.
void Results::win(int club, int goalsFor, int goalsAgainst)
{
    m_context.store.execute("update asobal set \"Partidos_ Ganados\" = \"Partidos_ Ganados\" + 1,"
                            " Goles_Favor = Goles_Favor + ?, Goles_Contra = Goles_Contra + ?,"
                            " Puntos = Puntos + 2 where teams = ?",
                            goalsFor, goalsAgainst, club);
}

void Results::draw(int club, int goalsFor, int goalsAgainst)
{
    m_context.store.execute("update asobal set Partidos_Empatados = Partidos_Empatados + 1,"
                            " Goles_Favor = Goles_Favor + ?, Goles_Contra = Goles_Contra + ?,"
                            " Puntos = Puntos + 1 where teams = ?",
                            goalsFor, goalsAgainst, club);
}

void Results::lose(int club, int goalsFor, int goalsAgainst)
{
    m_context.store.execute("update asobal set Partidos_Perdidos = Partidos_Perdidos + 1,"
                            " Goles_Favor = Goles_Favor + ?, Goles_Contra = Goles_Contra + ?"
                            " where teams = ?",
                            goalsFor, goalsAgainst, club);
}

void Results::simulate(int idpartido, int homePosition, int awayPosition)
{
    const int homeClub = clubAt(homePosition);
    const int awayClub = clubAt(awayPosition);
    // Only the sign of the difference counts: the stronger squad scores 21 to 41 and the
    // other 1 to 41, so the weaker one still wins now and then. At equal strength the away
    // side is taken as the stronger. The stronger side's goals are drawn first.
    int homeGoals = 0;
    int awayGoals = 0;
    if (strength(homeClub) > strength(awayClub)) {
        homeGoals = strongerGoals();
        awayGoals = m_context.random.draw(kMostGoals);
    } else {
        awayGoals = strongerGoals();
        homeGoals = m_context.random.draw(kMostGoals);
    }
    settle(idpartido, homeClub, awayClub, homeGoals, awayGoals);
}

int Results::clubAt(int position)
{
    return int(m_context.store.integer("select teams from asobal where puesto_anterior = ?", position));
}

int Results::strength(int club)
{
    // Every player of the club counts, not just a line-up.
    GameStore::Query squad = m_context.store.query(
        "select coalesce(sum(Media), 0), count(*) from jugadores where idequipo = ?", club);
    if (!squad.next())
        return 0;
    return int(roundHalfEven(squad.integer64(0), squad.integer64(1)));
}

int Results::strongerGoals()
{
    int goals = 0;
    do
        goals = m_context.random.draw(kMostGoals);
    while (goals < kFewestGoalsOfTheStronger);
    return goals;
}

} // namespace game
