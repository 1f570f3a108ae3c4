#include "career/week.h"
#include "career/weekevents.h"
#include "careerfixture.h"
#include "stadium/television.h"

using game::Television;

// The user's club (4) with week 1 open. Unless a test says otherwise the user and the rival
// (5) are of different classes and two places apart: a match television does not want.
class TelevisionTest : public CareerTest
{
protected:
    static constexpr int kRival = 5;

    void SetUp() override
    {
        CareerTest::SetUp();
        startCareer();
        planSeason(0);
        ASSERT_TRUE(game::Week(*m_context, game::WeekEvents{}).open());
        setClub(kClub, 1, 3);
        setClub(kRival, 2, 5);
    }

    void setClub(int club, int categoria, int place)
    {
        exec("update equipos set categoria = ? where idequipo = ?", categoria, club);
        exec("update asobal set puesto_actual = ? where teams = ?", place, club);
    }
};

struct BuyCase {
    friend void PrintTo(const BuyCase &c, std::ostream *out) { *out << c.label; }
    const char *label;
    int rivalClass;
    int userPlace;
    int rivalPlace;
    bool bought;
};

class TelevisionBuys : public TelevisionTest, public ::testing::WithParamInterface<BuyCase>
{};

// Guards: neighbours found two places apart, equal places taken for neighbours, or the class
// ignored; home or away making a difference.
TEST_P(TelevisionBuys, matchesOfOneClassOrOfNeighboursInTheTable)
{
    setClub(kClub, 1, GetParam().userPlace);
    setClub(kRival, GetParam().rivalClass, GetParam().rivalPlace);
    Television tv(*m_context);
    EXPECT_EQ(tv.buys(kClub, kRival), GetParam().bought);
    EXPECT_EQ(tv.buys(kRival, kClub), GetParam().bought);
}

INSTANTIATE_TEST_SUITE_P(Rule, TelevisionBuys,
                         ::testing::Values(BuyCase{"places3and4", 2, 3, 4, true}, BuyCase{"places4and3", 2, 4, 3, true},
                                           BuyCase{"places3and5", 2, 3, 5, false}, BuyCase{"equalPlaces", 2, 3, 3, false},
                                           BuyCase{"sameClassFarApart", 1, 3, 9, true},
                                           BuyCase{"sameClassEqualPlaces", 1, 3, 3, true}),
                         [](const auto &info) { return std::string(info.param.label); });

// Guards: a channel out of the seven, or one of them never drawn.
TEST_F(TelevisionTest, eachOfTheSevenDrawsNamesItsOwnChannel)
{
    Television tv(*m_context);
    QStringList names;
    for (int draw = 1; draw <= Television::kChannels; ++draw) {
        m_random.scriptDraw(draw, Television::kChannels);
        names << tv.drawChannel();
    }
    EXPECT_EQ(names.join(QLatin1Char('|')),
              QStringLiteral("Teleiberia Deportes|Canal Siete Mares|Solana Televisión|Mirador TV|Telesport Hispania|"
                             "Levantina de Televisión|Onda Cierzo TV"));
}
