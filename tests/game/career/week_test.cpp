#include "career/week.h"
#include "career/weekevents.h"
#include "careerfixture.h"
#include "stadium/ledger.h"

#include <tuple>

using game::Week;
using Step = game::WeekEvents::Step;

// The user's club (4) in a season of thirty league weeks, none open yet.
class WeekTest : public CareerTest
{
protected:
    void SetUp() override
    {
        CareerTest::SetUp();
        startCareer();
        planSeason(0);
    }

    // Opens weeks until the user's club plays a league match at home, and leaves it open.
    void openUntilHomeMatch(Week &week)
    {
        do
            ASSERT_TRUE(week.open());
        while (week.fixture()->homeId != kClub);
    }

    game::Ledger::Row row(int week) { return game::Ledger(*m_store).row(week).value_or(game::Ledger::Row{}); }
};

// Guards: wages rounded up or truncated where the game rounds a half to the even number, the
// staff not paid, or a week that does not open when the budget is below zero.
TEST_F(WeekTest, eachWeekPaysTheSeasonWageOverTheCalendarRoundedHalfToEvenAndTheStaff)
{
    const std::pair<int, int> wages[] = {{75, 2}, {105, 4}, {89, 3}, {0, 0}, {30000, 1000}, {30014, 1000}, {30016, 1001}};
    Week week(*m_context);
    for (const auto &[season, weekly] : wages) {
        exec("update jugadores set Ficha = (idjugador = (select min(idjugador) from jugadores where idequipo = ?)) * ?"
             " where idequipo = ?",
             kClub, season, kClub);
        const qint64 before = value("select presupuesto from infoteams where idequipo = ?", kClub);
        ASSERT_TRUE(week.open());
        EXPECT_EQ(row(week.number()).salarios, weekly) << season;
        EXPECT_EQ(row(week.number()).empleados, 1000);
        EXPECT_EQ(value("select presupuesto from infoteams where idequipo = ?", kClub), before - weekly - 1000);
    }
    exec("update infoteams set presupuesto = 10 where idequipo = ?", kClub);
    ASSERT_TRUE(week.open());
    EXPECT_LT(row(week.number()).caja, 0);
}

// Guards: the steps run in the caller's order, a step without a routine left undone, a step
// marked as run before it succeeds (so one that failed on a full disk is never tried again),
// one that went through run again, the events started again behind one of their own message
// boxes, or run again when the match opens after them.
TEST_F(WeekTest, eachStepRunsOnceInTheGamesOrderAndOneThatFailedIsTriedAgain)
{
    QStringList ran;
    bool mended = false;
    Week *running = nullptr;
    game::WeekEvents events;
    events.set(Step::Television, [&](const auto &) { ran << QStringLiteral("tv"); });
    events.set(Step::Offers, [&](const auto &) {
        ran << QStringLiteral("ofertas");
        return mended;
    });
    events.set(Step::RivalSquad, [&](const auto &) {
        ran << QStringLiteral("rival");
        running->runEvents(); // the panel's timer behind a message box
    });
    Week week(*m_context, events);
    running = &week;
    ASSERT_TRUE(week.open());
    week.runEvents();
    week.runEvents();
    EXPECT_FALSE(week.eventsRun());
    mended = true;
    ASSERT_TRUE(week.kickOff().has_value()); // tried before the match only when never tried
    week.runEvents();
    EXPECT_TRUE(week.eventsRun());
    week.runEvents();
    EXPECT_EQ(ran.join(u' '), QStringLiteral("rival ofertas tv ofertas ofertas"));

    ASSERT_TRUE(week.open()); // a new week has its own events, run before its match opens
    EXPECT_FALSE(week.eventsRun());
    ASSERT_TRUE(week.kickOff().has_value());
    EXPECT_TRUE(week.eventsRun());
    EXPECT_EQ(ran.count(QStringLiteral("rival")), 2);
}

