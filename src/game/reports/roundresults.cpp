#include "roundresults.h"

#include "league/careerrow.h"
#include "store/gamestore.h"

namespace game {

int RoundResults::currentRound()
{
    int round = kFirstRound;
    m_context.store.attempt([&] {
        const int week = CareerRow::read(m_context.store).week;
        const int friendlies = int(m_context.store.integer("select count(*) from pretemporada"));
        round = week - friendlies;
    });
    return round < kFirstRound ? kFirstRound : round;
}

std::vector<RoundResults::Match> RoundResults::round(int round)
{
    std::vector<Match> matches;
    m_context.store.attempt([&] {
        const CareerRow career = CareerRow::read(m_context.store);
        GameStore::Query query = m_context.store.query(
            "select coalesce(eh.NombreEquipo, ''), coalesce(ea.NombreEquipo, ''), f.goles_equipo_local,"
            " f.goles_equipo_visitante, coalesce(h.teams, 0), coalesce(a.teams, 0) from liga_asobal f"
            " left join asobal h on h.puesto_anterior = f.pos_equipo_local"
            " left join asobal a on a.puesto_anterior = f.pos_equipo_visitante"
            " left join equipos eh on eh.idequipo = h.teams left join equipos ea on ea.idequipo = a.teams"
            " where f.jornada = ? order by f.idpartido",
            round);
        while (query.next()) {
            Match match;
            match.home = query.text(0);
            match.away = query.text(1);
            const int homeGoals = query.integer(2);
            const int awayGoals = query.integer(3);
            if (homeGoals != 0 || awayGoals != 0) {
                match.homeGoals = QString::number(homeGoals);
                match.awayGoals = QString::number(awayGoals);
            }
            match.users = query.integer(4) == career.club || query.integer(5) == career.club;
            matches.push_back(match);
        }
    });
    return matches;
}

} // namespace game
