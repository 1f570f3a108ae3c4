#include "career/newcareer.h"
#include "tempstore.h"

using game::CareerChoice;
using game::NewCareer;

namespace {

const QString kNoName = QStringLiteral("introduce Nombre y Apellidos");
const QString kNoClub = QStringLiteral("Selecciona un Equipo de la Liga ASOBAL");

struct Refusal {
    friend void PrintTo(const Refusal &c, std::ostream *out) { *out << c.label; }
    const char *label;
    CareerChoice choice;
    QString message;
};

} // namespace

class NewCareerRefusal : public StoreTest, public ::testing::WithParamInterface<Refusal>
{};

// Guards: a career begun with no manager or no club, or a refusal that still wrote rows.
TEST_P(NewCareerRefusal, tellsWhyAndWritesNothing)
{
    const QString career = dump("datos_jugador");
    const QString coaches = dump("entrenadores");
    exec("update jugadores set venta = 1 where idjugador < 10");
    const QString players = dump("jugadores");

    EXPECT_FALSE(NewCareer(*m_context).start(GetParam().choice));

    ASSERT_EQ(m_dialogs.texts(), QStringList{GetParam().message});
    EXPECT_EQ(m_dialogs.messages().front().icon, game::Dialogs::Icon::Exclamation);
    EXPECT_EQ(dump("datos_jugador"), career);
    EXPECT_EQ(dump("entrenadores"), coaches);
    EXPECT_EQ(dump("jugadores"), players);
}

INSTANTIATE_TEST_SUITE_P(
    Form, NewCareerRefusal,
    ::testing::Values(
        Refusal{"blanks", {QStringLiteral("   "), QStringLiteral("\t "), 1, QStringLiteral("F.C. BARCELONA")}, kNoName},
        Refusal{"noSurname", {QStringLiteral("Ana"), QString(), 1, QStringLiteral("F.C. BARCELONA")}, kNoName},
        Refusal{"noClub", {QStringLiteral("Ana"), QStringLiteral("Ruiz"), 0, QString()}, kNoClub}),
    [](const auto &info) { return std::string(info.param.label); });

// Guards: a typed apostrophe that broke the statements, and trimming what the player typed.
TEST_F(StoreTest, aCareerKeepsTheNamesAsTypedApostrophesIncluded)
{
    const CareerChoice choice{QStringLiteral("D'Artagnan "), QStringLiteral("O'Donnell Muñoz"), 3,
                              QStringLiteral("CAJA ESPAÑA ADEMAR DE LEÓN")};
    ASSERT_TRUE(NewCareer(*m_context).start(choice));
    EXPECT_TRUE(m_dialogs.texts().isEmpty());

    EXPECT_EQ(dump("datos_jugador"),
              QStringLiteral("0|D'Artagnan |O'Donnell Muñoz|3|CAJA ESPAÑA ADEMAR DE LEÓN|\n"));
    EXPECT_EQ(text("select nombre || '/' || apellidos || '/' || confianza_directivos || confianza_publico"
                            " || puntuacion from entrenadores where idEntrenador = 3"),
              QStringLiteral("D'Artagnan /O'Donnell Muñoz/555"));
}

// Guards: leftovers of an earlier career (friendlies, ledger, orders, market) leaking into
// the new one.
TEST_F(StoreTest, aCareerEmptiesWhatBelongedToTheLastOne)
{
    exec("update datos_jugador set jornada = 14");
    exec("insert into pretemporada values (1, 20, 1, '2004-08-01')");
    exec("insert into calendario values (1, 1, '2004-08-01')");
    exec("insert into caja (semana, Caja) values (1, 5000)");
    exec("insert into selects values ('update jugadores set idequipo = 1 where idjugador = 5', 1,"
         " 1000, 2000, 3000, 5, ' ', ' ')");
    exec("insert into jugar values (2, 40, 'A', 'B', 70, 'Portero', 1)");
    exec("update jugadores set venta = 1 where idjugador % 7 = 0");

    ASSERT_TRUE(NewCareer(*m_context).start({QStringLiteral("Ana"), QStringLiteral("Ruiz"), 16, QStringLiteral("ALMERIA 2005")}));

    for (const char *table : {"pretemporada", "calendario", "caja", "selects", "jugar"})
        EXPECT_EQ(count(table), 0) << table;
    EXPECT_EQ(value("select count(*) from jugadores where venta <> 0"), 0);
    EXPECT_EQ(value("select jornada from datos_jugador"), 0);
    EXPECT_EQ(value("select idequipo from datos_jugador"), 16);
}

// Guards: a new career that quietly resets the league, the squads or the stadium, which only
// a restore of the pristine file may do.
TEST_F(StoreTest, aCareerLeavesLeagueSquadsMoneyAndStadiumsAsTheyStand)
{
    exec("update liga_asobal set goles_equipo_local = 30 where idpartido = (select min(idpartido) from liga_asobal)");
    exec("update asobal set Puntos = 2 where teams = 4");
    exec("update infoteams set presupuesto = -5 where idequipo = 1");
    exec("update estadios set min_gradas = 12345 where idequipo = 1");
    exec("update entradas set precio_entrada = 33 where idPrecio = 1");
    exec("update miequipo set idjugador = 3, Nombre = 'X' where Pos_Partido = 'PORTERO'");
    exec("update jugadores set idequipo = 1 where idjugador = 1000");
    const QStringList kept{dump("liga_asobal"), dump("asobal"), dump("infoteams"), dump("estadios"),
                           dump("entradas"), dump("miequipo")};
    const QString clubs = text("select group_concat(idequipo) from jugadores");

    ASSERT_TRUE(NewCareer(*m_context).start({QStringLiteral("Ana"), QStringLiteral("Ruiz"), 1, QStringLiteral("F.C. BARCELONA")}));

    const QStringList after{dump("liga_asobal"), dump("asobal"), dump("infoteams"), dump("estadios"),
                            dump("entradas"), dump("miequipo")};
    EXPECT_EQ(after, kept);
    EXPECT_EQ(text("select group_concat(idequipo) from jugadores"), clubs);
}

// Guards: a store failure half way through leaving a career half begun.
TEST_F(StoreTest, aCareerThatCannotBeWrittenLeavesNothingAndSaysSo)
{
    exec("insert into pretemporada values (1, 20, 1, '2004-08-01')");
    exec("drop table jugar");
    const QString career = dump("datos_jugador");

    EXPECT_FALSE(NewCareer(*m_context).start({QStringLiteral("Ana"), QStringLiteral("Ruiz"), 5, QStringLiteral("BM VALLADOLID")}));

    ASSERT_EQ(m_dialogs.messages().size(), 1u);
    EXPECT_TRUE(m_dialogs.texts().front().startsWith(QStringLiteral("No se ha podido completar")));
    EXPECT_EQ(dump("datos_jugador"), career);
    EXPECT_EQ(count("pretemporada"), 1);
}
