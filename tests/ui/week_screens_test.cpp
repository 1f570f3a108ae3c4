// From a new career through the pre-season to the first week: panel, ledger and calendar.

#include "screenfixture.h"

class WeekScreens : public ScreenTest
{
protected:
    QString slotText(const char *name, int slot) { return entry(name, slot, find("Pretemporada"))->text(); }
};

// Guards: the planner's slots, its refusal and the first week as the player meets them.
TEST_F(WeekScreens, aPlannedSeasonOpensWeekOneWithItsFixtureLedgerAndCalendar)
{
    startCareerFromMenu("IValencia");
    ASSERT_EQ(at(), "Pretemporada");
    EXPECT_EQ(text("lblEquipo"), "BM VALENCIA");

    // A country's clubs, and one of them for the first slot.
    chooseClub("cmdAlemania", 0);
    EXPECT_EQ(text("lblPaisSel"), "ALEMANIA");
    EXPECT_EQ(slotText("lblFecha", 0), "01/08/2004");
    EXPECT_EQ(slotText("lblEquipoVis", 0), "BM Valencia");
    click("cmdNoJugar");
    EXPECT_EQ(slotText("lblEquipoLocal", 1), "No Jugar");
    EXPECT_EQ(slotText("lblFecha", 1), "-");
    chooseClub("cmdFrancia", 1);
    chooseClub("cmdCroacia", 0);
    click("cmdSeguir");
    EXPECT_EQ(m_dialogs.texts(), QStringList{"Selecciona 5 Partidos de Pretemporada, Jugados o No Jugados"});
    EXPECT_EQ(count("calendario"), 0);

    chooseClub("cmdEspaña", 0);
    EXPECT_EQ(slotText("lblEquipoLocal", 4), "BM Valencia");
    screenshot("planner");

    go("cmdSeguir", "Panel_Control_Manager");
    // The week's events wait for the panel's timer; the ledger is read before they run, however
    // long this test takes.
    m_navigator->current()->findChild<QTimer *>("Timer1")->stop();
    EXPECT_EQ(count("calendario"), 34);
    EXPECT_EQ(count("caja"), 1);
    EXPECT_EQ(QStringList({text("lblJornada"), text("Tipo"), text("lblEquipoVis"), text("lblEquipoLocal")}),
              QStringList({"1", "AMISTOSO", "BM Valencia",
                           m_store->text("select NombreEquipo from equipos where idequipo ="
                                         " (select equipo_local from pretemporada where idpartido = 1)")}));
    // Every button of the panel leads to its screen.
    for (const char *button : {"cmdAlineacion", "Command3", "cmdPlantilla", "c", "cmdClasificacion", "cmdResultados",
                               "cmdCaja", "cmdEstadio", "cmdfichar", "cmdSeguir"})
        EXPECT_TRUE(find<QPushButton>(button)->isEnabled()) << button;
    expectTidy("panel");
    screenshot("panel");

    go("cmdCaja", "Caja");
    EXPECT_EQ(text("txtSemana"), "Act");
    for (const char *previous : {"lblIngresosAnterior", "lblGastosAnterior", "lblCajaAnterior"})
        EXPECT_EQ(text(previous), "0 €") << previous;
    EXPECT_EQ(QStringList({entry("lblSalario", 0)->text(), entry("lblEmpleados", 0)->text(),
                           entry("lblHospitales", 1)->text(), entry("lblCA", 1)->text()}),
              QStringList({QStringLiteral("%1 €").arg(value("select Gastos_Fichas from caja where semana = 1")),
                           "1000 €", "0 €", QStringLiteral("%1 €").arg(value("select Caja from caja where semana = 1"))}));
    click("cmdmenos");
    EXPECT_EQ(text("txtSemana"), "Act");
    screenshot("ledger");
    click("cmdVOLVER");

    go("c", "Calendario");
    EXPECT_EQ(entry("lblTipo2", 0)->text(), "Preparación");
    EXPECT_EQ(entry("lblTipo2", 3)->text(), "Presentación");
    EXPECT_EQ(entry("lblFecha", 0)->text(), "01/08/2004");
    // The declined slot has no week, so the league starts on the fifth row; the fifth, sixth
    // and seventh weeks show their whole row like the first.
    for (int row = 4; row < 7; ++row) {
        ASSERT_TRUE(entry("lblEquiposHoy", row) && entry("lblTipo", row) && entry("lblTipo2", row)) << row;
        EXPECT_TRUE(entry("lblEquiposHoy", row)->text().contains(" - ")) << row;
        EXPECT_EQ(entry("lblTipo", row)->text(), "Liga ASOBAL") << row;
        EXPECT_EQ(entry("lblTipo2", row)->text(), QStringLiteral("Jornada %1").arg(row - 3)) << row;
        EXPECT_EQ(entry("lblFecha", row)->text(),
                  m_store->text("select strftime('%d/%m/%Y', fecha) from liga_asobal where idpartido ="
                                " (select idpartido from calendario where semana = ?)",
                                row + 1))
            << row;
    }
    EXPECT_EQ(entry("lblEquiposHoy", 7), nullptr); // seven weeks, no more
    expectTidy("calendar");
    screenshot("calendar");
    go("cmdVOLVER", "Panel_Control_Manager");
}
