// Match day as the player lives it: the call-up, the tactics, the live match and the way out.

#include "screenfixture.h"

class MatchScreens : public ScreenTest
{
protected:
    // A new career, every friendly declined, on week 1, a league round: its events run, their
    // messages read, and a broadcast taken.
    void reachMatchWeek(const QString &crest = "IValencia")
    {
        reachFirstLeagueWeek(crest);
        takeTheWeeksNews();
    }

    void takeTheWeeksNews()
    {
        EXPECT_TRUE(m_dialogs.texts().contains("Cargando... Pulse Aceptar para continuar"));
        takeBroadcast();
        m_dialogs.clear();
    }

    QString placeText(int place) { return find<QListWidget>("list1")->item(place)->text(); }
    QString matchEntry(const char *row, int index) { return entry(row, index, match())->text(); }
    // A row of the match's squad turned red, picked for an exchange.
    bool pickedRed(const char *row, int index)
    {
        return entry(row, index, match())->grab().toImage().pixelColor(1, 1) == QColor(255, 0, 0);
    }
    qint64 played() { return value("select sum(\"Partidos_ Ganados\" + Partidos_Empatados + Partidos_Perdidos) from asobal"); }
};

// Guards: the whole way through a match day, from the call-up to the next week's panel; the
// grid's pick lost when "Añadir" reads the lists again.
TEST_F(MatchScreens, aMatchIsCalledUpPlayedChangedAndLeftForTheNextWeek)
{
    reachMatchWeek();
    const int matchId = m_navigator->career().week().fixture()->idpartido;
    const QString empty = QStringLiteral("PORTERO: PORTERO  - ");

    go("cmdSeguir", "Alinear");
    EXPECT_EQ(placeText(0), empty);
    // Without a player picked nobody is placed.
    find<QListWidget>("list1")->setCurrentRow(0);
    click("cmdAñadir");
    EXPECT_EQ(placeText(0), empty);
    // A player placed stays picked: a second press with only another place chosen moves him.
    placeRow(2, 1);
    const QString moved = placeText(1).section(": ", 1);
    find<QListWidget>("list1")->setCurrentRow(0);
    click("cmdAñadir");
    EXPECT_EQ(placeText(0).section(": ", 1), moved);
    EXPECT_TRUE(placeText(1).endsWith(" - ")) << placeText(1).toStdString();

    ASSERT_GE(find<QTableView>("DataGrid1")->model()->rowCount(), 14);
    for (int place = 0; place < 13; ++place)
        placeRow(place, place);
    click("cmdJugar");
    EXPECT_EQ(m_dialogs.texts(), QStringList{"Debes Seleccionar 14 Jugadores para la Covocatoria"});
    EXPECT_EQ(match(), nullptr);

    // The fourteenth, and the call-up is whole.
    placeRow(13, 13);
    EXPECT_EQ(value("select count(*) from miequipo where idjugador <> 0"), 14);
    screenshot("call_up");

    click("cmdVOLVER");
    go("Command3", "Tactica");
    auto *defence = find<QComboBox>("Combo1");
    defence->setCurrentIndex(3);
    emit defence->activated(3);
    EXPECT_EQ(value("select precio_entrada from entradas where idPrecio = 3"), 4);
    EXPECT_EQ(value("select precio_entrada from entradas where idPrecio = 4"), 1);
    screenshot("tactics");
    click("cmdVOLVER");

    click("cmdAlineacion");
    m_dialogs.clear();
    click("cmdJugar");
    ASSERT_NE(match(), nullptr);
    EXPECT_TRUE(match()->isVisible());
    auto *commentary = find<QListWidget>("list2");
    EXPECT_EQ(items(commentary), QStringList{"(0)-> El BM VALENCIA Cambia la Táctica a 3-2-1"});
    EXPECT_EQ(matchEntry("lblCE", 3), "0/0");
    EXPECT_FALSE(find<QPushButton>("cmdSalir")->isEnabled());
    // The frame cannot close the match before it ends.
    match()->close();
    EXPECT_TRUE(match()->isVisible());
    EXPECT_EQ(m_dialogs.texts().last(), "Tienes Que Espera a Que el Partido Finalice");

    playHalf();
    EXPECT_EQ(text("lblmin"), "30");
    EXPECT_TRUE(commentary->item(0)->text().startsWith("(30)-> Descanso :"));
    EXPECT_EQ(commentary->item(0)->foreground().color(), QColor(0, 140, 0));
    EXPECT_TRUE(find<QPushButton>("cmdStart")->isEnabled());

    // An exchange at half time: the central for the third substitute, all four entries. A
    // picked row turns red, whichever of its cells is pressed.
    QStringList central, substitute;
    for (int i = 0; i < 4; ++i) {
        central << matchEntry("lblCE", i);
        substitute << matchEntry("lblSu3", i);
    }
    EXPECT_FALSE(pickedRed("lblCE", 2));
    QTest::mouseClick(entry("lblPosicion", 6, match()), Qt::LeftButton);
    EXPECT_TRUE(pickedRed("lblCE", 2));
    EXPECT_FALSE(pickedRed("lblSu3", 1));
    QTest::mouseClick(entry("lblSu3", 1, match()), Qt::LeftButton);
    EXPECT_TRUE(pickedRed("lblCE", 0) && pickedRed("lblSu3", 3));
    screenshot("match_half_time", match());
    click("cmdCambiar");
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(matchEntry("lblCE", i), substitute[i]);
        EXPECT_EQ(matchEntry("lblSu3", i), central[i]);
    }
    EXPECT_FALSE(pickedRed("lblCE", 0) || pickedRed("lblSu3", 3));

    playHalf();
    ASSERT_TRUE(match()->engine().finished());
    EXPECT_EQ(text("lblmin"), "60");
    EXPECT_TRUE(commentary->item(0)->text().startsWith("(60)-> Final :"));
    EXPECT_TRUE(find<QPushButton>("cmdSalir")->isEnabled());
    const int home = match()->engine().score(0);
    const int away = match()->engine().score(1);
    EXPECT_EQ(matchEntry("lblMarcador", 0), QString::number(home));
    screenshot("match_full_time", match());

    click("cmdSalir");
    EXPECT_EQ(match(), nullptr);
    ASSERT_EQ(at(), "Panel_Control_Manager");
    EXPECT_EQ(text("lblJornada"), "2");
    EXPECT_EQ(value("select goles_equipo_local * 1000 + goles_equipo_visitante from liga_asobal where idpartido = ?",
                    matchId),
              home * 1000 + away);
    EXPECT_EQ(played(), 16);

    // The squad once chosen stays for the next match.
    click("cmdSeguir");
    EXPECT_TRUE(placeText(13).startsWith("SUPLENTE7: "));
    EXPECT_FALSE(placeText(0).startsWith("PORTERO: PORTERO"));
}

