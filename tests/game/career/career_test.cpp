#include "career/career.h"
#include "match/callup.h"
#include "sim/autoseason.h"
#include "tempstore.h"

#include <QCryptographicHash>
#include <QFile>

using game::Career;

namespace {

// The tables a career writes, fingerprinted together at each step of its life.
const char *const kTables[] = {"datos_jugador", "caja",     "asobal",   "liga_asobal", "calendario",
                               "pretemporada",  "jugadores", "selects",  "jugar",       "miequipo",
                               "estadios",      "infoteams", "entradas", "entrenadores"};

QString fingerprint(game::GameStore &store)
{
    QCryptographicHash hash(QCryptographicHash::Sha1);
    for (const char *table : kTables)
        hash.addData(dumpTable(store, table).toUtf8());
    return QString::fromLatin1(hash.result().toHex());
}

// A season as the seeded headless manager plays it, and the file that holds what it left at
// every step when the season was played before the career had an object of its own.
struct Recorded
{
    const char *name;
    int seed;
    int club;
    int friendlies;
    game::AutoSeason::Policy policy;
    int seasons;
    const char *file;
};

} // namespace

class CareerLife : public StoreTest
{
protected:
    // Plays the open week's match to its end: the events, the best fourteen, both halves.
    game::MatchEngine *playOpenWeek(Career &career)
    {
        career.runEvents();
        game::CallUp(*m_context).chooseBest();
        game::MatchEngine *match = career.kickOff();
        if (!match)
            return nullptr;
        for (int half = 0; half < 2; ++half) {
            match->start();
            while (match->running())
                match->tick();
        }
        return match;
    }

    // A career of club 4 with its pre-season planned without friendlies.
    void planCareer(Career &career)
    {
        ASSERT_TRUE(career.start({QStringLiteral("Ana"), QStringLiteral("Ruiz"), 4,
                                  QStringLiteral("PORTLAND SAN ANTONIO")}));
        ASSERT_EQ(career.stage(), Career::Stage::Planning);
        for (int slot = 0; slot < game::Preseason::kSlots; ++slot)
            ASSERT_TRUE(career.planner().decline());
    }

    // Makes every statement that writes to the table fail until the trigger is dropped, as a
    // full disk would.
    void breakWrites(const char *table, const char *what)
    {
        const std::string sql = std::string("create temp trigger broken before ") + what + " on " + table
            + " begin select raise(abort, 'database or disk is full'); end";
        ASSERT_TRUE(m_store->run([&] { m_store->execute(sql); }).ok());
    }
    void mendWrites()
    {
        ASSERT_TRUE(m_store->run([&] { m_store->execute("drop trigger broken"); }).ok());
    }

    qint64 budget() { return m_store->integer("select presupuesto from infoteams where idequipo = 4"); }
};

class RecordedSeason : public CareerLife, public ::testing::WithParamInterface<Recorded>
{
};

// Guards: a career object that plays the weeks in another order than the game always did:
// an event before the opening, a result before the gate, a close that settles before it
// ranks; any of them changes some table at some step of a seeded season.
TEST_P(RecordedSeason, leavesEveryTableAsTheGameAlwaysDidAtEveryStep)
{
    const Recorded &recorded = GetParam();
    m_random = ScriptedRandom(recorded.seed);
    game::AutoSeason season(*m_context, {recorded.club, recorded.friendlies, recorded.policy});
    QStringList steps;
    Career &career = season.career();
    QObject::connect(&career, &Career::weekOpened,
                     [&](int week) { steps << QStringLiteral("open %1 %2").arg(week).arg(fingerprint(*m_store)); });
    QObject::connect(&career, &Career::seasonEnding, [&] {
        steps << QStringLiteral("end %1 %2").arg(career.week().number()).arg(fingerprint(*m_store));
        // The final table and the season's ledger, whole.
        for (const char *table : {"asobal", "caja"}) {
            for (const QString &line : dumpTable(*m_store, table).split(QLatin1Char('\n'), Qt::SkipEmptyParts))
                steps << QStringLiteral("  %1 %2").arg(QLatin1String(table), line);
        }
    });
    QObject::connect(&career, &Career::verdictReady,
                     [&] { steps << QStringLiteral("closed 0 ") + fingerprint(*m_store); });
    QObject::connect(&career, &Career::seasonClosed,
                     [&] { steps << QStringLiteral("settled 0 ") + fingerprint(*m_store); });

    ASSERT_TRUE(season.begin());
    for (int played = 0; played < recorded.seasons; ++played) {
        while (season.playWeek()) {
        }
        ASSERT_TRUE(season.failure().isEmpty()) << season.failure().toStdString();
        ASSERT_TRUE(season.closeSeason());
    }

    QFile file(QStringLiteral(ZARPAZO_TEST_DATA "/") + QLatin1String(recorded.file));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << recorded.file;
    const QStringList expected = QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    ASSERT_EQ(steps.size(), expected.size());
    for (qsizetype step = 0; step < steps.size(); ++step)
        ASSERT_EQ(steps[step], expected[step]) << "step " << step;
}

INSTANTIATE_TEST_SUITE_P(
    SeededSeasons, RecordedSeason,
    ::testing::Values(Recorded{"busyTwoSeasons", 2004, 4, 2, game::AutoSeason::Policy::Busy, 2, "busy_seasons.txt"},
                      Recorded{"quietSeason", 31, 9, 3, game::AutoSeason::Policy::Quiet, 1, "quiet_season.txt"}),
    [](const ::testing::TestParamInfo<Recorded> &info) { return std::string(info.param.name); });

