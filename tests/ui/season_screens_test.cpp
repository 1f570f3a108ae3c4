// The season's reports as the player reads them: the league table, the rounds one by one, and
// the verdict at the season's close.

#include "career/seasonclose.h"
#include "common/artwork.h"
#include "reports/verdictscreen.h"
#include "screenfixture.h"

#include <QKeyEvent>

#include <functional>

namespace {

const QColor kUserRound(0xC0, 0xC0, 0x00);
const QColor kUserTable(232, 163, 61);

// The colour the player sees at the edge of a label, where no letter is drawn.
QColor backgroundOf(QLabel *label)
{
    return label->grab().toImage().pixelColor(2, 2);
}

} // namespace

class SeasonScreens : public ScreenTest
{
protected:
    int userClub() { return int(m_store->integer("select idequipo from datos_jugador")); }
    QString clubName(int club) { return m_store->text("select NombreEquipo from equipos where idequipo = ?", club); }

    void write(const std::function<void()> &body) { ASSERT_TRUE(m_store->run(body)); }

    QLabel *cell(const char *name, int index)
    {
        return indexed::find(m_navigator->current(), QString::fromLatin1(name), index);
    }

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
        const QString club = clubName(userClub());
        for (int row = 0; row < int(fixtures.size()); ++row) {
            if (fixtures[std::size_t(row)].first == club || fixtures[std::size_t(row)].second == club)
                return row;
        }
        return -1;
    }

    // The round on show: its eight fixtures by name and, on the user's row alone, the highlight.
    void expectRoundShown(int round)
    {
        EXPECT_EQ(find<QLabel>(QStringLiteral("lblJornada"))->text(), QString::number(round));
        const auto fixtures = fixturesOf(round);
        ASSERT_EQ(fixtures.size(), 8u) << round;
        const int users = userRow(round);
        ASSERT_GE(users, 0) << round;
        for (int row = 0; row < 8; ++row) {
            EXPECT_EQ(cell("lblEquipoL", row)->text(), fixtures[std::size_t(row)].first) << round << "/" << row;
            EXPECT_EQ(cell("lblEquipoV", row)->text(), fixtures[std::size_t(row)].second) << round << "/" << row;
            for (const char *name : {"lblEquipoL", "lblEquipoV"})
                EXPECT_EQ(backgroundOf(cell(name, row)) == kUserRound, row == users)
                    << name << " round " << round << " row " << row;
        }
    }
};

