#include "league/fixture.h"
#include "career/week.h"
#include "career/weekevents.h"
#include "careerfixture.h"
#include "money.h"
#include "stadium/ledger.h"
#include "stadium/works.h"

using game::Week;

class WeekTest : public CareerTest
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

// Guards: a first week that charges the wrong wages (a half rounded up where the game rounds
// it to the even number) or opens the ledger at the wrong balance.
TEST_F(WeekTest, theFirstWeekPaysWagesAndStaffAndOpensTheLedgerRow)
{
    planSeason(2);
    ASSERT_EQ(count("calendario"), 32);
    // The squad's wages made to land on a half over the 32 weeks, with an even whole part.
    const qint64 even = (seasonWages() / 64 + 1) * 2;
    ASSERT_TRUE(m_store->run([&] {
        m_store->execute("update jugadores set Ficha = Ficha + ? where idjugador = (select min(idjugador) from jugadores"
                         " where idequipo = ?)",
                         even * 32 + 16 - seasonWages(), kClub);
    }).ok());
    const qint64 wages = game::roundHalfEven(seasonWages(), 32);
    ASSERT_EQ(wages, even);
    const qint64 before = budget();
    ASSERT_TRUE(m_store->run([&] { m_store->execute("insert into jugar values (2, 40, 'A', 'B', 70, 'Portero', 1)"); }).ok());

    Week week(*m_context);
    ASSERT_TRUE(week.open());
    EXPECT_EQ(week.number(), 1);
    EXPECT_FALSE(week.seasonOver());
    EXPECT_EQ(m_store->integer("select jornada from datos_jugador"), 1);
    EXPECT_EQ(dump("caja"), QStringLiteral("1|0|0|0|0|0|0|0|%1|0|1000|0|0|%2|%3|\n")
                                .arg(wages)
                                .arg(wages + 1000)
                                .arg(before - 1000 - wages));
    EXPECT_EQ(budget(), before - 1000 - wages);
    EXPECT_EQ(count("jugar"), 0);

    ASSERT_TRUE(week.open());
    EXPECT_EQ(week.number(), 2);
    EXPECT_EQ(count("caja"), 2);
    EXPECT_EQ(budget(), before - 2 * (1000 + wages));
}

struct WageCase {
    friend void PrintTo(const WageCase &c, std::ostream *out) { *out << c.seasonWage << " -> " << c.weeklyWage; }
    int seasonWage;
    int weeklyWage;
};

class WeeklyWage : public WeekTest, public ::testing::WithParamInterface<WageCase>
{};

// Guards: wages rounded up or truncated where the game rounds a half to the even number.
TEST_P(WeeklyWage, isTheSeasonWageOverTheCalendarRoundedHalfToEven)
{
    planSeason(0); // thirty weeks
    setOnlyWage(GetParam().seasonWage);
    ASSERT_TRUE(Week(*m_context).open());
    EXPECT_EQ(m_store->integer("select Gastos_Fichas from caja where semana = 1"), GetParam().weeklyWage);
}

INSTANTIATE_TEST_SUITE_P(Rounding, WeeklyWage,
                         ::testing::Values(WageCase{75, 2}, WageCase{105, 4}, WageCase{89, 3}, WageCase{0, 0},
                                           WageCase{30000, 1000}, WageCase{30014, 1000}, WageCase{30016, 1001}),
                         [](const auto &info) { return "wage" + std::to_string(info.param.seasonWage); });

TEST_F(WeekTest, theBudgetMayGoBelowZeroAndTheWeekStillOpens)
{
    planSeason(0);
    ASSERT_TRUE(m_store->run([&] { m_store->execute("update infoteams set presupuesto = 10 where idequipo = ?", kClub); }).ok());
    ASSERT_TRUE(Week(*m_context).open());
    EXPECT_LT(budget(), 0);
    EXPECT_LT(m_store->integer("select Caja from caja where semana = 1"), 0);
}

// Guards: wages charged again, or a ledger row written, for the week after the season's last.
TEST_F(WeekTest, theWeekAfterTheLastOneEndsTheSeasonWithoutPayingAgain)
{
    planSeason(2);
    ASSERT_TRUE(m_store->run([&] { m_store->execute("update datos_jugador set jornada = 32"); }).ok());
    const qint64 before = budget();
    Week week(*m_context);
    ASSERT_TRUE(week.open());
    EXPECT_EQ(week.number(), 33);
    EXPECT_TRUE(week.seasonOver());
    EXPECT_FALSE(week.fixture().has_value());
    EXPECT_FALSE(week.kickOff().has_value());
    EXPECT_EQ(count("caja"), 0);
    EXPECT_EQ(budget(), before);
}

