#include "tempstore.h"
#include "transfers/youthacademy.h"

using game::NewYouth;
using game::YouthAcademy;

namespace {

NewYouth aYouth()
{
    return {QStringLiteral("Iker"), QStringLiteral("Etxeberria"), QStringLiteral("17"), QStringLiteral("9"),
            QStringLiteral("Pivote"), QStringLiteral("España")};
}

struct BadForm {
    friend void PrintTo(const BadForm &c, std::ostream *out) { *out << c.label; }
    const char *label;
    void (*spoil)(NewYouth &);
    QString message;
};

const QString kFillEverything = QStringLiteral("Rellene todos los campos");

} // namespace

class YouthRefusal : public StoreTest, public ::testing::WithParamInterface<BadForm>
{};

// Guards: a half-filled youth in the pool, or a refusal that still inserted him.
TEST_P(YouthRefusal, tellsWhyAndAddsNobody)
{
    const QString players = dump("jugadores");
    NewYouth youth = aYouth();
    GetParam().spoil(youth);

    EXPECT_EQ(YouthAcademy(*m_context).add(youth), 0);

    ASSERT_EQ(m_dialogs.texts().size(), 1);
    EXPECT_TRUE(m_dialogs.texts().front().startsWith(GetParam().message)) << m_dialogs.texts().front().toStdString();
    EXPECT_EQ(dump("jugadores"), players);
}

INSTANTIATE_TEST_SUITE_P(
    Form, YouthRefusal,
    ::testing::Values(BadForm{"noName", [](NewYouth &y) { y.nombre.clear(); }, kFillEverything},
                      BadForm{"noSurname", [](NewYouth &y) { y.apellidos.clear(); }, kFillEverything},
                      BadForm{"noPosition", [](NewYouth &y) { y.posicion.clear(); }, kFillEverything},
                      BadForm{"noCountry", [](NewYouth &y) { y.nacionalidad.clear(); }, kFillEverything},
                      BadForm{"ageTooLow", [](NewYouth &y) { y.edad = QStringLiteral("15"); },
                              QStringLiteral("La edad de un juvenil debe estar entre 16 y 19")},
                      BadForm{"ageNotANumber", [](NewYouth &y) { y.edad = QStringLiteral("diez"); },
                              QStringLiteral("La edad de un juvenil debe estar entre 16 y 19")},
                      BadForm{"noAge", [](NewYouth &y) { y.edad.clear(); },
                              QStringLiteral("La edad de un juvenil debe estar entre 16 y 19")},
                      BadForm{"shirtZero", [](NewYouth &y) { y.dorsal = QStringLiteral("0"); },
                              QStringLiteral("El dorsal debe estar entre 1 y 99")},
                      BadForm{"shirtTooHigh", [](NewYouth &y) { y.dorsal = QStringLiteral("100"); },
                              QStringLiteral("El dorsal debe estar entre 1 y 99")}),
    [](const auto &info) { return std::string(info.param.label); });

// Guards: a youth with the wrong fixed terms, or an id that leaves a gap in the numbering.
TEST_F(StoreTest, aYouthJoinsThePoolWithTheNextIdAndTheFixedTerms)
{
    const qint64 highest = m_store->integer("select max(idjugador) from jugadores");
    NewYouth youth = aYouth();
    youth.apellidos = QStringLiteral("O'Neill Peña");

    const int id = YouthAcademy(*m_context).add(youth);

    EXPECT_EQ(id, highest + 1);
    EXPECT_EQ(m_dialogs.texts(), QStringList{QStringLiteral("Se ha insetado al Juvenil Satisfactoriamente")});
    SQLite::Statement &row = m_store->statement("select * from jugadores where idjugador = ?");
    game::GameStore::bindAll(row, id);
    ASSERT_TRUE(row.executeStep());
    QStringList values;
    for (int column = 0; column < row.getColumnCount(); ++column)
        values << game::GameStore::columnText(row, column);
    EXPECT_EQ(values.join(QLatin1Char('|')),
              QStringLiteral("%1|84|Iker|O'Neill Peña|17|Pivote|95|9|España|36150|1000|0|0|0|0|0|5").arg(id));
}

TEST_F(StoreTest, aSecondYouthFollowsTheFirst)
{
    YouthAcademy academy(*m_context);
    const int first = academy.add(aYouth());
    NewYouth second = aYouth();
    second.nombre = QStringLiteral("Unai");
    second.dorsal = QStringLiteral("9"); // two youths may wear the same number
    EXPECT_EQ(academy.add(second), first + 1);
    EXPECT_EQ(m_store->integer("select count(*) from jugadores where idequipo = 84 and Apellidos = ?", QStringLiteral("Etxeberria")), 2);
}
