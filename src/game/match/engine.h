#pragma once

#include <QString>

#include <array>
#include <map>
#include <vector>

namespace game {

class Random;

// One match, played one action at a time. Each action gives the ball to one of the two
// clubs at random, picks a shooter among its six court players, moves the clock on two
// actions in three, and plays a shot: the shooter's rating against a draw from 1 to 155.
// Nothing else weighs: not the goalkeepers, the systems, the crowd or the score. The user
// can only move better or worse ratings into the six court rows.
//
// The screen's timer calls tick() every 100 ms while running() is true; a test or the
// headless simulator calls it in a loop.
//
//   MatchEngine engine(random, setup);
//   engine.start();                        // first half
//   while (engine.running()) engine.tick();
//   engine.start();                        // second half
//   while (engine.running()) engine.tick();
class MatchEngine
{
public:
    static constexpr int kRows = 14;
    static constexpr int kStarters = 7;
    static constexpr int kGoalkeeperRow = 0;
    static constexpr int kShotRange = 155;
    static constexpr int kHalfTime = 30;
    static constexpr int kFullTime = 60;

    enum class Phase { Ready, FirstHalf, HalfTime, SecondHalf, Finished };

    // One of the fourteen rows of the user's side: the place stays, the player moves.
    struct Row
    {
        QString name;      // Nombre, one blank, Apellidos
        QString position;  // the player's own position
        int rating = 0;
        int goals = 0;
        int shots = 0;
        int playerId = 0;  // idjugador; 0 for a free place

        // The four entries as the screen shows them: name, position, rating, "goals/shots".
        QString entry(int index) const;
    };

    // A player of the rival's seven.
    struct RivalPlayer
    {
        QString name;
        int rating = 0;
        bool goalkeeper = false;
    };

    struct Line
    {
        enum class Kind { User, Rival, Period, Announcement };
        QString text;
        Kind kind;
    };

    struct Setup
    {
        QString homeName;
        QString awayName;
        bool userAtHome = true;
        QString userClubName;  // as the career row holds it, for the announcements
        std::array<Row, kRows> rows;
        std::vector<RivalPlayer> rival;
        QString system;        // the defensive system the club starts with
    };

    // A match opens with the announcement of its starting system, at minute 0.
    MatchEngine(Random &random, Setup setup);

    // The names of the rows and the captions of their places on the court.
    static const std::array<const char *, kRows> &rowNames();
    static QString placeCaption(int row);

    // cmdStart: begins a half and plays its first action at once.
    void start();
    // One action of the running half; does nothing when no half is running.
    void tick();
    bool running() const { return m_phase == Phase::FirstHalf || m_phase == Phase::SecondHalf; }
    bool canStart() const { return m_phase == Phase::Ready || m_phase == Phase::HalfTime; }
    bool finished() const { return m_phase == Phase::Finished; }
    Phase phase() const { return m_phase; }

    // Announces a defensive system; the same system as the last one adds no line.
    void announceSystem(const QString &system);

    // Picks a starter (rows 0-6) or a substitute (rows 7-13) for an exchange. The pick keeps
    // a copy of the row as it stands now; a new pick on the same side replaces it.
    void pick(int row);
    int pickedStarter() const { return m_pickedStarter; }
    int pickedSubstitute() const { return m_pickedSubstitute; }
    // Exchanges the two picked rows, all four entries, and clears both picks. With one side
    // unpicked it does nothing and keeps the pick.
    bool exchange();

    const Setup &setup() const { return m_setup; }
    const Row &row(int index) const { return m_setup.rows[std::size_t(index)]; }
    int userSide() const { return m_setup.userAtHome ? 0 : 1; }
    int rivalSide() const { return 1 - userSide(); }

    // Per side, 0 home and 1 away.
    int score(int side) const { return m_score[std::size_t(side)]; }
    int shots(int side) const { return m_shots[std::size_t(side)]; }
    QString goalsText(int side) const;   // "goals/shots"
    int possession(int side) const { return m_possession[std::size_t(side)]; }

    // The user's scorers: each player's goals by his id, as the goals were scored (the
    // rows' tallies follow the exchanges, these follow the players).
    const std::map<int, int> &scorers() const { return m_scorers; }

    int minute() const { return m_minute; }
    // What the minute label shows: it stays at 30 over half time and then jumps to 32.
    int minuteShown() const { return m_minuteShown; }
    int actions() const { return m_actions; }
    const std::vector<Line> &commentary() const { return m_commentary; } // newest first

private:
    void play();
    void shoot(bool ownAttack, int shooterRow, const QString &shooter, int rating);
    void addLine(const QString &text, Line::Kind kind);
    QString rivalGoalkeeper() const;

    Random &m_random;
    Setup m_setup;
    Phase m_phase = Phase::Ready;
    int m_minute = 0;
    int m_minuteShown = 0;
    int m_actions = 0;
    std::array<int, 2> m_attacks{};
    std::array<int, 2> m_score{};
    std::array<int, 2> m_shots{};
    std::array<int, 2> m_possession{};
    std::vector<Line> m_commentary;
    QString m_system;
    int m_pickedStarter = -1;
    int m_pickedSubstitute = -1;
    Row m_starterCopy;
    Row m_substituteCopy;
    std::vector<int> m_rivalShooters;
    std::map<int, int> m_scorers;
};

} // namespace game
