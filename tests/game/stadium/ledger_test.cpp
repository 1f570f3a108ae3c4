#include "career/week.h"
#include "careerfixture.h"
#include "money.h"
#include "stadium/ledger.h"

#include <tuple>

using game::Ledger;

class LedgerTest : public CareerTest
{
protected:
    void SetUp() override
    {
        CareerTest::SetUp();
        startCareer();
        planSeason(0);
        ASSERT_TRUE(game::Week(*m_context).open());
        m_opening = *Ledger(*m_store).row(1);
    }

    Ledger::Row m_opening;
};

struct Posting {
    friend void PrintTo(const Posting &c, std::ostream *out) { *out << c.label; }
    const char *label;
    void (*post)(Ledger &, int week, qint64 amount);
    const char *column;
    int sign; // +1 income, -1 expense
};

class LedgerPosting : public LedgerTest, public ::testing::WithParamInterface<Posting>
{};

// Guards: a posting that moves the balance without its column or its total, or the wrong way.
TEST_P(LedgerPosting, movesItsColumnItsTotalAndTheBalanceTogether)
{
    Ledger ledger(*m_store);
    ASSERT_TRUE(m_store->run([&] { GetParam().post(ledger, 1, 12345); }).ok());
    const Ledger::Row row = *ledger.row(1);
    const std::string column = GetParam().column;
    EXPECT_EQ(value("select " + column + " from caja where semana = 1"),
              column == "Gastos_Fichas" ? m_opening.salarios + 12345 : 12345);
    const qint64 in = GetParam().sign > 0 ? 12345 : 0, out = GetParam().sign < 0 ? 12345 : 0;
    EXPECT_EQ(std::tuple(row.caja, row.ingresos, row.gastos),
              std::tuple(m_opening.caja + in - out, m_opening.ingresos + in, m_opening.gastos + out));
    // The budget never sees the postings; the next week opens from it.
    EXPECT_EQ(ledger.budget(kClub), m_opening.caja);

    // A week without a row changes nothing.
    const QString before = dump("caja");
    ASSERT_TRUE(m_store->run([&] { GetParam().post(ledger, 9, 500); }).ok());
    EXPECT_EQ(dump("caja"), before);
}

INSTANTIATE_TEST_SUITE_P(
    Postings, LedgerPosting,
    ::testing::Values(
        Posting{"gate", [](Ledger &l, int w, qint64 a) { l.postGateAndBoards(w, a, 0); }, "ingresos_Taquilla", 1},
        Posting{"boards", [](Ledger &l, int w, qint64 a) { l.postGateAndBoards(w, 0, a); }, "ingresos_publi", 1},
        Posting{"cafeterias", [](Ledger &l, int w, qint64 a) { l.postCafeterias(w, a); }, "Ingresos_Tienda", 1},
        Posting{"shop", [](Ledger &l, int w, qint64 a) { l.postClubShop(w, a); }, "Ingresos_Tienda", 1},
        Posting{"sale", [](Ledger &l, int w, qint64 a) { l.postSale(w, a); }, "Ingresos_Venta_Jugador", 1},
        Posting{"signing", [](Ledger &l, int w, qint64 a) { l.postSigning(w, a); }, "Gastos_Fichajes", -1},
        Posting{"dismissal", [](Ledger &l, int w, qint64 a) { l.postDismissal(w, a); }, "Gastos_Despido", -1},
        Posting{"works", [](Ledger &l, int w, qint64 a) { l.postWorks(w, a); }, "Gastos_Remodelaciones", -1}),
    [](const auto &info) { return std::string(info.param.label); });

// Guards: income of one week carried into the next week's opening balance.
TEST_F(LedgerTest, eachWeekOpensFromTheBudgetNotFromLastWeeksBalance)
{
    Ledger ledger(*m_store);
    ASSERT_TRUE(m_store->run([&] { ledger.postGateAndBoards(1, 25000, 10500); }).ok());
    ASSERT_TRUE(game::Week(*m_context).open());
    const Ledger::Row second = *ledger.row(2);
    EXPECT_EQ(std::pair(second.caja, second.ingresos), std::pair(m_opening.caja - m_opening.gastos, qint64(0)));
    // The season's totals add up every week's row.
    const Ledger::Row season = ledger.seasonTotals();
    EXPECT_EQ(std::tuple(season.taquilla, season.publicidad, season.ingresos, season.salarios, season.empleados,
                         season.gastos, season.hospitales),
              std::tuple(25000, 10500, 35500, 2 * m_opening.salarios, 2000, 2 * m_opening.gastos, 0));
    // The season's cash is the earliest week's balance.
    EXPECT_EQ(ledger.firstBalance(), m_opening.caja + 35500);
}

TEST(MoneyRounding, roundsHalfToEvenAndShowsEurosWithoutSeparators)
{
    const std::tuple<qint64, qint64, qint64> cases[] = {{5, 2, 2}, {7, 2, 4}, {-5, 2, -2}, {-7, 2, -4},
                                                        {10, 3, 3}, {11, 3, 4}, {1, 0, 0}};
    for (const auto &[sum, parts, rounded] : cases)
        EXPECT_EQ(game::roundHalfEven(sum, parts), rounded) << sum << '/' << parts;
    EXPECT_EQ(game::euros(1250000), QStringLiteral("1250000 €"));
    EXPECT_EQ(game::euros(-300), QStringLiteral("-300 €"));
}
