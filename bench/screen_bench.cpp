// How fast the screens open: every screen of a career opened through the navigator, as the
// panel's buttons open them, in a new career and in one a hundred busy seasons old. Each is
// opened and painted twenty times (club 3); the median and the worst CPU time are printed,
// against one frame at 60 Hz. Then the match: the CPU time of one tick of its clock, painted.
// Last, the game itself from the start of its process to its first frame.
//
//   build/bench/screen_bench [SEASONS [SCREEN]]   (a hundred seasons and every screen unless told
//                                                 otherwise; one screen alone suits a profiler)

#include "benchsupport.h"
#include "career/weekpanel.h"
#include "common/theme.h"
#include "match/callup.h"
#include "match/matchscreen.h"
#include "sim/autoseason.h"
#include "navigator.h"
#include "random.h"
#include "reports/verdictscreen.h"
#include "career/seasonclose.h"
#include "store/gamestore.h"

#include <QAbstractButton>
#include <QApplication>
#include <QElapsedTimer>
#include <QMainWindow>
#include <QProcess>
#include <QTemporaryDir>
#include <QTimer>

#include <time.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <memory>
#include <vector>

namespace {

constexpr int kClub = 3;
constexpr int kRuns = 20;
constexpr double kFrameMs = 1000.0 / 60;
// The one screen to measure, when the command line names it.
QString g_only;

double cpuMs()
{
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return double(now.tv_sec) * 1e3 + double(now.tv_nsec) / 1e6;
}

// Lets the event loop lay out and paint what was opened, and delete what was closed.
void settle()
{
    QApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QApplication::processEvents();
}

struct Figures
{
    double median = 0;
    double worst = 0;
};

Figures figuresOf(std::vector<double> times)
{
    if (times.empty())
        return {};
    std::sort(times.begin(), times.end());
    return {times[times.size() / 2], times.back()};
}

// A career in a store of its own, with the game's window over it.
struct Career
{
    explicit Career(int seasons)
    {
        store = std::make_unique<game::GameStore>(folder.filePath(QStringLiteral("balonmano.mdb")),
                                                  QStringLiteral(ZARPAZO_PRISTINE));
        if (!store->open()) {
            std::fprintf(stderr, "the store could not open\n");
            std::exit(1);
        }
        context = std::make_unique<game::Context>(game::Context{*store, random, dialogs});
        // The seasons are played headless; the last close plans the next pre-season.
        game::AutoSeason career(*context, {kClub, 5, game::AutoSeason::Policy::Busy});
        bool played = career.begin();
        for (int season = 0; played && season < seasons; ++season) {
            while (career.playWeek()) {
            }
            played = career.failure().isEmpty() && career.closeSeason();
        }
        if (!played) {
            std::fprintf(stderr, "the career could not be played: %s\n", qPrintable(career.failure()));
            std::exit(1);
        }
        window.resize(1280, 720);
        window.show();
        navigator = std::make_unique<app::Navigator>(*context, window);
        navigator->setUrlOpener([](const QUrl &) { return true; });
        // The window takes up the career the headless manager left at its planner.
        if (!navigator->career().resume()) {
            std::fprintf(stderr, "the career could not be taken up\n");
            std::exit(1);
        }
    }

    ~Career()
    {
        navigator.reset();
        settle();
    }

    // Opens the screen, lets it lay out and paint, and closes it again; the CPU time of the
    // opening and the painting. The panel stays under every screen of the week and is never
    // closed: it is shown again and painted whole.
    double openOnce(const QString &name, const QVariant &about)
    {
        const bool panel = name == QStringLiteral("Panel_Control_Manager");
        const double start = cpuMs();
        QWidget *screen = navigator->open(name, about);
        if (!screen)
            return -1;
        QApplication::processEvents();
        if (panel)
            window.repaint();
        const double spent = cpuMs() - start;
        if (!panel)
            navigator->close(name);
        settle();
        return spent;
    }

