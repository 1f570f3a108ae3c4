// The way between the screens as a player walks it: the panel shown again and again, its
// buttons, the titles of the window, weeks in a row with their money, and a match of very
// long names.

#include "screenfixture.h"

#include <QBarSeries>
#include <QBarSet>
#include <QChartView>
#include <QLineSeries>

#include <tuple>

namespace {

const char *kPanel = "Panel_Control_Manager";
const QSize kWindow(1280, 720);

} // namespace

class NavigatorScreens : public ScreenTest
{
protected:
    // The match stands over the window and within it, whole and tidy.
    void expectMatchFits(int week)
    {
        EXPECT_TRUE(m_window->frameGeometry().contains(match()->frameGeometry())) << week;
        expectTidy(QStringLiteral("week %1").arg(week), match());
    }

    // The ledger's chart: each week so far, its income and spending as bars and its balance as
    // a line, each from its own column of the week's row.
    void expectLedgerCharted(int weeks)
    {
        auto *view = find<QChartView>("chartCaja");
        ASSERT_NE(view, nullptr);
        QBarSeries *bars = nullptr;
        QLineSeries *balance = nullptr;
        for (QAbstractSeries *series : view->chart()->series()) {
            bars = bars ? bars : qobject_cast<QBarSeries *>(series);
            balance = balance ? balance : qobject_cast<QLineSeries *>(series);
        }
        ASSERT_TRUE(bars && balance && bars->count() == 2 && balance->count() == weeks);
        QMap<QString, QBarSet *> sets;
        for (QBarSet *set : bars->barSets())
            sets[set->label()] = set;
        ASSERT_TRUE(sets.value("Ingresos") && sets.value("Gastos"));
        for (int i = 0; i < weeks; ++i) {
            const auto stored = [&](const char *column) {
                return double(value("select " + std::string(column) + " from caja where semana = ?", i + 1));
            };
            EXPECT_EQ(std::tuple(sets["Ingresos"]->at(i), sets["Gastos"]->at(i), balance->at(i).y()),
                      std::tuple(stored("ingresos"), stored("gastos"), stored("caja")))
                << "week " << i + 1;
        }
    }
};

// Guards: ten weeks as a player lives them in the window going wrong: a week that does not
// move on, a ledger row lost or doubled, the call-up forgotten between weeks, a panel or match
// that outgrows the 1280×720 window; a work ordered that never ends or ends early, its cost
// missing from the ledger, a price set on match day that the gate does not use, a broadcast
// that pays nothing; a ledger chart that misses a week or draws from another column.
TEST_F(NavigatorScreens, tenWeeksPlayedInTheWindowEndTheWorksPayThePricesSetAndKeepTheirSize)
{
    reachFirstLeagueWeek(); // Valencia: toilets at the second level, a shop already built
    int broadcasts = 0;
    auto takeBroadcast = [&] {
        broadcasts += m_navigator->screen("Tele") != nullptr;
        ScreenTest::takeBroadcast();
    };
    takeBroadcast();

    // "40 Lavabos", three weeks of works.
    click("cmdEstadio");
    for (const char *button : {"cmdRemodelar", "cmdServicios", "cmdWc", "Option26"})
        click(button);
    ASSERT_TRUE(find<QCheckBox>("Option26")->isChecked());
    m_dialogs.clear();
    click("cmdYA");
    EXPECT_EQ(m_dialogs.texts(), QStringList{"Las Obras Empezarán en la Jornada Actual"});
    click("cmdVOLVER");

    bool pricedAHomeMatch = false;
    for (int week = 1; week <= 10; ++week) {
        ASSERT_EQ(at(), kPanel) << week;
        EXPECT_EQ(text("lblJornada"), QString::number(week));
        EXPECT_TRUE(m_window->windowTitle().contains(QStringLiteral("Jornada %1").arg(week)))
            << m_window->windowTitle().toStdString();
        EXPECT_EQ(count("caja"), week);
        expectTidy(QStringLiteral("week %1").arg(week));
        if (week == 1 || week == 5 || week == 10)
            screenshot(QStringLiteral("week_%1_panel").arg(week));

        const bool pricing = !pricedAHomeMatch && m_navigator->career().week().fixture().value().homeId == club();
        if (pricing) {
            // Match day at home: the ticket goes up one step before the match.
            click("cmdEstadio");
            click("cmdPartido");
            EXPECT_TRUE(find("Entradas")->isVisible());
            click("cmdmas");
            EXPECT_EQ(value("select precio_entrada from entradas where idPrecio = 1"), 15);
            click("cmdVOLVER");
        }
        // The squad once chosen stays: only the first week calls anyone up.
        click("cmdSeguir");
        if (week == 1)
            callUpFirstFourteen();
        click("cmdJugar");
        ASSERT_NE(match(), nullptr) << week << ' ' << m_dialogs.texts().join('|').toStdString();
        if (pricing) {
            // The crowd pays the price just set.
            const QString entry = text("lblEntrada");
            const int attendance = entry.section(' ', 1, 1).toInt();
            ASSERT_GT(attendance, 0) << entry.toStdString();
            EXPECT_EQ(text("lblRecaudacion1"), QStringLiteral("RECAUDACIÓN: %1 €").arg(attendance * 15));
            pricedAHomeMatch = true;
        }
        playHalf();
        playHalf();
        ASSERT_TRUE(match()->engine().finished()) << week;
        expectMatchFits(week);
        if (week == 10)
            screenshot("week_10_match_full_time", match());
        m_dialogs.clear();
        click("cmdSalir");
        EXPECT_EQ(match(), nullptr) << week;
        runWeekEvents();
        takeBroadcast();

        // The work ends at the opening of the week it was ordered in plus its three weeks.
        const int opened = week + 1;
        EXPECT_EQ(m_dialogs.texts().contains("Las Obras de La mejora de las LAVABOS Han Terminado"), opened == 4) << opened;
        EXPECT_EQ(value("select lavabos from estadios where idequipo = ?", club()), opened >= 4 ? 3 : 2) << opened;
        if (opened == 4) {
            go("cmdCaja", "Caja");
            EXPECT_EQ(entry("lblRemodelar", 0)->text(), "612000 €");
            EXPECT_EQ(entry("lblTelevision", 1)->text(), QStringLiteral("%1 €").arg(qint64(broadcasts) * 450000));
            expectLedgerCharted(4);
            expectTidy("ledger");
            screenshot("ledger_works_finished");
            click("cmdVOLVER");
        }
    }
    EXPECT_EQ(text("lblJornada"), "11");
    EXPECT_EQ(value("select count(*) from liga_asobal where jornada <= 10 and goles_equipo_local + goles_equipo_visitante > 0"),
              80);
    EXPECT_TRUE(pricedAHomeMatch);
}

