#include "careerfixture.h"
#include "reports/roundresults.h"
#include "reports/standings.h"

using game::RoundResults;
using game::Standings;

class StandingsTest : public CareerTest
{
protected:
    void SetUp() override
    {
        CareerTest::SetUp();
        startCareer();
    }
};

// Guards: a table ordered on goal difference or goals scored, a tie that wavers, or the
// places written the season's close way round (16 at the top) when the player looks at it.
TEST_F(StandingsTest, ordersOnPointsThenGoalsAgainstAndWritesOneAtTheTop)
{
    ASSERT_TRUE(m_store->run([&] {
        m_store->execute("update asobal set Puntos = 0, Goles_Contra = 0, Goles_Favor = 0, Puesto_Actual = 17 - teams");
        m_store->execute("update asobal set Puntos = 4, Goles_Contra = 60, Goles_Favor = 90,"
                         " \"Partidos_ Ganados\" = 2 where teams = 7");
        m_store->execute("update asobal set Puntos = 4, Goles_Contra = 50, Goles_Favor = 51,"
                         " \"Partidos_ Ganados\" = 1, Partidos_Empatados = 2, Partidos_Perdidos = 1 where teams = 11");
    }).ok());
    const std::vector<Standings::Row> table = Standings(*m_context).look();
    ASSERT_EQ(table.size(), 16u);
    EXPECT_EQ(table[0].club, 11); // fewer against, whatever the goals scored
    EXPECT_EQ(table[0].played, 4);
    EXPECT_EQ(table[1].club, 7);
    EXPECT_EQ(table[2].club, 1); // the rest level: by id
    EXPECT_EQ(table[15].club, 16);
    EXPECT_EQ(m_store->integer("select Puesto_Actual from asobal where teams = 11"), 1);
    EXPECT_EQ(m_store->integer("select Puesto_Actual from asobal where teams = 16"), 16);
    const std::vector<Standings::Row> again = Standings(*m_context).look();
    EXPECT_EQ(again[0].club, 11);
    EXPECT_EQ(m_store->integer("select Puesto_Actual from asobal where teams = 7"), 2);
    EXPECT_TRUE(m_dialogs.messages().empty());

    // A place the store refuses is skipped without a word; the table is shown all the same.
    ASSERT_TRUE(m_store->run([&] {
        m_store->execute("update asobal set Puesto_Actual = 0");
        m_store->execute("create temp trigger broken before update on asobal when new.teams = 7"
                         " begin select raise(abort, 'database or disk is full'); end");
    }).ok());
    EXPECT_EQ(Standings(*m_context).look().size(), 16u);
    EXPECT_TRUE(m_dialogs.messages().empty());
    EXPECT_EQ(m_store->integer("select Puesto_Actual from asobal where teams = 11"), 1);
}

// Guards: the round of the week counted with the friendlies, a round outside 1 to 30, a
// 0-0 shown as a score, or the user's match not marked.
TEST_F(StandingsTest, aRoundShowsItsEightMatchesFromTheTemplateAndMarksTheUsers)
{
    planSeason(2);
    RoundResults results(*m_context);
    ASSERT_TRUE(m_store->run([&] { m_store->execute("update datos_jugador set jornada = 1"); }).ok());
    EXPECT_EQ(results.currentRound(), 1); // a friendly week shows round 1
    ASSERT_TRUE(m_store->run([&] { m_store->execute("update datos_jugador set jornada = 9"); }).ok());
    EXPECT_EQ(results.currentRound(), 7);
    EXPECT_EQ(RoundResults::next(30), 30);
    EXPECT_EQ(RoundResults::previous(1), 1);
    EXPECT_EQ(RoundResults::next(7), 8);

    const int first = int(m_store->integer("select min(idpartido) from liga_asobal where jornada = 3"));
    ASSERT_TRUE(m_store->run([&] {
        m_store->execute("update liga_asobal set goles_equipo_local = 28, goles_equipo_visitante = 0 where idpartido = ?", first);
    }).ok());
    const auto round = results.round(3);
    ASSERT_EQ(round.size(), 8u);
    EXPECT_EQ(round[0].homeGoals, QStringLiteral("28"));
    EXPECT_EQ(round[0].awayGoals, QStringLiteral("0"));
    EXPECT_TRUE(round[1].homeGoals.isEmpty()); // not played: no score
    int users = 0;
    for (const auto &match : round) {
        users += match.users ? 1 : 0;
        EXPECT_FALSE(match.home.isEmpty());
    }
    EXPECT_EQ(users, 1);
    const QString own = m_store->text("select NombreEquipo from equipos where idequipo = ?", kClub);
    for (const auto &match : round)
        EXPECT_EQ(match.users, match.home == own || match.away == own);
}
