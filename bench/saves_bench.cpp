// What keeping a career costs: the autosave a week (a whole copy of the working file through
// SQLite's backup, renamed into place) and taking a save up again to its week (the file put
// in place of the working file, checked, and the career taken up), in a new career and in one
// some busy seasons old, whose file has grown. Prints the median and worst of each.

#include "benchsupport.h"
#include "career/career.h"
#include "career/saves.h"
#include "random.h"
#include "sim/autoseason.h"
#include "store/gamestore.h"

#include <QFileInfo>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <vector>

namespace {

constexpr int kRuns = 30;

struct Figures
{
    double median = 0;
    double worst = 0;
};

Figures figuresOf(std::vector<double> times)
{
    std::sort(times.begin(), times.end());
    return {times[times.size() / 2], times.back()};
}

void measure(int seasons)
{
    QTemporaryDir folder;
    game::GameStore store(folder.filePath(QStringLiteral("balonmano.mdb")), QStringLiteral(ZARPAZO_PRISTINE));
    if (!store.open())
        std::exit(1);
    game::SystemRandom random(2004);
    SilentDialogs dialogs;
    game::Context context{store, random, dialogs};
    const game::Saves saves(folder.filePath(QStringLiteral("carreras")));

    game::AutoSeason season(context, {3, 5, game::AutoSeason::Policy::Busy});
    if (!season.begin())
        std::exit(1);
    for (int played = 0; played < seasons; ++played) {
        while (season.playWeek()) {
        }
        if (!season.closeSeason())
            std::exit(1);
    }
    // Into the season, a dozen weeks on.
    for (int week = 0; week < 12; ++week)
        season.playWeek();
    game::Career &career = season.career();
    career.setSaves(&saves);

    std::vector<double> saving;
    for (int run = 0; run < kRuns; ++run) {
        const auto begun = Clock::now();
        if (!career.save())
            std::exit(1);
        saving.push_back(seconds(Clock::now() - begun) * 1e3);
    }
    const QString file = saves.fileOf(career.name());
    std::vector<double> loading;
    for (int run = 0; run < kRuns; ++run) {
        const auto begun = Clock::now();
        game::Career again(context);
        if (!saves.load(store, file) || !again.resume())
            std::exit(1);
        loading.push_back(seconds(Clock::now() - begun) * 1e3);
    }
    const Figures saved = figuresOf(saving);
    const Figures loaded = figuresOf(loading);
    std::printf("%3d seasons old, a file of %lld KiB: autosave %.2f ms median (worst %.2f), target 5 ms;"
                " load to the week %.2f ms median (worst %.2f), target 50 ms\n",
                seasons, static_cast<long long>(QFileInfo(file).size() / 1024), saved.median, saved.worst,
                loaded.median, loaded.worst);
}

} // namespace

int main(int argc, char **argv)
{
    const int aged = argc > 1 ? std::max(1, std::atoi(argv[1])) : 20;
    measure(0);
    measure(aged);
    return 0;
}
