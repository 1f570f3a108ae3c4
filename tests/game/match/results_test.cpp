#include "league/fixture.h"
#include "careerfixture.h"
#include "match/results.h"

using game::Results;

// A career in its first league week: no friendlies, so week 1 is round 1.
class ResultsTest : public CareerTest
{
protected:
    void SetUp() override
    {
        CareerTest::SetUp();
        startCareer();
        planSeason(0);
        const auto first = game::fixtureOfWeek(*m_store, 1, kClub);
        ASSERT_TRUE(first.has_value() && first->isLeague());
        m_fixture = *first;
    }

    bool record(int homeGoals, int awayGoals) { return Results(*m_context).record(m_fixture, homeGoals, awayGoals); }

    // A club's line of the table: won, drawn, lost, goals for, goals against, points.
    QString line(int club)
    {
        return text("select \"Partidos_ Ganados\" || ' ' || Partidos_Empatados || ' ' || Partidos_Perdidos || ' '"
                    " || Goles_Favor || ' ' || Goles_Contra || ' ' || Puntos from asobal where teams = ?",
                    club);
    }
    QString score(int idpartido)
    {
        return text("select goles_equipo_local || '-' || goles_equipo_visitante from liga_asobal where idpartido = ?", idpartido);
    }
    int clubAt(int idpartido, const std::string &side)
    {
        return int(value("select teams from asobal where puesto_anterior = (select pos_equipo_" + side
                             + " from liga_asobal where idpartido = ?)",
                         idpartido));
    }
    qint64 squad(int club) { return value("select count(*) from jugadores where idequipo = ?", club); }

    game::Fixture m_fixture;
};

struct UserScoreCase {
    friend void PrintTo(const UserScoreCase &c, std::ostream *out) { *out << c.name; }
    const char *name;
    int home, away;
    const char *homeLine, *awayLine; // won drawn lost for against points
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