// Guards: a week left half open when the store fails in the middle.
TEST_F(WeekTest, aFailedOpeningLeavesTheWeekAsItWas)
{
    planSeason(0);
    const game::Result dropped = m_store->run([&] { m_store->execute("drop table jugar"); });
    ASSERT_TRUE(dropped.ok()) << dropped.message().toStdString();
    const qint64 before = budget();
    Week week(*m_context);
    EXPECT_FALSE(week.open());
    EXPECT_FALSE(week.isOpen());
    EXPECT_EQ(m_dialogs.messages().size(), 1u);
    EXPECT_EQ(m_store->integer("select jornada from datos_jugador"), 0);
    EXPECT_EQ(count("caja"), 0);
    EXPECT_EQ(budget(), before);
}

TEST_F(WeekTest, aFriendlyWeekNamesBothClubsAndTheRival)
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
TEST_F(WeekTest, everyLeagueWeekShowsTheClubsBehindItsTemplatePositions)
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

// Opens weeks until the user's club plays a league match at home, and leaves that week open.
void openUntilHomeLeagueMatch(Week &week, int club)
{
    for (int tries = 0; tries < 31; ++tries) {
        ASSERT_TRUE(week.open());
        if (week.fixture() && week.fixture()->isLeague() && week.fixture()->homeId == club)
            return;
    }
    FAIL() << "no home league match";
}

// Guards: the week's events running again when the panel is shown again or the match opens,
// so the rival names his seven twice or a club bids twice in a week.
TEST_F(WeekTest, runsItsEventsOnceEvenWhenTheMatchOpensAfterThem)
{
    planSeason(0);
    int runs = 0;
    game::WeekEvents events;
    events.set(game::WeekEvents::Step::RivalSquad, [&](const auto &) { ++runs; });
    Week week(*m_context, events);

    ASSERT_TRUE(week.open());
    EXPECT_FALSE(week.eventsRun());
    week.runEvents();
    week.runEvents();
    ASSERT_TRUE(week.kickOff().has_value());
    EXPECT_EQ(runs, 1);

    ASSERT_TRUE(week.open()); // a new week has its own events
    EXPECT_FALSE(week.eventsRun());
    ASSERT_TRUE(week.kickOff().has_value()); // the match does not open before the events
    EXPECT_TRUE(week.eventsRun());
    EXPECT_EQ(runs, 2);
}

// Guards: a home match opened again after its result could not be written paying its gate
// and cafeterias a second time.
TEST_F(WeekTest, aHomeMatchReplayedAfterAFailedResultPaysItsGateOnce)
{
    planSeason(0);
    Week week(*m_context);
    openUntilHomeLeagueMatch(week, kClub);
    ASSERT_FALSE(HasFatalFailure());
    const int number = week.number();

    const auto first = week.kickOff();
    ASSERT_TRUE(first.has_value());
    ASSERT_TRUE(first->gate.userAtHome);
    const auto paid = game::Ledger(*m_store).row(number);
    ASSERT_TRUE(paid.has_value());
    ASSERT_GT(paid->taquilla, 0);
    const QString ledgerAfterGate = dump("caja");

    // The disk refuses the result: nothing is written and the player is told.
    ASSERT_TRUE(m_store->run([&] {
        m_store->execute("create trigger refuse before update on liga_asobal"
                         " begin select raise(abort, 'disco lleno'); end");
    }).ok());
    const auto messagesBefore = m_dialogs.messages().size();
    EXPECT_FALSE(week.recordResult(30, 25));
    EXPECT_EQ(m_dialogs.messages().size(), messagesBefore + 1);
    EXPECT_FALSE(week.played());
    EXPECT_EQ(m_store->integer("select goles_equipo_local from liga_asobal where idpartido = ?", week.fixture()->idpartido), 0);

    // The match is played again: the same crowd, and nothing more in the ledger.
    ASSERT_TRUE(m_store->run([&] { m_store->execute("drop trigger refuse"); }).ok());
    const auto replay = week.kickOff();
    ASSERT_TRUE(replay.has_value());
    EXPECT_EQ(replay->gate.attendance, first->gate.attendance);
    EXPECT_EQ(replay->gate.gateTakings, first->gate.gateTakings);
    EXPECT_EQ(dump("caja"), ledgerAfterGate);

    EXPECT_TRUE(week.recordResult(30, 25));
    EXPECT_TRUE(week.played());
    EXPECT_EQ(m_store->integer("select goles_equipo_local from liga_asobal where idpartido = ?", week.fixture()->idpartido), 30);
    EXPECT_FALSE(week.kickOff().has_value()); // a played match does not open again
    EXPECT_FALSE(week.recordResult(1, 0));
    EXPECT_EQ(dump("caja"), ledgerAfterGate);
}

