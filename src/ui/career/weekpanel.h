#pragma once

#include "career/career.h"

#include <QWidget>

#include <array>
#include <functional>

class QLabel;
class QPushButton;
class QTimer;

namespace ui {

// The week panel, hub of the career. It shows the open week and its match; 100 ms after a
// week is first shown its events run, once; its buttons lead to every screen of the week.
// Showing the panel never opens a week: the week is the game's, and opens only when its
// match has been played.
class WeekPanel : public QWidget
{
    Q_OBJECT

public:
    // Whether a screen of the game exists, by name: a button whose screen does not exist yet
    // is shown disabled.
    using ScreenExists = std::function<bool(const QString &)>;

    WeekPanel(game::Career &career, const ScreenExists &exists, QWidget *parent = nullptr);

    // Shows the open week, and starts its events' timer if they have not run.
    void showWeek();
    // Runs the week's events at once instead of waiting for the timer (a test, a tool). When
    // television buys the match, the panel asks for the "Tele" screen.
    void runWeekEvents();

signals:
    // A button asks for its screen, by name.
    void openRequested(const QString &screen);
    // The career stopped at a step that failed (the next week could not open, the season could
    // not close): "SEGUIR" takes it up again.
    void goOnRequested();
    void leaveRequested();

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    QPushButton *addButton(const char *name, const QString &caption, const QString &screen);
    void seguir();

    game::Career &m_career;
    ScreenExists m_exists;
    QTimer *m_timer;
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
};

} // namespace ui
