#include "screenfixture.h"

#include <QMessageBox>

// The game's window as the player meets it around the screens.
class GameWindow : public ScreenTest
{
};

// Guards: Qt's own dialog buttons left in English in a game written in Spanish.
TEST_F(GameWindow, qtsOwnButtonsSpeakSpanish)
{
    QMessageBox box(QMessageBox::Question, "Zarpazo", "¿?",
                    QMessageBox::Yes | QMessageBox::No | QMessageBox::Ok | QMessageBox::Cancel);
    const std::pair<QMessageBox::StandardButton, const char *> buttons[] = {
        {QMessageBox::Yes, "Sí"}, {QMessageBox::No, "No"}, {QMessageBox::Ok, "Aceptar"}, {QMessageBox::Cancel, "Cancelar"}};
    for (const auto &[button, text] : buttons)
        EXPECT_EQ(box.button(button)->text().remove('&'), text);
}