// Guards: a career that stops after the last round, a verdict that never shows or does not
// say which season it closes (the first one every year), orders left for a season that no
// longer exists, a new season whose first week is charged twice, and the panel and calendar
// of a later season on the first one's dates.
TEST_F(NavigatorScreens, theLastRoundLeadsToTheVerdictAndTheNextSeasonOnItsOwnYears)
{
    reachFirstLeagueWeek();
    for (const QString years : {"2004-2005", "2005-2006"}) {
        // The season is played up to its last week.
        reachLastRound();
        ASSERT_FALSE(HasFatalFailure());
        ASSERT_EQ(text("lblJornada"), "30");
        click("cmdSeguir");
        callUpFirstFourteen();
        ASSERT_TRUE(playMatch());
        click("cmdSalir");

        // The week after the last: the verdict, over the window.
        QWidget *verdict = m_navigator->screen("Finall");
        ASSERT_NE(verdict, nullptr);
        EXPECT_TRUE(verdict->isVisible());
        EXPECT_EQ(text("lblTemporada"), "Temporada " + years);
        if (years == "2005-2006")
            break;
        const int champion = int(value("select teams from asobal where puesto_anterior = 16"));
        EXPECT_EQ(text("win"), clubName(champion));
        EXPECT_EQ(count("calendario") + count("caja"), 0);
        screenshot("season_verdict", verdict);

        click("cmdOK");
        EXPECT_EQ(m_navigator->screen("Finall"), nullptr);
        ASSERT_EQ(at(), "Pretemporada");
        EXPECT_EQ(count("selects") + count("pretemporada"), 0);
        EXPECT_EQ(value("select jornada from datos_jugador"), 0);

        const qint64 budget = value("select presupuesto from infoteams where idequipo = ?", club());
        declineFriendlies();
        ASSERT_EQ(at(), kPanel);
        EXPECT_EQ(text("lblJornada"), "1");
        EXPECT_EQ(count("caja"), 1);
        EXPECT_EQ(value("select presupuesto from infoteams where idequipo = ?", club()),
                  budget - value("select Gastos_Fichas + Gastos_Empleados from caja where semana = 1"));
        runWeekEvents();
        takeBroadcast();
        // The second season's first week: its match and the calendar fall in 2005-2006.
        EXPECT_TRUE(m_window->windowTitle().contains("/2005 ")) << m_window->windowTitle().toStdString();
        click("c");
        for (int row = 0; row < 7; ++row) {
            const QString date = entry("lblFecha", row)->text();
            EXPECT_TRUE(date.endsWith("/2005") || date.endsWith("/2006")) << row;
        }
        click("cmdVOLVER");

        // The table of the new season, everybody on nought, puts the first club at the top,
        // while last season's places stay for the fixtures.
        go("cmdClasificacion", "Clasificacion");
        EXPECT_EQ(entry("lblEquipo", 0)->text(), clubName(1));
        EXPECT_EQ(value("select puesto_anterior from asobal where teams = ?", champion), 16);
        click("cmdVOLVER");
    }
}

