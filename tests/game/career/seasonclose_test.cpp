#include "career/seasonclose.h"
#include "careerfixture.h"
#include "sim/autoseason.h"

#include <tuple>

using game::SeasonClose;

// A season of club 4 played by the headless manager up to its last week, then taken past
// it: the season is over and waits for its close.
class SeasonCloseTest : public StoreTest
{
protected:
    static constexpr int kClub = 4;

    void playSeason()
    {
        m_random = ScriptedRandom(41);
        game::AutoSeason season(*m_context, {kClub, 2});
        ASSERT_TRUE(season.begin());
        while (season.career().week().number() < 32)
            ASSERT_TRUE(season.playWeek()) << season.failure().toStdString();
        exec("update datos_jugador set jornada = 33");
        m_dialogs.clear();
    }

    // Sets one club's line of the table.
    void setLine(int club, int points, int against)
    {
        exec("update asobal set Puntos = ?, Goles_Contra = ? where teams = ?", points, against, club);
    }

};

// Guards: the ranking written upside down, ties broken on goals scored or at random, or a
// season that keeps its calendar, counters, goals, week or ledger.
TEST_F(SeasonCloseTest, ranksTheChampionSixteenAndEmptiesTheSeason)
{
    playSeason();
    ASSERT_FALSE(HasFatalFailure());
    // Points first, then fewer goals against, then the club's id.
    exec("update asobal set Puntos = 10, Goles_Contra = 500");
    setLine(9, 60, 700);  // most points: champion whatever it conceded
    setLine(3, 50, 400);  // level on points with 5, fewer against: above it
    setLine(5, 50, 450);
    setLine(12, 0, 100);  // level on points and against with 14: the lower id first
    setLine(14, 0, 100);

    const auto verdict = SeasonClose(*m_context).close();
    ASSERT_TRUE(verdict.has_value());
    auto placeOf = [&](int club) {
        return value("select puesto_anterior * 100 + Puesto_Actual from asobal where teams = ?", club);
    };
    EXPECT_EQ(std::tuple(placeOf(9), placeOf(3), placeOf(5), placeOf(12), placeOf(14)),
              std::tuple(1616, 1515, 1414, 202, 101));
    EXPECT_EQ(value("select count(distinct puesto_anterior) from asobal"), 16);

    EXPECT_EQ(std::tuple(verdict->champion, verdict->championName, verdict->last, verdict->secondLast),
              std::tuple(9, clubName(9), clubName(14), clubName(12)));
    EXPECT_EQ(verdict->userPlace, value("select puesto_anterior from asobal where teams = ?", kClub));

    EXPECT_EQ(count("calendario") + count("caja") + value("select jornada from datos_jugador"), 0);
    EXPECT_TRUE(m_dialogs.texts().isEmpty());
}
