#include "careerfixture.h"
#include "money.h"
#include "stadium/ledger.h"
#include "transfers/contracts.h"
#include "transfers/offers.h"

using game::Offers;

// The user's club (4) in a given week, with that week's ledger row open, making offers for
// a player of a club abroad.
class OffersTest : public CareerTest
{
protected:
    static constexpr int kAbroad = 17;

    void SetUp() override
    {
        CareerTest::SetUp();
        startCareer();
        planSeason(0);
        m_player = int(m_store->integer("select min(idjugador) from jugadores where idequipo = ?", kAbroad));
        m_clause = int(m_store->integer("select Clausula_Recision from jugadores where idjugador = ?", m_player));
        m_wage = int(m_store->integer("select Ficha from jugadores where idjugador = ?", m_player));
        ASSERT_GT(m_clause, 0);
        ASSERT_GT(m_wage, 0);
    }

    // Moves the career to the week and opens its ledger row, as a week's opening does.
    void goToWeek(int week)
    {
        ASSERT_TRUE(m_store->run([&] {
            m_store->execute("update datos_jugador set jornada = ?", week);
            if (!game::Ledger(*m_store).row(week))
                game::Ledger(*m_store).openWeek(week, kClub);
        }).ok());
    }

    // The terms a listed player asks for: exactly what passes.
    Offers::Terms askingTerms() const { return {m_clause, 2 * m_clause, m_wage, 3}; }

    int clubOf(int player) { return int(m_store->integer("select idequipo from jugadores where idjugador = ?", player)); }
    QString nameOf(int player) { return m_store->text("select Nombre from jugadores where idjugador = ?", player); }
    QString clubName(int club) { return m_store->text("select NombreEquipo from equipos where idequipo = ?", club); }

    int m_player = 0;
    int m_clause = 0;
    int m_wage = 0;
};

// Guards: an answer before the third week, or never; equal terms refused; the shirt taken at
// the answer instead of at the offer; the sum charged to the budget instead of the week.
TEST_F(OffersTest, anOfferOnTheEdgeOfEveryTermIsSignedThreeWeeksLater)
{
    goToWeek(5);
    const int shirt = int(m_store->integer("select max(Dorsal) from jugadores where idequipo = ?", kClub)) + 1;
    ASSERT_TRUE(Offers(*m_context).make(m_player, askingTerms()));
    EXPECT_EQ(count("selects"), 1);
    EXPECT_TRUE(m_dialogs.texts().isEmpty()); // nothing is said when an offer is made
    for (int week = 6; week <= 7; ++week) {
        goToWeek(week);
        EXPECT_EQ(Offers(*m_context).settleDue().signings, 0) << week;
        EXPECT_EQ(count("selects"), 1) << week;
    }
    goToWeek(8);
    const qint64 budget = m_store->integer("select presupuesto from infoteams where idequipo = ?", kClub);
    const QString club = m_store->text("select NombreEquipo from equipos where idequipo = ?", kAbroad);
    const QString nombre = m_store->text("select Nombre from jugadores where idjugador = ?", m_player);
    EXPECT_EQ(Offers(*m_context).settleDue().signings, 1);
    EXPECT_EQ(m_dialogs.texts(), QStringList{QStringLiteral("Has Fichado a %1 del %2").arg(nombre, club)});
    EXPECT_EQ(m_dialogs.messages().back().icon, game::Dialogs::Icon::Information);
    EXPECT_EQ(dump("selects"), QString());
    EXPECT_EQ(m_store->text("select idequipo || '|' || Dorsal || '|' || Ficha || '|' || Clausula_Recision || '|' || venta"
                            " || '|' || \"Años_Contrato\" from jugadores where idjugador = ?",
                            m_player),
              QStringLiteral("%1|%2|%3|%4|0|3").arg(kClub).arg(shirt).arg(m_wage).arg(2 * m_clause));
    EXPECT_EQ(game::Ledger(*m_store).row(8)->fichajes, m_clause);
    EXPECT_EQ(m_store->integer("select presupuesto from infoteams where idequipo = ?", kClub), budget);

    // His wage counts from the next week: the week he came in was paid before he did.
    const qint64 wages = m_store->integer("select sum(Ficha) from jugadores where idequipo = ?", kClub);
    EXPECT_EQ(game::Ledger(*m_store).row(8)->salarios, game::roundHalfEven(wages - m_wage, 30));
    goToWeek(9);
    EXPECT_EQ(game::Ledger(*m_store).row(9)->salarios, game::roundHalfEven(wages, 30));
}

