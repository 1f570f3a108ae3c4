#include "tempstore.h"
#include "transfers/youthacademy.h"

using game::NewYouth;
using game::YouthAcademy;

namespace {

NewYouth aYouth()
{
    return {QStringLiteral("Iker"), QStringLiteral("O'Neill Peña"), QStringLiteral("17"), QStringLiteral("9"),
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
// inserted him, or the reason in other words; a youth with the wrong fixed terms, an id that
// leaves a gap, a second youth that takes the first one's id or is refused the same number.
TEST_P(YouthForm, takesTheEndsOfTheRangesWithTheNextIdAndRefusesAnythingElseSayingWhy)
{
    const QString players = dump("jugadores");
    const qint64 highest = value("select max(idjugador) from jugadores");
    NewYouth youth = aYouth();
    GetParam().fill(youth);

    YouthAcademy academy(*m_context);
    const int id = academy.add(youth);

    EXPECT_EQ(m_dialogs.texts(), QStringList{QString::fromUtf8(GetParam().message)});
    if (GetParam().message == kAdded) {
        EXPECT_EQ(id, highest + 1);
        EXPECT_EQ(dump("jugadores where idjugador = " + std::to_string(id)),
                  QStringLiteral("%1|84|Iker|O'Neill Peña|%2|Pivote|95|%3|España|36150|1000|0|0|0|0|0|5|\n").arg(id).arg(youth.edad, youth.dorsal));
        youth.dorsal = QStringLiteral("9");
        EXPECT_EQ(academy.add(youth), id + 1);
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
