#include "careerfixture.h"
#include "stadium/ledger.h"
#include "transfers/bids.h"

using game::Bids;

// The user's club (4) in week 3 with its ledger row open; its last player is listed.
class BidsTest : public CareerTest
{
protected:
    static constexpr int kBidder = 20;

    void SetUp() override
    {
        CareerTest::SetUp();
        startCareer();
        planSeason(0);
        exec("update datos_jugador set jornada = 3");
        ASSERT_TRUE(m_store->run([&] { game::Ledger(*m_store).openWeek(3, kClub); }).ok());
        m_player = int(value("select max(idjugador) from jugadores where idequipo = ?", kClub));
        ASSERT_LE(m_player, Bids::kHighestDrawnPlayer);
        exec("update jugadores set venta = 1 where idjugador = ?", m_player);
    }

    // Scripts a week in which the first draw finds the listed player, the bidder and the bid.
    void scriptBid(int bid, int bidder = kBidder)
    {
        m_random.scriptDraw(m_player, Bids::kHighestDrawnPlayer);
        m_random.scriptDraw(bidder, Bids::kHighestBidder);
        m_random.scriptDraw(1, Bids::kHighestAskingSum);
        m_random.scriptDraw(bid, Bids::kHighestBid);
    }

    // Gives the squad exactly this many players, the listed one among them, moving the others
    // to a club abroad.
    void keepSquadOf(int players)
    {
        exec("update jugadores set idequipo = 30 where idequipo = ? and idjugador not in (select idjugador from jugadores"
             " where idequipo = ? order by idjugador desc limit ?)",
             kClub, kClub, players);
    }

    QString player(const std::string &columns) { return text("select " + columns + " from jugadores where idjugador = ?", m_player); }
    QString clubName(int club) { return text("select NombreEquipo from equipos where idequipo = ?", club); }
    qint64 sold() { return game::Ledger(*m_store).row(3)->ventaJugadores; }

    int m_player = 0;
};

class BidsSale : public BidsTest, public ::testing::WithParamInterface<int>
{};

// Guards: a sale that pays another sum than the one named, keeps the player in his place
// among the fourteen, or clears his listing, shirt or contract; a bid of the user's own club
// (the draw does not leave it out) that skips a step; the news in other words.
TEST_P(BidsSale, fromASquadOfFifteenPaysTheBidAndEmptiesHisPlace)
{
    const int bidder = GetParam();
    keepSquadOf(15);
    exec("update miequipo set idjugador = ?, Nombre = 'x', Media = 70 where Pos_Partido = 'PIVOTE'", m_player);
    const std::string terms = "Dorsal || '|' || Ficha || '|' || \"Años_Contrato\" || '|' || venta";
    const QString before = player(terms);
    scriptBid(500000, bidder);
    m_dialogs.answer({true});

    EXPECT_EQ(Bids(*m_context).run(), Bids::Outcome::Sold);
    EXPECT_EQ(player("idequipo").toInt(), bidder);
    EXPECT_EQ(player(terms), before);
    EXPECT_EQ(text("select Nombre || '|' || idjugador || '|' || Media from miequipo where Pos_Partido = 'PIVOTE'"), QStringLiteral("PIVOTE|0|0"));
    EXPECT_EQ(std::pair(sold(), game::Ledger(*m_store).row(3)->ingresos), std::pair(500000LL, 500000LL));
    // The question, then the news.
    EXPECT_EQ(m_dialogs.texts().mid(1),
              QStringList{player("Nombre") + QStringLiteral(" Ha sido Fichado por el ") + clubName(bidder)});
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
    breakWrites("caja", "update");
    EXPECT_EQ(Bids(*m_context).run(), Bids::Outcome::Failed);
    EXPECT_TRUE(m_dialogs.texts().filter(QStringLiteral("Ha sido Fichado")).isEmpty());
    EXPECT_EQ(std::pair(player("idequipo").toInt(), sold()), std::pair(kClub, 0LL));
}

// Guards: a squad left with thirteen, the refusal told twice, or the question's text (the
// names in capitals, no blank after the question mark) changed.
TEST_F(BidsTest, fromASquadOfFourteenThePlayerRefusesOnceAndStaysListed)
{
    keepSquadOf(14);
    scriptBid(1234);
    m_dialogs.answer({true});
    EXPECT_EQ(Bids(*m_context).run(), Bids::Outcome::PlayerRefused);
    EXPECT_EQ(std::pair(player("idequipo").toInt(), sold()), std::pair(kClub, 0LL));
    const QString nombre = player("Nombre");
    EXPECT_EQ(m_dialogs.texts().mid(1), QStringList{nombre + QStringLiteral(" Ha rechazado la Oferta del ") + clubName(kBidder)});

    m_dialogs.clear();
    scriptBid(1234);
    m_dialogs.answer({false});
    EXPECT_EQ(Bids(*m_context).run(), Bids::Outcome::Declined);
    EXPECT_EQ(m_dialogs.texts().size(), 1); // the question alone
    EXPECT_EQ(m_dialogs.questions(),
              QStringList{QStringLiteral("Oferta|El %1 Ofrece 1234€ por %2 %3 ¿Desea Aceptarla?%2 Tiene una Clausula de "
                                         "Rescisión de: %4€")
                              .arg(clubName(kBidder).toUpper(), nombre.toUpper(), player("Apellidos").toUpper(),
                                   player("Clausula_Recision"))});
    EXPECT_EQ(player("venta"), QStringLiteral("1"));
}

// Guards: a bid without a listed player, other than 101 draws a week, or a listed player
// beyond the highest id the market draws getting bids.
TEST_F(BidsTest, withoutAListedPlayerInReachTheWeekBringsNoBidAfter101Draws)
{
    exec("update jugadores set venta = 0");
    exec("update jugadores set venta = 1, idequipo = ? where idjugador = (select max(idjugador) from jugadores)", kClub);
    ASSERT_GT(value("select max(idjugador) from jugadores"), Bids::kHighestDrawnPlayer);
    for (int week = 0; week < 5; ++week) {
        const int drawn = m_random.draws();
        EXPECT_EQ(Bids(*m_context).run(), Bids::Outcome::NoBid);
        EXPECT_EQ(m_random.draws() - drawn, Bids::kDraws);
    }
    EXPECT_TRUE(m_dialogs.texts().isEmpty() && m_dialogs.questions().isEmpty());
}