// Guards: forty-letter names of players and a very long rival club widening the match
// screen past the window, or the window with it; a match that lets the panel show round it,
// a score that does not follow the goals in figures, and commentary lines cut at the edge.
TEST_F(NavigatorScreens, theMatchCoversTheWindowFollowsTheScoreAndWrapsEveryLineWhateverTheNames)
{
    startCareerFromMenu("IValencia");
    ASSERT_EQ(at(), "Pretemporada");
    const int user = club();
    // The names are changed before the first week opens, which reads its fixture's names.
    exec("update jugadores set Nombre = substr('Maximiliano' || idjugador || 'AlejandroFernandoBartolomeoXXXXXXXXXXXXXXXXXX"
         "XXXXXX', 1, 40), Apellidos = substr('Fernandez' || idjugador || 'DeLaSantisimaTrinidadYCastellanosXXXXXXXXXXXX"
         "XXXXX', 1, 40) where idequipo = ?",
         user);
    exec("update equipos set NombreEquipo = 'CLUB DEPORTIVO BALONMANO DE LA MUY NOBLE, MUY LEAL Y SIEMPRE HEROICA"
         " CIUDAD NUMERO ' || idequipo where idequipo between 1 and 16 and idequipo <> ?",
         user);
    ASSERT_EQ(value("select min(length(Nombre) + length(Apellidos)) from jugadores where idequipo = ?", user), 80);
    declineFriendlies();
    runWeekEvents();
    const game::Fixture fixture = *m_navigator->career().week().fixture();
    ASSERT_GT((fixture.homeId == user ? fixture.awayName : fixture.homeName).size(), 80);

    click("cmdSeguir");
    callUpFirstFourteen();
    click("cmdJugar");
    ASSERT_NE(match(), nullptr);
    EXPECT_EQ(QRect(match()->mapToGlobal(QPoint()), match()->size()),
              QRect(m_window->mapToGlobal(QPoint()), m_window->size()));

    // Each goal shows at once in figures, whole.
    for (int half = 0; half < 2; ++half) {
        click("cmdStart");
        for (int guard = 0; guard < 1000 && match()->engine().running(); ++guard) {
            const int goals = match()->engine().score(0) + match()->engine().score(1);
            match()->tick();
            if (match()->engine().score(0) + match()->engine().score(1) == goals)
                continue;
            settle();
            for (int side = 0; side < 2; ++side) {
                auto *score = entry("lblMarcador", side, match());
                ASSERT_EQ(score->text(), QString::number(match()->engine().score(side)));
                ASSERT_GE(score->width(), score->sizeHint().width()) << "the score " << score->text().toStdString();
            }
        }
    }
    settle();
    EXPECT_GT(match()->engine().score(0) + match()->engine().score(1), 10);
    expectMatchFits(1);
    EXPECT_LE(match()->sizeHint().width(), kWindow.width());
    EXPECT_LE(match()->minimumSizeHint().width(), kWindow.width());

    // Long names make long lines: each wraps within the list, none cut.
    auto *lines = find<QListWidget>("list2");
    EXPECT_EQ(lines->horizontalScrollBar()->maximum(), 0);
    const QFontMetrics metrics(lines->font());
    int longest = 0;
    for (int row = 0; row < lines->count(); ++row) {
        QListWidgetItem *line = lines->item(row);
        const QRect room = lines->visualItemRect(line);
        const QRect needed = metrics.boundingRect(QRect(0, 0, room.width(), 10000), Qt::TextWordWrap, line->text());
        EXPECT_LE(room.right(), lines->viewport()->width()) << line->text().toStdString();
        EXPECT_LE(needed.height(), room.height()) << line->text().toStdString();
        longest = std::max(longest, metrics.horizontalAdvance(line->text()));
    }
    EXPECT_GT(longest, lines->viewport()->width()); // some line had to wrap
    screenshot("match_long_names", match());
}
