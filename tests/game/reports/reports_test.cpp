#include "careerfixture.h"
#include "reports/calendar.h"
#include "reports/roundresults.h"
#include "reports/standings.h"

using game::Calendar;
using game::RoundResults;
using game::Standings;

// Guards: friendlies labelled as league rounds, the presentation not told apart, the week
// shown where the round belongs, or a week past the season showing a match.
TEST_F(CareerTest, theCalendarShowsFriendliesThenTheLeagueByRoundAndNothingPastTheSeason)
{
    startCareer();
    planSeason(5);
    const std::vector<Calendar::Row> rows = Calendar(*m_store).rows(1, kClub);
    ASSERT_EQ(rows.size(), 7u);
    EXPECT_EQ(rows[0].type + rows[3].subtype, QStringLiteral("PretemporadaPreparación"));
    EXPECT_EQ(rows[4].subtype + rows[4].date, QStringLiteral("Presentación28/08/2004"));
    EXPECT_TRUE(rows[4].fixture.startsWith(QStringLiteral("Portland San Antonio - ")));
    EXPECT_EQ(rows[5].type + rows[5].subtype, QStringLiteral("Liga ASOBALJornada 1"));
    const std::vector<Calendar::Row> last = Calendar(*m_store).rows(33, kClub);
    EXPECT_EQ(last[2].subtype, QStringLiteral("Jornada 30"));
    EXPECT_FALSE(last[2].empty);
    EXPECT_TRUE(last[3].empty && last[3].fixture.isEmpty() && last[6].empty);
}

// Guards: a table ordered on goal difference or goals scored, a tie that wavers, the places
// written the season's close way round (16 at the top) when the player looks at it, or a
// place the store refuses stopping the table.
TEST_F(StoreTest, theTableOrdersOnPointsThenGoalsAgainstAndWritesOneAtTheTop)
{
    exec("update asobal set Puntos = 0, Goles_Contra = 0, Goles_Favor = 0, Puesto_Actual = 17 - teams");
    exec("update asobal set Puntos = 4, Goles_Contra = 60, Goles_Favor = 90, \"Partidos_ Ganados\" = 2 where teams = 7");
    exec("update asobal set Puntos = 4, Goles_Contra = 50, Goles_Favor = 51, \"Partidos_ Ganados\" = 1,"
         " Partidos_Empatados = 2, Partidos_Perdidos = 1 where teams = 11");
    const std::vector<Standings::Row> table = Standings(*m_context).look();
    ASSERT_EQ(table.size(), 16u);
    EXPECT_EQ(table[0].club * 100 + table[0].played, 1104); // fewer against, whatever the goals scored
    EXPECT_EQ(table[0].drawn * 100 + table[0].goalsFor, 251);
    EXPECT_EQ(table[1].club, 7);
    EXPECT_EQ(table[2].club, 1); // the rest level: by id
    EXPECT_EQ(table[15].club, 16);
    EXPECT_EQ(text("select group_concat(Puesto_Actual) from (select * from asobal where teams in (7, 11, 16) order by teams)"),
              QStringLiteral("2,1,16"));

    exec("update asobal set Puesto_Actual = 0");
    exec("create temp trigger broken before update on asobal when new.teams = 7"
         " begin select raise(abort, 'database or disk is full'); end");
    EXPECT_EQ(Standings(*m_context).look().size(), 16u);
    EXPECT_TRUE(m_dialogs.messages().empty());
    EXPECT_EQ(value("select Puesto_Actual from asobal where teams = 11"), 1);
}

// Guards: the round of the week counted with the friendlies, a round outside 1 to 30, a 0-0
// shown as a score, or the user's match not marked.
TEST_F(CareerTest, aRoundShowsItsEightMatchesFromTheTemplateAndMarksTheUsers)
{
    startCareer();
    planSeason(2);
    RoundResults results(*m_context);
    exec("update datos_jugador set jornada = 1");
    EXPECT_EQ(results.currentRound(), 1); // a friendly week shows round 1
    exec("update datos_jugador set jornada = 9");
    EXPECT_EQ(results.currentRound(), 7);
    EXPECT_EQ(RoundResults::next(30) * 100 + RoundResults::previous(1) * 10 + RoundResults::next(7), 3018);

    exec("update liga_asobal set goles_equipo_local = 28, goles_equipo_visitante = 0 where idpartido ="
         " (select min(idpartido) from liga_asobal where jornada = 3)");
    const auto round = results.round(3);
    ASSERT_EQ(round.size(), 8u);
    EXPECT_EQ(round[0].homeGoals + '-' + round[0].awayGoals, QStringLiteral("28-0"));
    EXPECT_TRUE(round[1].homeGoals.isEmpty() && round[1].awayGoals.isEmpty()); // not played: no score
    const QString own = text("select NombreEquipo from equipos where idequipo = ?", kClub);
    int users = 0;
    for (const auto &match : round) {
        users += match.users ? 1 : 0;
        EXPECT_FALSE(match.home.isEmpty() || match.away.isEmpty());
        EXPECT_EQ(match.users, match.home == own || match.away == own);
    }
    EXPECT_EQ(users, 1);
}
