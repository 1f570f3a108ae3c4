#include "careerfixture.h"
#include "reports/calendar.h"
#include "reports/roundresults.h"
#include "reports/standings.h"

using game::Calendar;
using game::RoundResults;
using game::Standings;

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
