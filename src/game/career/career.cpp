#include "career.h"

#include "career/saves.h"
#include "career/statements.h"
#include "dialogs.h"
#include "store/gamestore.h"

#include <QDateTime>

#include <array>
#include <utility>

namespace game {

namespace {

// How a save names where the career stands.
constexpr std::array<std::pair<Career::Stage, const char *>, 6> kStages{{
    {Career::Stage::None, ""},
    {Career::Stage::Planning, "planificando"},
    {Career::Stage::Week, "semana"},
    {Career::Stage::Played, "jugado"},
    {Career::Stage::SeasonOver, "final"},
    {Career::Stage::Verdict, "veredicto"},
}};

QString stageName(Career::Stage stage)
{
    for (const auto &[known, name] : kStages) {
        if (known == stage)
            return QString::fromLatin1(name);
    }
    return {};
}

Career::Stage stageNamed(const QString &name)
{
    for (const auto &[stage, known] : kStages) {
        if (name == QLatin1String(known))
            return stage;
    }
    return Career::Stage::None;
}

} // namespace

Career::Career(Context context, QObject *parent)
    : QObject(parent), m_context(context), m_planner(context), m_week(context)
{
}

Career::~Career() = default;

bool Career::start(const CareerChoice &choice)
{
    if (!NewCareer(m_context).start(choice))
        return false;
    // A career is named by the moment it began, which names its save.
    m_name = QStringLiteral("carrera-") + QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd-HHmmss-zzz"));
    m_week.close();
    m_match.reset();
    m_verdict.reset();
    return plan(1);
}

bool Career::plan(int season)
{
    GameStore &store = m_context.store;
    const Result written = store.run([&] { sql::career::writeSeason(store, m_name, season); });
    if (!written) {
        m_context.dialogs.tell(written.message(), Dialogs::Icon::Exclamation);
        return false;
    }
    m_season = season;
    m_planner.begin();
    m_calendarMade = false;
    setStage(Stage::Planning);
    emit planningStarted();
    autosave();
    return true;
}

bool Career::beginSeason()
{
    if (m_stage != Stage::Planning)
        return false;
    // The calendar and the market are made once; a week that could not open after them is
    // opened on the calendar already made.
    if (!m_calendarMade) {
        if (!m_planner.proceed())
            return false;
        m_calendarMade = true;
    }
    return openWeek();
}

bool Career::openWeek()
{
    if (!m_week.open())
        return false; // told; the career stays where it stood, to be taken up again
    m_match.reset();
    if (m_week.seasonOver()) {
        setStage(Stage::SeasonOver);
        emit seasonEnding();
        return closeSeason();
    }
    setStage(Stage::Week);
    emit weekOpened(m_week.number());
    return true;
}

void Career::runEvents()
{
    // A call behind a message box of the events themselves waits for them to end.
    if (m_stage != Stage::Week || m_week.eventsRunning())
        return;
    if (!m_week.eventsRun()) {
        m_week.runEvents();
        emit newsArrived(m_week.news());
        autosave();
    }
    // The broadcast waits for the player's OK, however the events came to run.
    if (m_week.broadcast())
        emit broadcastOffered(*m_week.broadcast());
}

bool Career::acceptBroadcast()
{
    return m_stage == Stage::Week && m_week.acceptBroadcast();
}

MatchEngine *Career::kickOff()
{
    if (m_stage != Stage::Week)
        return nullptr;
    if (m_match)
        return m_match.get();
    runEvents(); // the rival must have named his seven
    const std::optional<Week::Kickoff> kickoff = m_week.kickOff();
    if (!kickoff)
        return nullptr;
    m_match = std::make_unique<MatchEngine>(m_context.random, kickoff->setup);
    return m_match.get();
}

bool Career::finishMatch()
{
    if (m_stage != Stage::Week || !m_match || !m_match->finished())
        return false;
    // The score and the user's scorers of the season go together.
    GameStore &store = m_context.store;
    bool recorded = false;
    const Result written = store.run([&] {
        recorded = m_week.recordResult(m_match->score(0), m_match->score(1));
        if (!recorded)
            return;
        for (const auto &[player, goals] : m_match->scorers()) {
            if (player > 0)
                sql::career::addGoals(store, m_season, player, goals);
        }
    });
    if (!written)
        m_context.dialogs.tell(written.message(), Dialogs::Icon::Exclamation);
    // Recorded or not, this match is over: a score that could not be written is played again.
    m_match.reset();
    if (!written || !recorded)
        return false;
    // The next week opens at once and says where the career stands.
    m_stage = Stage::Played;
    return openWeek();
}

bool Career::closeSeason()
{
    m_verdict = SeasonClose(m_context).close();
    if (!m_verdict)
        return false; // told; the season stands as it was, to be closed again
    setStage(Stage::Verdict);
    emit verdictReady(*m_verdict);
    autosave();
    return true;
}

bool Career::settleOrders()
{
    if (m_stage != Stage::Verdict)
        return false;
    // Orders that could not be settled stay, to be settled when the career is taken up again.
    if (!SeasonClose(m_context).settleQueue())
        return false;
    // The history keeps the budget the season left once its orders are paid.
    GameStore &store = m_context.store;
    const int season = m_season;
    const Result budget = store.run(
        [&] { sql::career::setHistoryBudget(store, season, sql::career::budgetOf(store, userClub(store))); });
    if (!budget)
        m_context.dialogs.tell(budget.message(), Dialogs::Icon::Exclamation);
    m_verdict.reset();
    m_week.close();
    emit seasonClosed();
    return plan(m_season + 1);
}

bool Career::goOn()
{
    switch (m_stage) {
    case Stage::Planning:
        return beginSeason();
    case Stage::Played:
        return openWeek();
    case Stage::SeasonOver:
        return closeSeason();
    case Stage::Verdict:
        return settleOrders();
    case Stage::Week:
        // A week without a match (its fixture could not be found) has nothing to wait for.
        return !m_week.fixture() && openWeek();
    case Stage::None:
        break;
    }
    return false;
}

void Career::setStage(Stage stage)
{
    m_stage = stage;
    // Only for a career taken up from the working file as found; a save writes it again, so a
    // failure here loses nothing.
    static_cast<void>(writeStanding());
}

Result Career::writeStanding()
{
    // The working file says where the career stands, so that it can be taken up from the file
    // as found (a save is a copy of it).
    GameStore &store = m_context.store;
    const sql::career::Standing standing{m_name, m_season, stageName(m_stage), m_week.eventsDone(),
                                         m_week.broadcast().value_or(QString()), m_week.gatePosted()};
    return store.run([&] { sql::career::writeStanding(store, standing); });
}

bool Career::save(const QString &path)
{
    if (!m_saves || m_stage == Stage::None)
        return false;
    GameStore &store = m_context.store;
    Result saved = writeStanding();
    if (saved)
        saved = path.isEmpty() ? m_saves->save(store, m_name) : m_saves->saveAs(store, path);
    if (!saved) {
        // Told once: a full disk would say it every week. The game goes on, and the last save
        // that went through stays whole.
        if (!m_saveFailureTold)
            m_context.dialogs.tell(saved.message(), Dialogs::Icon::Exclamation);
        m_saveFailureTold = true;
        return false;
    }
    m_saveFailureTold = false;
    return true;
}

void Career::autosave()
{
    if (m_saves)
        save();
}

bool Career::resume()
{
    GameStore &store = m_context.store;
    sql::career::Standing standing;
    bool calendar = false;
    if (!store.attempt([&] {
            standing = sql::career::standing(store);
            calendar = sql::career::lastWeekOfCalendar(store) > 0;
        }))
        return false;
    const Stage stage = stageNamed(standing.stage);
    if (stage == Stage::None || standing.career.isEmpty())
        return false;
    m_name = standing.career;
    m_season = standing.season;
    m_match.reset();
    m_verdict.reset();
    m_week.close();
    switch (stage) {
    case Stage::Planning:
        m_planner.resume();
        m_calendarMade = calendar;
        break;
    case Stage::Week:
    case Stage::Played:
    case Stage::SeasonOver:
        m_week.reopen(standing.eventsDone,
                      standing.channel.isEmpty() ? std::nullopt : std::optional<QString>(standing.channel),
                      standing.gatePosted, stage == Stage::Played);
        break;
    case Stage::Verdict:
        m_verdict = SeasonClose(m_context).verdict();
        break;
    case Stage::None:
        break;
    }
    m_stage = stage;
    return true;
}

Result Career::leave()
{
    m_stage = Stage::None;
    m_match.reset();
    m_verdict.reset();
    m_week.close();
    m_calendarMade = false;
    m_name.clear();
    return m_context.store.restore();
}

} // namespace game
