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

const char *const kAdded = "Se ha insetado al Juvenil Satisfactoriamente";
const char *const kFillEverything = "Rellene todos los campos";
const char *const kAgeRange = "La edad de un juvenil debe estar entre 16 y 19 años.";
const char *const kShirtRange = "El dorsal debe estar entre 1 y 99.";

struct YouthCase {
    friend void PrintTo(const YouthCase &c, std::ostream *out) { *out << c.label; }
    const char *label;
    void (*fill)(NewYouth &);
    const char *message; // the one message the player gets
};

} // namespace

class YouthForm : public StoreTest, public ::testing::WithParamInterface<YouthCase>
{};

// Guards: a half-filled youth in the pool, an end of the ranges shut out (a youth of 16 or
// 19, the number 1 or 99) or one past it let in (15 or 20, 0 or 100), a refusal that still
// inserted him, or the reason in other words.
TEST_P(YouthForm, takesTheEndsOfTheRangesAndRefusesAnythingElseSayingWhy)
{
    const QString players = dump("jugadores");
    const qint64 highest = value("select max(idjugador) from jugadores");
    NewYouth youth = aYouth();
    GetParam().fill(youth);

    const int id = YouthAcademy(*m_context).add(youth);

    EXPECT_EQ(m_dialogs.texts(), QStringList{QString::fromUtf8(GetParam().message)});
    if (GetParam().message == kAdded) {
        EXPECT_EQ(id, highest + 1);
        EXPECT_EQ(text("select Edad || '|' || Dorsal from jugadores where idjugador = ?", id),
                  youth.edad + QLatin1Char('|') + youth.dorsal);
    } else {
        EXPECT_EQ(id, 0);
        EXPECT_EQ(dump("jugadores"), players);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Form, YouthForm,
    ::testing::Values(YouthCase{"noName", [](NewYouth &y) { y.nombre.clear(); }, kFillEverything},
                      YouthCase{"noSurname", [](NewYouth &y) { y.apellidos.clear(); }, kFillEverything},
                      YouthCase{"noPosition", [](NewYouth &y) { y.posicion.clear(); }, kFillEverything},
                      YouthCase{"noCountry", [](NewYouth &y) { y.nacionalidad.clear(); }, kFillEverything},
                      YouthCase{"ageNotANumber", [](NewYouth &y) { y.edad = QStringLiteral("diez"); }, kAgeRange},
                      YouthCase{"noAge", [](NewYouth &y) { y.edad.clear(); }, kAgeRange},
                      YouthCase{"age15", [](NewYouth &y) { y.edad = QStringLiteral("15"); }, kAgeRange},
                      YouthCase{"age16", [](NewYouth &y) { y.edad = QStringLiteral("16"); }, kAdded},
                      YouthCase{"age19", [](NewYouth &y) { y.edad = QStringLiteral("19"); }, kAdded},
                      YouthCase{"age20", [](NewYouth &y) { y.edad = QStringLiteral("20"); }, kAgeRange},
                      YouthCase{"shirtNotANumber", [](NewYouth &y) { y.dorsal = QStringLiteral("9a"); }, kShirtRange},
                      YouthCase{"shirt0", [](NewYouth &y) { y.dorsal = QStringLiteral("0"); }, kShirtRange},
                      YouthCase{"shirt1", [](NewYouth &y) { y.dorsal = QStringLiteral("1"); }, kAdded},
                      YouthCase{"shirt99", [](NewYouth &y) { y.dorsal = QStringLiteral("99"); }, kAdded},
                      YouthCase{"shirt100", [](NewYouth &y) { y.dorsal = QStringLiteral("100"); }, kShirtRange}),
    [](const auto &info) { return std::string(info.param.label); });

// Guards: a youth with the wrong fixed terms, an id that leaves a gap in the numbering, a
// second youth that takes the first one's id, or a shirt number refused for being taken.
TEST_F(StoreTest, youthsJoinThePoolWithTheNextIdsAndTheFixedTerms)
{
    const qint64 highest = value("select max(idjugador) from jugadores");
    NewYouth youth = aYouth();
    youth.apellidos = QStringLiteral("O'Neill Peña");
    YouthAcademy academy(*m_context);

    const int id = academy.add(youth);

    EXPECT_EQ(id, highest + 1);
    game::GameStore::Query row = m_store->query("select * from jugadores where idjugador = ?", id);
    ASSERT_TRUE(row.next());
    QStringList values;
    for (int column = 0; column < row.columns(); ++column)
        values << row.text(column);
    EXPECT_EQ(values.join(QLatin1Char('|')),
              QStringLiteral("%1|84|Iker|O'Neill Peña|17|Pivote|95|9|España|36150|1000|0|0|0|0|0|5").arg(id));
    EXPECT_EQ(academy.add(aYouth()), id + 1); // the same number 9: two youths may wear it
}
