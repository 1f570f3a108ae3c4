#include "league/fixture.h"
#include "career/week.h"
#include "careerfixture.h"
#include "match/gate.h"
#include "stadium/ledger.h"
#include "stadium/prices.h"

#include <vector>

using game::Fixture;
using game::Gate;
using game::Ledger;

// The user's club (4) plays week 1 with its ledger row open. Unless a test says otherwise the
// user's hall holds 3000 and has cafeterias, a ticket costs 10 € and a hoarding 500 €, and the
// user and the rival (5) are of different classes and two places apart: an ordinary match.
class GateTest : public CareerTest
{
protected:
    static constexpr int kRival = 5;   // BM Valladolid
    static constexpr int kAbroad = 80; // Sporting CP: no stadium, no place in the table

    void SetUp() override
    {
        CareerTest::SetUp();
        startCareer();
        planSeason(0);
        ASSERT_TRUE(game::Week(*m_context).open());
        setClub(kClub, 1, 5);
        setClub(kRival, 2, 7);
        setStadium(kClub, 3000, true);
        setStadium(kRival, 4000, true);
        setPrices(10, 500);
        m_opening = *Ledger(*m_store).row(1);
    }

    void setClub(int club, int categoria, int place)
    {
        ASSERT_TRUE(m_store->run([&] {
            m_store->execute("update equipos set categoria = ? where idequipo = ?", categoria, club);
            m_store->execute("update asobal set puesto_actual = ? where teams = ?", place, club);
        }).ok());
    }

    void setStadium(int club, int capacity, bool cafeteria)
    {
        ASSERT_TRUE(m_store->run([&] {
            m_store->execute("update estadios set min_gradas = ?, cafeteria = ? where idequipo = ?", capacity,
                             cafeteria ? 1 : 0, club);
        }).ok());
    }

    void setPrices(int ticket, int hoarding)
    {
        ASSERT_TRUE(m_store->run([&] {
            m_store->execute("update entradas set precio_entrada = ? where idPrecio = 1", ticket);
            m_store->execute("update entradas set precio_entrada = ? where idPrecio = 2", hoarding);
        }).ok());
    }

    // Scripts an ordinary house: these crowds drawn out of the capacity, then these hoardings
    // out of 30.
    void scriptHouse(int capacity, const std::vector<int> &crowds, const std::vector<int> &hoardings)
    {
        for (int crowd : crowds)
            m_random.scriptDraw(crowd, capacity);
        for (int sold : hoardings)
            m_random.scriptDraw(sold, Gate::kHoardings);
    }

    static Fixture match(int home, int away)
    {
        Fixture fixture;
        fixture.week = 1;
        fixture.homeId = home;
        fixture.awayId = away;
        fixture.rivalId = home == kClub ? away : home;
        return fixture;
    }

    // The crowd drawn and, at a home match of the user's, paid, as a match opens.
    Gate::Report settle(int home, int away)
    {
        Gate gate(*m_context);
        const Gate::Report report = gate.draw(match(home, away));
        gate.post(report);
        return report;
    }

    Ledger::Row week1() { return *Ledger(*m_store).row(1); }

    Ledger::Row m_opening;
};

// Guards: a wrong caption, a percent truncated instead of rounded, or the rival's hall used
// for the user's home match.
TEST_F(GateTest, theWorkedExampleShowsItsFiguresInTheGateBox)
{
    scriptHouse(3000, {2500}, {21});

    const Gate::Report gate = settle(kClub, kRival);

    EXPECT_TRUE(gate.hasStadium);
    EXPECT_EQ(gate.stadium, QStringLiteral("Pabellón Universitario de Navarra"));
    EXPECT_FALSE(gate.fullHouse);
    EXPECT_TRUE(gate.userAtHome);
    EXPECT_EQ(gate.capacityText(), QStringLiteral("AFORO: 3000 Espectadores"));
    EXPECT_EQ(gate.attendanceText(), QStringLiteral("ENTRADA: 2500 Espectadores"));
    EXPECT_EQ(gate.attendancePercentText(), QStringLiteral("83%"));
    EXPECT_EQ(gate.gateTakingsText(), QStringLiteral("RECAUDACIÓN: 25000 €"));
    EXPECT_EQ(Gate::Report::hoardingsCaption(), QStringLiteral("VALLAS CONTRATADAS:"));
    EXPECT_EQ(gate.hoardingsPercentText(), QStringLiteral("70%"));
    EXPECT_EQ(gate.hoardingsTakingsText(), QStringLiteral("RECAUDACIÓN: 10500 €"));
    EXPECT_EQ(gate.gateTakings, 25000);
    EXPECT_EQ(gate.hoardingsTakings, 10500);
}