struct Refusal {
    const char *name;
    int oferta, clausula, ficha; // added to the terms that pass
    const char *message;         // %1 the player's name, %2 his club's
    game::Dialogs::Icon icon;
    int movedTo = 17;            // the club that holds him when the offer falls due
};

class OfferRefusal : public OffersTest, public ::testing::WithParamInterface<Refusal>
{};

// Guards: the tests run in the wrong order, or on, after the first refusal; a refused offer
// that moves the player, charges the ledger or stays to be answered again.
TEST_P(OfferRefusal, showsOnlyTheFirstRefusalAndLeavesThePlayerWhereHeIs)
{
    const Refusal &refusal = GetParam();
    goToWeek(2);
    Offers::Terms terms = askingTerms();
    terms.oferta += refusal.oferta;
    terms.clausula += refusal.clausula;
    terms.ficha += refusal.ficha;
    ASSERT_TRUE(Offers(*m_context).make(m_player, terms));
    ASSERT_TRUE(m_store->run([&] {
        m_store->execute("update jugadores set idequipo = ? where idjugador = ?", refusal.movedTo, m_player);
    }).ok());
    goToWeek(5);
    const auto settled = Offers(*m_context).settleDue();
    EXPECT_EQ(settled.signings, 0);
    EXPECT_EQ(settled.refusals, 1);
    ASSERT_EQ(m_dialogs.messages().size(), 1u);
    EXPECT_EQ(m_dialogs.texts().front(), QString::fromUtf8(refusal.message)
                                             .replace(QStringLiteral("%1"), nameOf(m_player))
                                             .replace(QStringLiteral("%2"), clubName(refusal.movedTo)));
    EXPECT_EQ(m_dialogs.messages().front().icon, refusal.icon);
    EXPECT_EQ(clubOf(m_player), refusal.movedTo);
    EXPECT_EQ(count("selects"), 0);
    EXPECT_EQ(game::Ledger(*m_store).row(5)->fichajes, 0);
}

INSTANTIATE_TEST_SUITE_P(
    Terms, OfferRefusal,
    ::testing::Values(
        // Below the clause the club refuses, however good the rest: its message alone.
        Refusal{"club", -1, +1000, +1000, "El %2 Ha rechazado su Oferta", game::Dialogs::Icon::Information},
        Refusal{"wage", 0, 0, -1, "%1 Ha rechazado su Oferta porque no está deacuedo con su Ficha",
                game::Dialogs::Icon::None},
        Refusal{"clause", 0, +1, 0, "%1 Ha rechazado su Oferta porque no está deacuedo con su Clausula de Rescisión",
                game::Dialogs::Icon::None},
        // A player who has moved since is judged on the same terms; his new club answers.
        Refusal{"clubHeMovedTo", -1, 0, 0, "El %2 Ha rechazado su Oferta", game::Dialogs::Icon::Information, 9}),
    [](const auto &info) { return std::string(info.param.name); });