// Guards: a table ordered by goal difference or goals scored, ties that waver, a place written
// the other way round or not at all, and a table that is not read afresh at its next opening.
TEST_F(SeasonScreens, theTableOrdersByPointsThenFewestAgainstAndWritesThePlaces)
{
    reachFirstLeagueWeek();
    const int valencia = userClub();
    // Club 14 and club 12 level on points: 14 has let in fewer though it scored far fewer.
    // Clubs 9 and 3 are level on points and on goals against: the lower id stands first. The
    // user's club stands third from the top.
    write([&] {
        m_store->execute("update asobal set puesto_actual = 99");
        m_store->execute("update asobal set \"Partidos_ Ganados\" = 5, Partidos_Empatados = 0, Partidos_Perdidos = 2,"
                         " Goles_Favor = 10, Goles_Contra = 15, Puntos = 10 where teams = 14");
        m_store->execute("update asobal set \"Partidos_ Ganados\" = 4, Partidos_Empatados = 2, Partidos_Perdidos = 1,"
                         " Goles_Favor = 60, Goles_Contra = 20, Puntos = 10 where teams = 12");
        m_store->execute("update asobal set \"Partidos_ Ganados\" = 4, Partidos_Empatados = 0, Partidos_Perdidos = 3,"
                         " Goles_Favor = 70, Goles_Contra = 30, Puntos = 8 where teams = ?",
                         valencia);
        m_store->execute("update asobal set \"Partidos_ Ganados\" = 3, Partidos_Empatados = 0, Partidos_Perdidos = 4,"
                         " Goles_Favor = 40, Goles_Contra = 12, Puntos = 6 where teams in (9, 3)");
    });
    ASSERT_NE(valencia, 3);
    ASSERT_NE(valencia, 9);
    std::vector<int> order{14, 12, valencia, 3, 9};
    for (int club = 1; club <= 16; ++club) {
        if (std::find(order.begin(), order.end(), club) == order.end())
            order.push_back(club);
    }

    click(QStringLiteral("cmdClasificacion"));
    ASSERT_EQ(m_navigator->current()->objectName(), QStringLiteral("Clasificacion"));
    QWidget *table = m_navigator->current();

    QStringList captions;
    for (QLabel *label : table->findChildren<QLabel *>())
        captions << label->text();
    for (const char *header : {"POS", "EQUIPO", "PJ", "PG", "PE", "PP", "G F", "G C", "Ptos"})
        EXPECT_TRUE(captions.contains(QString::fromUtf8(header))) << header;

    for (int place = 0; place < 16; ++place) {
        const int club = order[std::size_t(place)];
        EXPECT_EQ(cell("lblPos", place)->text(), QString::number(place + 1)) << place;
        EXPECT_EQ(cell("lblEquipo", place)->text(), clubName(club)) << place;
        EXPECT_EQ(m_store->integer("select puesto_actual from asobal where teams = ?", club), place + 1) << club;
    }
    EXPECT_EQ(cell("lblPos", 16), nullptr); // sixteen places, no more
    // Every column of a row comes from its own field; played is won plus drawn plus lost.
    const std::pair<const char *, const char *> second[] = {{"lblPJ", "7"}, {"lblPG", "4"}, {"lblPE", "2"},
                                                             {"lblPP", "1"}, {"lbGF", "60"}, {"lbGC", "20"},
                                                             {"lblPtos", "10"}};
    for (const auto &[name, text] : second)
        EXPECT_EQ(cell(name, 1)->text(), QString::fromLatin1(text)) << name;
    EXPECT_EQ(cell("lblPJ", 15)->text(), QStringLiteral("0"));
    EXPECT_EQ(cell("lblPtos", 15)->text(), QStringLiteral("0"));
    // The user's club is the one row that stands out.
    for (int place = 0; place < 16; ++place)
        EXPECT_EQ(backgroundOf(cell("lblEquipo", place)) == kUserTable, place == 2) << place;
    expectTidy(QStringLiteral("table"));
    screenshot(QStringLiteral("standings"));

    click(QStringLiteral("cmdVOLVER"));
    ASSERT_EQ(m_navigator->current()->objectName(), QStringLiteral("Panel_Control_Manager"));

    // The next opening reads the table anew and writes the new places.
    write([&] { m_store->execute("update asobal set Puntos = 20 where teams = 16"); });
    click(QStringLiteral("cmdClasificacion"));
    ASSERT_EQ(m_navigator->current()->objectName(), QStringLiteral("Clasificacion"));
    EXPECT_EQ(cell("lblEquipo", 0)->text(), clubName(16));
    EXPECT_EQ(cell("lblEquipo", 1)->text(), clubName(14));
    EXPECT_EQ(m_store->integer("select puesto_actual from asobal where teams = 16"), 1);
    EXPECT_EQ(m_store->integer("select puesto_actual from asobal where teams = 14"), 2);
    EXPECT_EQ(m_store->integer("select count(distinct puesto_actual) from asobal where puesto_actual between 1 and 16"), 16);
    click(QStringLiteral("cmdVOLVER"));
    EXPECT_EQ(m_navigator->current()->objectName(), QStringLiteral("Panel_Control_Manager"));
}