struct HouseCase {
    friend void PrintTo(const HouseCase &c, std::ostream *out) { *out << c.label; }
    const char *label;
    int capacity;
    std::vector<int> crowdDraws;    // in draw order; all but the last rejected
    std::vector<int> hoardingDraws; // likewise
    int attendance;
    int attendancePercent;
    int hoardings;
    int hoardingsPercent;
};

class GateOrdinaryHouse : public GateTest, public ::testing::WithParamInterface<HouseCase>
{};

// Guards: a crowd below 1500 or fewer than 10 hoardings let through, a draw taken from a
// small hall (which would hang or shift the hoardings), a percent rounded the wrong way or
// overflowing 32 bits in a huge hall.
TEST_P(GateOrdinaryHouse, drawsAtLeast1500SpectatorsAndTenHoardings)
{
    const HouseCase &c = GetParam();
    setStadium(kRival, c.capacity, false);
    scriptHouse(c.capacity, c.crowdDraws, c.hoardingDraws);

    const Gate::Report gate = settle(kRival, kClub); // away: the house only, nothing posted

    EXPECT_FALSE(gate.fullHouse);
    EXPECT_EQ(gate.capacity, c.capacity);
    EXPECT_EQ(gate.attendance, c.attendance);
    EXPECT_EQ(gate.attendancePercent, c.attendancePercent);
    EXPECT_EQ(gate.hoardings, c.hoardings);
    EXPECT_EQ(gate.hoardingsPercent, c.hoardingsPercent);
    EXPECT_EQ(gate.gateTakings, qint64(c.attendance) * 10);
    EXPECT_EQ(gate.hoardingsTakings, qint64(c.hoardings) * 500);
}

INSTANTIATE_TEST_SUITE_P(
    Draws, GateOrdinaryHouse,
    ::testing::Values(HouseCase{"workedExample", 3000, {2500}, {21}, 2500, 83, 21, 70},
                      HouseCase{"lowDrawsRejected", 3000, {1499, 1, 1500}, {9, 1, 10}, 1500, 50, 10, 33},
                      HouseCase{"topDraws", 3000, {3000}, {30}, 3000, 100, 30, 100},
                      HouseCase{"halfRoundsDownToEven", 4000, {2500}, {20}, 2500, 62, 20, 67},
                      HouseCase{"halfRoundsUpToEven", 4000, {2700}, {15}, 2700, 68, 15, 50},
                      HouseCase{"hallOf1500IsFull", 1500, {}, {21}, 1500, 100, 21, 70},
                      HouseCase{"hallOf1200IsFull", 1200, {}, {11}, 1200, 100, 11, 37},
                      HouseCase{"hugeHall", 50000000, {40000000}, {12}, 40000000, 80, 12, 40}),
    [](const auto &info) { return std::string(info.param.label); });

struct PairingCase {
    friend void PrintTo(const PairingCase &c, std::ostream *out) { *out << c.label; }
    const char *label;
    int userClass, userPlace;
    int rivalClass, rivalPlace;
    bool full;
};

class GateBigMatch : public GateTest, public ::testing::WithParamInterface<PairingCase>
{};

// Guards: the class or the table test left out, a neighbour tested one way only, a place
// gap of 0 or 2 taken for neighbours, or last season's places read instead of this season's.
TEST_P(GateBigMatch, fillsTheHouseForTheSameClassOrNeighbouringPlaces)
{
    const PairingCase &c = GetParam();
    setClub(kClub, c.userClass, c.userPlace);
    setClub(kRival, c.rivalClass, c.rivalPlace);
    scriptHouse(3000, {2500}, {21}); // what an ordinary house would get

    const Gate::Report gate = settle(kClub, kRival);

    EXPECT_EQ(gate.fullHouse, c.full);
    EXPECT_EQ(gate.attendance, c.full ? 3000 : 2500);
    EXPECT_EQ(gate.attendancePercentText(), c.full ? QStringLiteral("100%") : QStringLiteral("83%"));
    EXPECT_EQ(gate.hoardings, c.full ? 30 : 21);
    EXPECT_EQ(gate.hoardingsPercentText(), c.full ? QStringLiteral("100%") : QStringLiteral("70%"));
    EXPECT_EQ(gate.gateTakings, c.full ? 30000 : 25000);
    EXPECT_EQ(gate.hoardingsTakings, c.full ? 15000 : 10500);
}

INSTANTIATE_TEST_SUITE_P(Pairings, GateBigMatch,
                         ::testing::Values(PairingCase{"sameClassFarApart", 2, 1, 2, 16, true},
                                           PairingCase{"sameClassSamePlace", 3, 8, 3, 8, true},
                                           PairingCase{"placesFiveAndSix", 1, 5, 2, 6, true},
                                           PairingCase{"placesSixAndFive", 1, 6, 2, 5, true},
                                           PairingCase{"placesFiveAndSeven", 1, 5, 2, 7, false},
                                           PairingCase{"placesSevenAndFive", 1, 7, 2, 5, false},
                                           PairingCase{"samePlaceOtherClass", 1, 5, 2, 5, false}),
                         [](const auto &info) { return std::string(info.param.label); });

