#include "career/weekpanel.h"
#include "screenfixture.h"

#include <QMessageBox>
#include <QTextBrowser>

// The game's window as the player meets it around the screens.
class GameWindow : public ScreenTest
{
};

// Guards: Qt's own dialog buttons left in English in a game written in Spanish.
TEST_F(GameWindow, qtsOwnButtonsSpeakSpanish)
{
    QMessageBox box(QMessageBox::Question, QStringLiteral("Zarpazo"), QStringLiteral("¿?"),
                    QMessageBox::Yes | QMessageBox::No | QMessageBox::Ok | QMessageBox::Cancel);
    const std::pair<QMessageBox::StandardButton, const char *> buttons[] = {
        {QMessageBox::Yes, "Sí"}, {QMessageBox::No, "No"}, {QMessageBox::Ok, "Aceptar"}, {QMessageBox::Cancel, "Cancelar"}};
    for (const auto &[button, text] : buttons)
        EXPECT_EQ(box.button(button)->text().remove(QLatin1Char('&')), QString::fromUtf8(text));
}

// Guards: a window still titled after a screen that has closed ("LA CAJA" over the panel).
TEST_F(GameWindow, theTitleFollowsThePageInFront)
{
    startCareerFromMenu(QStringLiteral("IBarcelona"));
    for (int slot = 0; slot < 5; ++slot)
        click(QStringLiteral("cmdNoJugar"));
    click(QStringLiteral("cmdSeguir"));
    auto *panel = m_navigator->screen<ui::WeekPanel>(QStringLiteral("Panel_Control_Manager"));
    ASSERT_NE(panel, nullptr);
    panel->runWeekEvents();
    settle();
    if (m_navigator->screen(QStringLiteral("Tele")))
        click(QStringLiteral("cmdOK"));
    const QString panelTitle = m_window->windowTitle();
    EXPECT_TRUE(panelTitle.startsWith(QStringLiteral("Menu Manager")));
    for (const char *button : {"cmdCaja", "c", "cmdClasificacion"}) {
        click(QString::fromLatin1(button));
        EXPECT_NE(m_window->windowTitle(), panelTitle) << button;
        click(QStringLiteral("cmdVOLVER"));
        EXPECT_EQ(m_window->windowTitle(), panelTitle) << button;
    }
}

// Guards: a web page that says it opened in the browser when the browser could not be opened.
TEST_F(GameWindow, aWebPageSaysWhetherTheBrowserOpenedItAndWhereItIs)
{
    goToMenu();
    for (const bool opens : {true, false}) {
        m_browserOpens = opens;
        click(QStringLiteral("Command3"));
        auto *page = find<QDialog>(QStringLiteral("infoHandball"));
        ASSERT_NE(page, nullptr);
        const QString text = page->findChild<QTextBrowser *>(QStringLiteral("pagina"))->toPlainText();
        EXPECT_EQ(text.contains(QStringLiteral("se ha abierto en tu navegador")), opens);
        EXPECT_EQ(text.contains(QStringLiteral("No se ha podido abrir")), !opens);
        EXPECT_TRUE(text.contains(m_opened.constLast().toString()));
        click(QStringLiteral("cmdVOLVER"));
    }
}
