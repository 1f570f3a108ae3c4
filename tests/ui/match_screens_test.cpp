// Match day as the player lives it: the call-up, the tactics, the live match and the way out.

#include "screenfixture.h"

class MatchScreens : public ScreenTest
{
protected:
    // A new career, every friendly declined, on week 1, a league round: its events run, their
    // messages read, and a broadcast taken.
    void reachMatchWeek(const QString &crest = QStringLiteral("IValencia"))
    {
        reachFirstLeagueWeek(crest);
        takeTheWeeksNews();
    }

    void takeTheWeeksNews()
    {
        EXPECT_TRUE(m_dialogs.texts().contains(QStringLiteral("Cargando... Pulse Aceptar para continuar")));
        if (m_navigator->screen(QStringLiteral("Tele")))
            click(QStringLiteral("cmdOK"));
        m_dialogs.clear();
    }

    QString placeText(int place) { return find<QListWidget>(QStringLiteral("list1"))->item(place)->text(); }

    QString entry(const char *row, int index)
    {
        return indexed::find(match(), QString::fromLatin1(row), index)->text();
    }

    // Week 1's league match, the first fourteen of the grid called up, played to full time.
    void playFirstLeagueMatchToFullTime(const QString &crest = QStringLiteral("IValencia"))
    {
        reachMatchWeek(crest);
        click(QStringLiteral("cmdSeguir"));
        callUpFirstFourteen();
        playCalledUpMatch();
    }

    // From the call-up with fourteen placed, the match to full time.
    void playCalledUpMatch()
    {
        click(QStringLiteral("cmdJugar"));
        if (!match())
            return;
        playHalf();
        playHalf();
    }
};

