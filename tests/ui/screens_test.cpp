// The first screens as a player uses them: title, menu, new career, add youth, web pages, quit.

#include "screenfixture.h"

#include <QTextBrowser>
#include <QToolButton>

class Screens : public ScreenTest
{};

// Guards: a title that never gives way to the menu, or a wait other than five seconds; a menu
// button with a caption instead of its picture, without its tooltip, or outside the window.
TEST_F(Screens, theTitleStaysFiveSecondsThenGivesWayToTheMenuOfSixPictureButtons)
{
    m_navigator->showSplash();
    QApplication::processEvents();
    ASSERT_EQ(at(), "frmSplash");
    auto *timer = m_navigator->current()->findChild<QTimer *>("Timer1");
    ASSERT_NE(timer, nullptr);
    EXPECT_TRUE(timer->isActive() && timer->isSingleShot());
    EXPECT_EQ(timer->interval(), 5000);
    screenshot("title");

    QMetaObject::invokeMethod(timer, "timeout");
    QApplication::processEvents();
    EXPECT_EQ(at(), "Form1");
    for (const char *name : {"Command4", "Command2", "Command1", "Command3", "cmdInstrucciones", "Image3"}) {
        auto *button = find<QToolButton>(name);
        ASSERT_NE(button, nullptr) << name;
        EXPECT_TRUE(button->isVisible() && button->text().isEmpty()) << name;
        EXPECT_FALSE(button->toolTip().isEmpty() || button->icon().isNull()) << name;
        EXPECT_TRUE(m_window->rect().contains(button->geometry())) << name;
    }
    screenshot("menu");
}

// Guards: the way from the menu to a first season as a player walks it: a cancelled career
// that writes anything, the missing name or club let through, a hovered crest taken as
// chosen, and a manager's name read as markup, shown in italics or bold or with its tags lost.
TEST_F(Screens, aNewCareerGoesFromTheMenuToThePlanner)
{
    const QString career = dump("datos_jugador");
    goToMenu();
    click("Command4");
    type("txtNombre", "Ana");
    QTest::mouseClick(find("IAlmeria"), Qt::LeftButton);
    click("Command2");
    EXPECT_EQ(find("Liga_Manager"), nullptr);
    EXPECT_EQ(at(), "Form1");
    EXPECT_EQ(dump("datos_jugador"), career);
    EXPECT_TRUE(m_dialogs.texts().isEmpty());

    click("Command4");
    auto *screen = find<QDialog>("Liga_Manager");
    ASSERT_NE(screen, nullptr);
    ASSERT_TRUE(screen->isVisible());
    auto *nationality = find<QComboBox>("list1");
    EXPECT_EQ(nationality->count(), 30);
    EXPECT_EQ(nationality->currentText(), "Eslovenia"); // the eleventh of the list
    click("cmdSeguir");
    EXPECT_EQ(m_dialogs.texts(), QStringList{"introduce Nombre y Apellidos"});

    const QString nombre = QStringLiteral("<i>Zoë</i>");
    const QString apellidos = QStringLiteral("O'Callaghan & <b>Co</b>");
    type("txtNombre", nombre);
    type("txtApellidos", apellidos);
    click("cmdSeguir");
    EXPECT_EQ(m_dialogs.texts().last(), "Selecciona un Equipo de la Liga ASOBAL");

    // Hovering names a crest without choosing it; a second crest replaces the first.
    auto *hovered = find<QLabel>("lblEquipo");
    auto *chosen = find<QLabel>("lblEquiposel");
    QEnterEvent enter(QPointF(5, 5), QPointF(5, 5), QPointF(5, 5));
    QApplication::sendEvent(find("IBarcelona"), &enter);
    EXPECT_EQ(hovered->text(), "F.C. BARCELONA");
    EXPECT_TRUE(chosen->text().isEmpty());
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(find("IBarcelona"), &leave);
    EXPECT_TRUE(hovered->text().isEmpty());
    QTest::mouseClick(find("ICReal"), Qt::LeftButton);
    EXPECT_EQ(chosen->text(), "BM CIUDAD REAL");
    QTest::mouseClick(find("IAdemar"), Qt::LeftButton);
    EXPECT_EQ(chosen->text(), "CAJA ESPAÑA ADEMAR DE LEÓN");
    QApplication::sendEvent(find("IAdemar"), &enter);
    expectTidy("new career", screen);
    screenshot("new_career", screen);

    m_dialogs.clear();
    click("cmdSeguir");
    EXPECT_TRUE(m_dialogs.texts().isEmpty());
    EXPECT_EQ(at(), "Pretemporada");
    EXPECT_EQ(find("Liga_Manager"), nullptr);
    EXPECT_EQ(find("Form1"), nullptr);
    EXPECT_EQ(dump("datos_jugador"), "0|" + nombre + '|' + apellidos + "|3|CAJA ESPAÑA ADEMAR DE LEÓN|\n");
    // Every label of the planner, the slots' clubs included, shows its text as it is.
    EXPECT_EQ(text("lblNombre"), nombre + ' ' + apellidos);
    expectTidy("planner");
    screenshot("planner_typed_name");

    // Back from the planner, the menu is there again.
    go("cmdVOLVER", "Form1");
}

