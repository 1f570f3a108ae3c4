#include "careerfixture.h"
#include "stadium/ledger.h"
#include "transfers/contracts.h"

using game::Contracts;

// One of the user's players in week 2, with the week's ledger row open: a wage of 20000, a
// clause of 100000 and the contract's years as a test sets them.
class ContractsTest : public CareerTest
{
protected:
    void SetUp() override
    {
        CareerTest::SetUp();
        startCareer();
        planSeason(0);
        m_player = int(value("select min(idjugador) from jugadores where idequipo = ?", kClub));
        exec("update datos_jugador set jornada = 2");
        ASSERT_TRUE(m_store->run([&] { game::Ledger(*m_store).openWeek(2, kClub); }).ok());
        exec("update jugadores set Ficha = 20000, Clausula_Recision = 100000 where idjugador = ?", m_player);
    }

    void setYears(int years) { exec("update jugadores set \"Años_Contrato\" = ? where idjugador = ?", years, m_player); }
    QString terms()
    {
        return text("select Ficha || '|' || Clausula_Recision || '|' || \"Años_Contrato\" from jugadores where idjugador = ?",
                    m_player);
    }
    QString nombre() { return text("select Nombre from jugadores where idjugador = ?", m_player); }
    qint64 squad() { return value("select count(*) from jugadores where idequipo = ?", kClub); }

    int m_player = 0;
};

struct RenewalCase {
    const char *name;
    int yearsNow;
    Contracts::Renewal offer;
    const char *refusal; // empty when he signs
};

class Renewal : public ContractsTest, public ::testing::WithParamInterface<RenewalCase>
{};

// Guards: the bounds of the three tests off by one (ten years in all, one and a half times
// the clause, a thousand more of wage), the tests out of order, a refusal that changes his
// terms, or the answers in other words.
TEST_P(Renewal, isTakenExactlyOnTheBoundsOfItsThreeTests)
{
    const RenewalCase &c = GetParam();
    setYears(c.yearsNow);
    const QString before = terms();
    const bool signs = !*c.refusal;
    EXPECT_EQ(Contracts(*m_context).renew(m_player, c.offer), signs);
    if (signs) {
        EXPECT_EQ(terms(), QStringLiteral("%1|%2|%3").arg(c.offer.ficha).arg(c.offer.clausula).arg(c.yearsNow + c.offer.years));
        EXPECT_EQ(m_dialogs.texts(), (QStringList{nombre() + QStringLiteral(" Ha Renovado su Contrato"),
                                                  QStringLiteral("El Jugador Cobrará Lo Acordado al Finalizar Esta Temporada")}));
    } else {
        EXPECT_EQ(terms(), before);
        EXPECT_EQ(m_dialogs.texts(), QStringList{nombre() + QString::fromUtf8(c.refusal)});
    }
}

INSTANTIATE_TEST_SUITE_P(
    Bounds, Renewal,
    ::testing::Values(
        RenewalCase{"fivePlusFive", 5, {150000, 21000, 5}, ""},
        RenewalCase{"sixPlusFive", 6, {150000, 21000, 5}, " Ha rechazado su Oferta porque No Quiere Ligarse más al Club"},
        RenewalCase{"sixPlusFour", 6, {150000, 21000, 4}, ""},
        RenewalCase{"clauseOneOverOneAndAHalf", 1, {150001, 21000, 1},
                    " Ha rechazado su Oferta porque no está de Acuedo con su Clausula de Rescisión"},
        RenewalCase{"clauseLowered", 1, {1, 21000, 1}, ""},
        RenewalCase{"wageOnly999More", 1, {100000, 20999, 1},
                    " Ha rechazado su Oferta porque no está de Acuedo con su Ficha"},
        // Years first: with every test failing only the years are named.
        RenewalCase{"allFailing", 9, {999999, 1, 5}, " Ha rechazado su Oferta porque No Quiere Ligarse más al Club"}),
    [](const auto &info) { return std::string(info.param.name); });

// Guards: a dismissal without the question or on a No, one that pays the wrong compensation,
// keeps the player's place among the fourteen or goes through below the board's limit of
// twelve; the question or the board's refusal in other words.
TEST_F(ContractsTest, aDismissalPaysEveryYearLeftAndTheBoardStopsItBelowTwelve)
{
    setYears(5);
    exec("update jugadores set idequipo = 30 where idequipo = ? and idjugador not in"
         " (select idjugador from jugadores where idequipo = ? order by idjugador limit 12)",
         kClub, kClub);
    exec("update miequipo set idjugador = ?, Nombre = 'x', Media = 70 where Pos_Partido = 'CENTRAL'", m_player);

    m_dialogs.answer({false});
    EXPECT_EQ(Contracts(*m_context).dismiss(m_player), Contracts::Dismissal::Kept);
    EXPECT_EQ(m_dialogs.questions(), QStringList{QStringLiteral("Despedir|¿Está Seguro de Despedir a Éste Jugador? "
                                                                "Tendrá que Pagarle Una Indemnización")});

    m_dialogs.answer({true});
    EXPECT_EQ(Contracts(*m_context).dismiss(m_player), Contracts::Dismissal::Dismissed);
    // He goes to the released players with his terms, and every year of his wage is paid.
    EXPECT_EQ(value("select idequipo from jugadores where idjugador = ?", m_player), 85);
    EXPECT_EQ(std::pair(terms(), game::Ledger(*m_store).row(2)->despidos), std::pair(QStringLiteral("20000|100000|5"), 100000LL));
    EXPECT_EQ(text("select Nombre || '|' || idjugador from miequipo where Pos_Partido = 'CENTRAL'"), QStringLiteral("CENTRAL|0"));

    m_dialogs.answer({true});
    EXPECT_EQ(Contracts(*m_context).dismiss(int(value("select min(idjugador) from jugadores where idequipo = ?", kClub))),
              Contracts::Dismissal::Refused);
    EXPECT_EQ(m_dialogs.texts().last(), QStringLiteral("La Directiva No Acepta Más Despidos de Jugadores, ya que el "
                                                       "Equipo Solo Cuenta con 14 Jugadores."));
    EXPECT_EQ(std::pair(squad(), game::Ledger(*m_store).row(2)->despidos), std::pair(11LL, 100000LL));
}
