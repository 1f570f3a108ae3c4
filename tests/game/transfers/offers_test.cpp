#include "careerfixture.h"
#include "stadium/ledger.h"
#include "transfers/offers.h"
#include "transfers/terms.h"

#include <tuple>

using game::Offers;

// The user's club (4) in a given week, with that week's ledger row open, making offers for
// the players of a club abroad.
class OffersTest : public CareerTest
{
protected:
    static constexpr int kAbroad = 17;

    void SetUp() override
    {
        CareerTest::SetUp();
        startCareer();
        planSeason(0);
        m_player = int(value("select min(idjugador) from jugadores where idequipo = ?", kAbroad));
        m_other = int(value("select max(idjugador) from jugadores where idequipo = ?", kAbroad));
        m_clause = askingTerms(m_player).oferta;
        m_wage = askingTerms(m_player).ficha;
        ASSERT_TRUE(m_clause > 0 && m_wage > 0);
    }

    // Moves the career to the week and opens its ledger row, as a week's opening does.
    void goToWeek(int week)
    {
        exec("update datos_jugador set jornada = ?", week);
        ASSERT_TRUE(m_store->run([&] {
            if (!game::Ledger(*m_store).row(week))
                game::Ledger(*m_store).openWeek(week, kClub);
        }).ok());
    }

    // The terms a player asks for: exactly what passes.
    Offers::Terms askingTerms(int player)
    {
        const int clause = int(value("select Clausula_Recision from jugadores where idjugador = ?", player));
        return {clause, 2 * clause, int(value("select Ficha from jugadores where idjugador = ?", player)), 3};
    }

    int clubOf(int player) { return int(value("select idequipo from jugadores where idjugador = ?", player)); }
    QString nameOf(int player) { return text("select Nombre from jugadores where idjugador = ?", player); }
    QString signing(int player, int club) { return QStringLiteral("Has Fichado a %1 del %2").arg(nameOf(player), clubName(club)); }
    qint64 fees(int week) { return game::Ledger(*m_store).row(week)->fichajes; }

    int m_player = 0, m_other = 0, m_clause = 0, m_wage = 0;
};

struct Answer {
    friend void PrintTo(const Answer &c, std::ostream *out) { *out << c.name; }
    const char *name;
    int oferta, clausula, ficha; // added to the terms that pass
    int movedTo;                 // the club that holds him when the offer falls due
    const char *message;         // %1 the player's name, %2 his club's
    game::Dialogs::Icon icon;
    bool signs = false;
};

class OfferAnswer : public OffersTest, public ::testing::WithParamInterface<Answer>
{};

// Guards: the tests run in the wrong order, or on, after the first refusal; a refused offer
// that moves the player, charges the ledger or stays to be answered again; a player who has
// moved since (dismissed by the user, say) judged on other terms or answered by his old club.
TEST_P(OfferAnswer, givesOnlyTheFirstRefusalAndIsJudgedWhereThePlayerIsNow)
{
    const Answer &c = GetParam();
    goToWeek(2);
    Offers::Terms terms = askingTerms(m_player);
    terms.oferta += c.oferta;
    terms.clausula += c.clausula;
    terms.ficha += c.ficha;
    ASSERT_TRUE(Offers(*m_context).make(m_player, terms));
    exec("update jugadores set idequipo = ? where idjugador = ?", c.movedTo, m_player);
    goToWeek(5);
    const Offers::Settled settled = Offers(*m_context).settleDue();
    EXPECT_EQ(std::pair(settled.signings, settled.refusals), c.signs ? std::pair(1, 0) : std::pair(0, 1));
    ASSERT_EQ(m_dialogs.messages().size(), 1u);
    EXPECT_EQ(m_dialogs.texts().front(),
              QString::fromUtf8(c.message).replace(QStringLiteral("%1"), nameOf(m_player)).replace(QStringLiteral("%2"), clubName(c.movedTo)));
    EXPECT_EQ(m_dialogs.messages().front().icon, c.icon);
    EXPECT_EQ(std::tuple(clubOf(m_player), count("selects"), fees(5)),
              std::tuple(c.signs ? kClub : c.movedTo, 0, c.signs ? m_clause : 0));
}

