#include "league/fixture.h"
#include "careerfixture.h"
#include "match/results.h"

#include <string>
#include <vector>

using game::Results;

class ResultsTest : public CareerTest
{
protected:
    // A career in its first league week: no friendlies, so week 1 is round 1.
    void SetUp() override
    {
        CareerTest::SetUp();
        startCareer();
        planSeason(0);
        const auto first = game::fixtureOfWeek(*m_store, 1, kClub);
        ASSERT_TRUE(first.has_value());
        ASSERT_TRUE(first->isLeague());
        m_fixture = *first;
    }

    bool record(int homeGoals, int awayGoals) { return Results(*m_context).record(m_fixture, homeGoals, awayGoals); }

    // A club's line of the table: won, drawn, lost, goals for, goals against, points.
    std::string line(int club)
    {
        return text("select \"Partidos_ Ganados\" || ' ' || Partidos_Empatados || ' ' || Partidos_Perdidos || ' '"
                    " || Goles_Favor || ' ' || Goles_Contra || ' ' || Puntos from asobal where teams = ?",
                    club)
            .toStdString();
    }

    // The line a club has after its first match ends goalsFor to goalsAgainst.
    static std::string lineAfter(int goalsFor, int goalsAgainst)
    {
        const bool won = goalsFor > goalsAgainst;
        const bool drawn = goalsFor == goalsAgainst;
        return std::to_string(won) + " " + std::to_string(drawn) + " " + std::to_string(!won && !drawn) + " "
               + std::to_string(goalsFor) + " " + std::to_string(goalsAgainst) + " "
               + std::to_string(won ? 2 : drawn ? 1 : 0);
    }

    std::string score(int idpartido)
    {
        return text("select goles_equipo_local || '-' || goles_equipo_visitante from liga_asobal where idpartido = ?",
                    idpartido)
            .toStdString();
    }

    // The other fixtures of the user's round, in fixture order.
    std::vector<int> otherFixtures()
    {
        std::vector<int> ids;
        game::GameStore::Query rows = m_store->query(
            "select idpartido from liga_asobal where jornada = ? and idpartido <> ? order by idpartido",
            m_fixture.round, m_fixture.idpartido);
        while (rows.next())
            ids.push_back(rows.integer(0));
        return ids;
    }

    int clubAt(int idpartido, const std::string &side)
    {
        return int(value("select teams from asobal where puesto_anterior ="
                         " (select pos_equipo_" + side + " from liga_asobal where idpartido = ?)",
                         idpartido));
    }

    // Every player of the club gets this rating.
    void rate(int club, int media) { exec("update jugadores set Media = ? where idequipo = ?", media, club); }

    void addPlayer(int club, int media)
    {
        exec("insert into jugadores values (null, ?, 'Prueba', 'Suplente', 18, 'Portero', ?, 99, 'España', 1000, 100,"
             " 0, 0, 0, 0, 0, 1)",
             club, media);
    }

    // Gives the club an average of exactly media + 0.5: an even squad, half a point a player
    // put on one of them.
    void rateHalfAbove(int club, int media)
    {
        rate(club, media);
        if (count("jugadores where idequipo = " + std::to_string(club)) % 2 != 0)
            addPlayer(club, media);
        exec("update jugadores set Media = Media + ? where idjugador = (select min(idjugador) from jugadores"
             " where idequipo = ?)",
             int(count("jugadores where idequipo = " + std::to_string(club)) / 2), club);
    }

    game::Fixture m_fixture;
};

struct UserScoreCase {
    friend void PrintTo(const UserScoreCase &c, std::ostream *out) { *out << c.home << "-" << c.away; }
    const char *name;
    int home;
    int away;
    const char *homeLine; // won drawn lost for against points
    const char *awayLine;
    bool homeWrittenFirst;
};

class UserResult : public ResultsTest, public ::testing::WithParamInterface<UserScoreCase>
{};

