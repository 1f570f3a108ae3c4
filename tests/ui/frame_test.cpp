// What every screen shares: the page's frame (its title, heading and way back, Escape too),
// and Qt's own buttons in the game's language.

#include "screenfixture.h"

#include <QMessageBox>

namespace {

struct Frame
{
    const char *name;
    const char *title;
    const char *heading;
    const char *back;
    const char *backCaption;
};

// Every page of the week's screens, opened over the panel as its buttons and lists open them.
const Frame kFrames[] = {
    {"Alinear", "Preparando Partido", "PREPARANDO PARTIDO", "cmdVOLVER", "<- VOLVER"},
    {"Tactica", "Táctica", "TÁCTICA", "cmdVOLVER", "<- VOLVER"},
    {"Plantilla", "LA PLANTILLA", "LA PLANTILLA", "cmdVOLVER", "<- VOLVER"},
    {"Renovar", "Situación en el Club", "SITUACIÓN EN EL CLUB", "cmdCancelar", "CANCELAR"},
    {"Juveniles", "Búsqueda de Jóvenes Promesas", "BÚSQUEDA DE JÓVENES PROMESAS", "cmdVOLVER", "<- VOLVER"},
    {"Calendario", "El Calendario", "EL CALENDARIO", "cmdVOLVER", "<- VOLVER"},
    {"Clasificacion", "La Clasificación", "LA CLASIFICACIÓN", "cmdVOLVER", "<- VOLVER"},
    {"Resultados", "Resultados", "RESULTADOS ASOBAL", "cmdVOLVER", "<- VOLVER"},
    {"Caja", "LA CAJA", "LA CAJA", "cmdVOLVER", "<- VOLVER"},
    {"estadios", "Remodelar Estadio", "REMODELAR ESTADIO", "cmdVOLVER", "<- VOLVER"},
    {"Fichar_EnVenta", "JUGADORES A LA VENTA", "JUGADORES A LA VENTA", "cmdVOLVER", "<- VOLVER"},
    {"Fichar", "Fichajes", "OFERTAS", "cmdVOLVER", "<- VOLVER"},
    {"Secretario", "SECRETARIO TÉCNICO", "SECRETARIO TÉCNICO", "cmdVOLVER", "<- VOLVER"},
    {"Fichar_Jugadores", "Fichar Jugador", "FICHAR JUGADOR", "cmdCancelar", "CANCELAR"},
};

} // namespace

class Frames : public ScreenTest
{};

// Guards: a page without its heading or title, a way back with another name or caption, Escape
// that does nothing or something else, and a page that spills out of the window or overlaps
// itself.
TEST_F(Frames, everyPageHasItsTitleHeadingAndWayBackAndEscapeLeavesIt)
{
    reachFirstLeagueWeek();
    const int player = int(value("select min(idjugador) from jugadores where idequipo = ?", club()));
    for (const Frame &frame : kFrames) {
        const QString name = frame.name;
        const bool aboutAPlayer = name == "Renovar" || name == "Fichar_Jugadores";
        ASSERT_NE(m_navigator->open(name, aboutAPlayer ? QVariant(player) : QVariant()), nullptr) << frame.name;
        settle();
        QWidget *page = m_navigator->current();
        ASSERT_EQ(page->objectName(), name);
        EXPECT_EQ(m_window->windowTitle(), frame.title) << frame.name;
        QStringList headings;
        for (QLabel *label : page->findChildren<QLabel *>()) {
            if (label->property("role") == "heading")
                headings << label->text();
        }
        EXPECT_EQ(headings, QStringList{frame.heading}) << frame.name;
        auto *back = page->findChild<QPushButton *>(frame.back);
        ASSERT_NE(back, nullptr) << frame.name;
        EXPECT_EQ(back->text(), frame.backCaption) << frame.name;
        expectTidy(name);
        QTest::keyClick(page, Qt::Key_Escape);
        settle();
        EXPECT_EQ(at(), "Panel_Control_Manager") << frame.name;
    }
    // The planner's way back leads to the menu, Escape too.
    m_navigator->open("Pretemporada");
    settle();
    ASSERT_EQ(at(), "Pretemporada");
    EXPECT_EQ(find<QPushButton>("cmdVOLVER")->text(), "VOLVER");
    chooseClub("cmdFrancia", 0);
    expectTidy("Pretemporada");
    QTest::keyClick(m_navigator->current(), Qt::Key_Escape);
    settle();
    EXPECT_EQ(at(), "Form1");
}

// Guards: Qt's own dialog buttons left in English in a game written in Spanish.
TEST_F(Frames, qtsOwnButtonsSpeakSpanish)
{
    QMessageBox box(QMessageBox::Question, "Zarpazo", "¿?",
                    QMessageBox::Yes | QMessageBox::No | QMessageBox::Ok | QMessageBox::Cancel);
    const std::pair<QMessageBox::StandardButton, const char *> buttons[] = {
        {QMessageBox::Yes, "Sí"}, {QMessageBox::No, "No"}, {QMessageBox::Ok, "Aceptar"}, {QMessageBox::Cancel, "Cancelar"}};
    for (const auto &[button, text] : buttons)
        EXPECT_EQ(box.button(button)->text().remove('&'), text);
}