INSTANTIATE_TEST_SUITE_P(
    Terms, OfferAnswer,
    ::testing::Values(
        // Below the clause the club refuses, however good the rest: its message alone.
        Answer{"club", -1, +1000, +1000, 17, "El %2 Ha rechazado su Oferta", game::Dialogs::Icon::Information},
        Answer{"wage", 0, 0, -1, 17, "%1 Ha rechazado su Oferta porque no está deacuedo con su Ficha", game::Dialogs::Icon::None},
        Answer{"clause", 0, +1, 0, 17, "%1 Ha rechazado su Oferta porque no está deacuedo con su Clausula de Rescisión",
               game::Dialogs::Icon::None},
        Answer{"clubHeMovedTo", -1, 0, 0, 9, "El %2 Ha rechazado su Oferta", game::Dialogs::Icon::Information},
        Answer{"fromTheReleased", 0, 0, 0, 85, "Has Fichado a %1 del %2", game::Dialogs::Icon::Information, true}),
    [](const auto &info) { return std::string(info.param.name); });

// Guards: one answer for several offers, a refusal that removes another offer, an offer of
// nothing for the club answered instead of staying; the second of two offers for one player
// judged on his old terms instead of those the first has just written, or not charged; twin
// offers deleted together, so the later one is never answered.
TEST_F(OffersTest, eachOfferIsAnsweredOnItsOwnOnTheTermsTheOneBeforeLeft)
{
    goToWeek(2);
    Offers offers(*m_context);
    const Offers::Terms low = {askingTerms(m_other).oferta - 1, 1, 1, 1};
    ASSERT_TRUE(offers.make(m_player, {m_clause, m_clause, m_wage, 2}));
    ASSERT_TRUE(offers.make(m_other, low));
    ASSERT_TRUE(offers.make(m_player, askingTerms(m_player))); // passes on the terms the first writes
    ASSERT_TRUE(offers.make(m_player, {0, 1, m_wage, 1}));     // nothing for the club: it stays
    goToWeek(3);
    ASSERT_TRUE(offers.make(m_player, askingTerms(m_player))); // the third's twin, a week younger

    goToWeek(5);
    const Offers::Settled settled = offers.settleDue();
    EXPECT_EQ(std::pair(settled.signings, settled.refusals), std::pair(2, 1));
    EXPECT_EQ(m_dialogs.texts(), (QStringList{signing(m_player, kAbroad),
                                              QStringLiteral("El %1 Ha rechazado su Oferta").arg(clubName(kAbroad)),
                                              signing(m_player, kClub)}));
    EXPECT_EQ(std::tuple(fees(5), clubOf(m_other), count("selects")), std::tuple(2 * m_clause, kAbroad, 2));

    // The twin now meets a clause of twice the sum it offers, at the user's own club.
    m_dialogs.clear();
    goToWeek(6);
    EXPECT_EQ(offers.settleDue().refusals, 1);
    EXPECT_EQ(m_dialogs.texts(), QStringList{QStringLiteral("El %1 Ha rechazado su Oferta").arg(clubName(kClub))});
    EXPECT_EQ(text("select jugador || '|' || oferta from selects"), QStringLiteral("%1|0").arg(m_player));
}

struct Failure {
    friend void PrintTo(const Failure &c, std::ostream *out) { *out << c.name; }
    const char *name;
    const char *trigger; // %1 the second player
    bool firstSigned;    // the first signing written and told before the store is mended
};

class OfferFailure : public OffersTest, public ::testing::WithParamInterface<Failure>
{};

