#pragma once

#include "context.h"

#include <QDate>
#include <QString>
#include <QStringList>

#include <array>

namespace game {

// The pre-season planner. Five dated friendly slots are filled from first to last, each with
// a rival or declined; the last one, the "Presentación", is played at home. Going on builds
// the season's calendar (the friendlies played, then the thirty league rounds of the club)
// and puts players of other clubs on the market.
//
//   Preseason planner(context);
//   planner.begin();
//   planner.choose(u"THW Kiel"_s);
//   planner.decline();  ...
//   if (planner.proceed()) navigator.openWeekPanel();
class Preseason
{
public:
    static constexpr int kSlots = 5;
    static constexpr int kMarketDraws = 76;

    struct Country
    {
        int code;
        const char *button;       // the button's name on the screen
        const char16_t *caption;
    };
    static const std::array<Country, 18> &countries();

    struct Slot
    {
        enum class State { Open, Chosen, Declined };
        State state = State::Open;
        QString home;
        QString away;
        QDate date;   // as it falls in the career's season
    };

    explicit Preseason(Context context) : m_context(context) {}

    // Opens the planner for the career in the store: no week is open while it is up.
    void begin();
    // Takes up a planner a save left: the friendlies already chosen are read back, and a slot
    // left empty before a chosen one was declined. Writes nothing.
    void resume();

    const QString &manager() const { return m_manager; }
    const QString &clubName() const { return m_clubName; }
    int club() const { return m_club; }
    int slotsDealt() const { return m_dealt; }
    const std::array<Slot, kSlots> &friendlySlots() const { return m_slots; }
    static QDate slotDate(int slot);

    // The clubs of a country to play against; Spain's list leaves the user's club out.
    QStringList clubsOf(int countryCode);

    // Gives the next open slot to the club of that name. Returns the slot's index, or -1 when
    // all five are dealt with or the club is unknown (nothing written).
    int choose(const QString &clubName);
    // Declines the next open slot; false when all five are dealt with.
    bool decline();
    // Takes back the last slot dealt with; false when none is.
    bool takeBack();

    // Builds the calendar and the market once all five slots are dealt with; otherwise tells
    // the player and returns false.
    bool proceed();

private:
    void buildCalendar();
    void drawMarket();

    Context m_context;
    QString m_manager;
    QString m_clubName;
    int m_club = 0;
    int m_season = 1;
    int m_dealt = 0;
    std::array<Slot, kSlots> m_slots;
};

} // namespace game
