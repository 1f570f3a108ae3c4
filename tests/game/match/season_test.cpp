#include "match/season.h"
#include "tempstore.h"

// Guards: a season that cannot be played to its end, or a table that does not add up after
// thirty rounds played by the engine and the strength rule together.
TEST_F(StoreTest, aWholeSeasonPlaysToTheEndAndTheTableAddsUp)
{
    m_random = ScriptedRandom(31);
    game::AutoSeason season(*m_context, {9, 3});
    ASSERT_TRUE(season.begin());
    int weeks = 0;
    while (season.playWeek())
        ASSERT_LT(++weeks, 40);
    EXPECT_TRUE(season.failure().isEmpty()) << season.failure().toStdString();
    EXPECT_EQ(season.totals().weeks, 33);
    EXPECT_EQ(season.totals().matches, 33);
    EXPECT_EQ(m_store->integer("select jornada from datos_jugador"), 34);

    EXPECT_EQ(m_store->integer("select count(*) from liga_asobal where goles_equipo_local = 0 and goles_equipo_visitante = 0"), 0);
    EXPECT_EQ(m_store->integer("select count(*) from asobal where \"Partidos_ Ganados\" + Partidos_Empatados + Partidos_Perdidos <> 30"), 0);
    EXPECT_EQ(m_store->integer("select sum(Goles_Favor) - sum(Goles_Contra) from asobal"), 0);
    EXPECT_EQ(m_store->integer("select sum(goles_equipo_local + goles_equipo_visitante) from liga_asobal"),
              m_store->integer("select sum(Goles_Favor) from asobal"));
    EXPECT_EQ(m_store->integer("select sum(Puntos) from asobal"), 240 * 2);
    // The user's club's line in the table holds the goals of its thirty fixtures.
    EXPECT_EQ(m_store->integer("select Goles_Favor from asobal where teams = 9"),
              m_store->integer("select sum(case when h.teams = 9 then goles_equipo_local else goles_equipo_visitante end)"
                               " from liga_asobal f join asobal h on h.puesto_anterior = f.pos_equipo_local"
                               " join asobal a on a.puesto_anterior = f.pos_equipo_visitante where 9 in (h.teams, a.teams)"));
    EXPECT_EQ(count("caja"), 33);
    EXPECT_EQ(m_dialogs.messages().size(), 0u);
}
