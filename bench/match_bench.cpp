// How fast a match and a season run: the engine's actions per second, and the wall time of
// a whole headless season next to the number of statements it ran and what those statements
// cost on raw SQLite, reused and in one transaction.

#include "dialogs.h"
#include "match/engine.h"
#include "match/season.h"
#include "random.h"
#include "store/gamestore.h"

#include <SQLiteCpp/SQLiteCpp.h>

#include <QFile>
#include <QTemporaryDir>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <vector>

namespace {

class SilentDialogs final : public game::Dialogs
{
public:
    void tell(const QString &, Icon, const QString &) override {}
    bool ask(const QString &, const QString &) override { return false; }
};

using Clock = std::chrono::steady_clock;

double seconds(Clock::duration d)
{
    return std::chrono::duration<double>(d).count();
}

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

// The cost of one statement on raw SQLite: prepared once, reused, inside one transaction.
double rawStatementMicros(const QString &pristine)
{
    QTemporaryDir folder;
    const std::string path = folder.filePath(QStringLiteral("raw.mdb")).toStdString();
    std::FILE *out = std::fopen(path.c_str(), "wb");
    QFile in(pristine);
    in.open(QIODevice::ReadOnly);
    const QByteArray bytes = in.readAll();
    std::fwrite(bytes.constData(), 1, std::size_t(bytes.size()), out);
    std::fclose(out);
    SQLite::Database db(path, SQLite::OPEN_READWRITE);
    db.exec("PRAGMA journal_mode=WAL");
    db.exec("PRAGMA synchronous=NORMAL");
    SQLite::Statement select(db, "select Media from jugadores where idjugador = ?");
    SQLite::Statement update(db, "update asobal set Goles_Favor = Goles_Favor + ? where teams = ?");
    constexpr int kRuns = 200000;
    SQLite::Transaction transaction(db);
    const auto start = Clock::now();
    for (int i = 0; i < kRuns; ++i) {
        if (i % 2) {
            select.reset();
            select.bind(1, 1 + i % 1300);
            select.executeStep();
        } else {
            update.reset();
            update.bind(1, 1);
            update.bind(2, 1 + i % 16);
            update.exec();
        }
    }
    const double micros = seconds(Clock::now() - start) * 1e6 / kRuns;
    transaction.commit();
    return micros;
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

    // Whole seasons through the game library, as the headless simulator plays them.
    const QString pristine = QStringLiteral(ZARPAZO_PRISTINE);
    const double raw = rawStatementMicros(pristine);
    std::vector<double> walls;
    quint64 statements = 0;
    for (int run = 0; run < 10; ++run) {
        QTemporaryDir folder;
        game::GameStore store(folder.filePath(QStringLiteral("balonmano.mdb")), pristine);
        (void)store.open();
        SilentDialogs dialogs;
        game::SystemRandom chance{static_cast<std::uint64_t>(run)};
        game::Context context{store, chance, dialogs};
        game::AutoSeason season(context, {1 + run % 16, 5});
        const quint64 before = store.statementsRun();
        const auto begun = Clock::now();
        season.begin();
        while (season.playWeek()) {
        }
        walls.push_back(seconds(Clock::now() - begun) * 1e3);
        statements = store.statementsRun() - before;
    }
    std::sort(walls.begin(), walls.end());
    const double median = walls[walls.size() / 2];
    const double rawSeason = double(statements) * raw / 1e3;
    std::printf("season: 35 weeks, median %.1f ms (best %.1f ms) for %llu statements: %.2f us each\n", median,
                walls.front(), static_cast<unsigned long long>(statements), median * 1e3 / double(statements));
    std::printf("raw SQLite: %.2f us a statement, so %.1f ms for the season's statements; the season costs %.1f times that\n",
                raw, rawSeason, median / rawSeason);
    return 0;
}