// Guards: one answer for two offers, a refusal that removes the other offer, or an offer of
// nothing for the club that is answered instead of staying.
TEST_F(OffersTest, eachOfferDueIsAnsweredOnItsOwnAndAnOfferOfNothingStays)
{
    goToWeek(1);
    Offers::Terms low = askingTerms();
    low.oferta -= 1;
    const int other = int(m_store->integer("select max(idjugador) from jugadores where idequipo = ?", kAbroad));
    const int otherClause = int(m_store->integer("select Clausula_Recision from jugadores where idjugador = ?", other));
    const int otherWage = int(m_store->integer("select Ficha from jugadores where idjugador = ?", other));
    Offers offers(*m_context);
    ASSERT_TRUE(offers.make(m_player, low));
    ASSERT_TRUE(offers.make(other, {otherClause, otherClause, otherWage, 2}));
    Offers::Terms nothing = askingTerms();
    nothing.oferta = 0;
    ASSERT_TRUE(offers.make(m_player, nothing));

    goToWeek(4);
    const auto settled = offers.settleDue();
    EXPECT_EQ(settled.refusals, 1);
    EXPECT_EQ(settled.signings, 1);
    EXPECT_EQ(m_dialogs.messages().size(), 2u);
    EXPECT_EQ(clubOf(m_player), kAbroad);
    EXPECT_EQ(clubOf(other), kClub);
    EXPECT_EQ(m_store->integer("select count(*) from selects where oferta = 0 and jugador = ?", m_player), 1);
    EXPECT_EQ(count("selects"), 1);
}

// Guards: the second of two offers for one player judged on his old terms instead of those
// the first has just written, or not charged; twin offers deleted together, so the later one
// is never answered.
TEST_F(OffersTest, eachOfferForOnePlayerMeetsTheTermsTheOneBeforeLeft)
{
    goToWeek(2);
    Offers offers(*m_context);
    ASSERT_TRUE(offers.make(m_player, {m_clause, m_clause, m_wage, 2}));
    ASSERT_TRUE(offers.make(m_player, askingTerms())); // passes on the terms the first writes
    goToWeek(3);
    ASSERT_TRUE(offers.make(m_player, askingTerms())); // its twin, a week younger

    goToWeek(5);
    EXPECT_EQ(offers.settleDue().signings, 2);
    const QString signing = QStringLiteral("Has Fichado a %1 del %2").arg(nameOf(m_player));
    EXPECT_EQ(m_dialogs.texts(), (QStringList{signing.arg(clubName(kAbroad)), signing.arg(clubName(kClub))}));
    EXPECT_EQ(game::Ledger(*m_store).row(5)->fichajes, 2 * m_clause);
    EXPECT_EQ(count("selects"), 1);

    // The twin now meets a clause of twice the sum it offers, at the user's own club.
    m_dialogs.clear();
    goToWeek(6);
    EXPECT_EQ(offers.settleDue().refusals, 1);
    EXPECT_EQ(m_dialogs.texts(), QStringList{QStringLiteral("El %1 Ha rechazado su Oferta").arg(clubName(kClub))});
    EXPECT_EQ(count("selects"), 0);
}

// Guards: an offer for a player dismissed since it was made dropped, or answered in another
// way than any other: he is signed from the released players.
TEST_F(OffersTest, anOfferForAPlayerDismissedSinceIsAnsweredAsUsual)
{
    const int own = int(m_store->integer("select max(idjugador) from jugadores where idequipo = ?", kClub));
    const int clause = int(m_store->integer("select Clausula_Recision from jugadores where idjugador = ?", own));
    const int wage = int(m_store->integer("select Ficha from jugadores where idjugador = ?", own));
    goToWeek(2);
    ASSERT_TRUE(Offers(*m_context).make(own, {clause, clause, wage, 1}));
    m_dialogs.answer({true});
    ASSERT_EQ(game::Contracts(*m_context).dismiss(own), game::Contracts::Dismissal::Dismissed);
    EXPECT_EQ(count("selects"), 1);
    m_dialogs.clear();

    goToWeek(5);
    EXPECT_EQ(Offers(*m_context).settleDue().signings, 1);
    EXPECT_EQ(m_dialogs.texts(),
              QStringList{QStringLiteral("Has Fichado a %1 del %2").arg(nameOf(own), clubName(85))});
    EXPECT_EQ(clubOf(own), kClub);
}