// Guards: the whole way through a match day, from the call-up to the next week's panel.
TEST_F(MatchScreens, aMatchIsCalledUpPlayedChangedAndLeftForTheNextWeek)
{
    reachMatchWeek();
    EXPECT_EQ(count("jugar"), 7);
    const int matchId = m_navigator->career().week().fixture()->idpartido;

    click(QStringLiteral("cmdSeguir"));
    ASSERT_EQ(m_navigator->current()->objectName(), QStringLiteral("Alinear"));
    EXPECT_EQ(placeText(0), QStringLiteral("PORTERO: PORTERO  - "));

    // Without a player picked nobody is placed.
    find<QListWidget>(QStringLiteral("list1"))->setCurrentRow(0);
    click(QStringLiteral("cmdAñadir"));
    EXPECT_EQ(placeText(0), QStringLiteral("PORTERO: PORTERO  - "));

    const int squad = find<QTableView>(QStringLiteral("DataGrid1"))->model()->rowCount();
    ASSERT_GE(squad, 14);
    for (int place = 0; place < 13; ++place)
        placeRow(place, place);
    click(QStringLiteral("cmdJugar"));
    EXPECT_EQ(m_dialogs.texts(), QStringList{QStringLiteral("Debes Seleccionar 14 Jugadores para la Covocatoria")});
    EXPECT_EQ(match(), nullptr);

    // Moving a placed player frees his old place; the same place keeps him.
    placeRow(0, 13);
    EXPECT_EQ(placeText(0), QStringLiteral("PORTERO: PORTERO  - "));
    placeRow(0, 13);
    EXPECT_TRUE(placeText(13).startsWith(QStringLiteral("SUPLENTE7: ")));
    placeRow(13, 0);
    EXPECT_EQ(m_store->integer("select count(*) from miequipo where idjugador <> 0"), 14);
    screenshot(QStringLiteral("call_up"));

    click(QStringLiteral("cmdVOLVER"));
    click(QStringLiteral("Command3"));
    ASSERT_EQ(m_navigator->current()->objectName(), QStringLiteral("Tactica"));
    auto *defence = find<QComboBox>(QStringLiteral("Combo1"));
    defence->setCurrentIndex(3);
    emit defence->activated(3);
    EXPECT_EQ(m_store->integer("select precio_entrada from entradas where idPrecio = 3"), 4);
    EXPECT_EQ(m_store->integer("select precio_entrada from entradas where idPrecio = 4"), 1);
    screenshot(QStringLiteral("tactics"));
    click(QStringLiteral("cmdVOLVER"));

    click(QStringLiteral("cmdAlineacion"));
    m_dialogs.clear();
    click(QStringLiteral("cmdJugar"));
    ASSERT_NE(match(), nullptr);
    EXPECT_TRUE(match()->isVisible());
    auto *commentary = find<QListWidget>(QStringLiteral("list2"));
    ASSERT_EQ(commentary->count(), 1);
    EXPECT_EQ(commentary->item(0)->text(), QStringLiteral("(0)-> El BM VALENCIA Cambia la Táctica a 3-2-1"));
    EXPECT_EQ(entry("lblCE", 3), QStringLiteral("0/0"));
    EXPECT_FALSE(find<QPushButton>(QStringLiteral("cmdSalir"))->isEnabled());

    // The frame cannot close the match before it ends.
    match()->close();
    EXPECT_TRUE(match()->isVisible());
    EXPECT_EQ(m_dialogs.texts().last(), QStringLiteral("Tienes Que Espera a Que el Partido Finalice"));

    playHalf();
    EXPECT_EQ(find<QLabel>(QStringLiteral("lblmin"))->text(), QStringLiteral("30"));
    EXPECT_TRUE(commentary->item(0)->text().startsWith(QStringLiteral("(30)-> Descanso :")));
    EXPECT_EQ(commentary->item(0)->foreground().color(), QColor(0, 140, 0));
    EXPECT_TRUE(find<QPushButton>(QStringLiteral("cmdStart"))->isEnabled());

    // An exchange at half time: the central for the third substitute, all four entries.
    QStringList central, substitute;
    for (int i = 0; i < 4; ++i) {
        central << entry("lblCE", i);
        substitute << entry("lblSu3", i);
    }
    // A picked row turns red, whichever of its cells is pressed.
    auto pickedRed = [this](const char *row, int entry) {
        return indexed::find(match(), QString::fromLatin1(row), entry)->grab().toImage().pixelColor(1, 1)
            == QColor(255, 0, 0);
    };
    EXPECT_FALSE(pickedRed("lblCE", 2));
    QTest::mouseClick(indexed::find(match(), QStringLiteral("lblPosicion"), 6), Qt::LeftButton);
    EXPECT_TRUE(pickedRed("lblCE", 2));
    EXPECT_FALSE(pickedRed("lblSu3", 1));
    QTest::mouseClick(indexed::find(match(), QStringLiteral("lblSu3"), 1), Qt::LeftButton);
    EXPECT_TRUE(pickedRed("lblCE", 0));
    EXPECT_TRUE(pickedRed("lblSu3", 3));
    screenshot(QStringLiteral("match_half_time"), match());
    click(QStringLiteral("cmdCambiar"));
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(entry("lblCE", i), substitute[i]);
        EXPECT_EQ(entry("lblSu3", i), central[i]);
    }
    EXPECT_FALSE(pickedRed("lblCE", 0));
    EXPECT_FALSE(pickedRed("lblSu3", 3));

    playHalf();
    ASSERT_TRUE(match()->engine().finished());
    EXPECT_EQ(find<QLabel>(QStringLiteral("lblmin"))->text(), QStringLiteral("60"));
    EXPECT_TRUE(commentary->item(0)->text().startsWith(QStringLiteral("(60)-> Final :")));
    EXPECT_TRUE(find<QPushButton>(QStringLiteral("cmdSalir"))->isEnabled());
    const int home = match()->engine().score(0);
    const int away = match()->engine().score(1);
    EXPECT_EQ(indexed::find(match(), QStringLiteral("lblMarcador"), 0)->text(), QString::number(home));
    screenshot(QStringLiteral("match_full_time"), match());

    click(QStringLiteral("cmdSalir"));
    settle();
    EXPECT_EQ(match(), nullptr);
    ASSERT_EQ(m_navigator->current()->objectName(), QStringLiteral("Panel_Control_Manager"));
    EXPECT_EQ(find<QLabel>(QStringLiteral("lblJornada"))->text(), QStringLiteral("2"));
    EXPECT_EQ(m_store->integer("select goles_equipo_local * 1000 + goles_equipo_visitante from liga_asobal where idpartido = ?", matchId),
              home * 1000 + away);
    EXPECT_EQ(m_store->integer("select count(*) from liga_asobal where jornada = 1 and goles_equipo_local + goles_equipo_visitante > 0"), 8);
    EXPECT_EQ(m_store->integer("select sum(\"Partidos_ Ganados\" + Partidos_Empatados + Partidos_Perdidos) from asobal"), 16);

    // The squad once chosen stays for the next match.
    click(QStringLiteral("cmdSeguir"));
    EXPECT_TRUE(placeText(13).startsWith(QStringLiteral("SUPLENTE7: ")));
    EXPECT_FALSE(placeText(0).startsWith(QStringLiteral("PORTERO: PORTERO")));
}