// Guards: a gate whose posting failed being lost for good, or posted at the next kick-off on
// top of a posting that had gone through.
TEST_F(WeekTest, aGateThatCouldNotBePostedIsPostedAtTheNextKickOff)
{
    planSeason(0);
    Week week(*m_context);
    openUntilHomeLeagueMatch(week, kClub);
    ASSERT_FALSE(HasFatalFailure());
    ASSERT_TRUE(m_store->run([&] {
        m_store->execute("create trigger refuse before update on caja begin select raise(abort, 'disco lleno'); end");
    }).ok());
    const auto first = week.kickOff();
    ASSERT_TRUE(first.has_value());
    EXPECT_EQ(game::Ledger(*m_store).row(week.number())->taquilla, 0);

    ASSERT_TRUE(m_store->run([&] { m_store->execute("drop trigger refuse"); }).ok());
    ASSERT_TRUE(week.kickOff().has_value());
    EXPECT_EQ(game::Ledger(*m_store).row(week.number())->taquilla, first->gate.gateTakings);
    ASSERT_TRUE(week.kickOff().has_value());
    EXPECT_EQ(game::Ledger(*m_store).row(week.number())->taquilla, first->gate.gateTakings);
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
    game::WeekEvents::Done done;
    events.run(std::nullopt, done);
    EXPECT_EQ(ran.join(QLatin1Char(' ')), QStringLiteral("equipo Fichajes ficharte tv"));
    EXPECT_TRUE(done.all()); // the stadium has no routine here: nothing to do
}

// Guards: the week's events marked as run before they succeed, so a step that failed (a full
// disk) is never tried again; a step that went through run a second time; or the events
// started again behind one of their own message boxes.
TEST_F(WeekTest, aStepThatFailedIsTriedAgainAndOnlyIt)
{
    planSeason(0);
    int rival = 0;
    int offers = 0;
    bool mended = false;
    Week *running = nullptr;
    game::WeekEvents events;
    events.set(game::WeekEvents::Step::RivalSquad, [&](const auto &) {
        ++rival;
        running->runEvents(); // the panel's timer behind a message box
        return true;
    });
    events.set(game::WeekEvents::Step::Offers, [&](const auto &) {
        ++offers;
        return mended;
    });
    Week week(*m_context, events);
    running = &week;
    ASSERT_TRUE(week.open());

    week.runEvents();
    week.runEvents();
    EXPECT_FALSE(week.eventsRun());
    mended = true;
    week.runEvents();
    EXPECT_TRUE(week.eventsRun());
    week.runEvents();
    EXPECT_EQ(rival, 1);
    EXPECT_EQ(offers, 3);
}

// Guards: a match opened without the rival's seven after his step failed (it was recorded
// 0-23), or the rival's step never tried again once the store is mended.
TEST_F(WeekTest, theMatchNeverOpensWithoutTheRivalsSeven)
{
    planSeason(0);
    Week week(*m_context);
    ASSERT_TRUE(week.open());
    const int rival = week.fixture()->rivalId;
    ASSERT_TRUE(m_store->run([&] {
        m_store->execute("create temp trigger broken before insert on jugar"
                         " begin select raise(abort, 'database or disk is full'); end");
    }).ok());
    week.runEvents();
    m_dialogs.clear();
    EXPECT_FALSE(week.kickOff().has_value());
    ASSERT_EQ(m_dialogs.messages().size(), 1u);
    EXPECT_EQ(m_dialogs.messages().front().text,
              QStringLiteral("El rival todavía no ha podido elegir a sus siete titulares, así que el partido no puede "
                             "empezar. Inténtalo de nuevo."));
    EXPECT_EQ(count("jugar"), 0);

    ASSERT_TRUE(m_store->run([&] { m_store->execute("drop trigger broken"); }).ok());
    week.runEvents();
    EXPECT_TRUE(week.eventsRun());
    EXPECT_EQ(m_store->integer("select count(*) from jugar where idequipo = ?", rival), 7);
    EXPECT_TRUE(week.kickOff().has_value());
}

