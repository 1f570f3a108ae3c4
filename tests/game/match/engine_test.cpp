#include "match/engine.h"
#include "scripted.h"

#include <gtest/gtest.h>

using game::MatchEngine;
using Line = MatchEngine::Line;

namespace {

MatchEngine::Setup setupWithRatings(int fieldRating, bool userAtHome = true)
{
    MatchEngine::Setup setup;
    setup.homeName = userAtHome ? QStringLiteral("BM Valencia") : QStringLiteral("BM Altea");
    setup.awayName = userAtHome ? QStringLiteral("BM Altea") : QStringLiteral("BM Valencia");
    setup.userAtHome = userAtHome;
    setup.userClubName = QStringLiteral("BM VALENCIA");
    for (int row = 0; row < MatchEngine::kRows; ++row) {
        MatchEngine::Row &place = setup.rows[std::size_t(row)];
        place.name = QStringLiteral("Jugador %1").arg(row);
        place.position = QStringLiteral("Central");
        place.rating = row == 0 ? 50 : (row < MatchEngine::kStarters ? fieldRating : 60 + row);
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
    void action(bool own, int shooter, bool clockMoves, int shotDraw = 155, int detail = 1)
    {
        m_random.scriptDraw(own ? 1 : 2, 2);
        m_random.scriptDraw(shooter, 6);
        m_random.scriptDraw(clockMoves ? 2 : 1, 3);
        m_random.scriptDraw(shotDraw, 155);
        m_random.scriptDraw(detail, shotDraw <= 70 ? 2 : 5);
    }
    // An action that ends at a period's whistle: no shot is drawn.
    void whistleAction()
    {
        m_random.scriptDraw(1, 2);
        m_random.scriptDraw(1, 6);
        m_random.scriptDraw(2, 3);
    }
    // Plays missed shots of the user's until the clock stands at `minute`.
    void playUntil(MatchEngine &engine, int minute)
    {
        while (engine.minute() < minute) {
            action(true, 1, true, 155, 2);
            engine.tick();
        }
    }

    ScriptedRandom m_random;
};

// Guards: a clock that shows 31, a half time line that says something else, a dropped
// action that still shoots.
TEST_F(EngineTest, halfTimeComesAtThirtyAndTheClockJumpsToThirtyTwo)
{
    MatchEngine engine(m_random, setupWithRatings(70));
    action(true, 1, true, 155, 2);
    engine.start();
    playUntil(engine, 29);
    EXPECT_EQ(engine.minuteShown(), 29);

    action(true, 2, false, 1, 1); // the clock stands still at 29: the shot is played
    engine.tick();
    EXPECT_EQ(engine.minute(), 29);
    EXPECT_EQ(engine.score(0), 1);
    const int shotsBefore = engine.shots(0);
    const int actionsBefore = engine.actions();

    whistleAction();
    engine.tick();
    EXPECT_EQ(engine.phase(), MatchEngine::Phase::HalfTime);
    EXPECT_FALSE(engine.running());
    EXPECT_EQ(engine.minuteShown(), 30);
    EXPECT_EQ(engine.shots(0), shotsBefore);
    EXPECT_EQ(engine.actions(), actionsBefore);
    EXPECT_EQ(engine.commentary().front().text, QStringLiteral("(30)-> Descanso :1-0"));
    EXPECT_EQ(engine.commentary().front().kind, Line::Kind::Period);

    engine.tick(); // nothing happens until the second half is started
    EXPECT_EQ(engine.minuteShown(), 30);

    action(true, 1, false, 155, 2);
    engine.start();
    EXPECT_EQ(engine.minuteShown(), 30); // the clock stood still on the first action
    action(true, 1, true, 155, 2);
    engine.tick();
    EXPECT_EQ(engine.minuteShown(), 32);
}

TEST_F(EngineTest, fullTimeComesAtSixtyAndEndsTheMatch)
{
    MatchEngine engine(m_random, setupWithRatings(70, false));
    action(true, 1, true, 155, 2);
    engine.start();
    playUntil(engine, 29);
    whistleAction();
    engine.tick();
    action(false, 3, true, 10, 1); // a rival goal to be seen in the final line
    engine.start();
    playUntil(engine, 59);
    whistleAction();
    engine.tick();
    EXPECT_TRUE(engine.finished());
    EXPECT_FALSE(engine.canStart());
    EXPECT_EQ(engine.minuteShown(), 60);
    EXPECT_EQ(engine.commentary().front().text, QStringLiteral("(60)-> Final :1-0"));
    engine.start();
    engine.tick();
    EXPECT_EQ(engine.minuteShown(), 60);
}

// Guards: possession computed on the wrong count or not adding up to 100.
TEST_F(EngineTest, possessionIsAHundredToNothingAfterTheFirstAction)
{
    MatchEngine engine(m_random, setupWithRatings(70, false));
    action(false, 1, true, 155, 2);
    engine.start();
    EXPECT_EQ(engine.possession(0), 100); // the rival is at home
    EXPECT_EQ(engine.possession(1), 0);
    action(true, 1, true, 155, 2);
    engine.tick();
    action(true, 1, true, 155, 2);
    engine.tick();
    EXPECT_EQ(engine.possession(1), 67);
    EXPECT_EQ(engine.possession(0), 33);
}

TEST_F(EngineTest, aMissToldWithFourAddsNoLineButCountsAsAShot)
{
    MatchEngine engine(m_random, setupWithRatings(70));
    action(true, 5, true, 155, 4);
    engine.start();
    EXPECT_TRUE(engine.commentary().empty());
    EXPECT_EQ(engine.goalsText(0), QStringLiteral("0/1"));
    EXPECT_EQ(engine.row(5).entry(3), QStringLiteral("0/1"));
    EXPECT_EQ(engine.possession(0), 100);
}

struct Telling {
    bool own;
    int shotDraw;
    int detail;
    const char *line;
    Line::Kind kind;
};

class EngineTelling : public EngineTest, public ::testing::WithParamInterface<Telling>
{};

// Guards: the six ways of telling a shot mixed up, or the wrong goalkeeper or colour named.
TEST_P(EngineTelling, tellsEachShotInItsOwnWords)
{
    MatchEngine engine(m_random, setupWithRatings(70));
    action(GetParam().own, 3, true, GetParam().shotDraw, GetParam().detail);
    engine.start();
    ASSERT_EQ(engine.commentary().size(), 1u);
    EXPECT_EQ(engine.commentary().front().text, QString::fromUtf8(GetParam().line));
    EXPECT_EQ(engine.commentary().front().kind, GetParam().kind);
}

INSTANTIATE_TEST_SUITE_P(
    Lines, EngineTelling,
    ::testing::Values(Telling{true, 10, 1, "(1)->Gol de Jugador 3", Line::Kind::User},
                      Telling{true, 10, 2, "(1)->Gol de 7m. de Jugador 3", Line::Kind::User},
                      Telling{true, 120, 1, "(1)->Parada de Portero Rival", Line::Kind::User},
                      Telling{true, 120, 2, "(1)->Lanzamiento fallado por Jugador 3", Line::Kind::User},
                      Telling{true, 120, 3, "(1)->Portero Rival para el Lanzamiento de Jugador 3", Line::Kind::User},
                      Telling{true, 120, 5, "(1)->Portero Rival para 7m de Jugador 3", Line::Kind::User},
                      Telling{false, 10, 1, "(1)->Gol de Rival 3", Line::Kind::Rival},
                      Telling{false, 120, 1, "(1)->Parada de Jugador 0", Line::Kind::Rival},
                      Telling{false, 120, 3, "(1)->Jugador 0 para el Lanzamiento de Rival 3", Line::Kind::Rival}));

// Guards: a player's numbers that drift from the club's, or ratings that do not decide.
TEST_F(EngineTest, playerRowsAlwaysAddUpToTheClubsGoalsAndShots)
{
    m_random = ScriptedRandom(11);
    for (int match = 0; match < 20; ++match) {
        MatchEngine engine(m_random, setupWithRatings(60 + match, match % 2 == 0));
        for (int half = 0; half < 2; ++half) {
            engine.start();
            while (engine.running())
                engine.tick();
        }
        ASSERT_TRUE(engine.finished());
        int goals = 0, shots = 0;
        for (int row = 0; row < MatchEngine::kRows; ++row) {
            goals += engine.row(row).goals;
            shots += engine.row(row).shots;
        }
        EXPECT_EQ(goals, engine.score(engine.userSide()));
        EXPECT_EQ(shots, engine.shots(engine.userSide()));
        EXPECT_EQ(engine.possession(0) + engine.possession(1), 100);
        EXPECT_EQ(engine.row(0).shots, 0); // the goalkeeper never shoots
        for (int row = MatchEngine::kStarters; row < MatchEngine::kRows; ++row)
            EXPECT_EQ(engine.row(row).shots, 0); // nor do the substitutes
    }
}

TEST_F(EngineTest, aRatingOf155AlwaysScoresAndZeroNever)
{
    m_random = ScriptedRandom(5);
    for (int rating : {155, 0}) {
        MatchEngine engine(m_random, setupWithRatings(rating));
        for (int half = 0; half < 2; ++half) {
            engine.start();
            while (engine.running())
                engine.tick();
        }
        EXPECT_GT(engine.shots(0), 20);
        EXPECT_EQ(engine.score(0), rating == 155 ? engine.shots(0) : 0);
        EXPECT_GT(engine.score(1), 0); // the rival goes on as before
    }
}

// Guards: a chance of scoring or a length of match that does not match the game's figures.
TEST(EngineFigures, sixCourtPlayersRatedSeventyScoreNineteenOrTwentyAMatch)
{
    ScriptedRandom random(2004);
    constexpr int kMatches = 4000;
    long goals = 0, allGoals = 0, sevenMetreGoals = 0, actions = 0;
    for (int match = 0; match < kMatches; ++match) {
        MatchEngine engine(random, setupWithRatings(70));
        for (int half = 0; half < 2; ++half) {
            engine.start();
            while (engine.running())
                engine.tick();
        }
        goals += engine.score(0);
        allGoals += engine.score(0) + engine.score(1);
        actions += engine.actions();
        for (const Line &line : engine.commentary())
            sevenMetreGoals += line.text.contains(QStringLiteral("Gol de 7m. de ")) ? 1 : 0;
    }
    const double perMatch = double(goals) / kMatches;
    // About 86 actions a match, half of them the user's, each scoring with 70/155.
    EXPECT_NEAR(perMatch, 19.4, 0.5);
    EXPECT_NEAR(double(actions) / kMatches, 86.0, 2.0);
    // About one goal in two, of either club, is told as a 7 m goal.
    EXPECT_NEAR(double(sevenMetreGoals) / double(allGoals), 0.5, 0.02);
}

// Guards: an exchange that leaves a player's numbers behind or moves only the name.
TEST_F(EngineTest, anExchangeMovesAllFourEntriesAndTwoRestoreTheRows)
{
    MatchEngine engine(m_random, setupWithRatings(70));
    action(true, 6, true, 10, 1); // a goal for the central
    engine.start();
    const MatchEngine::Row central = engine.row(6);
    const MatchEngine::Row substitute = engine.row(9);

    engine.pick(6);
    EXPECT_FALSE(engine.exchange()); // only one side picked: nothing, and the pick stays
    EXPECT_EQ(engine.pickedStarter(), 6);
    engine.pick(9);
    ASSERT_TRUE(engine.exchange());
    EXPECT_EQ(engine.pickedStarter(), -1);
    EXPECT_EQ(engine.pickedSubstitute(), -1);
    for (int entry = 0; entry < 4; ++entry) {
        EXPECT_EQ(engine.row(6).entry(entry), substitute.entry(entry));
        EXPECT_EQ(engine.row(9).entry(entry), central.entry(entry));
    }
    EXPECT_EQ(engine.row(9).entry(3), QStringLiteral("1/1"));

    // The substitute now shoots from the central's place, with his own rating.
    action(true, 6, true, 69, 1);
    engine.tick();
    EXPECT_EQ(engine.row(6).goals, 1);
    EXPECT_EQ(engine.row(9).shots, 1);

    engine.pick(6);
    engine.pick(9);
    engine.exchange();
    EXPECT_EQ(engine.row(6).name, central.name);
    EXPECT_EQ(engine.row(9).name, substitute.name);
}

TEST_F(EngineTest, anExchangeWritesTheRowsAsTheyWereWhenPicked)
{
    MatchEngine engine(m_random, setupWithRatings(70));
    engine.pick(2);
    engine.pick(8);
    action(true, 2, true, 10, 1); // row 2 scores between the pick and the exchange
    engine.start();
    engine.exchange();
    EXPECT_EQ(engine.row(8).entry(3), QStringLiteral("0/0"));
}

TEST_F(EngineTest, announcesTheStartingSystemThenOnlyChanges)
{
    MatchEngine::Setup setup = setupWithRatings(70);
    setup.system = QStringLiteral("6-0");
    MatchEngine engine(m_random, setup);
    engine.announceSystem(QStringLiteral("6-0"));
    ASSERT_EQ(engine.commentary().size(), 1u);
    EXPECT_EQ(engine.commentary().front().text, QStringLiteral("(0)-> El BM VALENCIA Cambia la Táctica a 6-0"));
    EXPECT_EQ(engine.commentary().front().kind, Line::Kind::Announcement);
    engine.announceSystem(QStringLiteral("5-1"));
    EXPECT_EQ(engine.commentary().size(), 2u);
}

// Guards: a system that weighs in the result, which it must not.
TEST(EngineSystems, twoMatchesWithTheSameDrawsEndAlikeWhateverTheSystem)
{
    std::array<int, 2> home{}, away{};
    const char *systems[] = {"6-0", "3-2-1"};
    for (int i = 0; i < 2; ++i) {
        ScriptedRandom random(99);
        MatchEngine engine(random, setupWithRatings(72));
        engine.announceSystem(QString::fromLatin1(systems[i]));
        for (int half = 0; half < 2; ++half) {
            engine.start();
            while (engine.running())
                engine.tick();
            engine.announceSystem(QStringLiteral("5-1"));
        }
        home[std::size_t(i)] = engine.score(0);
        away[std::size_t(i)] = engine.score(1);
    }
    EXPECT_EQ(home[0], home[1]);
    EXPECT_EQ(away[0], away[1]);
}

// Guards: goals credited to the place instead of the player: a starter who scores and is
// then exchanged takes his goal to the bench in the rows' tallies, but the season's scorers
// must follow the man, and add up to the club's score.
TEST_F(EngineTest, theScorersFollowThePlayersThroughExchangesAndAddUpToTheScore)
{
    MatchEngine::Setup setup = setupWithRatings(70);
    for (int row = 0; row < MatchEngine::kRows; ++row)
        setup.rows[std::size_t(row)].playerId = 100 + row;
    MatchEngine engine(m_random, setup);
    action(true, 1, false, 1); // row 1 (player 101) scores
    engine.start();
    engine.pick(1);
    engine.pick(8);
    ASSERT_TRUE(engine.exchange()); // player 108 takes row 1, player 101 sits
    action(true, 1, false, 1);      // row 1 (now player 108) scores
    engine.tick();
    EXPECT_EQ(engine.score(engine.userSide()), 2);
    EXPECT_EQ(engine.scorers(), (std::map<int, int>{{101, 1}, {108, 1}}));

    m_random = ScriptedRandom(5);
    while (!engine.finished()) {
        if (engine.canStart())
            engine.start();
        engine.tick();
    }
    int goals = 0;
    for (const auto &[player, scored] : engine.scorers())
        goals += scored;
    EXPECT_EQ(goals, engine.score(engine.userSide()));
}