// Guards: leaving by the frame after full time, which would lose the result and the week.
TEST_F(MatchScreens, closingTheFinishedMatchByItsFrameRecordsItLikeSalir)
{
    playFirstLeagueMatchToFullTime();
    ASSERT_NE(match(), nullptr);
    ASSERT_TRUE(match()->engine().finished());
    match()->close();
    settle();
    EXPECT_EQ(match(), nullptr);
    EXPECT_EQ(find<QLabel>(QStringLiteral("lblJornada"))->text(), QStringLiteral("2"));
    EXPECT_EQ(m_store->integer("select sum(\"Partidos_ Ganados\" + Partidos_Empatados + Partidos_Perdidos) from asobal"), 16);
}

// Guards: a week that moves on although its result could not be written.
TEST_F(MatchScreens, aResultThatCannotBeWrittenKeepsTheWeekOpen)
{
    playFirstLeagueMatchToFullTime();
    ASSERT_NE(match(), nullptr);
    ASSERT_TRUE(m_store->run([&] {
        m_store->execute("create trigger no_results before update on liga_asobal begin select raise(abort, 'bloqueado'); end");
    }).ok());
    m_dialogs.clear();
    click(QStringLiteral("cmdSalir"));
    settle();
    ASSERT_EQ(m_dialogs.texts().size(), 1);
    EXPECT_TRUE(m_dialogs.texts().front().startsWith(QStringLiteral("No se ha podido completar")));
    ASSERT_EQ(m_navigator->current()->objectName(), QStringLiteral("Panel_Control_Manager"));
    EXPECT_EQ(find<QLabel>(QStringLiteral("lblJornada"))->text(), QStringLiteral("1"));
    EXPECT_EQ(m_store->integer("select jornada from datos_jugador"), 1);
    EXPECT_EQ(m_store->integer("select sum(Puntos) from asobal"), 0);
}

// Guards: the grid's pick lost when "Añadir" reads the lists again, so that a second press
// with only another place chosen places nobody instead of moving the same player.
TEST_F(MatchScreens, thePickedPlayerStaysPickedToBeMovedOnWithASecondPress)
{
    reachMatchWeek();
    click(QStringLiteral("cmdSeguir"));
    ASSERT_EQ(m_navigator->current()->objectName(), QStringLiteral("Alinear"));
    auto *grid = find<QTableView>(QStringLiteral("DataGrid1"));
    auto *places = find<QListWidget>(QStringLiteral("list1"));
    const int gridRow = 2;
    const QString playerId = grid->model()->index(gridRow, 0).data().toString();
    const QString nombre = grid->model()->index(gridRow, 1).data().toString();

    placeRow(gridRow, 0);
    EXPECT_TRUE(placeText(0).startsWith(QStringLiteral("PORTERO: ") + nombre + QLatin1Char(' '))) << placeText(0).toStdString();
    ASSERT_TRUE(grid->currentIndex().isValid());
    EXPECT_EQ(grid->model()->index(grid->currentIndex().row(), 0).data().toString(), playerId);
    EXPECT_EQ(places->currentRow(), 0);

    places->setCurrentRow(3);
    click(QStringLiteral("cmdAñadir"));
    EXPECT_TRUE(placeText(3).startsWith(QStringLiteral("LATERAL IZQUIERDO: ") + nombre + QLatin1Char(' '))) << placeText(3).toStdString();
    EXPECT_EQ(placeText(0), QStringLiteral("PORTERO: PORTERO  - "));
    EXPECT_EQ(places->currentRow(), 3);
    EXPECT_EQ(m_store->text("select Pos_Partido from miequipo where idjugador = ?", playerId.toInt()),
              QStringLiteral("LATERAL IZQUIERDO"));
    EXPECT_EQ(m_store->integer("select count(*) from miequipo where idjugador <> 0"), 1);
}

