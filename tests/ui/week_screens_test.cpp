// From a new career through the pre-season to the first week: panel, ledger and calendar.

#include "screenfixture.h"

#include <QToolButton>

class WeekScreens : public ScreenTest
{
protected:
    QString slotText(const char *name, int slot)
    {
        return indexed::find(find(QStringLiteral("Pretemporada")), QString::fromLatin1(name), slot)->text();
    }
};

// Guards: the planner's slots, its refusal and the first week as the player meets them.
TEST_F(WeekScreens, aPlannedSeasonOpensWeekOneWithItsFixtureLedgerAndCalendar)
{
    startCareerFromMenu(QStringLiteral("IValencia"));
    ASSERT_EQ(m_navigator->current()->objectName(), QStringLiteral("Pretemporada"));
    EXPECT_EQ(find<QLabel>(QStringLiteral("lblEquipo"))->text(), QStringLiteral("BM VALENCIA"));

    // The country under the pointer is named; a click lists its clubs.
    QWidget *germany = find(QStringLiteral("cmdAlemania"));
    QEvent enter(QEvent::Enter);
    QApplication::sendEvent(germany, &enter);
    EXPECT_EQ(find<QLabel>(QStringLiteral("lblPaises"))->text(), QStringLiteral("ALEMANIA"));

    chooseClub("cmdAlemania", 0);
    EXPECT_EQ(find<QLabel>(QStringLiteral("lblPaisSel"))->text(), QStringLiteral("ALEMANIA"));
    EXPECT_EQ(slotText("lblFecha", 0), QStringLiteral("01/08/2004"));
    EXPECT_EQ(slotText("lblEquipoVis", 0), QStringLiteral("BM Valencia"));
    click(QStringLiteral("cmdNoJugar"));
    EXPECT_EQ(slotText("lblEquipoLocal", 1), QStringLiteral("No Jugar"));
    EXPECT_EQ(slotText("lblFecha", 1), QStringLiteral("-"));
    chooseClub("cmdFrancia", 1);
    chooseClub("cmdCroacia", 0);

    click(QStringLiteral("cmdSeguir"));
    EXPECT_EQ(m_dialogs.texts(), QStringList{QStringLiteral("Selecciona 5 Partidos de Pretemporada, Jugados o No Jugados")});
    EXPECT_EQ(count("calendario"), 0);

    chooseClub("cmdEspaña", 0);
    EXPECT_EQ(slotText("lblEquipoLocal", 4), QStringLiteral("BM Valencia"));
    // Only "No Jugar" disables itself; with the fifth slot chosen from the list it stays
    // enabled and does nothing.
    click(QStringLiteral("cmdNoJugar"));
    EXPECT_EQ(slotText("lblEquipoLocal", 4), QStringLiteral("BM Valencia"));
    screenshot(QStringLiteral("planner"));

    click(QStringLiteral("cmdSeguir"));
    ASSERT_EQ(m_navigator->current()->objectName(), QStringLiteral("Panel_Control_Manager"));
    // The week's events wait for the panel's timer; the ledger is read before they run, however
    // long this test takes.
    m_navigator->current()->findChild<QTimer *>(QStringLiteral("Timer1"))->stop();
    EXPECT_EQ(count("calendario"), 34);
    EXPECT_EQ(find<QLabel>(QStringLiteral("lblJornada"))->text(), QStringLiteral("1"));
    EXPECT_EQ(find<QLabel>(QStringLiteral("Tipo"))->text(), QStringLiteral("AMISTOSO"));
    EXPECT_EQ(find<QLabel>(QStringLiteral("lblEquipoVis"))->text(), QStringLiteral("BM Valencia"));
    EXPECT_EQ(find<QLabel>(QStringLiteral("lblEquipoLocal"))->text(),
              m_store->text("select NombreEquipo from equipos where idequipo = (select equipo_local from pretemporada where idpartido = 1)"));
    EXPECT_EQ(count("caja"), 1);
    // Every button of the panel leads to its screen.
    for (const char *button : {"cmdAlineacion", "Command3", "cmdPlantilla", "c", "cmdClasificacion", "cmdResultados",
                               "cmdCaja", "cmdEstadio", "cmdfichar", "cmdSeguir"})
        EXPECT_TRUE(find<QPushButton>(QString::fromLatin1(button))->isEnabled()) << button;
    screenshot(QStringLiteral("panel"));

    click(QStringLiteral("cmdCaja"));
    ASSERT_EQ(m_navigator->current()->objectName(), QStringLiteral("Caja"));
    QWidget *ledger = m_navigator->current();
    EXPECT_EQ(find<QLineEdit>(QStringLiteral("txtSemana"))->text(), QStringLiteral("Act"));
    for (const char *previous : {"lblIngresosAnterior", "lblGastosAnterior", "lblCajaAnterior"})
        EXPECT_EQ(find<QLabel>(QString::fromLatin1(previous))->text(), QStringLiteral("0 €")) << previous;
    const qint64 wages = m_store->integer("select Gastos_Fichas from caja where semana = 1");
    EXPECT_EQ(indexed::find(ledger, QStringLiteral("lblSalario"), 0)->text(), QStringLiteral("%1 €").arg(wages));
    EXPECT_EQ(indexed::find(ledger, QStringLiteral("lblEmpleados"), 0)->text(), QStringLiteral("1000 €"));
    EXPECT_EQ(indexed::find(ledger, QStringLiteral("lblHospitales"), 1)->text(), QStringLiteral("0 €"));
    EXPECT_EQ(indexed::find(ledger, QStringLiteral("lblCA"), 1)->text(),
              QStringLiteral("%1 €").arg(m_store->integer("select Caja from caja where semana = 1")));
    click(QStringLiteral("cmdmenos"));
    EXPECT_EQ(find<QLineEdit>(QStringLiteral("txtSemana"))->text(), QStringLiteral("Act"));
    screenshot(QStringLiteral("ledger"));
    click(QStringLiteral("Command1"));
    EXPECT_TRUE(find(QStringLiteral("FTemp"))->isVisible());
    EXPECT_FALSE(find(QStringLiteral("FSemana"))->isVisible());
    click(QStringLiteral("cmdVOLVER"));
    ASSERT_EQ(m_navigator->current()->objectName(), QStringLiteral("Panel_Control_Manager"));

    click(QStringLiteral("c"));
    ASSERT_EQ(m_navigator->current()->objectName(), QStringLiteral("Calendario"));
    QWidget *calendar = m_navigator->current();
    EXPECT_EQ(indexed::find(calendar, QStringLiteral("lblTipo2"), 0)->text(), QStringLiteral("Preparación"));
    EXPECT_EQ(indexed::find(calendar, QStringLiteral("lblTipo2"), 3)->text(), QStringLiteral("Presentación"));
    EXPECT_EQ(indexed::find(calendar, QStringLiteral("lblFecha"), 0)->text(), QStringLiteral("01/08/2004"));
    // The declined slot has no week, so the league starts on the fifth row; the fifth, sixth
    // and seventh weeks show their whole row like the first.
    for (int row = 4; row < 7; ++row) {
        const int round = row - 3;
        QLabel *fixture = indexed::find(calendar, QStringLiteral("lblEquiposHoy"), row);
        QLabel *type = indexed::find(calendar, QStringLiteral("lblTipo"), row);
        QLabel *subtype = indexed::find(calendar, QStringLiteral("lblTipo2"), row);
        QLabel *date = indexed::find(calendar, QStringLiteral("lblFecha"), row);
        ASSERT_TRUE(fixture && type && subtype && date) << row;
        EXPECT_TRUE(fixture->text().contains(QStringLiteral(" - "))) << row;
        EXPECT_EQ(type->text(), QStringLiteral("Liga ASOBAL")) << row;
        EXPECT_EQ(subtype->text(), QStringLiteral("Jornada %1").arg(round)) << row;
        EXPECT_EQ(date->text(), m_store->text("select strftime('%d/%m/%Y', fecha) from liga_asobal where idpartido ="
                                              " (select idpartido from calendario where semana = ?)",
                                              row + 1))
            << row;
    }
    EXPECT_EQ(indexed::find(calendar, QStringLiteral("lblEquiposHoy"), 7), nullptr); // seven weeks, no more
    expectTidy(QStringLiteral("calendar"));
    screenshot(QStringLiteral("calendar"));
    click(QStringLiteral("cmdVOLVER"));
    EXPECT_EQ(m_navigator->current()->objectName(), QStringLiteral("Panel_Control_Manager"));
}

