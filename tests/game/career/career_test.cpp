#include "career/career.h"
#include "match/callup.h"
#include "sim/autoseason.h"
#include "tempstore.h"

#include <QCryptographicHash>
#include <QFile>

#include <tuple>

using game::Career;
using Stage = Career::Stage;

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

// The career's history and every message told or question asked since the last step.
QString toldSince(game::GameStore &store, ScriptedDialogs &dialogs)
{
    QCryptographicHash hash(QCryptographicHash::Sha1);
    for (const char *table : {"historial", "goleadores", "traspasos"})
        hash.addData(dumpTable(store, table).toUtf8());
    for (const ScriptedDialogs::Message &message : dialogs.messages())
        hash.addData((message.title + u'|' + message.text + u'|' + QString::number(int(message.icon)) + u'\n').toUtf8());
    dialogs.clear();
    return QString::fromLatin1(hash.result().toHex()).left(12);
}

// A season as the seeded headless manager plays it, and the file that holds what it left at
// every step when the season was played before the career had an object of its own; beside
// each step, the history and the messages of the game as it stood when saves came.
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
    void playOpenWeek(Career &career)
    {
        career.runEvents();
        game::CallUp(*m_context).chooseBest();
        game::MatchEngine *match = career.kickOff();
        ASSERT_NE(match, nullptr);
        while (!match->finished()) {
            match->start();
            while (match->running())
                match->tick();
        }
    }

    // A career of club 4 with its pre-season planned without friendlies.
    void planCareer(Career &career)
    {
        ASSERT_TRUE(career.start({QStringLiteral("Ana"), QStringLiteral("Ruiz"), 4, QStringLiteral("PORTLAND SAN ANTONIO")}));
        for (int slot = 0; slot < game::Preseason::kSlots; ++slot)
            ASSERT_TRUE(career.planner().decline());
    }

    qint64 budget() { return value("select presupuesto from infoteams where idequipo = 4"); }
};

class RecordedSeason : public CareerLife, public ::testing::WithParamInterface<Recorded>
{};

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
    auto step = [&](const QString &name, int number) {
        steps << QStringLiteral("%1 %2 %3 %4").arg(name).arg(number).arg(fingerprint(*m_store), toldSince(*m_store, m_dialogs));
    };
    QObject::connect(&career, &Career::weekOpened, [&](int week) { step(QStringLiteral("open"), week); });
    QObject::connect(&career, &Career::seasonEnding, [&] {
        step(QStringLiteral("end"), career.week().number());
        // The final table and the season's ledger, whole.
        for (const char *table : {"asobal", "caja"}) {
            for (const QString &line : dumpTable(*m_store, table).split(QLatin1Char('\n'), Qt::SkipEmptyParts))
                steps << QStringLiteral("  %1 %2").arg(QLatin1String(table), line);
        }
    });
    QObject::connect(&career, &Career::verdictReady, [&] { step(QStringLiteral("closed"), 0); });
    QObject::connect(&career, &Career::seasonClosed, [&] { step(QStringLiteral("settled"), 0); });

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

// Guards: a career begun on a refused choice, or steps taken out of their stage: orders
// settled with no verdict, a season begun twice, a career with nothing to take up going on or
// saved, a career begun again after leaving that keeps the last one's calendar.
TEST_F(CareerLife, aCareerTakesEachStepOnlyAtItsStage)
{
    Career career(*m_context);
    EXPECT_FALSE(career.goOn());
    EXPECT_FALSE(career.save()); // nothing to save, nowhere to save it
    EXPECT_FALSE(career.start({QStringLiteral("Ana"), QString(), 4, QStringLiteral("PORTLAND SAN ANTONIO")}));
    EXPECT_EQ(career.stage(), Stage::None);
    planCareer(career);
    EXPECT_EQ(career.stage(), Stage::Planning);
    EXPECT_FALSE(career.settleOrders());
    EXPECT_EQ(career.kickOff(), nullptr);
    ASSERT_TRUE(career.beginSeason());
    EXPECT_FALSE(career.beginSeason());
    EXPECT_FALSE(career.goOn()); // an open week waits for its match
    EXPECT_EQ(career.week().number(), 1);

    // Left for the menu and begun again: the new career makes its own calendar.
    ASSERT_TRUE(career.leave().ok());
    EXPECT_EQ(career.stage(), Stage::None);
    planCareer(career);
    ASSERT_TRUE(career.beginSeason());
    EXPECT_EQ(count("calendario") * 100 + career.week().number(), 3001);
}