// Guards: a signing told with "Has Fichado a" or counted that the store then lost or never
// wrote, one failed answer undoing the others, or an offer whose answer failed left to wait
// until the season's close (only offers of exactly three weeks ago were answered).
TEST_P(OfferFailure, anAnswerIsToldOnlyOnceWrittenAndOneThatFailedIsGivenAtTheNextOpening)
{
    const bool firstSigned = GetParam().firstSigned;
    goToWeek(2);
    Offers offers(*m_context);
    ASSERT_TRUE(offers.make(m_player, askingTerms(m_player)));
    ASSERT_TRUE(offers.make(m_other, askingTerms(m_other)));
    goToWeek(5);
    exec(QString::fromUtf8(GetParam().trigger).replace(QStringLiteral("%1"), QString::number(m_other)).toStdString());

    EXPECT_EQ(offers.settleDue().signings, firstSigned ? 1 : 0);
    EXPECT_EQ(m_dialogs.texts().filter(QStringLiteral("Has Fichado")),
              firstSigned ? QStringList{signing(m_player, kAbroad)} : QStringList{});
    EXPECT_EQ(std::tuple(clubOf(m_player), clubOf(m_other), fees(5), count("selects")),
              std::tuple(firstSigned ? kClub : kAbroad, kAbroad, firstSigned ? m_clause : 0, firstSigned ? 1 : 2));

    // Mended, the next week answers what still waits, four weeks old.
    mend();
    goToWeek(6);
    EXPECT_EQ(offers.settleDue().signings, firstSigned ? 1 : 2);
    EXPECT_EQ(std::tuple(clubOf(m_player), clubOf(m_other), count("selects")), std::tuple(kClub, kClub, 0));
}

INSTANTIATE_TEST_SUITE_P(
    Store, OfferFailure,
    ::testing::Values(
        // The second signing's move is refused: the first stands and is told, the second waits.
        Failure{"oneSigningRefused",
                "create temp trigger broken before update on jugadores when old.idjugador = %1"
                " begin select raise(abort, 'database or disk is full'); end",
                true},
        // The disk takes the whole week's answers with it: nothing is told, everything waits.
        Failure{"allAnswersLost",
                "create temp trigger broken after insert on traspasos"
                " begin select raise(rollback, 'database or disk is full'); end",
                false}),
    [](const auto &info) { return std::string(info.param.name); });

// Guards: sums that overflow the game's money wrapping round into small or negative offers,
// or a years box read as a number it does not hold or refused at either end of 1 to 6.
TEST(OfferTerms, readTheBoxesAsTheGameKeepsThemAndRefuseSumsTooLarge)
{
    ScriptedDialogs dialogs;
    const auto typed = Offers::termsFrom(QStringLiteral("1.000 €"), QString(), QStringLiteral("2147483647 €"),
                                         QStringLiteral("6"), dialogs);
    ASSERT_TRUE(typed.has_value());
    // An empty box is 1 €.
    EXPECT_EQ(std::tuple(typed->oferta, typed->clausula, typed->ficha, typed->years), std::tuple(1000, 1, 2147483647, 6));
    const std::pair<const char *, std::optional<int>> years[] = {{"1", 1}, {" 6 ", 6}, {"7", {}}, {"0", {}}, {"tres", {}}, {"", {}}};
    for (const auto &[box, read] : years) {
        EXPECT_EQ(game::typedYears(QString::fromUtf8(box)), read) << box;
        EXPECT_EQ(game::yearsOfBox(QString::fromUtf8(box)), read.value_or(1)) << box;
    }
    EXPECT_TRUE(dialogs.texts().isEmpty());

    for (const char *tooLarge : {"2147483648 €", "99999999999999999999 €"})
        EXPECT_FALSE(Offers::termsFrom(QString::fromUtf8(tooLarge), {}, {}, {}, dialogs).has_value()) << tooLarge;
    EXPECT_EQ(dialogs.texts(), QStringList(2, QStringLiteral("Las cantidades no pueden pasar de 2147483647 €. Corrige la oferta.")));
}
