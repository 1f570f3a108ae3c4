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
    qint64 sold() { return game::Ledger(*m_store).row(3)->ventaJugadores; }

    int m_player = 0;
};

struct BidCase {
    friend void PrintTo(const BidCase &c, std::ostream *out) { *out << c.label; }
    const char *label;
    int squad;        // the user's squad, the listed player among them
    int bidder;
    bool accepted;    // the user's answer
    bool diskFull;    // the ledger refuses the sale
    Bids::Outcome outcome;
    const char *news; // after the question; %1 the player's name, %2 the bidder's
};

class BidWeek : public BidsTest, public ::testing::WithParamInterface<BidCase>
{};

// Guards: the question's text changed (the names in capitals, no blank after the question
// mark); a sale that pays another sum than the one named, keeps the player in his place among
// the fourteen, or clears his listing, shirt or contract; a bid of the user's own club (the
// draw does not leave it out) that skips a step; a squad left with thirteen; a sale told with
// "Ha sido Fichado por el" that the store did not write, or written in part; a refusal or
// the news told twice or in other words.
TEST_P(BidWeek, asksTheUserThenSellsOnlyFromFifteenAndOnlyWhatIsWritten)
{
    const BidCase &c = GetParam();
    keepSquadOf(c.squad);
    exec("update miequipo set idjugador = ?, Nombre = 'x', Media = 70 where Pos_Partido = 'PIVOTE'", m_player);
    if (c.diskFull)
        breakWrites("caja", "update");
    const std::string terms = "Dorsal || '|' || Ficha || '|' || \"Años_Contrato\" || '|' || venta";
    const QString before = player(terms);
    scriptBid(500000, c.bidder);
    m_dialogs.answer({c.accepted});

    EXPECT_EQ(Bids(*m_context).run(), c.outcome);

    const QString nombre = player("Nombre");
    EXPECT_EQ(m_dialogs.questions(),
              QStringList{QStringLiteral("Oferta|El %1 Ofrece 500000€ por %2 %3 ¿Desea Aceptarla?%2 Tiene una Clausula de "
                                         "Rescisión de: %4€")
                              .arg(clubName(c.bidder).toUpper(), nombre.toUpper(), player("Apellidos").toUpper(),
                                   player("Clausula_Recision"))});
    const QString news = QString::fromUtf8(c.news).replace(QStringLiteral("%1"), nombre).replace(QStringLiteral("%2"), clubName(c.bidder));
    EXPECT_EQ(m_dialogs.texts().mid(1).filter(QStringLiteral("Ha ")), *c.news ? QStringList{news} : QStringList{});
    const bool isSold = c.outcome == Bids::Outcome::Sold;
    EXPECT_EQ(player("idequipo").toInt(), isSold ? c.bidder : kClub);
    EXPECT_EQ(player(terms), before);
    EXPECT_EQ(text("select Nombre || '|' || idjugador from miequipo where Pos_Partido = 'PIVOTE'"),
              isSold ? QStringLiteral("PIVOTE|0") : QStringLiteral("x|%1").arg(m_player));
    EXPECT_EQ(std::pair(sold(), game::Ledger(*m_store).row(3)->ingresos), isSold ? std::pair(500000LL, 500000LL) : std::pair(0LL, 0LL));
}

INSTANTIATE_TEST_SUITE_P(
    Bids, BidWeek,
    ::testing::Values(
        BidCase{"soldAbroad", 15, 20, true, false, Bids::Outcome::Sold, "%1 Ha sido Fichado por el %2"},
        BidCase{"soldToTheUsersOwnClub", 15, 4, true, false, Bids::Outcome::Sold, "%1 Ha sido Fichado por el %2"},
        BidCase{"declined", 15, 20, false, false, Bids::Outcome::Declined, ""},
        BidCase{"refusedFromFourteen", 14, 20, true, false, Bids::Outcome::PlayerRefused, "%1 Ha rechazado la Oferta del %2"},
        BidCase{"diskFull", 15, 20, true, true, Bids::Outcome::Failed, ""}),
    [](const auto &info) { return std::string(info.param.label); });

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
