#include "match/engine.h"
#include "scripted.h"

#include <gtest/gtest.h>

#include <map>
#include <utility>

using game::MatchEngine;
using Line = MatchEngine::Line;

namespace {

// The user's goalkeeper is rated 50, his court players fieldRating, the substitute of row r
// 60 + r; the rival's six court players 70.
MatchEngine::Setup setupWithRatings(int fieldRating, bool userAtHome = true)
{
    MatchEngine::Setup setup;
    setup.userAtHome = userAtHome;
    setup.userClubName = QStringLiteral("BM VALENCIA");
    for (int row = 0; row < MatchEngine::kRows; ++row) {
        MatchEngine::Row &place = setup.rows[std::size_t(row)];
        place.name = QStringLiteral("Jugador %1").arg(row);
        place.position = QStringLiteral("Central");
        place.rating = row == 0 ? 50 : (row < MatchEngine::kStarters ? fieldRating : 60 + row);
        place.playerId = 100 + row;
    }
    setup.rival.push_back({QStringLiteral("Portero Rival"), 80, true});
    for (int i = 1; i <= 6; ++i)
        setup.rival.push_back({QStringLiteral("Rival %1").arg(i), 70, false});
    return setup;
}

} // namespace

// Scripts one action: who attacks, the shooter's row (1-6), whether the clock moves, the
// shot's draw and the draw that tells it.
class EngineTest : public ::testing::Test
{
protected:
    // A shot's draw of 0 is an action that ends at a period's whistle: no shot is drawn.
    void action(bool own, int shooter, bool clockMoves, int shotDraw = 155, int detail = 1)
    {
        m_random.scriptDraw(own ? 1 : 2, 2);
        m_random.scriptDraw(shooter, 6);
        m_random.scriptDraw(clockMoves ? 2 : 1, 3);
        if (shotDraw) {
            m_random.scriptDraw(shotDraw, 155);
            m_random.scriptDraw(detail, shotDraw <= 70 ? 2 : 5);
        }
    }
    void whistleAction() { action(true, 1, true, 0); }
    // Plays missed shots of the user's, starting the match if need be, until the clock shows `minute`.
    void playUntil(MatchEngine &engine, int minute)
    {
        for (int played = 0; engine.minute() < minute; ++played) {
            ASSERT_LT(played, 100) << "the clock stands still";
            action(true, 1, true, 155, 2);
            engine.running() ? engine.tick() : engine.start();
        }
    }

    ScriptedRandom m_random;
};

// Guards: possession computed on the wrong count or not adding up to 100; a half that ends
// off 30 or 60, a clock that shows 31, a whistle action that still shoots, a half played on
// before it is started or after the end, or period lines that say something else.
TEST_F(EngineTest, theHalvesEndAtThirtyAndSixtyAndTheClockJumpsToThirtyTwo)
{
    MatchEngine engine(m_random, setupWithRatings(70, false)); // the user is away: side 1
    action(false, 1, true, 155, 2);
    engine.start();
    EXPECT_EQ(std::pair(engine.possession(0), engine.possession(1)), std::pair(100, 0));
    playUntil(engine, 3); // two actions of the user's
    EXPECT_EQ(std::pair(engine.possession(0), engine.possession(1)), std::pair(33, 67));
    playUntil(engine, 29);
    action(true, 2, false, 1, 1); // the clock stands still at 29: the shot is played
    engine.tick();
    const int shots = engine.shots(1);
    whistleAction();
    engine.tick();
    EXPECT_EQ(engine.phase(), MatchEngine::Phase::HalfTime);
    EXPECT_EQ(engine.minuteShown(), 30);
    EXPECT_EQ(engine.shots(1), shots);
    EXPECT_EQ(engine.commentary().front().text, QStringLiteral("(30)-> Descanso :0-1"));
    EXPECT_EQ(engine.commentary().front().kind, Line::Kind::Period);
    engine.tick(); // nothing happens until the second half is started
    EXPECT_EQ(engine.minuteShown(), 30);

    action(false, 3, false, 10, 1); // a rival goal; the clock stands still on the first action
    engine.start();
    EXPECT_EQ(engine.minuteShown(), 30);
    action(true, 1, true, 155, 2);
    engine.tick();
    EXPECT_EQ(engine.minuteShown(), 32);
    playUntil(engine, 59);
    whistleAction();
    engine.tick();
    EXPECT_TRUE(engine.finished());
    EXPECT_FALSE(engine.canStart());
    EXPECT_EQ(engine.commentary().front().text, QStringLiteral("(60)-> Final :1-1"));
    engine.start();
    engine.tick();
    EXPECT_EQ(engine.minuteShown(), 60);
}

struct Telling {
    bool own;
    int shotDraw; // against a rating of 70 on either side
    int detail;
    const char *line; // empty when the shot is not told
};

class EngineTelling : public EngineTest, public ::testing::WithParamInterface<Telling>
{};

