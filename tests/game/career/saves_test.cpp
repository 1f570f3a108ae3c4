#include "career/career.h"
#include "career/saves.h"
#include "career/session.h"
#include "career/statements.h"
#include "sim/autoseason.h"
#include "tempstore.h"

#include <QDir>
#include <QFile>

#include <tuple>

using namespace Qt::StringLiterals;

using game::Career;

namespace {

// Every table a career writes, whole, for before-and-after comparisons.
const char *const kCareerTables[] = {"datos_jugador", "caja",     "asobal",   "liga_asobal", "calendario",
                                     "pretemporada",  "jugadores", "selects",  "jugar",       "miequipo",
                                     "estadios",      "infoteams", "entradas", "historial",   "goleadores"};

} // namespace

// Careers saved in a folder of their own and taken up again.
class SavedCareer : public StoreTest
{
protected:
    void SetUp() override
    {
        StoreTest::SetUp();
        m_saves = std::make_unique<game::Saves>(m_folder.filePath(QStringLiteral("carreras")));
    }

    // A busy career of club 3 played headless up to the given week, saving itself as it goes.
    void playTo(game::AutoSeason &season, int week)
    {
        season.career().setSaves(m_saves.get());
        ASSERT_TRUE(season.begin());
        while (season.career().week().number() < week || season.career().stage() != Career::Stage::Week)
            ASSERT_TRUE(season.playWeek()) << season.failure().toStdString();
        season.career().runEvents();
    }

    QString tables()
    {
        QString text;
        for (const char *table : kCareerTables)
            text += QLatin1String(table) + QLatin1Char('\n') + dump(table);
        return text;
    }

    std::unique_ptr<game::Saves> m_saves;
};

// Guards: a save that does not hold the career as it stood, a load that opens a new week
// (wages charged twice, a second ledger row) or runs the week's events again.
TEST_F(SavedCareer, aWeekSavedAndLoadedIsTheSameWeekWithItsWagesChargedOnce)
{
    m_random = ScriptedRandom(12);
    game::AutoSeason season(*m_context, {3, 2, game::AutoSeason::Policy::Busy});
    playTo(season, 12);
    ASSERT_FALSE(HasFatalFailure());
    const QString saved = tables();
    const std::optional<game::SaveRecord> latest = m_saves->latest();
    ASSERT_TRUE(latest.has_value());
    EXPECT_EQ(std::tuple(latest->week, latest->club, latest->stage, latest->budget),
              std::tuple(12, 3, QStringLiteral("semana"), value("select presupuesto from infoteams where idequipo = 3")));

    // The career goes on and is then thrown away; the save brings back week 12.
    ASSERT_TRUE(season.playWeek());
    ASSERT_TRUE(m_store->restore().ok());
    ASSERT_TRUE(m_saves->load(*m_store, latest->path).ok());
    Career again(*m_context);
    ASSERT_TRUE(again.resume());
    EXPECT_EQ(std::tuple(again.stage(), again.week().number(), again.week().eventsRun()),
              std::tuple(Career::Stage::Week, 12, true));
    EXPECT_EQ(tables(), saved);
    EXPECT_EQ(count("caja where semana = 12"), 1);

    // Played on from there, week 13 opens once.
    m_dialogs.clear();
    again.runEvents(); // nothing: they ran before the save
    EXPECT_TRUE(m_dialogs.texts().isEmpty());
    game::AutoSeason onward(*m_context, {3, 2, game::AutoSeason::Policy::Busy});
    ASSERT_TRUE(onward.resume());
    ASSERT_TRUE(onward.playWeek()) << onward.failure().toStdString();
    EXPECT_EQ(onward.career().week().number(), 13);
    EXPECT_EQ(count("caja"), 13);
}

