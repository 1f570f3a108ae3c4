#pragma once

#include "context.h"
#include "league/fixture.h"
#include "match/engine.h"
#include "match/gate.h"

#include <QDialog>

#include <array>
#include <memory>

class QComboBox;
class QLabel;
class QPushButton;
class QTimer;
class ClickableLabel;

namespace ui {

class Commentary;

// "Partido": the week's match, played on a live commentary. The user starts each half, may
// exchange players and announce a system at any moment, and leaves with "SALIR" at full time.
// It shows the match the career has kicked off (the career owns it and records it when the
// player leaves) and the crowd settled for it. It covers the window it is played over, and fits
// the 1280×720 window whatever the names: a long name is cut short, never the screen widened.
class MatchScreen : public QDialog
{
    Q_OBJECT

public:
    static constexpr int kTickMilliseconds = 100;

    MatchScreen(game::Context context, game::MatchEngine &engine, const game::Fixture &fixture,
                const game::Gate::Report &gate, QWidget *parent = nullptr);
    ~MatchScreen() override;

    const game::MatchEngine &engine() const { return *m_engine; }
    const game::Fixture &fixture() const { return m_fixture; }
    // One tick of the match clock, as the timer gives it; a test may call it directly.
    void tick();

signals:
    // The match is over and the player leaves: the result is to be recorded.
    void left();

public slots:
    void reject() override;

protected:
    void showEvent(QShowEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    void coverWindow();
    QWidget *buildScoreboard();
    QWidget *buildRows();
    QWidget *buildSide();
    void showGate(const game::Gate::Report &gate);
    void startHalf();
    void pickRow(int row);
    void exchange();
    void leave();
    bool mayClose();
    // Shows what the last action changed, and nothing more: a tick changes a few figures and
    // adds a line or two, and the rest of the screen stays as it is.
    void refresh();
    void paintRows();

    game::Context m_context;
    game::Fixture m_fixture;
    // The match the screen shows and plays, the career's; every part of the screen goes
    // through it.
    game::MatchEngine *m_engine;
    QTimer *m_timer;
    std::array<std::array<ClickableLabel *, 4>, game::MatchEngine::kRows> m_entries{};
    std::array<ClickableLabel *, game::MatchEngine::kRows> m_places{};
    std::array<QLabel *, 2> m_score{};
    std::array<QLabel *, 2> m_goals{};
    std::array<QLabel *, 2> m_possession{};
    QLabel *m_minute = nullptr;
    Commentary *m_commentary = nullptr;
    QComboBox *m_system = nullptr;
    QPushButton *m_start = nullptr;
    QPushButton *m_leave = nullptr;
    std::size_t m_linesShown = 0;
    bool m_leaving = false;
};

} // namespace ui