// Guards: a rating r that does not score on a draw of r, or scores on r + 1; the ways of
// telling a shot mixed up, the wrong goalkeeper or colour named, or an untold miss not
// counted as a shot.
TEST_P(EngineTelling, scoresUpToTheRatingAndTellsEachShotInItsOwnWords)
{
    const Telling &c = GetParam();
    MatchEngine engine(m_random, setupWithRatings(70));
    action(c.own, 3, true, c.shotDraw, c.detail);
    engine.start();
    const QString tally = c.shotDraw <= 70 ? QStringLiteral("1/1") : QStringLiteral("0/1");
    EXPECT_EQ(engine.goalsText(c.own ? 0 : 1), tally);
    EXPECT_EQ(engine.row(3).entry(3), c.own ? tally : QStringLiteral("0/0"));
    ASSERT_EQ(engine.commentary().size(), *c.line ? 1u : 0u);
    if (*c.line) {
        EXPECT_EQ(engine.commentary().front().text, QString::fromUtf8(c.line));
        EXPECT_EQ(engine.commentary().front().kind, c.own ? Line::Kind::User : Line::Kind::Rival);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Lines, EngineTelling,
    ::testing::Values(Telling{true, 70, 1, "(1)->Gol de Jugador 3"},
                      Telling{true, 10, 2, "(1)->Gol de 7m. de Jugador 3"},
                      Telling{true, 71, 1, "(1)->Parada de Portero Rival"},
                      Telling{true, 120, 2, "(1)->Lanzamiento fallado por Jugador 3"},
                      Telling{true, 120, 3, "(1)->Portero Rival para el Lanzamiento de Jugador 3"},
                      Telling{true, 120, 4, ""},
                      Telling{true, 120, 5, "(1)->Portero Rival para 7m de Jugador 3"},
                      Telling{false, 70, 1, "(1)->Gol de Rival 3"},
                      Telling{false, 71, 1, "(1)->Parada de Jugador 0"},
                      Telling{false, 120, 3, "(1)->Jugador 0 para el Lanzamiento de Rival 3"}));

// Guards: a pick of a row that does not exist, an exchange with one side unpicked or of the
// goalkeeper refused, picks kept after an exchange, rows written as they stand at the
// exchange instead of at the pick, or goals credited to the place instead of the player.
TEST_F(EngineTest, anExchangeSwapsTheRowsAsPickedAndTheScorersFollowTheMen)
{
    MatchEngine engine(m_random, setupWithRatings(70));
    engine.pick(-1);
    engine.pick(MatchEngine::kRows);
    engine.pick(0);
    EXPECT_FALSE(engine.exchange()); // the goalkeeper alone: nothing, and the pick stays
    EXPECT_EQ(std::pair(engine.pickedStarter(), engine.pickedSubstitute()), std::pair(0, -1));
    engine.pick(13);
    ASSERT_TRUE(engine.exchange());
    EXPECT_EQ(std::pair(engine.pickedStarter(), engine.pickedSubstitute()), std::pair(-1, -1));
    EXPECT_EQ(engine.row(0).name, QStringLiteral("Jugador 13"));

    action(true, 1, false, 1); // row 1 (player 101) scores
    engine.start();
    const MatchEngine::Row scorer = engine.row(1), substitute = engine.row(8);
    engine.pick(1);
    engine.pick(8);
    action(true, 1, false, 1); // and again, between the pick and the exchange
    engine.tick();
    ASSERT_TRUE(engine.exchange());
    const auto entries = [](const MatchEngine::Row &row) { return QStringList{row.entry(0), row.entry(1), row.entry(2), row.entry(3)}; };
    EXPECT_EQ(entries(engine.row(1)), entries(substitute));
    EXPECT_EQ(entries(engine.row(8)), entries(scorer));
    EXPECT_EQ(engine.row(8).entry(3), QStringLiteral("1/1"));
    action(true, 1, false, 1); // row 1, now player 108, scores
    engine.tick();
    EXPECT_EQ(engine.score(0), 3);
    EXPECT_EQ(engine.scorers(), (std::map<int, int>{{101, 2}, {108, 1}}));
}

// Guards: a system announced at kick-off in other words, or again when it has not changed.
TEST_F(EngineTest, aSystemIsToldAtKickOffAndOnlyWhenItChanges)
{
    MatchEngine::Setup setup = setupWithRatings(72);
    setup.system = QStringLiteral("6-0");
    MatchEngine engine(m_random, setup);
    engine.announceSystem(QStringLiteral("6-0"));
    ASSERT_EQ(engine.commentary().size(), 1u);
    EXPECT_EQ(engine.commentary().front().text, QStringLiteral("(0)-> El BM VALENCIA Cambia la Táctica a 6-0"));
    EXPECT_EQ(engine.commentary().front().kind, Line::Kind::Announcement);
    engine.announceSystem(QStringLiteral("5-1"));
    EXPECT_EQ(engine.commentary().size(), 2u);
}
