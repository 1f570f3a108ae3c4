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

    game::Fixture m_fixture;
};

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