struct PostingCase {
    friend void PrintTo(const PostingCase &c, std::ostream *out) { *out << c.label; }
    const char *label;
    bool cafeteria;
    bool full;
    qint64 gate;
    qint64 boards;
    qint64 cafeterias;
};

class GateHomePosting : public GateTest, public ::testing::WithParamInterface<PostingCase>
{};

// Guards: a home match that pays the wrong columns, forgets the totals or the balance, pays
// cafeterias the club does not have, or pays them on anything but twice the crowd.
TEST_P(GateHomePosting, paysGateBoardsAndCafeteriasIntoTheWeeksRow)
{
    const PostingCase &c = GetParam();
    setStadium(kClub, 3000, c.cafeteria);
    if (c.full)
        setClub(kRival, 1, 7);
    scriptHouse(3000, {2500}, {21});

    const Gate::Report gate = settle(kClub, kRival);

    const Ledger::Row row = week1();
    const qint64 income = c.gate + c.boards + c.cafeterias;
    EXPECT_EQ(gate.gateTakings, c.gate);
    EXPECT_EQ(gate.hoardingsTakings, c.boards);
    EXPECT_EQ(row.taquilla, c.gate);
    EXPECT_EQ(row.publicidad, c.boards);
    EXPECT_EQ(row.tiendas, c.cafeterias);
    EXPECT_EQ(row.ingresos, m_opening.ingresos + income);
    EXPECT_EQ(row.caja, m_opening.caja + income);
    EXPECT_EQ(row.gastos, m_opening.gastos);
    EXPECT_EQ(row.television, 0);
    EXPECT_EQ(row.ventaJugadores, 0);
    EXPECT_TRUE(m_dialogs.messages().empty());
}

INSTANTIATE_TEST_SUITE_P(Postings, GateHomePosting,
                         ::testing::Values(PostingCase{"ordinaryWithCafeteria", true, false, 25000, 10500, 5000},
                                           PostingCase{"ordinaryWithoutCafeteria", false, false, 25000, 10500, 0},
                                           PostingCase{"fullWithCafeteria", true, true, 30000, 15000, 6000},
                                           PostingCase{"fullWithoutCafeteria", false, true, 30000, 15000, 0}),
                         [](const auto &info) { return std::string(info.param.label); });

// Guards: takings or the cafeterias' share cut to 32 bits in a huge hall at high prices.
TEST_F(GateTest, aHugeFullHouseKeepsEveryEuro)
{
    setStadium(kClub, 2000000000, true);
    setPrices(100, 100000);
    setClub(kRival, 1, 9);

    const Gate::Report gate = settle(kClub, kRival);

    EXPECT_EQ(gate.gateTakings, 200000000000LL);
    EXPECT_EQ(gate.gateTakingsText(), QStringLiteral("RECAUDACIÓN: 200000000000 €"));
    EXPECT_EQ(gate.hoardingsTakings, 3000000);
    const Ledger::Row row = week1();
    EXPECT_EQ(row.taquilla, 200000000000LL);
    EXPECT_EQ(row.tiendas, 4000000000LL);
    EXPECT_EQ(row.caja, m_opening.caja + 200000000000LL + 3000000 + 4000000000LL);
}

// Guards: prices the player set that hold for one match only, or go back at an away match.
TEST_F(GateTest, pricesSetInAHomeWeekHoldInEveryLaterMatch)
{
    game::Prices prices(*m_context);
    ASSERT_EQ(prices.raiseTicket(), 15);
    using Match = std::pair<int, int>;
    for (const auto &[home, away] : {Match{kClub, kRival}, Match{kRival, kClub}, Match{kClub, kRival}}) {
        scriptHouse(home == kClub ? 3000 : 4000, {2000}, {10});
        EXPECT_EQ(settle(home, away).gateTakings, 2000 * 15);
    }
}

// Guards: an away match that pays the user, or that shows the user's hall instead of the
// rival's.
TEST_F(GateTest, anAwayMatchPaysNothingButShowsTheRivalsHouse)
{
    const QString ledger = dump("caja");
    scriptHouse(4000, {2500}, {21});

    const Gate::Report gate = settle(kRival, kClub);

    EXPECT_EQ(dump("caja"), ledger);
    EXPECT_FALSE(gate.userAtHome);
    EXPECT_TRUE(gate.hasStadium);
    EXPECT_EQ(gate.stadium, QStringLiteral("Polideportivo Huerta del Rey"));
    EXPECT_EQ(gate.capacityText(), QStringLiteral("AFORO: 4000 Espectadores"));
    EXPECT_EQ(gate.attendanceText(), QStringLiteral("ENTRADA: 2500 Espectadores"));
    EXPECT_EQ(gate.attendancePercentText(), QStringLiteral("62%"));
    EXPECT_EQ(gate.gateTakingsText(), QStringLiteral("RECAUDACIÓN: 25000 €"));
    EXPECT_EQ(gate.hoardingsPercentText(), QStringLiteral("70%"));
    EXPECT_EQ(gate.hoardingsTakingsText(), QStringLiteral("RECAUDACIÓN: 10500 €"));
    EXPECT_TRUE(m_dialogs.messages().empty());
}