// Guards: a career saved as its pre-season was to be planned, or at its verdict, that comes
// back anywhere else: a planner with a week open, a verdict whose orders are lost.
TEST_F(SavedCareer, thePlannerAndTheVerdictAreTakenUpWhereTheyStood)
{
    Career career(*m_context);
    career.setSaves(m_saves.get());
    ASSERT_TRUE(career.start({QStringLiteral("Ana"), QStringLiteral("Ruiz"), 4, QStringLiteral("PORTLAND SAN ANTONIO")}));
    const QStringList rivals = career.planner().clubsOf(2);
    ASSERT_GE(career.planner().choose(rivals.at(0)), 0);
    ASSERT_TRUE(career.planner().decline());
    ASSERT_GE(career.planner().choose(rivals.at(1)), 0);
    ASSERT_TRUE(career.save());

    Career planner(*m_context);
    ASSERT_TRUE(planner.resume());
    EXPECT_EQ(std::tuple(planner.stage(), planner.planner().slotsDealt(), planner.planner().friendlySlots()[1].state,
                         planner.planner().friendlySlots()[2].away),
              std::tuple(Career::Stage::Planning, 3, game::Preseason::Slot::State::Declined, u"Portland San Antonio"_s));

    // The verdict: a season played to its close and saved there, orders still waiting.
    m_random = ScriptedRandom(9);
    game::AutoSeason season(*m_context, {4, 0});
    season.career().setSaves(m_saves.get());
    ASSERT_TRUE(season.begin());
    while (season.playWeek()) {
    }
    ASSERT_EQ(season.career().stage(), Career::Stage::Verdict);
    exec("insert into selects values ('', 30, 0, 0, 0, 0, 'tienda 0 90000 7', '')");
    ASSERT_TRUE(season.career().save());
    ASSERT_TRUE(m_store->restore().ok());
    ASSERT_TRUE(m_saves->load(*m_store, m_saves->latest()->path).ok());
    Career verdict(*m_context);
    ASSERT_TRUE(verdict.resume());
    EXPECT_EQ(verdict.stage(), Career::Stage::Verdict);
    ASSERT_TRUE(verdict.verdict().has_value());
    EXPECT_FALSE(verdict.verdict()->championName.isEmpty());
    EXPECT_EQ(count("selects"), 1);
    ASSERT_TRUE(verdict.goOn()); // the orders are settled, the next planner opens
    EXPECT_EQ(count("selects"), 0);
    EXPECT_EQ(verdict.stage(), Career::Stage::Planning);
    EXPECT_EQ(verdict.season(), 2);
}

// Guards: files that are not saves of this game taken as one: the working file replaced by
// garbage, a newer game's save misread, a damaged save half loaded.
TEST_F(SavedCareer, filesThatAreNotWholeSavesOfThisGameAreRefusedAndChangeNothing)
{
    Career career(*m_context);
    career.setSaves(m_saves.get());
    ASSERT_TRUE(career.start({QStringLiteral("Ana"), QStringLiteral("Ruiz"), 4, QStringLiteral("PORTLAND SAN ANTONIO")}));
    const QString good = m_saves->fileOf(career.name());
    ASSERT_TRUE(QFile::exists(good));
    const QByteArray saved = fileBytes(good);
    const QString before = tables();

    struct Bad
    {
        const char *name;
        QByteArray bytes;
        const char *says;
    };
    // A copy of a database changed by one statement, as another program or a later game writes it.
    auto changed = [&](const QString &source, const char *name, const std::string &sql) {
        const QString copy = m_folder.filePath(QLatin1String(name));
        EXPECT_TRUE(QFile::copy(source, copy));
        game::GameStore file(copy, QString());
        EXPECT_TRUE(file.open().ok() && file.run([&] { file.execute(sql); }).ok());
        file.text("pragma journal_mode=DELETE");
        file.close();
        return fileBytes(copy);
    };
    const QByteArray newer = changed(good, "newer", "update partida set formato = 2");
    const QByteArray noPartida = changed(pristinePath(), "plain", "drop table partida");
    const Bad bad[] = {
        {"text", QByteArray("no soy una partida\n"), "no es una partida guardada"},
        {"empty", QByteArray(), "no es una partida guardada"},
        {"anotherDatabase", noPartida, "no es una partida guardada"},
        {"pristine", fileBytes(pristinePath()), "no es una partida guardada"},
        {"newer", newer, "versión más nueva"},
        {"truncated", saved.left(saved.size() / 2), "está dañada"},
    };
    for (const Bad &file : bad) {
        const QString path = QDir(m_saves->folder()).filePath(QLatin1String(file.name) + QStringLiteral(".zarpazo"));
        QFile out(path);
        ASSERT_TRUE(out.open(QIODevice::WriteOnly) && out.write(file.bytes) == file.bytes.size());
        out.close();
        const game::Result loaded = m_saves->load(*m_store, path);
        EXPECT_FALSE(loaded.ok()) << file.name;
        EXPECT_TRUE(loaded.message().contains(QString::fromUtf8(file.says))) << file.name << ": "
                                                                             << loaded.message().toStdString();
        EXPECT_EQ(tables(), before) << file.name;
    }
    // The good save is untouched and still the only one listed.
    EXPECT_EQ(fileBytes(good), saved);
    ASSERT_EQ(m_saves->list().size(), 1u);
    EXPECT_EQ(m_saves->list().front().path, good);
}