    std::optional<Figures> measure(const QString &name, const QVariant &about = {})
    {
        if (!g_only.isEmpty() && name != g_only)
            return std::nullopt;
        std::vector<double> times;
        for (int run = 0; run < kRuns; ++run) {
            const double spent = openOnce(name, about);
            if (spent < 0)
                return std::nullopt;
            times.push_back(spent);
        }
        return figuresOf(times);
    }

    QTemporaryDir folder;
    std::unique_ptr<game::GameStore> store;
    game::SystemRandom random{2004};
    SilentDialogs dialogs;
    std::unique_ptr<game::Context> context;
    QMainWindow window;
    std::unique_ptr<app::Navigator> navigator;
};

struct Row
{
    QString screen;
    std::optional<Figures> fresh;
    std::optional<Figures> aged;
};

void record(std::vector<Row> &rows, const QString &screen, std::optional<Figures> figures, bool aged)
{
    auto row = std::find_if(rows.begin(), rows.end(), [&](const Row &r) { return r.screen == screen; });
    if (row == rows.end()) {
        rows.push_back({screen, {}, {}});
        row = rows.end() - 1;
    }
    (aged ? row->aged : row->fresh) = figures;
}

// Every screen of the career in one state: the planner first (it belongs to the pre-season),
// then the week's screens over the first week's panel.
void measureCareer(Career &career, std::vector<Row> &rows, bool aged)
{
    record(rows, QStringLiteral("Pretemporada"), career.measure(QStringLiteral("Pretemporada")), aged);
    career.navigator->career().beginSeason();
    settle();
    auto *panel = career.navigator->screen<ui::WeekPanel>(QStringLiteral("Panel_Control_Manager"));
    if (!panel) {
        std::fprintf(stderr, "the first week did not open\n");
        std::exit(1);
    }
    panel->runWeekEvents();
    settle();
    game::CallUp(*career.context).chooseBest();

    const int player = int(career.store->integer("select min(idjugador) from jugadores where idequipo = ?", kClub));
    const int listed = int(career.store->integer("select min(idjugador) from jugadores where venta = 1 and idequipo <> ?",
                                                 kClub));
    const QVariantMap offer{{QStringLiteral("player"), listed}, {QStringLiteral("listed"), true}};
    const std::pair<const char *, QVariant> screens[] = {
        {"Panel_Control_Manager", {}}, {"Alinear", {}},       {"Tactica", {}},    {"Plantilla", {}},
        {"Renovar", player},           {"Juveniles", {}},     {"Calendario", {}}, {"Clasificacion", {}},
        {"Resultados", {}},            {"Caja", {}},          {"estadios", {}},   {"Fichar_EnVenta", {}},
        {"Fichar", {}},                {"Secretario", {}},    {"Fichar_Jugadores", offer},
        {"Tele", {}},                  {"partido", {}},
    };
    for (const auto &[name, about] : screens)
        record(rows, QString::fromLatin1(name), career.measure(QString::fromLatin1(name), about), aged);
    career.navigator->showPanel();
    settle();

    // The verdict opens only at a season's close; it is made here as the navigator makes it.
    if (!g_only.isEmpty() && g_only != QStringLiteral("Finall"))
        return;
    std::vector<double> times;
    for (int run = 0; run < kRuns; ++run) {
        const double start = cpuMs();
        ui::VerdictScreen verdict(game::SeasonClose(*career.context).verdict(), &career.window);
        verdict.open();
        QApplication::processEvents();
        verdict.repaint();
        times.push_back(cpuMs() - start);
        verdict.hide();
    }
    settle();
    record(rows, QStringLiteral("Finall"), figuresOf(times), aged);
}

// A whole match, tick by tick as its timer gives them, each one painted.
Figures measureMatch(Career &career)
{
    auto *match = qobject_cast<ui::MatchScreen *>(career.navigator->open(QStringLiteral("partido")));
    if (!match) {
        std::fprintf(stderr, "the match did not open\n");
        std::exit(1);
    }
    settle();
    auto *timer = match->findChild<QTimer *>(QStringLiteral("Timer1"));
    std::vector<double> times;
    for (int half = 0; half < 2; ++half) {
        match->findChild<QAbstractButton *>(QStringLiteral("cmdStart"))->click();
        timer->stop(); // the ticks are given here, one at a time
        settle();
        while (match->engine().running()) {
            const double start = cpuMs();
            match->tick();
            QApplication::processEvents();
            times.push_back(cpuMs() - start);
        }
    }
    std::printf("match: %zu ticks; ", times.size());
    career.navigator->close(QStringLiteral("partido"));
    settle();
    return figuresOf(times);
}

// The game as a player starts it, until its first frame: its own report of the CPU time
// from the start of its process.
void measureStart()
{
    QTemporaryDir home;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    environment.insert(QStringLiteral("XDG_DATA_HOME"), home.path());
    environment.insert(QStringLiteral("ZARPAZO_FIRST_FRAME"), QStringLiteral("1"));
    std::vector<double> cpu, wall;
    for (int run = 0; run < 10; ++run) {
        QProcess game;
        game.setProcessEnvironment(environment);
        QElapsedTimer clock;
        clock.start();
        game.start(QStringLiteral(ZARPAZO_BINARY), {});
        if (!game.waitForFinished(30000)) {
            std::fprintf(stderr, "the game did not show its first frame\n");
            return;
        }
        wall.push_back(double(clock.nsecsElapsed()) / 1e6);
        const QString said = QString::fromUtf8(game.readAllStandardOutput());
        const qsizetype at = said.indexOf(QStringLiteral("first frame: "));
        if (at < 0) {
            std::fprintf(stderr, "the game did not report its first frame\n");
            return;
        }
        cpu.push_back(said.mid(at + 13).section(QLatin1Char(' '), 0, 0).toDouble());
    }
    const Figures c = figuresOf(cpu), w = figuresOf(wall);
    std::printf("start to first frame: %.1f ms CPU median (worst %.1f), %.1f ms wall to exit; target 100 ms\n",
                c.median, c.worst, w.median);
}

QString shown(const std::optional<Figures> &f)
{
    if (!f)
        return QStringLiteral("        —        ");
    return QStringLiteral("%1 / %2%3")
        .arg(f->median, 6, 'f', 1)
        .arg(f->worst, 6, 'f', 1)
        .arg(f->median > kFrameMs ? QStringLiteral(" !") : QStringLiteral("  "));
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const int seasons = argc > 1 ? std::max(1, std::atoi(argv[1])) : 100;
    if (argc > 2)
        g_only = QString::fromLocal8Bit(argv[2]);
    QApplication app(argc, argv);
    theme::apply(app);

    std::vector<Row> rows;
    Figures tick;
    {
        Career fresh(0);
        measureCareer(fresh, rows, false);
        if (g_only.isEmpty()) {
            tick = measureMatch(fresh);
            std::printf("one tick %.2f ms CPU median (worst %.2f); target 2 ms\n", tick.median, tick.worst);
        }
    }
    {
        QElapsedTimer played;
        played.start();
        Career aged(seasons);
        std::printf("%d busy seasons played headless in %.1f s\n", seasons, double(played.elapsed()) / 1e3);
        measureCareer(aged, rows, true);
    }

    std::printf("\nCPU ms to open and paint, median / worst of %d (club %d); ! above one frame (%.1f ms)\n", kRuns,
                kClub, kFrameMs);
    std::printf("%-24s %-19s %-19s\n", "screen", "new career", "after seasons");
    for (const Row &row : rows)
        std::printf("%-24s %-19s %-19s\n", qPrintable(row.screen), qPrintable(shown(row.fresh)),
                    qPrintable(shown(row.aged)));
    std::printf("\n");
    if (g_only.isEmpty())
        measureStart();
    return 0;
}
