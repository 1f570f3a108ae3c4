#include "careerfixture.h"
#include "reports/calendar.h"

using game::Calendar;

// Guards: friendlies labelled as league rounds, the week shown where the round belongs.
TEST_F(CareerTest, theCalendarShowsFriendliesThenTheLeagueByRound)
{
    startCareer();
    planSeason(5);
    const std::vector<Calendar::Row> rows = Calendar(*m_store).rows(1, kClub);
    ASSERT_EQ(rows.size(), 7u);
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(rows[i].type, QStringLiteral("Pretemporada")) << i;
        EXPECT_EQ(rows[i].subtype, QStringLiteral("Preparación")) << i;
    }
    EXPECT_EQ(rows[4].subtype, QStringLiteral("Presentación"));
    EXPECT_EQ(rows[4].date, QStringLiteral("28/08/2004"));
    EXPECT_TRUE(rows[4].fixture.startsWith(QStringLiteral("Portland San Antonio - ")));
    EXPECT_EQ(rows[5].type, QStringLiteral("Liga ASOBAL"));
    EXPECT_EQ(rows[5].subtype, QStringLiteral("Jornada 1"));

    const std::vector<Calendar::Row> later = Calendar(*m_store).rows(12, kClub);
    EXPECT_EQ(later[0].subtype, QStringLiteral("Jornada 7"));
    EXPECT_TRUE(later[0].fixture.contains(QStringLiteral(" - ")));
}

TEST_F(CareerTest, theCalendarLeavesWeeksPastTheSeasonEmpty)
{
    startCareer();
    planSeason(0);
    const std::vector<Calendar::Row> rows = Calendar(*m_store).rows(28, kClub);
    EXPECT_EQ(rows[2].subtype, QStringLiteral("Jornada 30"));
    for (std::size_t i = 3; i < rows.size(); ++i) {
        EXPECT_TRUE(rows[i].empty) << i;
        EXPECT_TRUE(rows[i].fixture.isEmpty()) << i;
    }
}
