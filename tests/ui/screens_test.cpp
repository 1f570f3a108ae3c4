// The first screens as a player uses them: title, menu, new career, add youth, quit.

#include "career/newcareer.h"
#include "screenfixture.h"

#include <QSignalSpy>
#include <QTextBrowser>
#include <QToolButton>

namespace {

const QString kNoConnection = QStringLiteral("Es Necesario Tener Conexion a Intetnet");

} // namespace

class Screens : public ScreenTest
{};

// Guards: a title that never gives way to the menu, or a wait other than five seconds.
TEST_F(Screens, theTitleStaysFiveSecondsThenGivesWayToTheMenu)
{
    m_navigator->showSplash();
    QApplication::processEvents();
    ASSERT_EQ(m_navigator->current()->objectName(), QStringLiteral("frmSplash"));
    auto *timer = find<QWidget>(QStringLiteral("frmSplash"))->findChild<QTimer *>(QStringLiteral("Timer1"));
    ASSERT_NE(timer, nullptr);
    EXPECT_TRUE(timer->isActive());
    EXPECT_TRUE(timer->isSingleShot());
    EXPECT_EQ(timer->interval(), 5000);
    screenshot(QStringLiteral("title"));

    QMetaObject::invokeMethod(timer, "timeout");
    QApplication::processEvents();
    EXPECT_EQ(m_navigator->current()->objectName(), QStringLiteral("Form1"));
}

TEST_F(Screens, theMenuOffersSixPictureButtonsExplainedByTooltips)
{
    goToMenu();
    for (const char *name : {"Command4", "Command2", "Command1", "Command3", "cmdInstrucciones", "Image3"}) {
        auto *button = find<QToolButton>(QString::fromLatin1(name));
        ASSERT_NE(button, nullptr) << name;
        EXPECT_TRUE(button->isVisible()) << name;
        EXPECT_TRUE(button->text().isEmpty()) << name;
        EXPECT_FALSE(button->toolTip().isEmpty()) << name;
        EXPECT_FALSE(button->icon().isNull()) << name;
        EXPECT_TRUE(m_window->rect().contains(button->geometry())) << name;
    }
    screenshot(QStringLiteral("menu"));
}

// Guards: the way from the menu to a first season, as a player walks it.
TEST_F(Screens, aNewCareerGoesFromTheMenuToThePlanner)
{
    goToMenu();
    click(QStringLiteral("Command4"));
    auto *screen = find<QDialog>(QStringLiteral("Liga_Manager"));
    ASSERT_NE(screen, nullptr);
    ASSERT_TRUE(screen->isVisible());
    EXPECT_EQ(screen->windowTitle(), QStringLiteral("Comenzar Liga Manager"));
    auto *nationality = find<QComboBox>(QStringLiteral("list1"));
    EXPECT_EQ(nationality->count(), 30);
    EXPECT_EQ(nationality->currentIndex(), 10);
    EXPECT_EQ(nationality->currentText(), QStringLiteral("Eslovenia")); // the eleventh of the list

    click(QStringLiteral("cmdSeguir"));
    EXPECT_EQ(m_dialogs.texts(), QStringList{QStringLiteral("introduce Nombre y Apellidos")});

    type(QStringLiteral("txtNombre"), QStringLiteral("Chema"));
    type(QStringLiteral("txtApellidos"), QStringLiteral("O'Callaghan Ruiz"));
    click(QStringLiteral("cmdSeguir"));
    EXPECT_EQ(m_dialogs.texts().last(), QStringLiteral("Selecciona un Equipo de la Liga ASOBAL"));

    // Hovering names a crest without choosing it.
    auto *hovered = find<QLabel>(QStringLiteral("lblEquipo"));
    auto *chosen = find<QLabel>(QStringLiteral("lblEquiposel"));
    QWidget *barcelona = find(QStringLiteral("IBarcelona"));
    QEnterEvent enter(QPointF(5, 5), QPointF(5, 5), QPointF(5, 5));
    QApplication::sendEvent(barcelona, &enter);
    EXPECT_EQ(hovered->text(), QStringLiteral("F.C. BARCELONA"));
    EXPECT_TRUE(chosen->text().isEmpty());
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(barcelona, &leave);
    EXPECT_TRUE(hovered->text().isEmpty());

    // A second crest replaces the first.
    QTest::mouseClick(find(QStringLiteral("ICReal")), Qt::LeftButton);
    EXPECT_EQ(chosen->text(), QStringLiteral("BM CIUDAD REAL"));
    QTest::mouseClick(find(QStringLiteral("IAdemar")), Qt::LeftButton);
    EXPECT_EQ(chosen->text(), QStringLiteral("CAJA ESPAÑA ADEMAR DE LEÓN"));
    QApplication::sendEvent(find(QStringLiteral("IAdemar")), &enter);
    screenshot(QStringLiteral("new_career"), screen);

    m_dialogs.clear();
    click(QStringLiteral("cmdSeguir"));
    EXPECT_TRUE(m_dialogs.texts().isEmpty());
    settle();
    EXPECT_EQ(m_navigator->current()->objectName(), QStringLiteral("Pretemporada"));
    EXPECT_EQ(find(QStringLiteral("Liga_Manager")), nullptr);
    EXPECT_EQ(find(QStringLiteral("Form1")), nullptr);
    EXPECT_EQ(dump("datos_jugador"), QStringLiteral("0|Chema|O'Callaghan Ruiz|3|CAJA ESPAÑA ADEMAR DE LEÓN|\n"));

    // Back from the planner, the menu is there again and a new career starts clean.
    click(QStringLiteral("cmdVOLVER"));
    EXPECT_EQ(m_navigator->current()->objectName(), QStringLiteral("Form1"));
}

