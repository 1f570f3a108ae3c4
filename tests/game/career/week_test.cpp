#include "career/fixture.h"
#include "career/weekevents.h"
#include "career/weekopening.h"
#include "careerfixture.h"

using game::WeekOpening;

class WeekOpeningTest : public CareerTest
{
protected:
    void SetUp() override
    {
        CareerTest::SetUp();
        startCareer();
    }

    qint64 budget() { return m_store->integer("select presupuesto from infoteams where idequipo = ?", kClub); }
    qint64 seasonWages() { return m_store->integer("select sum(Ficha) from jugadores where idequipo = ?", kClub); }

    // Gives the user's squad one paid player with this season wage and no other.
    void setOnlyWage(int wage)
    {
        ASSERT_TRUE(m_store->run([&] {
            m_store->execute("update jugadores set Ficha = 0 where idequipo = ?", kClub);
            m_store->execute("update jugadores set Ficha = ? where idjugador = (select min(idjugador) from jugadores"
                             " where idequipo = ?)",
                             wage, kClub);
        }).ok());
    }
};

// Guards: a first week that charges the wrong wages or opens the ledger at the wrong balance.
TEST_F(WeekOpeningTest, theFirstWeekPaysWagesAndStaffAndOpensTheLedgerRow)
{
    planSeason(3);
    const qint64 before = budget();
    const qint64 wages = qRound64(double(seasonWages()) / 33.0);
    ASSERT_EQ(count("calendario"), 33);
    ASSERT_TRUE(m_store->run([&] { m_store->execute("insert into jugar values (2, 40, 'A', 'B', 70, 'Portero', 1)"); }).ok());

    const auto opened = WeekOpening(*m_context).open();
    ASSERT_TRUE(opened.has_value());
    EXPECT_EQ(opened->week, 1);
    EXPECT_FALSE(opened->seasonOver);
    EXPECT_EQ(m_store->integer("select jornada from datos_jugador"), 1);
    EXPECT_EQ(dump("caja"), QStringLiteral("1|0|0|0|0|0|0|0|%1|0|1000|0|0|%2|%3|\n")
                                .arg(wages)
                                .arg(wages + 1000)
                                .arg(before - 1000 - wages));
    EXPECT_EQ(budget(), before - 1000 - wages);
    EXPECT_EQ(count("jugar"), 0);

    ASSERT_TRUE(WeekOpening(*m_context).open().has_value());
    EXPECT_EQ(count("caja"), 2);
    EXPECT_EQ(budget(), before - 2 * (1000 + wages));
}

struct WageCase {
    friend void PrintTo(const WageCase &c, std::ostream *out) { *out << c.seasonWage << " -> " << c.weeklyWage; }
    int seasonWage;
    int weeklyWage;
};

class WeeklyWage : public WeekOpeningTest, public ::testing::WithParamInterface<WageCase>
{};

// Guards: wages rounded up or truncated where the game rounds a half to the even number.
TEST_P(WeeklyWage, isTheSeasonWageOverTheCalendarRoundedHalfToEven)
{
    planSeason(0); // thirty weeks
    setOnlyWage(GetParam().seasonWage);
    ASSERT_TRUE(WeekOpening(*m_context).open().has_value());
    EXPECT_EQ(m_store->integer("select Gastos_Fichas from caja where semana = 1"), GetParam().weeklyWage);
}

INSTANTIATE_TEST_SUITE_P(Rounding, WeeklyWage,
                         ::testing::Values(WageCase{75, 2}, WageCase{105, 4}, WageCase{89, 3}, WageCase{0, 0},
                                           WageCase{30000, 1000}, WageCase{30014, 1000}, WageCase{30016, 1001}),
                         [](const auto &info) { return "wage" + std::to_string(info.param.seasonWage); });

TEST_F(WeekOpeningTest, theBudgetMayGoBelowZeroAndTheWeekStillOpens)
{
    planSeason(0);
    ASSERT_TRUE(m_store->run([&] { m_store->execute("update infoteams set presupuesto = 10 where idequipo = ?", kClub); }).ok());
    ASSERT_TRUE(WeekOpening(*m_context).open().has_value());
    EXPECT_LT(budget(), 0);
    EXPECT_LT(m_store->integer("select Caja from caja where semana = 1"), 0);
}

