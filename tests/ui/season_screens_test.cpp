// The season's reports as the player reads them: the league table and the rounds one by one.

#include "reports/standings.h"
#include "screenfixture.h"

namespace {

// The colour the player sees at the edge of a label, where no letter is drawn.
QColor backgroundOf(QLabel *label)
{
    return label->grab().toImage().pixelColor(2, 2);
}

} // namespace

class SeasonScreens : public ScreenTest
{
protected:
    // The matches of a round as the template places the clubs: home and away names, in order.
    std::vector<std::pair<QString, QString>> fixturesOf(int round)
    {
        game::GameStore::Query query = m_store->query(
            "select (select NombreEquipo from equipos where idequipo ="
            "   (select teams from asobal where puesto_anterior = f.pos_equipo_local)),"
            " (select NombreEquipo from equipos where idequipo ="
            "   (select teams from asobal where puesto_anterior = f.pos_equipo_visitante))"
            " from liga_asobal f where jornada = ? order by idpartido",
            round);
        std::vector<std::pair<QString, QString>> fixtures;
        while (query.next())
            fixtures.emplace_back(query.text(0), query.text(1));
        return fixtures;
    }

    // The row of the user's match in a round, as the screen lists them.
    int userRow(int round)
    {
        const auto fixtures = fixturesOf(round);
        const QString user = clubName(club());
        for (int row = 0; row < int(fixtures.size()); ++row) {
            if (fixtures[std::size_t(row)].first == user || fixtures[std::size_t(row)].second == user)
                return row;
        }
        return -1;
    }

    // The round on show: its eight fixtures by name and, on the user's row alone, the highlight;
    // the scores of a round not played are blank.
    void expectRoundShown(int round, bool played = false)
    {
        EXPECT_EQ(text("lblJornada"), QString::number(round));
        const auto fixtures = fixturesOf(round);
        ASSERT_EQ(fixtures.size(), 8u) << round;
        const int users = userRow(round);
        ASSERT_GE(users, 0) << round;
        for (int row = 0; row < 8; ++row) {
            EXPECT_EQ(entry("lblEquipoL", row)->text(), fixtures[std::size_t(row)].first) << round << "/" << row;
            EXPECT_EQ(entry("lblEquipoV", row)->text(), fixtures[std::size_t(row)].second) << round << "/" << row;
            for (const char *name : {"lblEquipoL", "lblEquipoV"})
                EXPECT_EQ(backgroundOf(entry(name, row)) == QColor(0xC0, 0xC0, 0x00), row == users)
                    << name << " round " << round << " row " << row;
            if (!played) {
                EXPECT_EQ(entry("lblRL", row)->text() + entry("lblRV", row)->text(), QString()) << round << "/" << row;
            }
        }
    }
};

// Guards: a table shown in another order than the game's, a place not written when the
// player looks (the gate and television read it), a row whose columns come from other fields,
// or a highlight on a club that is not the user's. (The order's rules are the game's.)
TEST_F(SeasonScreens, theTableShowsTheGamesOrderWritesThePlacesAndMarksTheUser)
{
    reachFirstLeagueWeek();
    // The user's club second: level on points with club 14, which has let in fewer.
    exec("update asobal set puesto_actual = 99");
    const std::string set = "update asobal set \"Partidos_ Ganados\" = ?, Partidos_Empatados = ?, Partidos_Perdidos = ?,"
                            " Goles_Favor = ?, Goles_Contra = ?, Puntos = ? where teams = ?";
    exec(set, 5, 0, 2, 10, 15, 10, 14);
    exec(set, 4, 2, 1, 60, 20, 10, club());
    go("cmdClasificacion", "Clasificacion");
    const std::vector<game::Standings::Row> table = game::Standings(*m_context).table();
    ASSERT_EQ(table[1].club, club());
    for (int place = 0; place < 16; ++place) {
        const int team = table[std::size_t(place)].club;
        EXPECT_EQ(entry("lblPos", place)->text() + ' ' + entry("lblEquipo", place)->text(),
                  QString::number(place + 1) + ' ' + clubName(team));
        EXPECT_EQ(value("select puesto_actual from asobal where teams = ?", team), place + 1) << team;
        EXPECT_EQ(backgroundOf(entry("lblEquipo", place)) == QColor(232, 163, 61), place == 1) << place;
    }
    EXPECT_EQ(entry("lblPos", 16), nullptr); // sixteen places, no more
    // Every column of a row comes from its own field; played is won plus drawn plus lost.
    QStringList second, last;
    for (const char *name : {"lblPJ", "lblPG", "lblPE", "lblPP", "lbGF", "lbGC", "lblPtos"})
        second << entry(name, 1)->text(), last << entry(name, 15)->text();
    EXPECT_EQ(second.join('/'), "7/4/2/1/60/20/10");
    EXPECT_EQ(last.join('/'), "0/0/0/0/0/0/0");
    expectTidy("table");
    screenshot("standings");
    go("cmdVOLVER", "Panel_Control_Manager");
}

// Guards: the round of the wrong week on opening, a walk past round 1 or 30, a score shown for
// a match not played or drawn 0-0, a lost zero of a real score, and the user's highlight left
// on a row that another round gives to other clubs.
TEST_F(SeasonScreens, theRoundsOpenOnTheCurrentOneStepWithinTheSeasonAndHighlightTheUsersMatch)
{
    reachFirstLeagueWeek();
    go("cmdResultados", "Resultados");
    expectRoundShown(1);
    click("cmdVOLVER");

    // Week 7 without friendlies is round 7. The user's match there ended 25-22, another 0-28;
    // the rest were not played or ended 0-0.
    const int users = userRow(7);
    const int other = users == 0 ? 1 : 0;
    exec("update datos_jugador set jornada = 7");
    exec("update liga_asobal set goles_equipo_local = 25, goles_equipo_visitante = 22 where jornada = 7 and"
         " (select puesto_anterior from asobal where teams = ?1) in (pos_equipo_local, pos_equipo_visitante)",
         club());
    exec("update liga_asobal set goles_equipo_local = 0, goles_equipo_visitante = 28 where idpartido ="
         " (select idpartido from liga_asobal where jornada = 7 order by idpartido limit 1 offset ?)",
         other);
    go("cmdResultados", "Resultados");
    expectRoundShown(7, true);
    for (int row = 0; row < 8; ++row)
        EXPECT_EQ(entry("lblRL", row)->text() + '-' + entry("lblRV", row)->text(),
                  row == users ? "25-22" : row == other ? "0-28" : "-")
            << row;
    expectTidy("rounds");
    screenshot("rounds");

    // Forward to the last round and a click beyond it; every round not played shows no score,
    // and the highlight follows the user's match from row to row.
    bool highlightMoved = false;
    for (int round = 8; round <= 30; ++round) {
        click("cmdmas");
        expectRoundShown(round);
        highlightMoved = highlightMoved || userRow(round) != userRow(round - 1);
    }
    EXPECT_TRUE(highlightMoved); // else the clearing of the old row was never put to the test
    click("cmdmas");
    expectRoundShown(30);
    // Back to the first round and a click before it.
    for (int round = 29; round >= 1; --round) {
        click("cmdmenos");
        expectRoundShown(round, round == 7);
    }
    click("cmdmenos");
    expectRoundShown(1);
    // Walking writes nothing: the scores set above are where they were.
    EXPECT_EQ(value("select count(*) from liga_asobal where goles_equipo_local + goles_equipo_visitante > 0"), 2);
}