// Guards: "SALIR" on the panel that leaves the career's screens or the old file behind.
TEST_F(WeekScreens, leavingTheCareerRestoresTheFileAndANewCareerGetsAFreshPanel)
{
    startCareerFromMenu(QStringLiteral("IBarcelona"));
    for (int slot = 0; slot < 5; ++slot)
        click(QStringLiteral("cmdNoJugar"));
    click(QStringLiteral("cmdSeguir"));
    ASSERT_EQ(m_navigator->current()->objectName(), QStringLiteral("Panel_Control_Manager"));
    EXPECT_EQ(find<QLabel>(QStringLiteral("Tipo"))->text(), QStringLiteral("LIGA"));
    click(QStringLiteral("c"));
    runWeekEvents();

    click(QStringLiteral("cmdVOLVER"));
    m_dialogs.answer({true}); // "¿Salir de la partida? ..." Yes
    click(QStringLiteral("Command4"));
    EXPECT_EQ(m_navigator->current()->objectName(), QStringLiteral("Form1"));
    EXPECT_EQ(find(QStringLiteral("Panel_Control_Manager")), nullptr);
    EXPECT_EQ(find(QStringLiteral("Calendario")), nullptr);
    EXPECT_EQ(fileBytes(workingPath()), fileBytes(pristinePath()));

    startCareerFromMenu(QStringLiteral("IAlmeria"));
    for (int slot = 0; slot < 5; ++slot)
        click(QStringLiteral("cmdNoJugar"));
    click(QStringLiteral("cmdSeguir"));
    EXPECT_EQ(find<QLabel>(QStringLiteral("lblJornada"))->text(), QStringLiteral("1"));
    EXPECT_EQ(count("caja"), 1);
}
