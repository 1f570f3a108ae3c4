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