// Guards: a result given to the wrong club, scores compared as text, points or goals
// misplaced, or the winner's line not written before the loser's.
TEST_P(UserResult, givesBothClubsTheirWinDrawOrDefeat)
{
    const UserScoreCase &c = GetParam();
    // Records the order in which the clubs' lines are written.
    exec("create temp table written (team integer)");
    exec("create temp trigger note_written after update on asobal begin insert into written values (new.teams); end");

    ASSERT_TRUE(record(c.home, c.away));

    EXPECT_EQ(score(m_fixture.idpartido), std::to_string(c.home) + "-" + std::to_string(c.away));
    EXPECT_EQ(line(m_fixture.homeId), c.homeLine);
    EXPECT_EQ(line(m_fixture.awayId), c.awayLine);
    const int home = m_fixture.homeId, away = m_fixture.awayId;
    EXPECT_EQ(text("select group_concat(team) from (select team from temp.written order by rowid limit 2)"),
              c.homeWrittenFirst ? QStringLiteral("%1,%2").arg(home).arg(away) : QStringLiteral("%1,%2").arg(away).arg(home));
    EXPECT_TRUE(m_dialogs.messages().empty());
}

INSTANTIATE_TEST_SUITE_P(
    Scores, UserResult,
    ::testing::Values(UserScoreCase{"homeWin", 27, 25, "1 0 0 27 25 2", "0 0 1 25 27 0", true},
                      UserScoreCase{"homeWinTwoDigitsOverOne", 10, 9, "1 0 0 10 9 2", "0 0 1 9 10 0", true},
                      UserScoreCase{"homeDefeatOneDigitUnderTwo", 9, 10, "0 0 1 9 10 0", "1 0 0 10 9 2", false},
                      UserScoreCase{"awayWinByMany", 18, 33, "0 0 1 18 33 0", "1 0 0 33 18 2", false},
                      UserScoreCase{"draw", 30, 30, "0 1 0 30 30 1", "0 1 0 30 30 1", true},
                      UserScoreCase{"goallessDraw", 0, 0, "0 1 0 0 0 1", "0 1 0 0 0 1", true}),
    [](const auto &info) { return std::string(info.param.name); });

using FriendlyResult = CareerTest;

// Guards: a friendly that writes a score or moves the table, or plays the league round.
TEST_F(FriendlyResult, leavesTheLeagueUntouched)
{
    startCareer();
    planSeason(1);
    const auto friendly = game::fixtureOfWeek(*m_store, 1, kClub);
    ASSERT_TRUE(friendly.has_value());
    ASSERT_FALSE(friendly->isLeague());
    const QString fixtures = dump("liga_asobal");
    const QString table = dump("asobal");

    EXPECT_TRUE(Results(*m_context).record(*friendly, 30, 20));

    EXPECT_EQ(dump("liga_asobal"), fixtures);
    EXPECT_EQ(dump("asobal"), table);
    EXPECT_TRUE(m_dialogs.messages().empty());
}

// Guards: fixtures of the round left unplayed, played twice or out of fixture order, the
// user's fixture simulated with the rest, goals or points booked to the wrong club or one
// side only, other rounds or the squads touched.
TEST_F(ResultsTest, theOtherFixturesOfTheRoundArePlayedOnceInFixtureOrder)
{
    const std::vector<int> others = otherFixtures();
    ASSERT_EQ(others.size(), 7u);
    exec("update jugadores set Media = 70 where idequipo in (select teams from asobal)");
    const QString players = dump("jugadores");
    // All squads equal, so each away side draws first, from 21 up.
    for (int index = 0; index < 7; ++index) {
        m_random.scriptDraw(21 + index, 41);
        m_random.scriptDraw(1 + index, 41);
    }

    ASSERT_TRUE(record(0, 0));

    EXPECT_EQ(score(m_fixture.idpartido), "0-0");
    EXPECT_EQ(line(m_fixture.homeId), lineAfter(0, 0));
    EXPECT_EQ(line(m_fixture.awayId), lineAfter(0, 0));
    for (int index = 0; index < 7; ++index) {
        const int other = others[std::size_t(index)];
        EXPECT_EQ(score(other), std::to_string(1 + index) + "-" + std::to_string(21 + index)) << other;
        EXPECT_EQ(line(clubAt(other, "local")), lineAfter(1 + index, 21 + index)) << other;
        EXPECT_EQ(line(clubAt(other, "visitante")), lineAfter(21 + index, 1 + index)) << other;
    }
    EXPECT_EQ(count("liga_asobal where jornada <> " + std::to_string(m_fixture.round)
                    + " and goles_equipo_local + goles_equipo_visitante > 0"),
              0);
    EXPECT_EQ(count("asobal where \"Partidos_ Ganados\" + Partidos_Empatados + Partidos_Perdidos <> 1"), 0);
    EXPECT_EQ(dump("jugadores"), players);
}

