// How a long career holds up: a hundred busy seasons played headless one after another, each
// closed and the next planned. Prints the wall time, the time of the first and the last ten
// seasons (a career that slows down as it ages shows here), and the peak memory.

#include "benchsupport.h"
#include "sim/autoseason.h"
#include "random.h"
#include "store/gamestore.h"

#include <QTemporaryDir>

#include <sys/resource.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <vector>

namespace {

long peakKilobytes()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss;
}

} // namespace

int main(int argc, char **argv)
{
    // A hundred seasons unless told otherwise (a shorter run suits a profiler).
    const int kSeasons = argc > 1 ? std::max(10, std::atoi(argv[1])) : 100;
    QTemporaryDir folder;
    game::GameStore store(folder.filePath(QStringLiteral("balonmano.mdb")), QStringLiteral(ZARPAZO_PRISTINE));
    if (!store.open()) {
        std::fprintf(stderr, "the store could not open\n");
        return 1;
    }
    game::SystemRandom random(2004);
    SilentDialogs dialogs;
    game::Context context{store, random, dialogs};
    constexpr int kClub = 3;
    game::AutoSeason career(context, {kClub, 5, game::AutoSeason::Policy::Busy});

    const auto started = Clock::now();
    if (!career.begin())
        return 1;
    std::vector<double> seasonSeconds;
    long peakAfterFirst = 0;
    for (int season = 1; season <= kSeasons; ++season) {
        const auto begun = Clock::now();
        while (career.playWeek()) {
        }
        if (!career.failure().isEmpty() || !career.closeSeason()) {
            std::fprintf(stderr, "season %d failed: %s\n", season, qPrintable(career.failure()));
            return 1;
        }
        seasonSeconds.push_back(seconds(Clock::now() - begun));
        if (season == 1)
            peakAfterFirst = peakKilobytes();
    }
    const double total = seconds(Clock::now() - started);
    double first = 0, last = 0;
    for (int i = 0; i < 10; ++i) {
        first += seasonSeconds[std::size_t(i)];
        last += seasonSeconds[std::size_t(kSeasons - 10 + i)];
    }
    std::printf("career: %d busy seasons in %.2f s (%.1f ms a season); first ten %.1f ms a season, last ten %.1f ms\n",
                kSeasons, total, total * 1e3 / kSeasons, first * 100, last * 100);
    // The cost of each tenth of the career, to see where it levels off: the market fills as
    // listed players stay listed, and the busy club's squad grows until the bids keep pace.
    std::printf("ms a season by tens of seasons:");
    for (int decade = 0; decade + 10 <= kSeasons; decade += 10) {
        double sum = 0;
        for (int i = decade; i < decade + 10; ++i)
            sum += seasonSeconds[std::size_t(i)];
        std::printf(" %.1f", sum * 100);
    }
    std::printf("\nat the end: %lld players listed, %lld in the club's squad\n",
                static_cast<long long>(store.integer("select count(*) from jugadores where venta = 1")),
                static_cast<long long>(store.integer("select count(*) from jugadores where idequipo = ?", kClub)));
    std::printf("peak memory: %ld KiB after the first season, %ld KiB after the last; %llu statements\n",
                peakAfterFirst, peakKilobytes(), static_cast<unsigned long long>(store.statementsRun()));
    return 0;
}