// Guards: wages charged again, or a ledger row written, for the week after the season's last.
TEST_F(WeekOpeningTest, theWeekAfterTheLastOneEndsTheSeasonWithoutPayingAgain)
{
    planSeason(2);
    ASSERT_TRUE(m_store->run([&] { m_store->execute("update datos_jugador set jornada = 32"); }).ok());
    const qint64 before = budget();
    const auto opened = WeekOpening(*m_context).open();
    ASSERT_TRUE(opened.has_value());
    EXPECT_EQ(opened->week, 33);
    EXPECT_TRUE(opened->seasonOver);
    EXPECT_EQ(count("caja"), 0);
    EXPECT_EQ(budget(), before);
}

// Guards: a week left half open when the store fails in the middle.
TEST_F(WeekOpeningTest, aFailedOpeningLeavesTheWeekAsItWas)
{
    planSeason(0);
    const game::Result dropped = m_store->run([&] { m_store->execute("drop table jugar"); });
    ASSERT_TRUE(dropped.ok()) << dropped.message().toStdString();
    const qint64 before = budget();
    EXPECT_FALSE(WeekOpening(*m_context).open().has_value());
    EXPECT_EQ(m_dialogs.messages().size(), 1u);
    EXPECT_EQ(m_store->integer("select jornada from datos_jugador"), 0);
    EXPECT_EQ(count("caja"), 0);
    EXPECT_EQ(budget(), before);
}

TEST_F(WeekOpeningTest, aFriendlyWeekNamesBothClubsAndTheRival)
{
    planSeason(5);
    const int abroad = int(m_store->integer("select equipo_local from pretemporada where idpartido = 1"));
    const auto first = game::fixtureOfWeek(*m_store, 1, kClub);
    ASSERT_TRUE(first.has_value());
    EXPECT_EQ(first->typeText(), QStringLiteral("AMISTOSO"));
    EXPECT_EQ(first->homeId, abroad);
    EXPECT_EQ(first->rivalId, abroad);
    EXPECT_EQ(first->awayName, QStringLiteral("Portland San Antonio"));
    EXPECT_EQ(game::shownDate(first->date), QStringLiteral("01/08/2004"));

    const auto presentation = game::fixtureOfWeek(*m_store, 5, kClub);
    ASSERT_TRUE(presentation.has_value());
    EXPECT_EQ(presentation->homeId, kClub);
    EXPECT_EQ(presentation->rivalId, presentation->awayId);
}

// Guards: template positions turned into the wrong clubs, or a lookup that writes.
TEST_F(WeekOpeningTest, everyLeagueWeekShowsTheClubsBehindItsTemplatePositions)
{
    planSeason(1);
    const qint64 changesBefore = m_store->integer("select total_changes()");
    for (int week = 2; week <= 31; ++week) {
        const auto fixture = game::fixtureOfWeek(*m_store, week, kClub);
        ASSERT_TRUE(fixture.has_value()) << week;
        EXPECT_EQ(fixture->typeText(), QStringLiteral("LIGA"));
        EXPECT_EQ(fixture->round, week - 1);
        const int homeSlot = int(m_store->integer("select pos_equipo_local from liga_asobal where idpartido = ?", fixture->idpartido));
        const int awaySlot = int(m_store->integer("select pos_equipo_visitante from liga_asobal where idpartido = ?", fixture->idpartido));
        EXPECT_EQ(fixture->homeId, m_store->integer("select teams from asobal where puesto_anterior = ?", homeSlot));
        EXPECT_EQ(fixture->awayId, m_store->integer("select teams from asobal where puesto_anterior = ?", awaySlot));
        EXPECT_TRUE(fixture->homeId == kClub || fixture->awayId == kClub);
        EXPECT_NE(fixture->rivalId, kClub);
    }
    EXPECT_FALSE(game::fixtureOfWeek(*m_store, 32, kClub).has_value());
    EXPECT_EQ(m_store->integer("select total_changes()"), changesBefore);
}

TEST(WeekEventsOrder, runsTheFiveStepsOnceInTheirFixedOrder)
{
    using Step = game::WeekEvents::Step;
    game::WeekEvents events;
    QStringList ran;
    // Set out of order on purpose: the order of running is the game's, not the caller's.
    events.set(Step::Television, [&](const auto &) { ran << QStringLiteral("tv"); });
    events.set(Step::RivalSquad, [&](const auto &) { ran << QStringLiteral("equipo"); });
    events.set(Step::Bids, [&](const auto &) { ran << QStringLiteral("ficharte"); });
    events.set(Step::Offers, [&](const auto &) { ran << QStringLiteral("Fichajes"); });
    events.run(std::nullopt);
    EXPECT_EQ(ran.join(QLatin1Char(' ')), QStringLiteral("equipo Fichajes ficharte tv"));
}
