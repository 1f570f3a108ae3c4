// How fast a match and a season run: the engine's actions per second, and the wall time of
// a whole headless season next to the number of statements it ran and what those statements
// cost on raw SQLite, reused and in one transaction.

#include "benchsupport.h"
#include "match/engine.h"
#include "sim/autoseason.h"
#include "random.h"
#include "store/gamestore.h"

#include <SQLiteCpp/SQLiteCpp.h>

#include <QFile>
#include <QTemporaryDir>

#include <algorithm>
#include <memory>
#include <unordered_map>
#include <chrono>
#include <cstdio>
#include <vector>

namespace {



game::MatchEngine::Setup setup()
{
    game::MatchEngine::Setup setup;
    setup.homeName = QStringLiteral("Local");
    setup.awayName = QStringLiteral("Visitante");
    setup.userClubName = QStringLiteral("LOCAL");
    for (int row = 0; row < game::MatchEngine::kRows; ++row)
        setup.rows[std::size_t(row)] = {QStringLiteral("Jugador %1").arg(row), QStringLiteral("Central"), 70, 0, 0};
    setup.rival.push_back({QStringLiteral("Portero"), 70, true});
    for (int i = 0; i < 6; ++i)
        setup.rival.push_back({QStringLiteral("Rival %1").arg(i), 70, false});
    return setup;
}

// Replays the statements a season ran, with their values, on raw SQLite: each prepared once
// and reused, all in one transaction, on a fresh copy of the pristine database.
double replayMillis(const QString &pristine, const std::vector<game::GameStore::TracedStatement> &trace)
{
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("raw.mdb"));
    QFile::copy(pristine, path);
    SQLite::Database db(path.toStdString(), SQLite::OPEN_READWRITE | SQLite::OPEN_NOMUTEX);
    db.exec("PRAGMA journal_mode=WAL");
    db.exec("PRAGMA synchronous=NORMAL");
    std::unordered_map<std::string, std::unique_ptr<SQLite::Statement>> prepared;
    for (const auto &step : trace) {
        if (!prepared.count(step.sql))
            prepared.emplace(step.sql, std::make_unique<SQLite::Statement>(db, step.sql));
    }
    SQLite::Transaction transaction(db);
    const auto start = Clock::now();
    for (const auto &step : trace) {
        SQLite::Statement &statement = *prepared.at(step.sql);
        statement.reset();
        int index = 0;
        for (const auto &value : step.values) {
            ++index;
            if (const auto *number = std::get_if<qint64>(&value))
                statement.bind(index, static_cast<int64_t>(*number));
            else if (const auto *real = std::get_if<double>(&value))
                statement.bind(index, *real);
            else
                statement.bind(index, std::get<std::string>(value));
        }
        while (statement.executeStep()) {
        }
    }
    const double millis = seconds(Clock::now() - start) * 1e3;
    transaction.commit();
    return millis;
}

struct SeasonFigures
{
    double median = 0;
    double best = 0;
    double replay = 0;
    quint64 statements = 0;
};

// Ten whole seasons of one policy, each played twice: once timed, once traced for the replay.
SeasonFigures playSeasons(const QString &pristine, game::AutoSeason::Policy policy)
{
    std::vector<double> walls;
    std::vector<double> replays;
    SeasonFigures figures;
    for (int run = 0; run < 10; ++run) {
        const game::AutoSeason::Options options{1 + run % 16, 5, policy};
        QTemporaryDir folder;
        game::GameStore store(folder.filePath(QStringLiteral("balonmano.mdb")), pristine);
        (void)store.open();
        SilentDialogs dialogs;
        game::SystemRandom chance{static_cast<std::uint64_t>(run)};
        game::Context context{store, chance, dialogs};
        game::AutoSeason season(context, options);
        const quint64 before = store.statementsRun();
        const auto begun = Clock::now();
        season.begin();
        while (season.playWeek()) {
        }
        walls.push_back(seconds(Clock::now() - begun) * 1e3);
        figures.statements = store.statementsRun() - before;

        // The same season once more, recording its statements for the replay.
        QTemporaryDir again;
        game::GameStore traced(again.filePath(QStringLiteral("balonmano.mdb")), pristine);
        (void)traced.open();
        std::vector<game::GameStore::TracedStatement> trace;
        traced.setTrace(&trace);
        game::SystemRandom sameChance{static_cast<std::uint64_t>(run)};
        game::Context tracedContext{traced, sameChance, dialogs};
        game::AutoSeason tracedSeason(tracedContext, options);
        tracedSeason.begin();
        while (tracedSeason.playWeek()) {
        }
        replays.push_back(replayMillis(pristine, trace));
    }
    std::sort(walls.begin(), walls.end());
    std::sort(replays.begin(), replays.end());
    figures.median = walls[walls.size() / 2];
    figures.best = walls.front();
    figures.replay = replays[replays.size() / 2];
    return figures;
}

} // namespace

int main()
{
    // The engine alone.
    game::SystemRandom random(2004);
    constexpr int kMatches = 20000;
    long actions = 0;
    const auto started = Clock::now();
    for (int match = 0; match < kMatches; ++match) {
        game::MatchEngine engine(random, setup());
        for (int half = 0; half < 2; ++half) {
            engine.start();
            while (engine.running())
                engine.tick();
        }
        actions += engine.actions();
    }
    const double engineSeconds = seconds(Clock::now() - started);
    std::printf("engine: %d matches, %ld actions in %.3f s: %.2f million actions per second\n", kMatches, actions,
                engineSeconds, double(actions) / engineSeconds / 1e6);

    // Whole seasons through the game library, as the headless simulator plays them: a quiet
    // manager's, and a busy one's with works, prices and broadcasts.
    const QString pristine = QStringLiteral(ZARPAZO_PRISTINE);
    for (const game::AutoSeason::Policy policy : {game::AutoSeason::Policy::Quiet, game::AutoSeason::Policy::Busy}) {
        const char *name = policy == game::AutoSeason::Policy::Busy ? "busy season" : "season";
        const SeasonFigures figures = playSeasons(pristine, policy);
        std::printf("%s: 35 weeks, median %.1f ms (best %.1f ms) for %llu statements: %.2f us each\n", name,
                    figures.median, figures.best, static_cast<unsigned long long>(figures.statements),
                    figures.median * 1e3 / double(figures.statements));
        std::printf("the same statements replayed on raw SQLite (reused, one transaction): median %.1f ms, %.2f us each;"
                    " the %s costs %.1f times that\n",
                    figures.replay, figures.replay * 1e3 / double(figures.statements), name,
                    figures.median / figures.replay);
    }
    return 0;
}