// Guards: a match opened without the rival's seven after his step failed (it was recorded
// 0-23), or the rival's step never tried again once the store is mended.
TEST_F(WeekTest, theMatchNeverOpensWithoutTheRivalsSeven)
{
    Week week(*m_context);
    ASSERT_TRUE(week.open());
    breakWrites("jugar");
    week.runEvents();
    m_dialogs.clear();
    EXPECT_FALSE(week.kickOff().has_value());
    EXPECT_EQ(m_dialogs.texts(), QStringList{QStringLiteral("El rival todavía no ha podido elegir a sus siete titulares,"
                                                            " así que el partido no puede empezar. Inténtalo de nuevo.")});
    mend();
    week.runEvents();
    EXPECT_TRUE(week.eventsRun());
    EXPECT_EQ(value("select count(*) from jugar where idequipo = ?", week.fixture()->rivalId), 7);
    EXPECT_TRUE(week.kickOff().has_value());
}

// Guards: a gate whose posting failed lost for good or posted twice; a home match opened again
// after its result could not be written drawing another crowd or paying its gate again; a
// played match that opens or records again.
TEST_F(WeekTest, theGateIsSettledOnceAWeekWhateverFailsAroundIt)
{
    Week week(*m_context);
    openUntilHomeMatch(week);
    ASSERT_FALSE(HasFatalFailure());
    breakWrites("caja", "update");
    const auto first = week.kickOff();
    ASSERT_TRUE(first.has_value());
    EXPECT_EQ(row(week.number()).taquilla, 0);
    mend();
    ASSERT_TRUE(week.kickOff().has_value());
    EXPECT_EQ(row(week.number()).taquilla, first->gate.gateTakings);
    const QString ledger = dump("caja");

    breakWrites("liga_asobal", "update");
    m_dialogs.clear();
    EXPECT_FALSE(week.recordResult(30, 25));
    EXPECT_EQ(m_dialogs.messages().size(), 1u);
    EXPECT_FALSE(week.played());
    mend();
    const auto replay = week.kickOff();
    ASSERT_TRUE(replay.has_value());
    EXPECT_EQ(replay->gate.attendance, first->gate.attendance);
    EXPECT_TRUE(week.recordResult(30, 25));
    EXPECT_EQ(value("select goles_equipo_local from liga_asobal where idpartido = ?", week.fixture()->idpartido), 30);
    EXPECT_FALSE(week.kickOff().has_value());
    EXPECT_FALSE(week.recordResult(1, 0));
    EXPECT_EQ(dump("caja"), ledger);
}

// Guards: the fee booked by the week's events alone, to another column, booked twice by a
// second OK, lost silently when the ledger refuses it, or a broadcast carried into the next
// week.
TEST_F(WeekTest, theBroadcastFeeIsBookedOnceAndOnlyByThePlayersOk)
{
    const int rival = game::fixtureOfWeek(*m_store, 1, kClub)->rivalId;
    exec("update equipos set categoria = idequipo in (?, ?)", kClub, rival); // one class: television buys
    Week week(*m_context);
    EXPECT_FALSE(week.acceptBroadcast()); // no week open, nothing waiting
    ASSERT_TRUE(week.open());
    week.runEvents();
    ASSERT_TRUE(week.broadcast().has_value());
    const game::Ledger::Row opened = row(1);
    EXPECT_EQ(opened.television, 0);
    breakWrites("caja", "update");
    m_dialogs.clear();
    EXPECT_FALSE(week.acceptBroadcast());
    EXPECT_EQ(m_dialogs.messages().size(), 1u);
    EXPECT_TRUE(week.broadcast().has_value()); // waits for another OK
    mend();
    EXPECT_TRUE(week.acceptBroadcast());
    EXPECT_FALSE(week.broadcast().has_value());
    EXPECT_FALSE(week.acceptBroadcast());
    EXPECT_EQ(std::tuple(row(1).television, row(1).ingresos, row(1).caja),
              std::tuple(450000, opened.ingresos + 450000, opened.caja + 450000));

    exec("update equipos set categoria = 1");
    ASSERT_TRUE(week.open());
    week.runEvents();
    ASSERT_TRUE(week.broadcast().has_value());
    ASSERT_TRUE(week.open());
    EXPECT_FALSE(week.broadcast().has_value());
    EXPECT_FALSE(week.acceptBroadcast());
    EXPECT_EQ(row(2).television, 0);
}
