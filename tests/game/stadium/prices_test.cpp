#include "league/careerrow.h"
#include "league/fixture.h"
#include "stadium/prices.h"
#include "tempstore.h"

#include <functional>
#include <tuple>

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
    ::testing::Values(
        Press{"ticket25up", 1, 25, &Prices::raiseTicket, 30}, Press{"ticket30up", 1, 30, &Prices::raiseTicket, 30},
        Press{"ticket28up", 1, 28, &Prices::raiseTicket, 33}, Press{"ticket33up", 1, 33, &Prices::raiseTicket, 38},
        Press{"ticket10down", 1, 10, &Prices::lowerTicket, 5}, Press{"ticket5down", 1, 5, &Prices::lowerTicket, 5},
        Press{"ticket3down", 1, 3, &Prices::lowerTicket, -2},
        Press{"boards1700up", 2, 1700, &Prices::raiseBoards, 1800}, Press{"boards1800up", 2, 1800, &Prices::raiseBoards, 1800},
        Press{"boards1000down", 2, 1000, &Prices::lowerBoards, 900}, Press{"boards900down", 2, 900, &Prices::lowerBoards, 900}),
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
// when only the club's name tells it, or only its id (club 1, stored under another name).
TEST(PricesHomeWeek, isAWeekWhoseMatchTheUsersClubPlaysAtHome)
{
    const auto career = [](int club, const char *name) {
        game::CareerRow row;
        row.club = club, row.clubName = QString::fromUtf8(name);
        return row;
    };
    const auto fixture = [](int home, const char *name) {
        game::Fixture match;
        match.homeId = home, match.homeName = QString::fromUtf8(name);
        return std::optional(match);
    };
    const std::tuple<game::CareerRow, std::optional<game::Fixture>, bool> cases[] = {
        {career(4, "PORTLAND SAN ANTONIO"), fixture(4, "Portland San Antonio"), true},
        {career(4, "PORTLAND SAN ANTONIO"), fixture(5, "BM Valladolid"), false},
        {career(4, "PORTLAND SAN ANTONIO"), std::nullopt, false},
        {career(0, "PORTLAND SAN ANTONIO"), fixture(4, "Portland San Antonio"), true},
        {career(0, "PORTLAND SAN ANTONIO"), fixture(5, "BM Valladolid"), false},
        {career(1, "OTRO NOMBRE"), fixture(1, "Portland San Antonio"), true},
    };
    for (const auto &[row, match, home] : cases)
        EXPECT_EQ(Prices::homeWeek(match, row), home) << row.club << ' ' << (match ? match->homeId : -1);
}