struct StrengthCase {
    friend void PrintTo(const StrengthCase &c, std::ostream *out) { *out << c.name; }
    const char *name;
    int homeMedia;
    bool homeHalfAbove; // the home squad averages homeMedia + 0.5
    int awayMedia;
    bool weakHomePlayer; // a player rated 1 joins the home squad
    std::vector<int> draws; // of 1 to 41, in order
    int home;
    int away;
};

class SimulatedResult : public ResultsTest, public ::testing::WithParamInterface<StrengthCase>
{};

// Guards: the high range given to the wrong side, no redraw below 21, the other side's goals
// drawn first, an average over part of the squad or not rounded half to even, a level score
// not booked as a draw.
TEST_P(SimulatedResult, givesTheStrongerSquadTwentyOneToFortyOneGoals)
{
    const StrengthCase &c = GetParam();
    const int fixture = otherFixtures().front();
    const int homeClub = clubAt(fixture, "local");
    const int awayClub = clubAt(fixture, "visitante");
    if (c.homeHalfAbove)
        rateHalfAbove(homeClub, c.homeMedia);
    else
        rate(homeClub, c.homeMedia);
    if (c.weakHomePlayer)
        addPlayer(homeClub, 1);
    rate(awayClub, c.awayMedia);
    for (const int value : c.draws)
        m_random.scriptDraw(value, 41);

    ASSERT_TRUE(record(27, 25));

    EXPECT_EQ(score(fixture), std::to_string(c.home) + "-" + std::to_string(c.away));
    EXPECT_EQ(line(homeClub), lineAfter(c.home, c.away));
    EXPECT_EQ(line(awayClub), lineAfter(c.away, c.home));
}

INSTANTIATE_TEST_SUITE_P(
    Strengths, SimulatedResult,
    ::testing::Values(
        // A first draw below 21 for the stronger side is thrown away.
        StrengthCase{"strongerHomeRedrawsBelow21", 80, false, 60, false, {5, 30, 12}, 30, 12},
        StrengthCase{"strongerAwayRedrawsBelow21", 60, false, 80, false, {5, 30, 12}, 12, 30},
        StrengthCase{"equalStrengthFavoursTheAwaySide", 70, false, 70, false, {3, 25, 33}, 33, 25},
        StrengthCase{"levelScoreIsADraw", 80, false, 60, false, {30, 30}, 30, 30},
        StrengthCase{"weakerSideCanWin", 80, false, 60, false, {21, 41}, 21, 41},
        // 70 a player and one rated 1 average about 66, below the away side's 69.
        StrengthCase{"everyPlayerCountsInTheAverage", 70, false, 69, true, {25, 10}, 10, 25},
        // 70.5 rounds to 70, level with the away side.
        StrengthCase{"halfAverageRoundsDownToEven", 70, true, 70, false, {25, 10}, 10, 25},
        // 69.5 rounds to 70, above the away side's 69.
        StrengthCase{"halfAverageRoundsUpToEven", 69, true, 69, false, {25, 10}, 25, 10}),
    [](const auto &info) { return std::string(info.param.name); });

// Guards: a round half written when the store fails, or a failure the player never hears of.
TEST_F(ResultsTest, aFailedRecordingLeavesTheLeagueAsItWasAndTellsThePlayer)
{
    exec("drop table jugadores");
    const QString fixtures = dump("liga_asobal");
    const QString table = dump("asobal");

    EXPECT_FALSE(record(27, 25));

    EXPECT_EQ(dump("liga_asobal"), fixtures);
    EXPECT_EQ(dump("asobal"), table);
    ASSERT_EQ(m_dialogs.messages().size(), 1u);
    EXPECT_EQ(m_dialogs.messages().front().icon, game::Dialogs::Icon::Exclamation);
    EXPECT_FALSE(m_dialogs.messages().front().text.isEmpty());
}