TEST_F(Screens, cancellingANewCareerWritesNothing)
{
    const QString career = dump("datos_jugador");
    goToMenu();
    click(QStringLiteral("Command4"));
    type(QStringLiteral("txtNombre"), QStringLiteral("Ana"));
    QTest::mouseClick(find(QStringLiteral("IAlmeria")), Qt::LeftButton);
    click(QStringLiteral("Command2"));
    QApplication::processEvents();
    EXPECT_EQ(find(QStringLiteral("Liga_Manager")), nullptr);
    EXPECT_EQ(m_navigator->current()->objectName(), QStringLiteral("Form1"));
    EXPECT_EQ(dump("datos_jugador"), career);
    EXPECT_TRUE(m_dialogs.texts().isEmpty());
}

// Guards: the add-youth form that keeps the last youth's choices or loses a refused one.
TEST_F(Screens, aYouthIsAddedFromTheMenuAndTheFormIsReadyForTheNext)
{
    const qint64 players = count("jugadores");
    goToMenu();
    click(QStringLiteral("Command2"));
    auto *screen = find<QDialog>(QStringLiteral("Agregar_Juveniles"));
    ASSERT_NE(screen, nullptr);
    EXPECT_EQ(screen->windowTitle(), QStringLiteral("Añadir Jugadores Juveniles"));
    auto *position = find<QComboBox>(QStringLiteral("List1"));
    auto *country = find<QComboBox>(QStringLiteral("List2"));
    auto *edad = find<QLineEdit>(QStringLiteral("txtEdad"));
    auto *dorsal = find<QLineEdit>(QStringLiteral("txtDorsal"));
    EXPECT_EQ(position->placeholderText(), QStringLiteral("Eliga Posición"));
    EXPECT_EQ(country->placeholderText(), QStringLiteral("Pais de Nacionalidad"));
    EXPECT_EQ(position->currentIndex(), -1);
    EXPECT_EQ(edad->text(), QStringLiteral("16"));
    EXPECT_EQ(dorsal->text(), QStringLiteral("1"));

    click(QStringLiteral("cmdAgregar"));
    EXPECT_EQ(m_dialogs.texts(), QStringList{QStringLiteral("Rellene todos los campos")});

    type(QStringLiteral("txtNombre"), QStringLiteral("Íñigo"));
    type(QStringLiteral("txtApellidos"), QStringLiteral("D'Ors Zubizarreta"));
    position->setCurrentIndex(5);
    country->setCurrentIndex(9);
    find<QScrollBar>(QStringLiteral("HScroll1"))->setValue(18);
    EXPECT_EQ(edad->text(), QStringLiteral("18"));
    dorsal->clear();
    QTest::keyClicks(dorsal, QStringLiteral("23"));
    EXPECT_EQ(find<QScrollBar>(QStringLiteral("HScroll2"))->value(), 23);
    QTest::keyClicks(dorsal, QStringLiteral("x"));
    EXPECT_EQ(dorsal->text(), QStringLiteral("23")); // the box takes digits only
    expectTidy(QStringLiteral("add youth"), screen);
    screenshot(QStringLiteral("add_youth"), screen);

    m_dialogs.clear();
    click(QStringLiteral("cmdAgregar"));
    EXPECT_EQ(m_dialogs.texts(), QStringList{QStringLiteral("Se ha insetado al Juvenil Satisfactoriamente")});
    EXPECT_EQ(count("jugadores"), players + 1);
    EXPECT_EQ(m_store->text("select Nombre || ' ' || Apellidos || ' ' || Edad || ' ' || Posicion || ' ' || Dorsal"
                            " || ' ' || Nacionalidad from jugadores where idjugador = ?",
                            players + 1),
              QStringLiteral("Íñigo D'Ors Zubizarreta 18 Pivote 23 España"));

    EXPECT_TRUE(find<QLineEdit>(QStringLiteral("txtNombre"))->text().isEmpty());
    EXPECT_TRUE(find<QLineEdit>(QStringLiteral("txtApellidos"))->text().isEmpty());
    EXPECT_EQ(edad->text(), QStringLiteral("16"));
    EXPECT_EQ(dorsal->text(), QStringLiteral("1"));
    EXPECT_EQ(position->currentIndex(), -1);
    EXPECT_EQ(country->currentIndex(), -1);
    EXPECT_TRUE(screen->isVisible());
}

