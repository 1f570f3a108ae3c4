// zarpazo-sim: plays a career without a display, through the same game code the screens
// call, and prints one JSON line with what happened.
//
//   zarpazo-sim --data-dir DIR [--seed S] [--club ID] [--friendlies K] [--weeks N]
//               [--policy quiet|busy] [--seasons N] [--save FILE] [--load FILE]
//
// A quiet manager only plays; a busy one also orders stadium works, raises the ticket price
// before home matches, takes every broadcast and works the market. With --seasons the career
// goes on: each season is closed, its orders settled and the next pre-season planned, and
// the report gains one object per season.
//
// DIR/balonmano.mdb is restored from the pristine copy first and left there for inspection.
// --load continues the career a save holds (its club and where it stood) instead of starting
// one; --save writes the career's save at the end. The report's "history" holds the rows of
// the career's history, one a closed season.

#include "career/saves.h"
#include "career/statements.h"
#include "league/careerrow.h"
#include "dialogs.h"
#include "sim/autoseason.h"
#include "random.h"
#include "stadium/ledger.h"
#include "store/gamestore.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QElapsedTimer>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cstdio>
#include <memory>

namespace {

// Acknowledges every message and answers No to every question.
class AutomaticDialogs final : public game::Dialogs
{
public:
    void tell(const QString &, Icon, const QString &) override { ++told; }
    bool ask(const QString &, const QString &) override
    {
        ++asked;
        return false;
    }
    int told = 0;
    int asked = 0;
};

int fail(const QString &message)
{
    std::fprintf(stderr, "zarpazo-sim: %s\n", qPrintable(message));
    return 1;
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("zarpazo-sim"));
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Plays Zarpazo without a display."));
    parser.addHelpOption();
    const QCommandLineOption dataDir(QStringLiteral("data-dir"), QStringLiteral("Folder of the working database."),
                                     QStringLiteral("DIR"));
    const QCommandLineOption seed(QStringLiteral("seed"), QStringLiteral("Seed of chance."), QStringLiteral("S"));
    const QCommandLineOption club(QStringLiteral("club"), QStringLiteral("The user's club, 1 to 16."),
                                  QStringLiteral("ID"), QStringLiteral("1"));
    const QCommandLineOption friendlies(QStringLiteral("friendlies"), QStringLiteral("Friendlies to play, 0 to 5."),
                                        QStringLiteral("K"), QStringLiteral("0"));
    const QCommandLineOption weeks(QStringLiteral("weeks"), QStringLiteral("Weeks to play at most."),
                                   QStringLiteral("N"), QStringLiteral("0"));
    const QCommandLineOption pristine(QStringLiteral("pristine"), QStringLiteral("The pristine database."),
                                      QStringLiteral("FILE"),
                                      QCoreApplication::applicationDirPath() + QStringLiteral("/balonmanoX.mdb"));
    const QCommandLineOption policy(QStringLiteral("policy"),
                                    QStringLiteral("How the club is run: quiet (only the matches) or busy."),
                                    QStringLiteral("quiet|busy"), QStringLiteral("quiet"));
    const QCommandLineOption seasons(QStringLiteral("seasons"), QStringLiteral("Whole seasons to play, 1 or more."),
                                     QStringLiteral("N"), QStringLiteral("1"));
    const QCommandLineOption save(QStringLiteral("save"), QStringLiteral("Writes the career's save here at the end."),
                                  QStringLiteral("FILE"));
    const QCommandLineOption load(QStringLiteral("load"), QStringLiteral("Continues the career saved here."),
                                  QStringLiteral("FILE"));
    parser.addOptions({dataDir, seed, club, friendlies, weeks, pristine, policy, seasons, save, load});
    parser.process(app);
    if (!parser.isSet(dataDir))
        return fail(QStringLiteral("--data-dir is required"));
    const int clubId = parser.value(club).toInt();
    const int friendlyCount = parser.value(friendlies).toInt();
    const int weekLimit = parser.value(weeks).toInt();
    if (clubId < 1 || clubId > 16)
        return fail(QStringLiteral("--club must be 1 to 16"));
    if (friendlyCount < 0 || friendlyCount > 5)
        return fail(QStringLiteral("--friendlies must be 0 to 5"));
    bool seasonsOk = false;
    const int seasonCount = parser.value(seasons).toInt(&seasonsOk);
    if (!seasonsOk || seasonCount < 1)
        return fail(QStringLiteral("--seasons must be 1 or more"));
    game::AutoSeason::Policy chosenPolicy = game::AutoSeason::Policy::Quiet;
    if (parser.value(policy) == QLatin1String("busy"))
        chosenPolicy = game::AutoSeason::Policy::Busy;
    else if (parser.value(policy) != QLatin1String("quiet"))
        return fail(QStringLiteral("--policy must be quiet or busy, not \"%1\"").arg(parser.value(policy)));

