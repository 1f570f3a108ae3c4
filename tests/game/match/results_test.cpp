#include "league/fixture.h"
#include "careerfixture.h"
#include "match/results.h"

#include <algorithm>
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
        game::GameStore::Query row = m_store->query(
            "select \"Partidos_ Ganados\", Partidos_Empatados, Partidos_Perdidos, Goles_Favor, Goles_Contra, Puntos"
            " from asobal where teams = ?",
            club);
        if (!row.next())
            return "missing";
        std::string text;
        for (int column = 0; column < 6; ++column)
            text += (column ? " " : "") + std::to_string(row.integer(column));
        return text;
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
        game::GameStore::Query row = m_store->query(
            "select goles_equipo_local, goles_equipo_visitante from liga_asobal where idpartido = ?", idpartido);
        if (!row.next())
            return "missing";
        return std::to_string(row.integer(0)) + "-" + std::to_string(row.integer(1));
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

    int clubAt(int idpartido, const char *side)
    {
        const std::string column = std::string("pos_equipo_") + side;
        const int position = int(m_store->integer("select " + column + " from liga_asobal where idpartido = ?", idpartido));
        return int(m_store->integer("select teams from asobal where puesto_anterior = ?", position));
    }

    void change(const std::function<void()> &body)
    {
        const game::Result changed = m_store->run(body);
        ASSERT_TRUE(changed.ok()) << changed.message().toStdString();
    }

    // Every player of the club gets this rating.
    void rate(int club, int media)
    {
        change([&] { m_store->execute("update jugadores set Media = ? where idequipo = ?", media, club); });
    }

    void addPlayer(int club, int media)
    {
        change([&] {
            m_store->execute("insert into jugadores values (null, ?, 'Prueba', 'Suplente', 18, 'Portero', ?, 99,"
                             " 'España', 1000, 100, 0, 0, 0, 0, 0, 1)",
                             club, media);
        });
    }

    // Gives the club an average of exactly media + 0.5: an even squad, half a point a player
    // put on one of them.
    void rateHalfAbove(int club, int media)
    {
        rate(club, media);
        if (m_store->integer("select count(*) from jugadores where idequipo = ?", club) % 2 != 0)
            addPlayer(club, media);
        const qint64 squad = m_store->integer("select count(*) from jugadores where idequipo = ?", club);
        change([&] {
            m_store->execute("update jugadores set Media = Media + ? where idjugador ="
                             " (select min(idjugador) from jugadores where idequipo = ?)",
                             int(squad / 2), club);
        });
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
    change([&] {
        m_store->execute("create temp table written (team integer)");
        m_store->execute("create temp trigger note_written after update on asobal"
                         " begin insert into written values (new.teams); end");
    });

    ASSERT_TRUE(record(c.home, c.away));

    EXPECT_EQ(score(m_fixture.idpartido), std::to_string(c.home) + "-" + std::to_string(c.away));
    EXPECT_EQ(line(m_fixture.homeId), c.homeLine);
    EXPECT_EQ(line(m_fixture.awayId), c.awayLine);
    const int first = c.homeWrittenFirst ? m_fixture.homeId : m_fixture.awayId;
    const int second = c.homeWrittenFirst ? m_fixture.awayId : m_fixture.homeId;
    EXPECT_EQ(m_store->integer("select team from temp.written order by rowid limit 1"), first);
    EXPECT_EQ(m_store->integer("select team from temp.written order by rowid limit 1 offset 1"), second);
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

// A career whose first week is a friendly.
class FriendlyResultTest : public CareerTest
{};

// Guards: a friendly that writes a score or moves the table, or plays the league round.
TEST_F(FriendlyResultTest, leavesTheLeagueUntouched)
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

// Guards: fixtures of the round left unplayed or played twice, goals booked to one side only,
// points out of step with results, the user's score overwritten, other rounds or squads touched.
TEST_F(ResultsTest, theWholeRoundIsPlayedOnceAndTheTableAddsUp)
{
    const QString players = dump("jugadores");
    const qint64 goalsForBefore = m_store->integer("select sum(Goles_Favor) from asobal");
    const qint64 goalsAgainstBefore = m_store->integer("select sum(Goles_Contra) from asobal");
    const qint64 playedBefore = m_store->integer(
        "select sum(\"Partidos_ Ganados\" + Partidos_Empatados + Partidos_Perdidos) from asobal");

    ASSERT_TRUE(record(27, 25));

    EXPECT_EQ(m_store->integer("select count(*) from liga_asobal where jornada = ?", m_fixture.round), 8);
    EXPECT_EQ(m_store->integer("select count(*) from liga_asobal where jornada = ?"
                               " and goles_equipo_local + goles_equipo_visitante > 0",
                               m_fixture.round),
              8);
    EXPECT_EQ(m_store->integer("select count(*) from liga_asobal where jornada <> ?"
                               " and goles_equipo_local + goles_equipo_visitante > 0",
                               m_fixture.round),
              0);
    EXPECT_EQ(score(m_fixture.idpartido), "27-25");

    EXPECT_EQ(m_store->integer("select count(*) from asobal"), 16);
    EXPECT_EQ(m_store->integer("select count(*) from asobal"
                               " where \"Partidos_ Ganados\" + Partidos_Empatados + Partidos_Perdidos = 1"),
              16);
    EXPECT_EQ(m_store->integer("select sum(\"Partidos_ Ganados\" + Partidos_Empatados + Partidos_Perdidos)"
                               " from asobal"),
              playedBefore + 16);

    const qint64 roundGoals = m_store->integer(
        "select sum(goles_equipo_local + goles_equipo_visitante) from liga_asobal where jornada = ?", m_fixture.round);
    EXPECT_EQ(m_store->integer("select sum(Goles_Favor) from asobal") - goalsForBefore, roundGoals);
    EXPECT_EQ(m_store->integer("select sum(Goles_Contra) from asobal") - goalsAgainstBefore, roundGoals);

    const qint64 decided = m_store->integer("select count(*) from liga_asobal where jornada = ?"
                                            " and goles_equipo_local <> goles_equipo_visitante",
                                            m_fixture.round);
    const qint64 level = m_store->integer("select count(*) from liga_asobal where jornada = ?"
                                          " and goles_equipo_local = goles_equipo_visitante",
                                          m_fixture.round);
    EXPECT_EQ(m_store->integer("select sum(Puntos) from asobal"), 2 * decided + 2 * level);
    EXPECT_EQ(m_store->integer("select count(*) from asobal"
                               " where Puntos <> 2 * \"Partidos_ Ganados\" + Partidos_Empatados"),
              0);

    for (const int other : otherFixtures()) {
        const int home = int(m_store->integer("select goles_equipo_local from liga_asobal where idpartido = ?", other));
        const int away = int(m_store->integer("select goles_equipo_visitante from liga_asobal where idpartido = ?", other));
        EXPECT_TRUE(home >= 1 && home <= 41 && away >= 1 && away <= 41) << other << ": " << score(other);
        EXPECT_GE(std::max(home, away), 21) << other;
        EXPECT_EQ(line(clubAt(other, "local")), lineAfter(home, away)) << other;
        EXPECT_EQ(line(clubAt(other, "visitante")), lineAfter(away, home)) << other;
    }
    EXPECT_EQ(line(m_fixture.homeId), lineAfter(27, 25));
    EXPECT_EQ(line(m_fixture.awayId), lineAfter(25, 27));
    EXPECT_EQ(dump("jugadores"), players);
}

// Guards: the round played out of fixture order, or the user's fixture simulated with the rest.
TEST_F(ResultsTest, theOtherFixturesTakeTheirDrawsInFixtureOrder)
{
    const std::vector<int> others = otherFixtures();
    ASSERT_EQ(others.size(), 7u);
    change([&] { m_store->execute("update jugadores set Media = 70 where idequipo in (select teams from asobal)"); });
    // All squads equal, so each away side draws first, from 21 up.
    for (int index = 0; index < 7; ++index) {
        m_random.scriptDraw(21 + index, 41);
        m_random.scriptDraw(1 + index, 41);
    }

    ASSERT_TRUE(record(0, 0));

    EXPECT_EQ(score(m_fixture.idpartido), "0-0");
    for (int index = 0; index < 7; ++index)
        EXPECT_EQ(score(others[index]), std::to_string(1 + index) + "-" + std::to_string(21 + index)) << others[index];
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
    change([&] { m_store->execute("drop table jugadores"); });
    const QString fixtures = dump("liga_asobal");
    const QString table = dump("asobal");

    EXPECT_FALSE(record(27, 25));

    EXPECT_EQ(dump("liga_asobal"), fixtures);
    EXPECT_EQ(dump("asobal"), table);
    ASSERT_EQ(m_dialogs.messages().size(), 1u);
    EXPECT_EQ(m_dialogs.messages().front().icon, game::Dialogs::Icon::Exclamation);
    EXPECT_FALSE(m_dialogs.messages().front().text.isEmpty());
}