// Guards: the round of the wrong week on opening, a walk past round 1 or 30, a score shown for
// a match not played or drawn 0-0, a lost zero of a real score, and the user's highlight left
// on a row that another round gives to other clubs.
TEST_F(SeasonScreens, theRoundsOpenOnTheCurrentOneStepWithinTheSeasonAndHighlightTheUsersMatch)
{
    reachFirstLeagueWeek();
    click(QStringLiteral("cmdResultados"));
    ASSERT_EQ(m_navigator->current()->objectName(), QStringLiteral("Resultados"));
    expectRoundShown(1);
    click(QStringLiteral("cmdVOLVER"));
    ASSERT_EQ(m_navigator->current()->objectName(), QStringLiteral("Panel_Control_Manager"));

    // Week 7 without friendlies is round 7. The user's match there ended 25-22, another 0-28;
    // the rest were not played or ended 0-0.
    const int position = int(m_store->integer("select puesto_anterior from asobal where teams = ?", userClub()));
    const int users = userRow(7);
    const int other = users == 0 ? 1 : 0;
    write([&] {
        m_store->execute("update datos_jugador set jornada = 7");
        m_store->execute("update liga_asobal set goles_equipo_local = 25, goles_equipo_visitante = 22"
                         " where jornada = 7 and ?1 in (pos_equipo_local, pos_equipo_visitante)",
                         position);
        m_store->execute("update liga_asobal set goles_equipo_local = 0, goles_equipo_visitante = 28 where idpartido ="
                         " (select idpartido from liga_asobal where jornada = 7 order by idpartido limit 1 offset ?)",
                         other);
    });
    click(QStringLiteral("cmdResultados"));
    ASSERT_EQ(m_navigator->current()->objectName(), QStringLiteral("Resultados"));
    QWidget *rounds = m_navigator->current();
    expectRoundShown(7);
    for (int row = 0; row < 8; ++row) {
        const QString home = row == users ? QStringLiteral("25") : row == other ? QStringLiteral("0") : QString();
        const QString away = row == users ? QStringLiteral("22") : row == other ? QStringLiteral("28") : QString();
        EXPECT_EQ(cell("lblRL", row)->text(), home) << row;
        EXPECT_EQ(cell("lblRV", row)->text(), away) << row;
    }
    QStringList captions;
    for (QLabel *label : rounds->findChildren<QLabel *>())
        captions << label->text();
    for (const char *caption : {"LIGA - ASOBAL", "PARTIDOS DE LA JORNADA"})
        EXPECT_TRUE(captions.contains(QString::fromLatin1(caption))) << caption;
    expectTidy(QStringLiteral("rounds"));
    screenshot(QStringLiteral("rounds"));

    // Forward to the last round and a click beyond it; every round not played shows no score,
    // and the highlight follows the user's match from row to row.
    bool highlightMoved = false;
    for (int round = 8; round <= 30; ++round) {
        click(QStringLiteral("cmdmas"));
        expectRoundShown(round);
        highlightMoved = highlightMoved || userRow(round) != userRow(round - 1);
        for (int row = 0; row < 8; ++row) {
            EXPECT_EQ(cell("lblRL", row)->text(), QString()) << round << "/" << row;
            EXPECT_EQ(cell("lblRV", row)->text(), QString()) << round << "/" << row;
        }
    }
    EXPECT_TRUE(highlightMoved); // else the clearing of the old row was never put to the test
    click(QStringLiteral("cmdmas"));
    expectRoundShown(30);

    // Back to the first round and a click before it.
    for (int round = 29; round >= 1; --round) {
        click(QStringLiteral("cmdmenos"));
        expectRoundShown(round);
    }
    click(QStringLiteral("cmdmenos"));
    expectRoundShown(1);
    // Walking writes nothing: the scores set above are where they were.
    EXPECT_EQ(m_store->integer("select count(*) from liga_asobal where goles_equipo_local + goles_equipo_visitante > 0"), 2);
    click(QStringLiteral("cmdVOLVER"));
    EXPECT_EQ(m_navigator->current()->objectName(), QStringLiteral("Panel_Control_Manager"));
}

