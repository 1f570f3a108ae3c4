#include "careerfixture.h"
#include "stadium/ledger.h"
#include "transfers/bids.h"
#include "transfers/market.h"

using game::Bids;

// The user's club (4) in week 3 with its ledger row open; one of its players is listed.
class BidsTest : public CareerTest
{
protected:
    static constexpr int kBidder = 20;

    void SetUp() override
    {
        CareerTest::SetUp();
        startCareer();
        planSeason(0);
        ASSERT_TRUE(m_store->run([&] {
            m_store->execute("update datos_jugador set jornada = 3");
            game::Ledger(*m_store).openWeek(3, kClub);
        }).ok());
        m_player = int(m_store->integer("select max(idjugador) from jugadores where idequipo = ?", kClub));
        ASSERT_LE(m_player, Bids::kHighestDrawnPlayer);
        ASSERT_TRUE(m_store->run([&] { m_store->execute("update jugadores set venta = 1 where idjugador = ?", m_player); }).ok());
    }

    // Scripts a week in which the first draw finds the listed player, the bidder and the bid.
    void scriptBid(int bid, int bidder = kBidder)
    {
        m_random.scriptDraw(m_player, Bids::kHighestDrawnPlayer);
        m_random.scriptDraw(bidder, Bids::kHighestBidder);
        m_random.scriptDraw(1, Bids::kHighestAskingSum);
        m_random.scriptDraw(bid, Bids::kHighestBid);
    }

    // Gives the squad exactly this many players, moving the others to a club abroad.
    void keepSquadOf(int players)
    {
        ASSERT_TRUE(m_store->run([&] {
            m_store->execute("update jugadores set idequipo = 30 where idequipo = ? and idjugador not in"
                             " (select idjugador from jugadores where idequipo = ? order by idjugador desc limit ?)",
                             kClub, kClub, players);
        }).ok());
        ASSERT_EQ(m_store->integer("select count(*) from jugadores where idequipo = ?", kClub), players);
    }

    int clubOf(int player) { return int(m_store->integer("select idequipo from jugadores where idjugador = ?", player)); }

    int m_player = 0;
};

class BidsSale : public BidsTest, public ::testing::WithParamInterface<int>
{};

// Guards: a sale that pays another sum than the one named, keeps the player in his place
// among the fourteen, or clears his listing, shirt or contract; a sold player missing from
// the market's lists, or shown at his old club; a bid of the user's own club (the draw does
// not leave it out) that skips a step.
TEST_P(BidsSale, fromASquadOfFifteenPaysTheBidAndEmptiesHisPlace)
{
    const int bidder = GetParam();
    keepSquadOf(15);
    ASSERT_TRUE(m_store->run([&] {
        m_store->execute("update miequipo set idjugador = ?, Nombre = 'x', Media = 70 where Pos_Partido = 'PIVOTE'", m_player);
    }).ok());
    const QString before = m_store->text("select Dorsal || '|' || Ficha || '|' || \"Años_Contrato\" from jugadores where idjugador = ?", m_player);
    scriptBid(500000, bidder);
    m_dialogs.answer({true});

    EXPECT_EQ(Bids(*m_context).run(), Bids::Outcome::Sold);
    EXPECT_EQ(clubOf(m_player), bidder);
    EXPECT_EQ(m_store->integer("select venta from jugadores where idjugador = ?", m_player), 1);
    EXPECT_EQ(m_store->text("select Dorsal || '|' || Ficha || '|' || \"Años_Contrato\" from jugadores where idjugador = ?", m_player), before);
    EXPECT_EQ(m_store->text("select Nombre || '|' || idjugador || '|' || Media from miequipo where Pos_Partido = 'PIVOTE'"),
              QStringLiteral("PIVOTE|0|0"));
    EXPECT_EQ(game::Ledger(*m_store).row(3)->ventaJugadores, 500000);
    EXPECT_EQ(game::Ledger(*m_store).row(3)->ingresos, 500000);
    EXPECT_EQ(m_store->integer("select count(*) from jugadores where idequipo = ?", kClub), bidder == kClub ? 15 : 14);

    const QString nombre = m_store->text("select Nombre from jugadores where idjugador = ?", m_player);
    const QString club = m_store->text("select NombreEquipo from equipos where idequipo = ?", bidder);
    ASSERT_EQ(m_dialogs.texts().size(), 2); // the question, then the news
    EXPECT_EQ(m_dialogs.texts().last(), nombre + QStringLiteral(" Ha sido Fichado por el ") + club);

    // Still listed, he shows on the market at his new club.
    int shownAt = 0;
    for (const auto group : {game::Market::Group::Goalkeepers, game::Market::Group::Wings, game::Market::Group::Backs,
                             game::Market::Group::Centres}) {
        for (const game::Market::Line &line : game::Market(*m_context).forSale(group))
            shownAt = line.id == m_player ? line.club : shownAt;
    }
    EXPECT_EQ(shownAt, bidder);
}

