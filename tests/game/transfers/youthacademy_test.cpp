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
                      BadForm{"ageNotANumber", [](NewYouth &y) { y.edad = QStringLiteral("diez"); },
                              QStringLiteral("La edad de un juvenil debe estar entre 16 y 19")},
                      BadForm{"noAge", [](NewYouth &y) { y.edad.clear(); },
                              QStringLiteral("La edad de un juvenil debe estar entre 16 y 19")},
                      BadForm{"shirtNotANumber", [](NewYouth &y) { y.dorsal = QStringLiteral("9a"); },
                              QStringLiteral("El dorsal debe estar entre 1 y 99")}),
    [](const auto &info) { return std::string(info.param.label); });

namespace {

// An age and a shirt number at or just past the ends of what a youth may have.
struct Bound {
    friend void PrintTo(const Bound &c, std::ostream *out) { *out << c.label; }
    const char *label;
    const char *edad;
    const char *dorsal;
    QString message; // the one message the player gets
};

const QString kAdded = QStringLiteral("Se ha insetado al Juvenil Satisfactoriamente");
const QString kAgeRange = QStringLiteral("La edad de un juvenil debe estar entre 16 y 19 años.");
const QString kShirtRange = QStringLiteral("El dorsal debe estar entre 1 y 99.");

} // namespace

class YouthBounds : public StoreTest, public ::testing::WithParamInterface<Bound>
{};

// Guards: an end of the ranges shut out (a youth of 19, the number 99) or one past it let in
// (a youth of 20, the number 100), and a refused youth written all the same.
TEST_P(YouthBounds, takesTheEndsOfTheRangesAndRefusesOnePast)
{
    const QString players = dump("jugadores");
    const qint64 highest = m_store->integer("select max(idjugador) from jugadores");
    NewYouth youth = aYouth();
    youth.edad = QString::fromLatin1(GetParam().edad);
    youth.dorsal = QString::fromLatin1(GetParam().dorsal);

    const int id = YouthAcademy(*m_context).add(youth);

    EXPECT_EQ(m_dialogs.texts(), QStringList{GetParam().message});
    if (GetParam().message == kAdded) {
        EXPECT_EQ(id, highest + 1);
        EXPECT_EQ(m_store->text("select Edad || '|' || Dorsal from jugadores where idjugador = ?", id),
                  youth.edad + QLatin1Char('|') + youth.dorsal);
    } else {
        EXPECT_EQ(id, 0);
        EXPECT_EQ(dump("jugadores"), players);
    }
}

INSTANTIATE_TEST_SUITE_P(
    AgeAndShirt, YouthBounds,
    ::testing::Values(Bound{"age15", "15", "9", kAgeRange}, Bound{"age16", "16", "9", kAdded},
                      Bound{"age19", "19", "9", kAdded}, Bound{"age20", "20", "9", kAgeRange},
                      Bound{"shirt0", "17", "0", kShirtRange}, Bound{"shirt1", "17", "1", kAdded},
                      Bound{"shirt99", "17", "99", kAdded}, Bound{"shirt100", "17", "100", kShirtRange}),
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
    game::GameStore::Query row = m_store->query("select * from jugadores where idjugador = ?", id);
    ASSERT_TRUE(row.next());
    QStringList values;
    for (int column = 0; column < row.columns(); ++column)
        values << row.text(column);
    EXPECT_EQ(values.join(QLatin1Char('|')),
              QStringLiteral("%1|84|Iker|O'Neill Peña|17|Pivote|95|9|España|36150|1000|0|0|0|0|0|5").arg(id));
}

// Guards: a second youth that takes the first one's id, or a shirt number refused for being taken.
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