// Guards: a week whose opening failed (a full disk) left for good, or opened twice once the
// disk is mended: two ledger rows, wages charged twice, or a week number skipped.
TEST_F(CareerLife, aWeekThatCouldNotOpenOpensOnceWhenTakenUpAgain)
{
    Career career(*m_context);
    planCareer(career);
    ASSERT_TRUE(career.beginSeason());
    playOpenWeek(career);
    ASSERT_FALSE(HasFatalFailure());

    breakWrites("caja");
    const qint64 before = budget();
    EXPECT_FALSE(career.finishMatch());
    EXPECT_EQ(career.stage(), Stage::Played);
    EXPECT_EQ(value("select jornada from datos_jugador"), 1);
    EXPECT_EQ(budget(), before);
    EXPECT_TRUE(m_dialogs.texts().join(u'|').contains(QStringLiteral("disk is full")));
    EXPECT_FALSE(career.goOn()); // still broken: told again, nothing written

    mend();
    int opened = 0;
    QObject::connect(&career, &Career::weekOpened, [&](int week) { opened += week; });
    ASSERT_TRUE(career.goOn());
    EXPECT_FALSE(career.goOn()); // an open week waits for its match
    EXPECT_EQ(opened, 2);
    EXPECT_EQ(career.stage(), Stage::Week);
    EXPECT_EQ(count("caja where semana = 2"), 1);
    const qint64 charged = value("select Gastos_Fichas + Gastos_Empleados from caja where semana = 2");
    EXPECT_GT(charged, 1000);
    EXPECT_EQ(budget(), before - charged);
}

// Guards: a season whose close failed leaving the career with no way on, or closed twice
// when taken up again (the ranking written over the ranked table, the verdict shown twice);
// orders that could not be settled at the close carried into the new season or lost.
TEST_F(CareerLife, aSeasonThatCouldNotCloseClosesOnceWhenTakenUpAgain)
{
    Career career(*m_context);
    planCareer(career);
    ASSERT_TRUE(career.beginSeason());
    int verdicts = 0;
    QObject::connect(&career, &Career::verdictReady, [&] { ++verdicts; });
    while (career.week().number() < 30) {
        playOpenWeek(career);
        ASSERT_TRUE(career.finishMatch()) << career.week().number();
    }
    playOpenWeek(career);
    ASSERT_FALSE(HasFatalFailure());

    breakWrites("calendario", "delete");
    EXPECT_FALSE(career.finishMatch());
    EXPECT_EQ(std::tuple(career.stage(), career.verdict().has_value(), verdicts), std::tuple(Stage::SeasonOver, false, 0));
    // The final table stands whole: every match of the season counted, two points a match.
    EXPECT_EQ(value("select sum(Puntos) from asobal"), 480);
    EXPECT_EQ(count("calendario"), 30);
    EXPECT_EQ(value("select jornada from datos_jugador"), 31);

    mend();
    ASSERT_TRUE(career.goOn());
    EXPECT_EQ(verdicts, 1);
    EXPECT_EQ(career.stage(), Stage::Verdict);
    ASSERT_TRUE(career.verdict().has_value());
    EXPECT_EQ(count("calendario"), 0);
    EXPECT_EQ(value("select count(distinct puesto_anterior) * 1000 + sum(Puntos) from asobal"), 16000);

    exec("insert into selects values ('', 30, 0, 0, 0, 0, 'tienda 0 90000 7', '')");
    breakWrites("selects", "delete");
    EXPECT_FALSE(career.goOn());
    EXPECT_EQ(career.stage(), Stage::Verdict);
    EXPECT_EQ(count("selects"), 1);
    mend();
    ASSERT_TRUE(career.goOn());
    EXPECT_EQ(verdicts, 1);
    EXPECT_EQ(count("selects"), 0);
    EXPECT_EQ(career.stage(), Stage::Planning);
}

// Guards: a planner whose "SEGUIR" failed to open week 1 after the calendar was made: a
// second "SEGUIR" that makes the calendar again fails on it, and the player is stuck.
TEST_F(CareerLife, aFirstWeekThatCouldNotOpenOpensOnTheCalendarAlreadyMade)
{
    Career career(*m_context);
    planCareer(career);
    breakWrites("caja");
    EXPECT_FALSE(career.beginSeason());
    EXPECT_EQ(career.stage(), Stage::Planning);
    EXPECT_EQ(count("calendario"), 30);
    const QString market = dump("jugadores");
    mend();
    ASSERT_TRUE(career.beginSeason());
    EXPECT_EQ(career.stage(), Stage::Week);
    EXPECT_EQ(career.week().number(), 1);
    EXPECT_EQ(count("calendario") * 100 + count("caja"), 3001);
    EXPECT_EQ(dump("jugadores"), market); // the market is drawn once
}