// Guards: an age past 19 or a shirt number past 99 left in the boxes, beyond what the bars allow.
TEST_F(Screens, theYouthBoxesGoNoFurtherThanTheirBars)
{
    goToMenu();
    click(QStringLiteral("Command2"));
    auto *edadBar = find<QScrollBar>(QStringLiteral("HScroll1"));
    auto *dorsalBar = find<QScrollBar>(QStringLiteral("HScroll2"));
    auto *edad = find<QLineEdit>(QStringLiteral("txtEdad"));
    auto *dorsal = find<QLineEdit>(QStringLiteral("txtDorsal"));
    ASSERT_TRUE(edadBar && dorsalBar && edad && dorsal);
    EXPECT_EQ(edadBar->minimum(), 16);
    EXPECT_EQ(edadBar->maximum(), 19);
    EXPECT_EQ(dorsalBar->minimum(), 1);
    EXPECT_EQ(dorsalBar->maximum(), 99);

    // The bars stop at their ends, and the boxes follow them.
    for (int step = 0; step < 10; ++step) {
        edadBar->triggerAction(QAbstractSlider::SliderSingleStepAdd);
        dorsalBar->triggerAction(QAbstractSlider::SliderPageStepAdd);
    }
    for (int step = 0; step < 100; ++step)
        dorsalBar->triggerAction(QAbstractSlider::SliderSingleStepAdd);
    EXPECT_EQ(edad->text(), QStringLiteral("19"));
    EXPECT_EQ(dorsal->text(), QStringLiteral("99"));

    // Typed past the end, the number goes back to the bar's when the box is left; a third
    // digit does not go in at all.
    edad->setFocus();
    edad->selectAll();
    QTest::keyClicks(edad, QStringLiteral("20"));
    EXPECT_EQ(edadBar->value(), 19);
    QTest::keyClick(edad, Qt::Key_Tab);
    EXPECT_EQ(edad->text(), QStringLiteral("19"));
    dorsal->setFocus();
    dorsal->selectAll();
    QTest::keyClicks(dorsal, QStringLiteral("100"));
    EXPECT_EQ(dorsal->text(), QStringLiteral("10"));
    EXPECT_EQ(dorsalBar->value(), 10);
    EXPECT_TRUE(m_dialogs.texts().isEmpty());
}