// Guards: the add-youth form that keeps the last youth's choices or loses a refused one, a
// form that Return does not send, and an age past 19 or a shirt number past 99 left in the
// boxes, beyond what the bars allow.
TEST_F(Screens, aYouthIsAddedFromTheMenuAndTheFormIsReadyForTheNext)
{
    const qint64 players = count("jugadores");
    goToMenu();
    click("Command2");
    auto *screen = find<QDialog>("Agregar_Juveniles");
    ASSERT_NE(screen, nullptr);
    auto *position = find<QComboBox>("List1");
    auto *country = find<QComboBox>("List2");
    auto *edad = find<QLineEdit>("txtEdad");
    auto *dorsal = find<QLineEdit>("txtDorsal");
    auto *edadBar = find<QScrollBar>("HScroll1");
    auto *dorsalBar = find<QScrollBar>("HScroll2");
    // The form as it starts, and again after every youth added.
    auto expectEmptyForm = [&] {
        EXPECT_EQ(text("txtNombre") + text("txtApellidos"), QString());
        EXPECT_EQ(edad->text() + '/' + dorsal->text(), "16/1");
        EXPECT_EQ(position->currentIndex(), -1);
        EXPECT_EQ(country->currentIndex(), -1);
    };
    expectEmptyForm();

    // The bars stop at their ends, and the boxes follow them.
    for (int step = 0; step < 10; ++step)
        edadBar->triggerAction(QAbstractSlider::SliderSingleStepAdd);
    for (int step = 0; step < 100; ++step)
        dorsalBar->triggerAction(QAbstractSlider::SliderSingleStepAdd);
    EXPECT_EQ(edad->text() + '/' + dorsal->text(), "19/99");
    // Typed past the end, the number goes back to the bar's when the box is left; a third
    // digit does not go in at all.
    edad->setFocus();
    edad->selectAll();
    QTest::keyClicks(edad, "20");
    EXPECT_EQ(edadBar->value(), 19);
    QTest::keyClick(edad, Qt::Key_Tab);
    EXPECT_EQ(edad->text(), "19");
    fill("txtDorsal", "100");
    EXPECT_EQ(dorsal->text(), "10");
    EXPECT_EQ(dorsalBar->value(), 10);

    click("cmdAgregar");
    EXPECT_EQ(m_dialogs.texts(), QStringList{"Rellene todos los campos"});

    type("txtNombre", "Íñigo");
    type("txtApellidos", "D'Ors Zubizarreta");
    position->setCurrentIndex(5);
    country->setCurrentIndex(9);
    edadBar->setValue(18);
    EXPECT_EQ(edad->text(), "18");
    fill("txtDorsal", "23");
    EXPECT_EQ(dorsalBar->value(), 23);
    QTest::keyClicks(dorsal, "x");
    EXPECT_EQ(dorsal->text(), "23"); // the box takes digits only
    expectTidy("add youth", screen);
    screenshot("add_youth", screen);

    // Return adds him, as the form's own button does.
    m_dialogs.clear();
    QTest::keyClick(screen, Qt::Key_Return);
    settle();
    EXPECT_EQ(m_dialogs.texts(), QStringList{"Se ha insetado al Juvenil Satisfactoriamente"});
    EXPECT_EQ(count("jugadores"), players + 1);
    EXPECT_EQ(m_store->text("select Nombre || ' ' || Apellidos || ' ' || Edad || ' ' || Posicion || ' ' || Dorsal"
                            " || ' ' || Nacionalidad from jugadores where idjugador = ?",
                            players + 1),
              "Íñigo D'Ors Zubizarreta 18 Pivote 23 España");
    expectEmptyForm();
    EXPECT_TRUE(screen->isVisible());
}

// Guards: the warning shown only the first time, a page that needs the game's data, a page
// that says it opened in the browser when the browser could not be opened, and instructions
// that are not the game's own.
TEST_F(Screens, theWebPagesWarnEveryTimeAndSayWhetherTheBrowserOpenedThem)
{
    goToMenu();
    // The history of handball, then the sport's page, each opened in a browser that opens and
    // in one that does not.
    for (const char *button : {"Command1", "Command3"}) {
        for (const bool opens : {true, false}) {
            m_browserOpens = opens;
            click(button);
            auto *page = find<QDialog>(button == std::string("Command1") ? "Historia" : "infoHandball");
            ASSERT_NE(page, nullptr);
            EXPECT_TRUE(page->isVisible());
            const QString text = page->findChild<QTextBrowser *>("pagina")->toPlainText();
            EXPECT_EQ(text.contains("se ha abierto en tu navegador"), opens) << button;
            EXPECT_EQ(text.contains("No se ha podido abrir"), !opens) << button;
            EXPECT_TRUE(text.contains(m_opened.constLast().toString())) << button;
            click("cmdVOLVER");
            EXPECT_FALSE(page->isVisible());
        }
    }
    EXPECT_EQ(m_dialogs.texts(), QStringList(4, "Es Necesario Tener Conexion a Intetnet"));
    ASSERT_EQ(m_opened.size(), 4);
    EXPECT_EQ(m_opened[0].adjusted(QUrl::RemoveFragment), m_opened[2]);

    click("cmdInstrucciones");
    auto *page = find<QDialog>("Instrucciones");
    ASSERT_NE(page, nullptr);
    const QString text = page->findChild<QTextBrowser *>("pagina")->toPlainText();
    EXPECT_TRUE(page->isVisible() && text.contains("Zarpazo") && text.contains("SEGUIR"));
    EXPECT_EQ(m_opened.size(), 4);
    screenshot("instructions", page);
}