// Guards: the champion or the bottom two read from the wrong end of the places, the two lists
// of the bottom naming different clubs, the user's place shown as the table numbers it, a
// crest that is not the champion's, and a verdict that cannot be closed.
TEST_F(SeasonScreens, theVerdictNamesTheChampionTheBottomTwoAndTheUsersStoredPlace)
{
    reachFirstLeagueWeek();
    const int user = userClub();
    const int a = user == 1 ? 2 : 1;
    const int b = user == 5 ? 6 : 5;

    struct Case
    {
        const char *what;
        int champion;
        int last;
        int secondLast;
        const char *place;
    };
    const Case cases[] = {{"the user champion", user, a, b, "16"}, {"the user last", a, user, b, "1"}};
    for (const Case &c : cases) {
        // The season's close ranks the clubs into puesto_anterior: the champion 16, the last 1.
        write([&] {
            m_store->execute("update asobal set puesto_anterior = teams + 100");
            m_store->execute("update asobal set puesto_anterior = 16 where teams = ?", c.champion);
            m_store->execute("update asobal set puesto_anterior = 1 where teams = ?", c.last);
            m_store->execute("update asobal set puesto_anterior = 2 where teams = ?", c.secondLast);
        });
        ui::VerdictScreen verdict(game::SeasonClose(*m_context).verdict(), m_window.get());
        verdict.open();
        settle();
        auto text = [&](const char *name) {
            auto *label = verdict.findChild<QLabel *>(QString::fromLatin1(name));
            return label ? label->text() : QStringLiteral("<missing %1>").arg(QString::fromLatin1(name));
        };
        EXPECT_EQ(verdict.windowTitle(), QStringLiteral("Resultados Finales")) << c.what;
        EXPECT_EQ(text("win"), clubName(c.champion)) << c.what;
        EXPECT_EQ(text("dos"), clubName(c.last)) << c.what;
        EXPECT_EQ(text("uno"), clubName(c.secondLast)) << c.what;
        EXPECT_EQ(text("compra1"), text("dos")) << c.what;
        EXPECT_EQ(text("Compra2"), text("uno")) << c.what;
        EXPECT_EQ(text("pos"), QString::fromLatin1(c.place)) << c.what;
        QStringList captions;
        for (QLabel *label : verdict.findChildren<QLabel *>())
            captions << label->text();
        for (const char *caption : {"CAMPEÓN DE LA LIGA ASOBAL", "Desciende:", "Compra Plaza:", "Posición Alcanzada:"})
            EXPECT_TRUE(captions.contains(QString::fromUtf8(caption))) << caption;
        expectTidy(QString::fromUtf8(c.what), &verdict);
        if (c.champion == user)
            screenshot(QStringLiteral("verdict"), &verdict);

        auto *ok = verdict.findChild<QPushButton *>(QStringLiteral("cmdOK"));
        ASSERT_NE(ok, nullptr);
        EXPECT_EQ(ok->text(), QStringLiteral("OK"));
        ok->click();
        settle();
        EXPECT_FALSE(verdict.isVisible()) << c.what;
        EXPECT_EQ(verdict.result(), QDialog::Accepted) << c.what;
    }

    // Each champion shows its own crest.
    std::vector<QImage> crests;
    for (int club = 1; club <= 16; ++club) {
        game::SeasonClose::Verdict given;
        given.champion = club;
        given.championName = clubName(club);
        ui::VerdictScreen verdict(given);
        auto *picture = verdict.findChild<QLabel *>(QStringLiteral("Imagen"));
        ASSERT_NE(picture, nullptr);
        const QImage crest = picture->pixmap().toImage();
        EXPECT_EQ(crest, artwork::crest(club, picture->size()).toImage()) << club;
        for (const QImage &other : crests)
            EXPECT_NE(crest, other) << club;
        crests.push_back(crest);
    }

    // Esc reads the verdict as OK does, so the season always goes on.
    ui::VerdictScreen verdict(game::SeasonClose(*m_context).verdict(), m_window.get());
    verdict.open();
    settle();
    QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QApplication::sendEvent(&verdict, &escape);
    settle();
    EXPECT_FALSE(verdict.isVisible());
    EXPECT_EQ(verdict.result(), QDialog::Accepted);
}
