#pragma once

#include "career/newcareer.h"
#include "career/preseason.h"
#include "career/seasonclose.h"
#include "career/week.h"
#include "context.h"
#include "match/engine.h"
#include "result.h"

#include <QObject>

#include <memory>
#include <optional>

namespace game {

class Saves;

// A career's life, from the new career to season after season: the pre-season is planned,
// week after week opens, its events run, its match is played and recorded, and after the
// last week the season is closed, its verdict read, its orders settled and the next
// pre-season planned. The window and the headless simulator both lead the career through
// this one object, so the order of the steps is written once, here.
//
// Every step says whether it went through. One that failed leaves the career where it
// stood, the player having been told why, and goOn() tries it again from there: a week that
// could not open, a season that could not close, orders that could not be settled.
//
// With a folder of saves the career saves itself as a week's events have run, as a season
// closes and as a pre-season is to be planned, and on every way out; a save says where the
// career stands (its table partida) and resume() takes the career up from there.
//
//   Career career(context);
//   career.start({u"Ana"_s, u"Ruiz"_s, 4, u"PORTLAND SAN ANTONIO"_s});
//   ... the planner: career.planner().choose(...) / decline() ...
//   career.beginSeason();                  // the calendar, the market, week 1
//   career.runEvents();                    // the panel's first tick
//   MatchEngine *match = career.kickOff(); // both halves on the match screen's clock
//   career.finishMatch();                  // recorded; the next week opens
class Career : public QObject
{
    Q_OBJECT

public:
    // Where the career stands.
    enum class Stage {
        None,       // no career
        Planning,   // the planner of the pre-season is up; no week is open
        Week,       // a week is open and its match still to be played
        Played,     // the week's match is recorded; the next week has not opened yet
        SeasonOver, // the week after the calendar's last has come; the season is not closed
        Verdict,    // the season is closed and its verdict ready; its orders wait
    };

    explicit Career(Context context, QObject *parent = nullptr);
    ~Career() override;

    Context context() const { return m_context; }
    Stage stage() const { return m_stage; }
    // True from a new career until the player leaves it.
    bool inProgress() const { return m_stage != Stage::None; }
    // The career's own name, which names its save.
    const QString &name() const { return m_name; }
    // The career's seasons, from 1.
    int season() const { return m_season; }

    // The planner of this pre-season, while the career is planning.
    Preseason &planner() { return m_planner; }
    // The open week; the week just played until the next one opens.
    Week &week() { return m_week; }
    const Week &week() const { return m_week; }
    // The match being played, from its kick-off until it is recorded.
    MatchEngine *match() { return m_match.get(); }
    // The closed season's verdict, until its orders are settled.
    const std::optional<SeasonClose::Verdict> &verdict() const { return m_verdict; }

    // A new career: the name and the club are checked, the career row is written and the
    // planner of the first pre-season opens. False when refused or failed (told).
    bool start(const CareerChoice &choice);

    // The planner's "SEGUIR": with every slot dealt with, the calendar and the market are
    // made and week 1 opens. When the week could not open, trying again opens it without
    // making the calendar twice.
    bool beginSeason();

    // The week's events, once (the panel's first tick); a broadcast they brought is offered
    // again at each call until the player has acknowledged it.
    void runEvents();
    // The player's OK on the week's broadcast: its fee is booked, once.
    bool acceptBroadcast();

    // The week's match kicks off: its events first if they have not run, the crowd settled
    // once, the engine made on both sides. The match under way when it has kicked off
    // already; null when the week has no match to play.
    MatchEngine *kickOff();

    // The match is over: its score is recorded and the next week opens (or, after the last
    // week, the season closes). False when the score could not be written: the player has
    // been told, and the match is to be played again.
    bool finishMatch();

    // The verdict has been read: every order still waiting is settled and the next
    // pre-season's planner opens.
    bool settleOrders();

    // Takes up again the step at which the career stopped: the week that could not open,
    // the season that could not close, the orders that could not be settled; a week without
    // a match goes on to the next. False when there was nothing to take up or it failed
    // again.
    bool goOn();

    // Where the career saves itself; none by default (a test, a benchmark).
    void setSaves(const Saves *saves) { m_saves = saves; }
    // Saves the career now (a way out of it), in its file of the saves' folder or at the
    // path given. False when it could not be saved: the player has been told, once until a
    // save goes through again.
    bool save(const QString &path = {});
    // Takes up the career a save left in the working file: the planner, the week where it
    // stood (its events not run again, its wages not charged again) or the verdict. False
    // when the working file holds no career.
    bool resume();

    // The career is left: the working file goes back to the pristine copy and nothing of the
    // career remains. The store's failure, if any, is returned for the player.
    Result leave();

signals:
    // The planner of a pre-season is ready for the player.
    void planningStarted();
    // A week has opened; its events have not run yet.
    void weekOpened(int week);
    // The week's events have run and brought this.
    void newsArrived(const Week::News &news);
    // Television has bought the week's match; it waits for the player's OK.
    void broadcastOffered(const QString &channel);
    // The season's last week is behind: the final table stands, and the close follows at once.
    void seasonEnding();
    // The season has been closed and ranked; its verdict waits to be read.
    void verdictReady(const SeasonClose::Verdict &verdict);
    // The closed season's orders have been settled: the season is behind the career.
    void seasonClosed();

private:
    void setStage(Stage stage);
    Result writeStanding();
    bool openWeek();
    bool closeSeason();
    bool plan(int season);
    void autosave();

    Context m_context;
    Stage m_stage = Stage::None;
    QString m_name;
    int m_season = 1;
    Preseason m_planner;
    bool m_calendarMade = false;
    Week m_week;
    std::unique_ptr<MatchEngine> m_match;
    std::optional<SeasonClose::Verdict> m_verdict;
    const Saves *m_saves = nullptr;
    bool m_saveFailureTold = false;
};

} // namespace game