    EXPECT_EQ(score(m_fixture.idpartido), QStringLiteral("%1-%2").arg(c.home).arg(c.away));
    EXPECT_EQ(line(m_fixture.homeId), QString::fromLatin1(c.homeLine));
    EXPECT_EQ(line(m_fixture.awayId), QString::fromLatin1(c.awayLine));
    const int first = c.homeWrittenFirst ? m_fixture.homeId : m_fixture.awayId;
    EXPECT_EQ(value("select team from temp.written order by rowid limit 1"), first);
    EXPECT_EQ(value("select team from temp.written order by rowid limit 1 offset 1"), m_fixture.homeId + m_fixture.awayId - first);
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

struct StrengthCase {
    friend void PrintTo(const StrengthCase &c, std::ostream *out) { *out << c.name; }
    const char *name;
    int homeMedia, awayMedia;
    int extra;       // the rating of a player who joins the home squad; 0 for nobody
    bool halfAbove;  // then half a point a player is put on one of them
    std::vector<int> draws; // of 1 to 41, in order
    const char *score;
    const char *homeLine, *awayLine;
};

class SimulatedResult : public ResultsTest, public ::testing::WithParamInterface<StrengthCase>
{};

// Guards: the high range given to the wrong side, no redraw below 21, the other side's goals
// drawn first, an average over part of the squad or not rounded half to even, a level score
// not booked as a draw; another fixture of the round played with the wrong clubs.
TEST_P(SimulatedResult, givesTheStrongerSquadTwentyOneToFortyOneGoals)
{
    const StrengthCase &c = GetParam();
    const int fixture = int(value("select min(idpartido) from liga_asobal where jornada = 1 and idpartido <> ?",
                                  m_fixture.idpartido));
    const int home = clubAt(fixture, "local"), away = clubAt(fixture, "visitante");
    exec("update jugadores set Media = ? where idequipo = ?", c.homeMedia, home);
    exec("update jugadores set Media = ? where idequipo = ?", c.awayMedia, away);
    if (c.extra) {
        exec("insert into jugadores values (null, ?, 'Prueba', 'Suplente', 18, 'Portero', ?, 99, 'España', 1000, 100,"
             " 0, 0, 0, 0, 0, 1)",
             home, c.extra);
    }
    if (c.halfAbove) {
        ASSERT_EQ(squad(home) % 2, 0);
        exec("update jugadores set Media = Media + ? where idjugador = (select min(idjugador) from jugadores"
             " where idequipo = ?)",
             int(squad(home) / 2), home);
    }
    for (const int drawn : c.draws)
        m_random.scriptDraw(drawn, 41);

    ASSERT_TRUE(record(27, 25));

    EXPECT_EQ(score(fixture), QString::fromLatin1(c.score));
    EXPECT_EQ(line(home), QString::fromLatin1(c.homeLine));
    EXPECT_EQ(line(away), QString::fromLatin1(c.awayLine));
}

INSTANTIATE_TEST_SUITE_P(
    Strengths, SimulatedResult,
    ::testing::Values(
        // A first draw below 21 for the stronger side is thrown away.
        StrengthCase{"strongerHomeRedrawsBelow21", 80, 60, 0, false, {5, 30, 12}, "30-12", "1 0 0 30 12 2", "0 0 1 12 30 0"},
        StrengthCase{"strongerAwayRedrawsBelow21", 60, 80, 0, false, {5, 30, 12}, "12-30", "0 0 1 12 30 0", "1 0 0 30 12 2"},
        StrengthCase{"equalStrengthFavoursTheAwaySide", 70, 70, 0, false, {3, 25, 33}, "33-25", "1 0 0 33 25 2", "0 0 1 25 33 0"},
        StrengthCase{"levelScoreIsADraw", 80, 60, 0, false, {30, 30}, "30-30", "0 1 0 30 30 1", "0 1 0 30 30 1"},
        StrengthCase{"weakerSideCanWin", 80, 60, 0, false, {21, 41}, "21-41", "0 0 1 21 41 0", "1 0 0 41 21 2"},
        // 70 a player and one rated 1 average about 66, below the away side's 69.
        StrengthCase{"everyPlayerCountsInTheAverage", 70, 69, 1, false, {25, 10}, "10-25", "0 0 1 10 25 0", "1 0 0 25 10 2"},
        // 70.5 rounds to 70, level with the away side.
        StrengthCase{"halfAverageRoundsDownToEven", 70, 70, 70, true, {25, 10}, "10-25", "0 0 1 10 25 0", "1 0 0 25 10 2"},
        // 69.5 rounds to 70, above the away side's 69.
        StrengthCase{"halfAverageRoundsUpToEven", 69, 69, 69, true, {25, 10}, "25-10", "1 0 0 25 10 2", "0 0 1 10 25 0"}),
    [](const auto &info) { return std::string(info.param.name); });

// Guards: a round half written when the store fails, or a failure the player never hears of;
// a friendly that writes a score or moves the table, or plays the league round.
TEST_F(ResultsTest, aFailedRecordingOrAFriendlyLeavesTheLeagueAsItWas)
{
    const QString fixtures = dump("liga_asobal"), table = dump("asobal");
    game::Fixture friendly = m_fixture;
    friendly.type = game::Fixture::Type::Friendly;
    EXPECT_TRUE(Results(*m_context).record(friendly, 30, 20));
    EXPECT_TRUE(m_dialogs.messages().empty());

    exec("drop table jugadores");
    EXPECT_FALSE(record(27, 25));
    EXPECT_EQ(dump("liga_asobal"), fixtures);
    EXPECT_EQ(dump("asobal"), table);
    ASSERT_EQ(m_dialogs.messages().size(), 1u);
    EXPECT_EQ(m_dialogs.messages().front().icon, game::Dialogs::Icon::Exclamation);
    EXPECT_FALSE(m_dialogs.messages().front().text.isEmpty());
}