// Guards: a home match played again after its result could not be written paying the gate,
// the hoardings and the cafeterias a second time.
TEST_F(MatchScreens, aHomeMatchPlayedAgainAfterAFailedResultPaysItsGateOnce)
{
    playFirstLeagueMatchToFullTime(QStringLiteral("IPortland")); // at home in the first round
    ASSERT_NE(match(), nullptr);
    ASSERT_TRUE(m_navigator->career().week().fixture()->homeId == m_navigator->career().week().career().club);
    ASSERT_GT(m_store->integer("select ingresos_Taquilla from caja where semana = 1"), 0);
    const QString ledger = dump("caja");

    ASSERT_TRUE(m_store->run([&] {
        m_store->execute("create trigger no_results before update on liga_asobal begin select raise(abort, 'bloqueado'); end");
    }).ok());
    click(QStringLiteral("cmdSalir"));
    settle();
    ASSERT_EQ(m_navigator->current()->objectName(), QStringLiteral("Panel_Control_Manager"));
    EXPECT_EQ(find<QLabel>(QStringLiteral("lblJornada"))->text(), QStringLiteral("1"));

    ASSERT_TRUE(m_store->run([&] { m_store->execute("drop trigger no_results"); }).ok());
    click(QStringLiteral("cmdSeguir"));
    ASSERT_EQ(m_navigator->current()->objectName(), QStringLiteral("Alinear"));
    playCalledUpMatch();
    ASSERT_NE(match(), nullptr);
    EXPECT_EQ(dump("caja"), ledger);
    click(QStringLiteral("cmdSalir"));
    settle();
    EXPECT_EQ(find<QLabel>(QStringLiteral("lblJornada"))->text(), QStringLiteral("2"));
    EXPECT_TRUE(dump("caja").startsWith(ledger)) << dump("caja").toStdString(); // week 1 as first paid
}

// Guards: the crowd box of a friendly away at a club abroad, which has no stadium on file,
// showing its percentages under blank lines.
TEST_F(MatchScreens, anAwayFriendlyAbroadShowsTheWholeCrowdBox)
{
    startCareerFromMenu(QStringLiteral("IValencia"));
    chooseClub("cmdAlemania", 0);
    for (int slot = 1; slot < 5; ++slot)
        click(QStringLiteral("cmdNoJugar"));
    click(QStringLiteral("cmdSeguir"));
    ASSERT_EQ(find<QLabel>(QStringLiteral("Tipo"))->text(), QStringLiteral("AMISTOSO"));
    const int home = m_navigator->career().week().fixture()->homeId;
    ASSERT_EQ(m_store->integer("select count(*) from estadios where idequipo = ?", home), 0);
    runWeekEvents();
    takeTheWeeksNews();
    const QString ledger = dump("caja");

    click(QStringLiteral("cmdSeguir"));
    callUpFirstFourteen();
    click(QStringLiteral("cmdJugar"));
    ASSERT_NE(match(), nullptr);
    auto text = [&](const char *name) { return find<QLabel>(QString::fromLatin1(name))->text(); };
    EXPECT_EQ(text("lblEstadio"), QStringLiteral("Pabellón del equipo local"));
    EXPECT_EQ(text("lblAforoEstadio"), QStringLiteral("AFORO: —"));
    EXPECT_EQ(text("lblEntrada"), QStringLiteral("ENTRADA: —"));
    // A club outside the league makes a full house of a stadium it does not have.
    EXPECT_EQ(text("lblPorcentaje1"), QStringLiteral("100%"));
    EXPECT_EQ(text("lblRecaudacion1"), QStringLiteral("RECAUDACIÓN: 0 €"));
    EXPECT_EQ(text("lblVallas"), QStringLiteral("VALLAS CONTRATADAS:"));
    EXPECT_EQ(text("lblPorcentaje2"), QStringLiteral("100%"));
    EXPECT_EQ(dump("caja"), ledger); // away: nothing is paid to the user
    screenshot(QStringLiteral("match_away_abroad"), match());
}