// Guards: the fee booked by the week's events alone, booked twice by a second OK, or a
// broadcast carried into the next week.
TEST_F(WeekTest, theBroadcastFeeIsBookedOnceAndOnlyByThePlayersOk)
{
    planSeason(0);
    // The first opponent is made the user's neighbour in the table: television buys.
    const auto first = game::fixtureOfWeek(*m_store, 1, kClub);
    ASSERT_TRUE(first.has_value());
    ASSERT_TRUE(m_store->run([&] {
        m_store->execute("update equipos set categoria = idequipo where idequipo in (?, ?)", kClub, first->rivalId);
        m_store->execute("update asobal set puesto_actual = 7 where teams = ?", kClub);
        m_store->execute("update asobal set puesto_actual = 8 where teams = ?", first->rivalId);
    }).ok());

    Week week(*m_context);
    EXPECT_FALSE(week.acceptBroadcast()); // no week open, nothing waiting
    ASSERT_TRUE(week.open());
    week.runEvents();
    ASSERT_TRUE(week.broadcast().has_value());
    EXPECT_FALSE(week.broadcast()->isEmpty());
    EXPECT_EQ(game::Ledger(*m_store).row(1)->television, 0);

    EXPECT_TRUE(week.acceptBroadcast());
    EXPECT_FALSE(week.broadcast().has_value());
    EXPECT_FALSE(week.acceptBroadcast());
    const game::Ledger::Row row = *game::Ledger(*m_store).row(1);
    EXPECT_EQ(row.television, 450000);
    EXPECT_EQ(row.ingresos - row.tiendas, 450000);

    // The next week starts with no broadcast waiting, whatever its own events decide.
    ASSERT_TRUE(m_store->run([&] { m_store->execute("update equipos set categoria = 1"); }).ok());
    ASSERT_TRUE(week.open());
    EXPECT_FALSE(week.broadcast().has_value());
    EXPECT_FALSE(week.acceptBroadcast());
    week.runEvents();
    ASSERT_TRUE(week.broadcast().has_value());
    ASSERT_TRUE(week.open());
    EXPECT_FALSE(week.broadcast().has_value());
    EXPECT_EQ(game::Ledger(*m_store).row(2)->television, 0);
}

// Guards: the loading message skipped in a week that has no match, or the stadium's works
// and shop not run by the week's standard events.
TEST_F(WeekTest, theStandardEventsTellTheLoadingMessageEveryWeekAndEndTheWorks)
{
    planSeason(0);
    // Week 2 loses its match.
    ASSERT_TRUE(m_store->run([&] {
        m_store->execute("delete from calendario where semana = 2");
        m_store->execute("update estadios set tienda = 1, enfermeria = 0 where idequipo = ?", kClub);
    }).ok());
    Week week(*m_context);
    ASSERT_TRUE(week.open());
    ASSERT_EQ(game::Works(*m_context).order({game::Works::Choice::BasicInfirmary}), 1); // ends in week 5
    m_dialogs.clear();
    const QString loading = QStringLiteral("Cargando... Pulse Aceptar para continuar");
    for (int number = 2; number <= 5; ++number) {
        ASSERT_TRUE(week.open());
        EXPECT_EQ(week.fixture().has_value(), number != 2);
        week.runEvents();
        EXPECT_EQ(week.news().worksFinished, number == 5 ? 1 : 0) << number;
        EXPECT_EQ(m_dialogs.texts().last(), loading) << number;
        EXPECT_EQ(game::Ledger(*m_store).row(number)->tiendas, 1000) << number;
    }
    EXPECT_EQ(m_dialogs.texts().count(loading), 4);
    EXPECT_TRUE(m_dialogs.texts().contains(QStringLiteral("Las Obras de La mejora de las ENFERMERIA Han Terminado")));
    EXPECT_EQ(game::Ledger(*m_store).row(5)->remodelaciones, 60000);
    ASSERT_TRUE(week.open());
    EXPECT_EQ(week.news().worksFinished, 0);
}
