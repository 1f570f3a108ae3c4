// How long the store work of a week takes: opening a week (without message boxes), opening
// it and running its events (the rival's seven, works that end, the shop, television), and
// building the season's calendar with the market draws.

#include "career/newcareer.h"
#include "career/preseason.h"
#include "career/week.h"
#include "benchsupport.h"
#include "random.h"
#include "stadium/works.h"
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

    // The same weeks with their events, the stadium kept busy: whenever a group has no work
    // under way its first work on offer is ordered, outside the timing, so works end all
    // season long.
    std::vector<double> eventful;
    for (int season = 0; season < 20; ++season) {
        game::Preseason planner(context);
        planner.begin();
        const QStringList rivals = planner.clubsOf(2);
        for (int slot = 0; slot < 5; ++slot)
            planner.choose(rivals.at(slot % rivals.size()));
        planner.proceed();
        (void)store.run([&] {
            store.execute("update estadios set focos = 0, marcadores = 1, accesos = 1, enfermeria = 0, lavabos = 1,"
                          " tienda = 0, calefaccion = 0, parking = 0, min_gradas = 5000 where idequipo = 1");
        });

        game::Week week(context);
        for (int number = 0; number < 35; ++number) {
            const auto begun = Clock::now();
            week.open();
            week.runEvents();
            if (week.broadcast())
                week.acceptBroadcast();
            eventful.push_back(micros(Clock::now() - begun));

            game::Works works(context);
            const game::Works::Screen screen = works.screen();
            std::vector<game::Works::Choice> choices;
            QList<game::Works::Group> taken;
            for (const game::Works::UnderWay &work : screen.underWay)
                taken << game::Works::groupOf(work.item);
            for (const game::Works::Order &order : game::Works::catalogue()) {
                const game::Works::Group group = game::Works::groupOf(order.item);
                if (!taken.contains(group) && screen.offers(order.choice)) {
                    taken << group;
                    choices.push_back(order.choice);
                }
            }
            works.order(choices);
        }
        (void)store.run([&] {
            store.execute("delete from calendario");
            store.execute("delete from caja");
            store.execute("delete from pretemporada");
            store.execute("delete from selects");
        });
    }
    report("week opening", openings);
    report("week opening with its events", eventful);
    report("calendar and 76 market draws", planning);
    return 0;
}