    QElapsedTimer clock;
    clock.start();
    QDir().mkpath(parser.value(dataDir));
    game::GameStore store(QDir(parser.value(dataDir)).filePath(QStringLiteral("balonmano.mdb")), parser.value(pristine));
    if (game::Result restored = store.restore(); !restored)
        return fail(restored.message());
    if (game::Result opened = store.open(); !opened)
        return fail(opened.message());

    std::unique_ptr<game::SystemRandom> random = parser.isSet(seed)
                                                     ? std::make_unique<game::SystemRandom>(parser.value(seed).toULongLong())
                                                     : std::make_unique<game::SystemRandom>();
    AutomaticDialogs dialogs;
    game::Context context{store, *random, dialogs};

    game::AutoSeason season(context, {clubId, friendlyCount, chosenPolicy});
    if (parser.isSet(load)) {
        const game::Saves saves(QFileInfo(parser.value(load)).absolutePath());
        if (game::Result loaded = saves.load(store, parser.value(load)); !loaded)
            return fail(loaded.message());
        if (!season.resume())
            return fail(season.failure());
    } else if (!season.begin()) {
        return fail(season.failure());
    }
    QJsonArray bySeason;
    for (int played = 1; played <= seasonCount; ++played) {
        while ((weekLimit == 0 || season.totals().weeks < weekLimit) && season.playWeek()) {
        }
        if (!season.failure().isEmpty())
            return fail(season.failure());
        if (seasonCount == 1)
            break; // a single season is left at its verdict, its orders still waiting, for inspection
        game::AutoSeason::SeasonSummary summary;
        if (!season.closeSeason(&summary))
            return fail(season.failure());
        bySeason.append(QJsonObject{
            {QStringLiteral("season"), played},
            {QStringLiteral("champion"), summary.champion},
            {QStringLiteral("place"), summary.place},
            {QStringLiteral("points"), summary.points},
            {QStringLiteral("goals_for"), summary.goalsFor},
            {QStringLiteral("goals_against"), summary.goalsAgainst},
            {QStringLiteral("budget"), double(summary.budget)},
        });
    }

    if (parser.isSet(save)) {
        const game::Saves saves(QFileInfo(parser.value(save)).absolutePath());
        season.career().setSaves(&saves);
        if (!season.career().save(parser.value(save)))
            return fail(QStringLiteral("the career could not be saved at %1").arg(parser.value(save)));
        season.career().setSaves(nullptr);
    }

    QJsonArray history;
    store.attempt([&] {
        for (const game::sql::career::HistoryRow &row : game::sql::career::history(store)) {
            history.append(QJsonObject{
                {QStringLiteral("season"), row.season},
                {QStringLiteral("years"), row.years},
                {QStringLiteral("champion"), row.champion},
                {QStringLiteral("place"), row.place},
                {QStringLiteral("points"), row.points},
                {QStringLiteral("won"), row.won},
                {QStringLiteral("drawn"), row.drawn},
                {QStringLiteral("lost"), row.lost},
                {QStringLiteral("goals_for"), row.goalsFor},
                {QStringLiteral("goals_against"), row.goalsAgainst},
                {QStringLiteral("budget"), double(row.budget)},
                {QStringLiteral("top_scorer"), row.topScorer},
                {QStringLiteral("top_scorer_goals"), row.topScorerGoals},
                {QStringLiteral("signing"), row.signing},
                {QStringLiteral("signing_sum"), double(row.signingSum)},
                {QStringLiteral("sale"), row.sale},
                {QStringLiteral("sale_sum"), double(row.saleSum)},
            });
        }
    });

    const game::AutoSeason::Totals &totals = season.totals();
    const QJsonObject report{
        {QStringLiteral("seasons"), seasonCount},
        {QStringLiteral("season_results"), bySeason},
        {QStringLiteral("history"), history},
        {QStringLiteral("weeks"), totals.weeks},
        {QStringLiteral("matches"), totals.matches},
        {QStringLiteral("goals_for"), totals.goalsFor},
        {QStringLiteral("goals_against"), totals.goalsAgainst},
        {QStringLiteral("works_ordered"), totals.worksOrdered},
        {QStringLiteral("works_finished"), totals.worksFinished},
        {QStringLiteral("tv_income"), double(totals.tvIncome)},
        {QStringLiteral("shop_income"), double(totals.shopIncome)},
        {QStringLiteral("gate_income"), double(totals.gateIncome)},
        {QStringLiteral("offers_made"), totals.offersMade},
        {QStringLiteral("signings"), totals.signings},
        {QStringLiteral("refusals"), totals.refusals},
        {QStringLiteral("sales"), totals.sales},
        {QStringLiteral("renewals"), totals.renewals},
        {QStringLiteral("dismissals"), totals.dismissals},
        {QStringLiteral("budget"), double(game::Ledger(store).budget(game::CareerRow::current(context).club))},
        {QStringLiteral("statements"), double(store.statementsRun())},
        {QStringLiteral("messages"), dialogs.told},
        {QStringLiteral("wall_ms"), double(clock.nsecsElapsed()) / 1e6},
    };
    std::printf("%s\n", QJsonDocument(report).toJson(QJsonDocument::Compact).constData());
    return 0;
}