// Guards: a save cut short (the rename that puts it in place never happens, as when the game
// is killed halfway) that spoils the last good save, or a full disk told every week.
TEST_F(SavedCareer, aSaveThatFailsLeavesTheLastSaveWholeAndIsToldOnce)
{
    Career career(*m_context);
    career.setSaves(m_saves.get());
    ASSERT_TRUE(career.start({QStringLiteral("Ana"), QStringLiteral("Ruiz"), 4, QStringLiteral("PORTLAND SAN ANTONIO")}));
    const QString file = m_saves->fileOf(career.name());
    const QByteArray good = fileBytes(file);

    m_saves->setRename([](const QString &, const QString &) { return false; });
    for (int slot = 0; slot < game::Preseason::kSlots; ++slot)
        ASSERT_TRUE(career.planner().decline());
    ASSERT_TRUE(career.beginSeason());
    m_dialogs.clear();
    for (int failed = 0; failed < 2; ++failed) {
        EXPECT_FALSE(career.save());
        EXPECT_EQ(m_dialogs.texts().size(), 1) << "after failure " << failed + 1;
    }
    EXPECT_TRUE(m_dialogs.texts().value(0).contains(QStringLiteral("sigue intacta")));
    EXPECT_EQ(fileBytes(file), good);
    EXPECT_FALSE(QFile::exists(file + QStringLiteral(".tmp")));
    const auto inspected = game::Saves::inspect(file);
    ASSERT_TRUE(std::holds_alternative<game::SaveRecord>(inspected));
    EXPECT_EQ(std::get<game::SaveRecord>(inspected).stage, QStringLiteral("planificando"));

    // Once saves go through again, a later failure is told again.
    m_saves->setRename([](const QString &from, const QString &to) {
        QFile::remove(to);
        return QFile::rename(from, to);
    });
    EXPECT_TRUE(career.save());
    EXPECT_EQ(std::get<game::SaveRecord>(game::Saves::inspect(file)).stage, QStringLiteral("semana"));
}

// Guards: a new career that inherits what a run killed halfway left in the working file
// (every club with games played at week 1), or a second copy of the game writing the same
// career.
TEST(Session, aRunThatNeverEndedLeavesNothingToTheNextAndHoldsTheFolderAlone)
{
    QTemporaryDir folder;
    ScriptedDialogs dialogs;
    const QString pristine = QStringLiteral(ZARPAZO_PRISTINE);
    {
        game::Session run(folder.path(), pristine, dialogs);
        ASSERT_TRUE(run.open().ok());
        game::Session second(folder.path(), pristine, dialogs);
        const game::Result refused = second.open();
        EXPECT_FALSE(refused.ok());
        EXPECT_TRUE(refused.message().contains(QStringLiteral("ya está abierto")));
        game::AutoSeason season(run.context(), {2, 0});
        ASSERT_TRUE(season.begin());
        for (int week = 0; week < 3; ++week)
            ASSERT_TRUE(season.playWeek());
        // The run dies here: never closed, its working file left as it was.
    }
    {
        game::Session next(folder.path(), pristine, dialogs);
        ASSERT_TRUE(next.open().ok());
        EXPECT_EQ(fileBytes(next.workingPath()), fileBytes(pristine));
        ASSERT_TRUE(next.close().ok());
    }
    // A working file found damaged is made again when the player agrees.
    QFile garbage(QDir(folder.path()).filePath(QStringLiteral("balonmano.mdb")));
    ASSERT_TRUE(garbage.open(QIODevice::WriteOnly));
    garbage.write("0123456789");
    garbage.close();
    dialogs.answer({true});
    game::Session repaired(folder.path(), pristine, dialogs);
    ASSERT_TRUE(repaired.open().ok());
    EXPECT_EQ(dialogs.questions().size(), 1);
    EXPECT_EQ(fileBytes(repaired.workingPath()), fileBytes(pristine));
}