// Guards: a manager's name read as markup, shown in italics or bold or with its tags lost.
TEST_F(Screens, aTypedNameShowsAsTypedNeverAsMarkup)
{
    const QString nombre = QStringLiteral("<i>Zoë</i>");
    const QString apellidos = QStringLiteral("O'Brien & <b>Co</b>");
    goToMenu();
    click(QStringLiteral("Command4"));
    type(QStringLiteral("txtNombre"), nombre);
    type(QStringLiteral("txtApellidos"), apellidos);
    QTest::mouseClick(find(QStringLiteral("ITeucro")), Qt::LeftButton);
    QWidget *form = find(QStringLiteral("Liga_Manager"));
    ASSERT_NE(form, nullptr);
    for (QLabel *label : form->findChildren<QLabel *>())
        EXPECT_EQ(label->textFormat(), Qt::PlainText) << label->objectName().toStdString() << " " << label->text().toStdString();
    click(QStringLiteral("cmdSeguir"));
    settle();
    ASSERT_EQ(m_navigator->current()->objectName(), QStringLiteral("Pretemporada"));

    auto *name = find<QLabel>(QStringLiteral("lblNombre"));
    ASSERT_NE(name, nullptr);
    EXPECT_EQ(name->textFormat(), Qt::PlainText);
    EXPECT_EQ(name->text(), nombre + QLatin1Char(' ') + apellidos);
    // Every label of the planner, the slots' clubs included, shows its text as it is.
    for (QLabel *label : m_navigator->current()->findChildren<QLabel *>())
        EXPECT_EQ(label->textFormat(), Qt::PlainText) << label->objectName().toStdString() << " " << label->text().toStdString();
    screenshot(QStringLiteral("planner_typed_name"));
}

// Guards: a career that survives quitting, which would make the next start a strange one.
TEST_F(Screens, quittingFromTheMenuRestoresThePristineFile)
{
    ASSERT_TRUE(game::NewCareer(*m_context).start({QStringLiteral("Ana"), QStringLiteral("Ruiz"), 8, QStringLiteral("BM VALENCIA")}));
    goToMenu();
    QSignalSpy finished(m_navigator.get(), &app::Navigator::finished);
    click(QStringLiteral("Image3"));
    EXPECT_EQ(finished.count(), 1);
    EXPECT_EQ(fileBytes(workingPath()), fileBytes(pristinePath()));
    EXPECT_TRUE(m_dialogs.texts().isEmpty());
}

// Guards: the warning shown only the first time, or a page that needs the game's data.
TEST_F(Screens, theWebPagesWarnEveryTimeAndOpenTheBrowser)
{
    goToMenu();
    click(QStringLiteral("Command1"));
    ASSERT_NE(find<QDialog>(QStringLiteral("Historia")), nullptr);
    EXPECT_TRUE(find<QDialog>(QStringLiteral("Historia"))->isVisible());
    click(QStringLiteral("cmdVOLVER"));
    EXPECT_FALSE(find<QDialog>(QStringLiteral("Historia"))->isVisible());
    click(QStringLiteral("Command1"));
    click(QStringLiteral("Command3"));
    EXPECT_EQ(m_dialogs.texts(), (QStringList{kNoConnection, kNoConnection, kNoConnection}));
    ASSERT_EQ(m_opened.size(), 3);
    EXPECT_EQ(m_opened[0], m_opened[1]);
    EXPECT_EQ(m_opened[0].adjusted(QUrl::RemoveFragment), m_opened[2]);
}

TEST_F(Screens, theInstructionsShowTheGamesOwnHelpPage)
{
    goToMenu();
    click(QStringLiteral("cmdInstrucciones"));
    auto *page = find<QDialog>(QStringLiteral("Instrucciones"));
    ASSERT_NE(page, nullptr);
    EXPECT_TRUE(page->isVisible());
    const QString text = page->findChild<QTextBrowser *>(QStringLiteral("pagina"))->toPlainText();
    EXPECT_TRUE(text.contains(QStringLiteral("Zarpazo")));
    EXPECT_TRUE(text.contains(QStringLiteral("SEGUIR")));
    EXPECT_TRUE(m_opened.isEmpty());
    screenshot(QStringLiteral("instructions"), page);
}