// Guards: a week that moves on although its result could not be written; a home match played
// again after that paying the gate, the hoardings and the cafeterias a second time; leaving
// by the frame after full time, which would lose the result and the week.
TEST_F(MatchScreens, aResultThatCannotBeWrittenKeepsTheWeekAndTheReplayPaysItsGateOnce)
{
    reachMatchWeek("IPortland"); // at home in the first round
    ASSERT_EQ(m_navigator->career().week().fixture()->homeId, m_navigator->career().week().career().club);
    click("cmdSeguir");
    callUpFirstFourteen();
    ASSERT_TRUE(playMatch());
    ASSERT_GT(value("select ingresos_Taquilla from caja where semana = 1"), 0);
    const QString ledger = dump("caja");

    breakWrites("liga_asobal", "update");
    m_dialogs.clear();
    click("cmdSalir");
    ASSERT_EQ(m_dialogs.texts().size(), 1);
    EXPECT_TRUE(m_dialogs.texts().front().startsWith("No se ha podido completar"));
    ASSERT_EQ(at(), "Panel_Control_Manager");
    EXPECT_EQ(text("lblJornada"), "1");
    EXPECT_EQ(value("select jornada from datos_jugador"), 1);
    EXPECT_EQ(value("select sum(Puntos) from asobal"), 0);

    mend();
    go("cmdSeguir", "Alinear");
    ASSERT_TRUE(playMatch());
    EXPECT_EQ(dump("caja"), ledger);
    // Closed by its frame at full time, the match is recorded as by "SALIR".
    match()->close();
    settle();
    EXPECT_EQ(match(), nullptr);
    EXPECT_EQ(text("lblJornada"), "2");
    EXPECT_EQ(played(), 16);
    EXPECT_TRUE(dump("caja").startsWith(ledger)) << dump("caja").toStdString(); // week 1 as first paid
}
