#pragma once

#include "career/fixture.h"
#include "career/weekevents.h"
#include "context.h"

#include <QWidget>

#include <array>
#include <map>
#include <optional>

class QLabel;
class QPushButton;
class QTimer;

namespace ui {

// The week panel, hub of the career. Making it opens a new week; its first tick, 100 ms
// later, runs the week's events once; its buttons lead to every screen of the week.
class WeekPanel : public QWidget
{
    Q_OBJECT

public:
    enum class Destination { CallUp, Tactics, Calendar, Standings, Results, Squad, Market, Ledger, Stadium };

    WeekPanel(game::Context context, const game::WeekEvents &events, QWidget *parent = nullptr);

    // Opens the next week. False when the store failed (the player has been told).
    bool openWeek();

    int week() const { return m_week; }
    bool seasonOver() const { return m_seasonOver; }
    // The week's match as the store says now; other screens receive it as a value.
    std::optional<game::Fixture> fixture() const { return m_fixture; }

    // Stops the week's timer: the panel is being closed and its events must not run.
    void retire();

    // Runs the week's events at once instead of waiting for the timer (a test, a tool).
    void runWeekEvents();
    // Which destinations exist yet; the others' buttons are shown disabled.
    void setAvailable(Destination destination, bool available);

signals:
    void destinationRequested(ui::WeekPanel::Destination destination);
    void leaveRequested();

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    QPushButton *addButton(const char *name, const QString &caption, Destination destination);
    void refreshFixture();

    game::Context m_context;
    const game::WeekEvents &m_events;
    QTimer *m_timer;
    int m_week = 0;
    bool m_seasonOver = false;
    bool m_eventsDone = false;
    std::optional<game::Fixture> m_fixture;
    QLabel *m_weekLabel;
    QLabel *m_home;
    QLabel *m_away;
    QLabel *m_type;
    QLabel *m_match;
    QLabel *m_date;
    QLabel *m_weekCaption;
    QLabel *m_versus;
    QPushButton *m_play;
    QPushButton *m_leave;
    std::array<QWidget *, 4> m_groups{};
    std::map<Destination, QList<QPushButton *>> m_buttons;
};

} // namespace ui
