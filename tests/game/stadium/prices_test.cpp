#include "league/careerrow.h"
#include "league/fixture.h"
#include "stadium/prices.h"
#include "tempstore.h"

#include <functional>

using game::Prices;

class PricesTest : public StoreTest
{
protected:
    void setStored(int row, int price)
    {
        exec("update entradas set precio_entrada = ? where idPrecio = ?", price, row);
    }
    qint64 stored(int row) { return m_store->integer("select precio_entrada from entradas where idPrecio = ?", row); }
    qint64 changes() { return m_store->integer("select total_changes()"); }
};

struct Press {
    friend void PrintTo(const Press &c, std::ostream *out) { *out << c.label; }
    const char *label;
    int row;
    int start;
    std::function<int(Prices &)> press;
    int expected;
};

class PricePress : public PricesTest, public ::testing::WithParamInterface<Press>
{};

// Guards: a bound tested with "at least" instead of equality (so 28 would stop at 30), a price
// at its bound not written again, or the ticket's press landing on the boards' row.
TEST_P(PricePress, stepsThePriceWithAnEqualityBoundAndWritesItAtOnce)
{
    const Press &press = GetParam();
    setStored(1, 10);
    setStored(2, 1000);
    setStored(press.row, press.start);
    const qint64 before = changes();
    Prices prices(*m_context);
    EXPECT_EQ(press.press(prices), press.expected);
    EXPECT_EQ(stored(press.row), press.expected);
    EXPECT_EQ(changes(), before + 1); // written, also when it stays
    EXPECT_EQ(stored(press.row == 1 ? 2 : 1), press.row == 1 ? 1000 : 10);
    EXPECT_TRUE(m_dialogs.messages().empty());
}

INSTANTIATE_TEST_SUITE_P(
    Buttons, PricePress,
    ::testing::Values(Press{"ticket25up", 1, 25, &Prices::raiseTicket, 30},
                      Press{"ticket30up", 1, 30, &Prices::raiseTicket, 30},
                      Press{"ticket28up", 1, 28, &Prices::raiseTicket, 33},
                      Press{"ticket33up", 1, 33, &Prices::raiseTicket, 38},
                      Press{"ticket10down", 1, 10, &Prices::lowerTicket, 5},
                      Press{"ticket5down", 1, 5, &Prices::lowerTicket, 5},
                      Press{"ticket3down", 1, 3, &Prices::lowerTicket, -2},
                      Press{"boards1700up", 2, 1700, &Prices::raiseBoards, 1800},
                      Press{"boards1800up", 2, 1800, &Prices::raiseBoards, 1800},
                      Press{"boards1000down", 2, 1000, &Prices::lowerBoards, 900},
                      Press{"boards900down", 2, 900, &Prices::lowerBoards, 900}),
    [](const auto &info) { return std::string(info.param.label); });

// Guards: a press lost silently, or a half-written price, when the store refuses it.
TEST_F(PricesTest, aPressTheStoreRefusesIsToldAndKeepsTheOldPrice)
{
    setStored(1, 15);
    breakWrites("entradas", "update");
    EXPECT_EQ(Prices(*m_context).raiseTicket(), 15);
    EXPECT_EQ(stored(1), 15);
    EXPECT_EQ(m_dialogs.messages().size(), 1u);
}

// Guards: prices offered in an away week, in a week without a match, or a home match missed
// when only the club's name tells it.
TEST(PricesHomeWeek, isAWeekWhoseMatchTheUsersClubPlaysAtHome)
{
    game::CareerRow career;
    career.club = 4;
    career.clubName = QStringLiteral("PORTLAND SAN ANTONIO");
    game::Fixture home;
    home.homeId = 4;
    home.homeName = QStringLiteral("Portland San Antonio");
    home.awayId = 5;
    game::Fixture away;
    away.homeId = 5;
    away.homeName = QStringLiteral("BM Valladolid");
    away.awayId = 4;

    EXPECT_TRUE(Prices::homeWeek(home, career));
    EXPECT_FALSE(Prices::homeWeek(away, career));
    EXPECT_FALSE(Prices::homeWeek(std::nullopt, career));

    game::CareerRow byName = career;
    byName.club = 0;
    EXPECT_TRUE(Prices::homeWeek(home, byName));
    EXPECT_FALSE(Prices::homeWeek(away, byName));

    // Club 1 whose stored name is not the fixture's: its id alone makes it home.
    game::CareerRow first;
    first.club = 1;
    first.clubName = QStringLiteral("OTRO NOMBRE");
    game::Fixture atHome = home;
    atHome.homeId = 1;
    EXPECT_TRUE(Prices::homeWeek(atHome, first));
}