struct Failure {
    friend void PrintTo(const Failure &c, std::ostream *out) { *out << c.name; }
    const char *name;
    const char *trigger; // %1 the second player
    bool firstSigned;    // the first signing written and told before the store is mended
};

class OfferFailure : public OffersTest, public ::testing::WithParamInterface<Failure>
{};

// Guards: a signing told with "Has Fichado a" that the store then lost or never wrote, one
// failed answer undoing the others, or an offer whose answer failed left to wait until the
// season's close (only offers of exactly three weeks ago were answered).
TEST_P(OfferFailure, anAnswerIsToldOnlyOnceWrittenAndOneThatFailedIsGivenAtTheNextOpening)
{
    const int other = int(m_store->integer("select max(idjugador) from jugadores where idequipo = ?", kAbroad));
    const int otherClause = int(m_store->integer("select Clausula_Recision from jugadores where idjugador = ?", other));
    const int otherWage = int(m_store->integer("select Ficha from jugadores where idjugador = ?", other));
    goToWeek(2);
    Offers offers(*m_context);
    ASSERT_TRUE(offers.make(m_player, askingTerms()));
    ASSERT_TRUE(offers.make(other, {otherClause, otherClause, otherWage, 2}));
    goToWeek(5);
    ASSERT_TRUE(m_store->run([&] { m_store->execute(QString::fromUtf8(GetParam().trigger).arg(other).toStdString()); }).ok());

    offers.settleDue();
    const bool firstSigned = GetParam().firstSigned;
    const QString first = QStringLiteral("Has Fichado a %1 del %2").arg(nameOf(m_player), clubName(kAbroad));
    EXPECT_EQ(m_dialogs.texts().filter(QStringLiteral("Has Fichado")), firstSigned ? QStringList{first} : QStringList{});
    EXPECT_EQ(clubOf(m_player), firstSigned ? kClub : kAbroad);
    EXPECT_EQ(clubOf(other), kAbroad);
    EXPECT_EQ(game::Ledger(*m_store).row(5)->fichajes, firstSigned ? m_clause : 0);
    EXPECT_EQ(count("selects"), firstSigned ? 1 : 2);

    // Mended, the next week answers what still waits, four weeks old.
    ASSERT_TRUE(m_store->run([&] { m_store->execute("drop trigger broken"); }).ok());
    goToWeek(6);
    EXPECT_EQ(offers.settleDue().signings, firstSigned ? 1 : 2);
    EXPECT_EQ(clubOf(m_player), kClub);
    EXPECT_EQ(clubOf(other), kClub);
    EXPECT_EQ(count("selects"), 0);
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
// and a years box read as a number it does not hold.
TEST(OfferTerms, readTheBoxesAsTheGameKeepsThemAndRefuseSumsTooLarge)
{
    ScriptedDialogs dialogs;
    const auto typed = Offers::termsFrom(QStringLiteral("1.000 €"), QString(), QStringLiteral("2147483647 €"),
                                         QStringLiteral("6"), dialogs);
    ASSERT_TRUE(typed.has_value());
    EXPECT_EQ(typed->oferta, 1000);
    EXPECT_EQ(typed->clausula, 1); // an empty box is 1 €
    EXPECT_EQ(typed->ficha, 2147483647);
    EXPECT_EQ(typed->years, 6);
    for (const char *years : {"7", "0", "tres", ""})
        EXPECT_EQ(Offers::termsFrom(QStringLiteral("1"), QStringLiteral("1"), QStringLiteral("1"),
                                    QString::fromUtf8(years), dialogs)->years,
                  1)
            << years;
    EXPECT_TRUE(dialogs.texts().isEmpty());

    for (const char *tooLarge : {"2147483648 €", "99999999999999999999 €"}) {
        EXPECT_FALSE(Offers::termsFrom(QString::fromUtf8(tooLarge), QStringLiteral("1"), QStringLiteral("1"),
                                       QStringLiteral("1"), dialogs)
                         .has_value());
    }
    EXPECT_EQ(dialogs.texts().size(), 2);
}
