// How long the store work of a week takes: opening a week (without message boxes), and
// building the season's calendar with the market draws.

#include "career/newcareer.h"
#include "career/preseason.h"
#include "career/week.h"
#include "benchsupport.h"
#include "random.h"
#include "store/gamestore.h"

#include <QTemporaryDir>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <vector>

namespace {


double micros(Clock::duration d)
{
    return std::chrono::duration<double, std::micro>(d).count();
}

void report(const char *what, std::vector<double> samples)
{
    std::sort(samples.begin(), samples.end());
    double sum = 0;
    for (double s : samples)
        sum += s;
    std::printf("%-34s runs %5zu  mean %9.1f us  median %9.1f us  p95 %9.1f us\n", what, samples.size(),
                sum / double(samples.size()), samples[samples.size() / 2], samples[samples.size() * 95 / 100]);
}

} // namespace

int main()
{
    QTemporaryDir folder;
    game::GameStore store(folder.filePath(QStringLiteral("balonmano.mdb")), QStringLiteral(ZARPAZO_PRISTINE));
    if (!store.open()) {
        std::fprintf(stderr, "cannot open the store\n");
        return 1;
    }
    game::SystemRandom random(2004);
    SilentDialogs dialogs;
    game::Context context{store, random, dialogs};
    game::NewCareer(context).start({QStringLiteral("Ana"), QStringLiteral("Ruiz"), 1, QStringLiteral("F.C. BARCELONA")});

    std::vector<double> planning;
    std::vector<double> openings;
    for (int season = 0; season < 40; ++season) {
        game::Preseason planner(context);
        planner.begin();
        const QStringList rivals = planner.clubsOf(2);
        for (int slot = 0; slot < 5; ++slot)
            planner.choose(rivals.at(slot % rivals.size()));
        const auto started = Clock::now();
        planner.proceed();
        planning.push_back(micros(Clock::now() - started));

        game::Week week(context, game::WeekEvents{});
        for (int number = 0; number < 35; ++number) {
            const auto begun = Clock::now();
            week.open();
            openings.push_back(micros(Clock::now() - begun));
        }
        // Back to an empty season for the next round, outside the timing.
        (void)store.run([&] {
            store.execute("delete from calendario");
            store.execute("delete from caja");
            store.execute("delete from pretemporada");
        });
    }
    report("week opening", openings);
    report("calendar and 76 market draws", planning);
    return 0;
}