// Guards: a club from abroad, which has no place in the table, treated as an ordinary rival.
TEST_F(GateTest, aFriendlyAtHomeAgainstAClubFromAbroadIsAFullHouse)
{
    scriptHouse(3000, {2500}, {21});

    const Gate::Report gate = settle(kClub, kAbroad);

    EXPECT_TRUE(gate.fullHouse);
    EXPECT_EQ(gate.attendanceText(), QStringLiteral("ENTRADA: 3000 Espectadores"));
    EXPECT_EQ(gate.attendancePercentText(), QStringLiteral("100%"));
    EXPECT_EQ(gate.hoardingsPercentText(), QStringLiteral("100%"));
    const Ledger::Row row = week1();
    EXPECT_EQ(row.taquilla, 30000);
    EXPECT_EQ(row.publicidad, 15000);
    EXPECT_EQ(row.tiendas, 6000);
}

// Guards: a hall without a stadium row given a crowd or gate money, or a posting made for it.
TEST_F(GateTest, aHomeClubWithoutAStadiumDrawsNoCrowdAndPaysNothing)
{
    const QString ledger = dump("caja");

    const Gate::Report abroad = settle(kAbroad, kClub);

    EXPECT_FALSE(abroad.hasStadium);
    EXPECT_TRUE(abroad.stadium.isEmpty());
    EXPECT_EQ(abroad.capacity, 0);
    EXPECT_EQ(abroad.attendance, 0);
    EXPECT_EQ(abroad.gateTakings, 0);
    EXPECT_FALSE(abroad.userAtHome);
    // The hoardings still sell: a club from abroad makes it a full house.
    EXPECT_TRUE(abroad.fullHouse);
    EXPECT_EQ(abroad.hoardingsTakings, 15000);

    // Even the user's own club pays nothing at home without a hall on file.
    ASSERT_TRUE(m_store->run([&] { m_store->execute("delete from estadios where idequipo = ?", kClub); }).ok());
    scriptHouse(3000, {}, {21});
    const Gate::Report own = settle(kClub, kRival);
    EXPECT_FALSE(own.hasStadium);
    EXPECT_TRUE(own.userAtHome);
    EXPECT_EQ(own.attendance, 0);
    EXPECT_EQ(own.gateTakings, 0);
    EXPECT_EQ(own.hoardings, 21);
    EXPECT_EQ(dump("caja"), ledger);
    EXPECT_TRUE(m_dialogs.messages().empty());
}

struct SabotageCase {
    friend void PrintTo(const SabotageCase &c, std::ostream *out) { *out << c.label; }
    const char *label;
    const char *sql;
};

class GateFailedPosting : public GateTest, public ::testing::WithParamInterface<SabotageCase>
{};

// Guards: a gate posted without its cafeterias when the second posting fails, a failure
// kept from the player, or told more than once.
TEST_P(GateFailedPosting, leavesTheLedgerAsItWasAndTellsThePlayerOnce)
{
    ASSERT_TRUE(m_store->run([&] { m_store->execute(GetParam().sql); }).ok());
    const bool cajaLeft = m_store->integer("select count(*) from sqlite_master where name = 'caja'") > 0;
    const QString ledger = cajaLeft ? dump("caja") : QString();
    scriptHouse(3000, {2500}, {21});

    const Gate::Report gate = settle(kClub, kRival);

    ASSERT_EQ(m_dialogs.messages().size(), 1u);
    EXPECT_EQ(m_dialogs.messages().front().icon, game::Dialogs::Icon::Exclamation);
    EXPECT_FALSE(m_dialogs.messages().front().text.isEmpty());
    EXPECT_EQ(gate.gateTakings, 25000); // the box still shows the house
    if (cajaLeft) {
        EXPECT_EQ(dump("caja"), ledger);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Store, GateFailedPosting,
    ::testing::Values(SabotageCase{"ledgerGone", "drop table caja"},
                      SabotageCase{"cafeteriasRefused",
                                   "create trigger no_cafeterias before update of Ingresos_Tienda on caja"
                                   " when new.Ingresos_Tienda <> old.Ingresos_Tienda"
                                   " begin select raise(abort, 'no'); end"}),
    [](const auto &info) { return std::string(info.param.label); });