INSTANTIATE_TEST_SUITE_P(Bidders, BidsSale, ::testing::Values(20, 4), // a club abroad, the user's own
                         [](const auto &info) { return info.param == 4 ? "ownClub" : "clubAbroad"; });

// Guards: a sale told with "Ha sido Fichado por el" that the store did not write, or written
// in part (the player gone and the ledger without the sum).
TEST_F(BidsTest, aSaleTheStoreRefusesIsNeverTold)
{
    keepSquadOf(15);
    scriptBid(500000);
    m_dialogs.answer({true});
    ASSERT_TRUE(m_store->run([&] {
        m_store->execute("create temp trigger broken before update on caja"
                         " begin select raise(abort, 'database or disk is full'); end");
    }).ok());
    EXPECT_NE(Bids(*m_context).run(), Bids::Outcome::Sold);
    EXPECT_TRUE(m_dialogs.texts().filter(QStringLiteral("Ha sido Fichado")).isEmpty());
    EXPECT_EQ(clubOf(m_player), kClub);
    EXPECT_EQ(game::Ledger(*m_store).row(3)->ventaJugadores, 0);
}

// Guards: a squad left with thirteen, the refusal told twice, or the question's text (the
// names in capitals, no blank after the question mark) changed.
TEST_F(BidsTest, fromASquadOfFourteenThePlayerRefusesOnceAndStaysListed)
{
    keepSquadOf(14);
    scriptBid(1234);
    m_dialogs.answer({true});
    EXPECT_EQ(Bids(*m_context).run(), Bids::Outcome::PlayerRefused);
    EXPECT_EQ(clubOf(m_player), kClub);
    const QString nombre = m_store->text("select Nombre from jugadores where idjugador = ?", m_player);
    const QString apellidos = m_store->text("select Apellidos from jugadores where idjugador = ?", m_player);
    const QString club = m_store->text("select NombreEquipo from equipos where idequipo = ?", kBidder);
    const qint64 clause = m_store->integer("select Clausula_Recision from jugadores where idjugador = ?", m_player);
    ASSERT_EQ(m_dialogs.texts().size(), 2); // the question, then one refusal
    EXPECT_EQ(m_dialogs.texts().last(), nombre + QStringLiteral(" Ha rechazado la Oferta del ") + club);
    EXPECT_EQ(game::Ledger(*m_store).row(3)->ventaJugadores, 0);

    // The question as the player read it.
    m_dialogs.clear();
    scriptBid(1234);
    m_dialogs.answer({false});
    EXPECT_EQ(Bids(*m_context).run(), Bids::Outcome::Declined);
    EXPECT_EQ(m_dialogs.texts().size(), 1); // the question alone
    ASSERT_EQ(m_dialogs.questions().size(), 1);
    EXPECT_EQ(m_dialogs.questions().back(),
              QStringLiteral("Oferta|El %1 Ofrece 1234€ por %2 %3 ¿Desea Aceptarla?%2 Tiene una Clausula de Rescisión de: %4€")
                  .arg(club.toUpper(), nombre.toUpper(), apellidos.toUpper())
                  .arg(clause));
    EXPECT_EQ(m_store->integer("select venta from jugadores where idjugador = ?", m_player), 1);
}

// Guards: a bid without a listed player, other than 101 draws a week, or a listed player
// beyond the highest id the market draws getting bids.
TEST_F(BidsTest, withoutAListedPlayerInReachTheWeekBringsNoBidAfter101Draws)
{
    const int beyond = int(m_store->integer("select max(idjugador) from jugadores"));
    ASSERT_GT(beyond, Bids::kHighestDrawnPlayer);
    ASSERT_TRUE(m_store->run([&] {
        m_store->execute("update jugadores set venta = 0");
        m_store->execute("update jugadores set venta = 1, idequipo = ? where idjugador = ?", kClub, beyond);
    }).ok());
    for (int week = 0; week < 50; ++week) {
        const int drawn = m_random.draws();
        EXPECT_EQ(Bids(*m_context).run(), Bids::Outcome::NoBid);
        EXPECT_EQ(m_random.draws() - drawn, Bids::kDraws);
    }
    EXPECT_TRUE(m_dialogs.texts().isEmpty());
    EXPECT_TRUE(m_dialogs.questions().isEmpty());

    // One listed player: about one week in thirteen brings a bid (1 - (1269/1270)^101).
    ASSERT_TRUE(m_store->run([&] { m_store->execute("update jugadores set venta = 1 where idjugador = ?", m_player); }).ok());
    int bids = 0;
    const int weeks = 1500;
    for (int week = 0; week < weeks; ++week) {
        if (Bids(*m_context).run() != Bids::Outcome::NoBid)
            ++bids;
    }
    EXPECT_NEAR(double(bids) / weeks, 0.0765, 0.02);
}