// Guards: a history that forgets a season or tells it otherwise than the season ended: the
// place counted upside down, the budget before its orders were paid.
TEST_F(SavedCareer, theHistoryTellsEachSeasonAsItsCloseLeftIt)
{
    m_random = ScriptedRandom(3);
    game::AutoSeason season(*m_context, {7, 1, game::AutoSeason::Policy::Busy});
    ASSERT_TRUE(season.begin());
    std::vector<game::AutoSeason::SeasonSummary> summaries;
    int goalsBefore = 0;
    for (int played = 1; played <= 3; ++played) {
        while (season.playWeek()) {
        }
        ASSERT_TRUE(season.failure().isEmpty()) << season.failure().toStdString();
        game::AutoSeason::SeasonSummary summary;
        ASSERT_TRUE(season.closeSeason(&summary));
        summaries.push_back(summary);
        // Every goal of the club in its matches, friendlies too, is some player's.
        EXPECT_EQ(value("select sum(goles) from goleadores where temporada = ?", played),
                  season.totals().goalsFor - goalsBefore)
            << played;
        goalsBefore = season.totals().goalsFor;
    }
    const std::vector<game::sql::career::HistoryRow> history = game::sql::career::history(*m_store);
    ASSERT_EQ(history.size(), 3u);
    const QStringList years{QStringLiteral("2004-2005"), QStringLiteral("2005-2006"), QStringLiteral("2006-2007")};
    const auto told = [](const auto &s) { return std::tuple(s.champion, s.place, s.points, s.goalsFor, s.goalsAgainst, s.budget); };
    for (std::size_t row = 0; row < history.size(); ++row) {
        EXPECT_EQ(std::pair(history[row].season, history[row].years), std::pair(int(row) + 1, years[qsizetype(row)]));
        EXPECT_EQ(told(history[row]), told(summaries[row])) << row;
        EXPECT_EQ(history[row].won + history[row].drawn + history[row].lost, 30);
        EXPECT_EQ(2 * history[row].won + history[row].drawn, history[row].points);
        const int season = int(row) + 1;
        // The season's top scorer heads the season's list of scorers, by name and goals.
        const std::vector<game::sql::career::Scorer> scorers = game::sql::career::scorers(*m_store, season);
        ASSERT_FALSE(scorers.empty());
        EXPECT_EQ(history[row].topScorer + u'|' + QString::number(history[row].topScorerGoals),
                  scorers.front().name + u'|' + QString::number(scorers.front().goals));
        EXPECT_EQ(scorers.front().goals, value("select max(goles) from goleadores where temporada = ?", season));
        // A busy manager signs every few weeks; the dearest signing is the season's largest sum.
        EXPECT_EQ(history[row].signingSum,
                  value("select max(importe) from traspasos where temporada = ? and tipo = 'fichaje'"
                                   " and jornada > 0",
                                   season));
        EXPECT_GT(history[row].signingSum, 0);
        // The dearest signing and the dearest sale are named as the moves of that sum.
        for (const auto &[kind, name, sum] : {std::tuple("fichaje", history[row].signing, history[row].signingSum),
                                              std::tuple("venta", history[row].sale, history[row].saleSum)}) {
            EXPECT_GE(value("select count(*) from traspasos where temporada = ? and tipo = ? and importe = ?"
                            " and Nombre || ' ' || Apellidos = ?",
                            season, QString::fromLatin1(kind), sum, name),
                      1)
                << kind << " of season " << season;
            EXPECT_EQ(sum, value("select max(importe) from traspasos where temporada = ? and tipo = ?", season,
                                 QString::fromLatin1(kind)))
                << kind;
        }
    }
}