// Guards: a week whose opening failed (a full disk) left for good, or opened twice once the
// disk is mended: two ledger rows, wages charged twice, or a week number skipped.
TEST_F(CareerLife, aWeekThatCouldNotOpenOpensOnceWhenTakenUpAgain)
{
    Career career(*m_context);
    planCareer(career);
    ASSERT_FALSE(HasFatalFailure());
    ASSERT_TRUE(career.beginSeason());
    ASSERT_NE(playOpenWeek(career), nullptr);

    breakWrites("caja", "insert");
    const qint64 before = budget();
    EXPECT_FALSE(career.finishMatch());
    EXPECT_EQ(career.stage(), Career::Stage::Played);
    EXPECT_EQ(m_store->integer("select jornada from datos_jugador"), 1);
    EXPECT_EQ(budget(), before);
    EXPECT_TRUE(m_dialogs.texts().join(QLatin1Char('|')).contains(QStringLiteral("disk is full")));
    EXPECT_FALSE(career.goOn()); // still broken: told again, nothing written

    mendWrites();
    int opened = 0;
    QObject::connect(&career, &Career::weekOpened, [&](int week) {
        ++opened;
        EXPECT_EQ(week, 2);
    });
    ASSERT_TRUE(career.goOn());
    EXPECT_FALSE(career.goOn()); // an open week waits for its match
    EXPECT_EQ(opened, 1);
    EXPECT_EQ(career.stage(), Career::Stage::Week);
    EXPECT_EQ(count("caja where semana = 2"), 1);
    const qint64 charged = m_store->integer("select Gastos_Fichas + Gastos_Empleados from caja where semana = 2");
    EXPECT_GT(charged, 1000);
    EXPECT_EQ(budget(), before - charged);
}

// Guards: a season whose close failed leaving the career with no way on, or closed twice
// when taken up again (the ranking written over the ranked table, the verdict shown twice).
TEST_F(CareerLife, aSeasonThatCouldNotCloseClosesOnceWhenTakenUpAgain)
{
    Career career(*m_context);
    planCareer(career);
    ASSERT_FALSE(HasFatalFailure());
    ASSERT_TRUE(career.beginSeason());
    int verdicts = 0;
    QObject::connect(&career, &Career::verdictReady, [&] { ++verdicts; });
    while (career.week().number() < 30) {
        ASSERT_NE(playOpenWeek(career), nullptr) << career.week().number();
        ASSERT_TRUE(career.finishMatch());
    }
    ASSERT_NE(playOpenWeek(career), nullptr);

    breakWrites("calendario", "delete");
    EXPECT_FALSE(career.finishMatch());
    EXPECT_EQ(career.stage(), Career::Stage::SeasonOver);
    EXPECT_FALSE(career.verdict().has_value());
    EXPECT_EQ(verdicts, 0);
    // The final table stands whole: every match of the season counted, two points a match.
    EXPECT_EQ(m_store->integer("select sum(Puntos) from asobal"), 480);
    EXPECT_EQ(count("calendario"), 30);
    EXPECT_EQ(m_store->integer("select jornada from datos_jugador"), 31);

    mendWrites();
    ASSERT_TRUE(career.goOn());
    EXPECT_EQ(verdicts, 1);
    EXPECT_EQ(career.stage(), Career::Stage::Verdict);
    ASSERT_TRUE(career.verdict().has_value());
    EXPECT_EQ(count("calendario"), 0);
    EXPECT_EQ(m_store->integer("select count(distinct puesto_anterior) from asobal"), 16);
    EXPECT_EQ(m_store->integer("select sum(Puntos) from asobal"), 0);

    // Orders that cannot be settled stay for the next try, never carried into the new season.
    ASSERT_TRUE(m_store->run([&] {
        m_store->execute("insert into selects (\"select\", jornada, oferta, clausula, ficha, jugador, observaciones,"
                         " pago) values ('', 30, 0, 0, 0, 0, 'tienda 0 90000 7', '')");
    }).ok());
    breakWrites("selects", "delete");
    EXPECT_FALSE(career.goOn());
    EXPECT_EQ(career.stage(), Career::Stage::Verdict);
    EXPECT_EQ(count("selects"), 1);
    mendWrites();

    // Taken up once more, the career settles the orders and plans the next pre-season.
    ASSERT_TRUE(career.goOn());
    EXPECT_EQ(verdicts, 1);
    EXPECT_EQ(count("selects"), 0);
    EXPECT_EQ(career.stage(), Career::Stage::Planning);
}

// Guards: a planner whose "SEGUIR" failed to open week 1 after the calendar was made: a
// second "SEGUIR" that makes the calendar again fails on it, and the player is stuck.
TEST_F(CareerLife, aFirstWeekThatCouldNotOpenOpensOnTheCalendarAlreadyMade)
{
    Career career(*m_context);
    planCareer(career);
    ASSERT_FALSE(HasFatalFailure());
    breakWrites("caja", "insert");
    EXPECT_FALSE(career.beginSeason());
    EXPECT_EQ(career.stage(), Career::Stage::Planning);
    EXPECT_EQ(count("calendario"), 30);
    const qint64 listed = count("jugadores where venta = 1");

    mendWrites();
    ASSERT_TRUE(career.beginSeason());
    EXPECT_EQ(career.stage(), Career::Stage::Week);
    EXPECT_EQ(career.week().number(), 1);
    EXPECT_EQ(count("calendario"), 30);
    EXPECT_EQ(count("caja"), 1);
    EXPECT_EQ(count("jugadores where venta = 1"), listed); // the market is drawn once
}
