// The way between the screens as a player walks it: the panel shown again and again, its
// buttons, the titles of the window, ten weeks in a row and a match of very long names.

#include "career/weekpanel.h"
#include "common/indexedlabel.h"
#include "match/matchscreen.h"
#include "match/callup.h"
#include "screenfixture.h"

#include <QSet>
#include <QRegularExpression>

#include <utility>

namespace {

// Every button of the panel and the screen it opens.
const std::pair<const char *, const char *> kPanelButtons[] = {
    {"cmdAlineacion", "Alinear"}, {"cmdSeguir", "Alinear"},     {"Command3", "Tactica"},
    {"cmdPlantilla", "Plantilla"}, {"c", "Calendario"},          {"cmdClasificacion", "Clasificacion"},
    {"cmdResultados", "Resultados"}, {"cmdCaja", "Caja"},        {"cmdEstadio", "estadios"},
    {"cmdfichar", "Fichar_EnVenta"}};

const QSize kWindow(1280, 720);

} // namespace

class NavigatorScreens : public ScreenTest
{
protected:
    void declineFriendlies()
    {
        for (int slot = 0; slot < 5; ++slot)
            click(QStringLiteral("cmdNoJugar"));
        click(QStringLiteral("cmdSeguir"));
        ASSERT_EQ(m_navigator->current()->objectName(), QStringLiteral("Panel_Control_Manager"));
        panel()->runWeekEvents();
    }

    ui::WeekPanel *panel() { return m_navigator->screen<ui::WeekPanel>(QStringLiteral("Panel_Control_Manager")); }
    // The week's clock as the store keeps it: the week, the ledger and the club's budget.
    QString clock()
    {
        return QStringLiteral("%1/%2/%3").arg(m_store->integer("select jornada from datos_jugador"))
            .arg(count("caja"))
            .arg(m_store->integer("select presupuesto from infoteams where idequipo = ?", club()));
    }

    // The match stands over the window and within it, whole and tidy, and the window has not
    // grown.
    void expectMatchFits(int week)
    {
        EXPECT_TRUE(m_window->frameGeometry().contains(match()->frameGeometry())) << week;
        expectTidy(QStringLiteral("week %1").arg(week), match());
    }

    // A title the player reads: not empty, no column name, no unfilled argument.
    static void expectRealTitle(const QString &title)
    {
        EXPECT_FALSE(title.trimmed().isEmpty());
        for (const char *word : {"nombre_jugador", "NombreEquipo", "equipo_local", "equipo_visitante", "idequipo"})
            EXPECT_FALSE(title.contains(QString::fromLatin1(word), Qt::CaseInsensitive)) << title.toStdString();
        EXPECT_FALSE(title.contains(QRegularExpression(QStringLiteral("%\\d|\\{\\w*\\}")))) << title.toStdString();
    }
};

// Guards: a way back to the panel (showing it again, or leaving a report, the ledger, the
// tactics or the call-up) that opens the week again and charges the wages a second time.
TEST_F(NavigatorScreens, comingBackToThePanelNeverOpensTheWeekAgain)
{
    reachFirstLeagueWeek();
    const QString before = clock();
    const QString ledger = dump("caja");
    ASSERT_EQ(before.section(QLatin1Char('/'), 0, 1), QStringLiteral("1/1"));

    m_navigator->showPanel();
    m_navigator->showPanel();
    settle();
    for (const char *button : {"c", "cmdCaja", "Command3", "cmdAlineacion"}) {
        click(QString::fromLatin1(button));
        ASSERT_NE(m_navigator->current()->objectName(), QStringLiteral("Panel_Control_Manager")) << button;
        click(QStringLiteral("cmdVOLVER"));
        ASSERT_EQ(m_navigator->current()->objectName(), QStringLiteral("Panel_Control_Manager")) << button;
        m_navigator->showPanel();
        settle();
        EXPECT_EQ(clock(), before) << button;
    }
    EXPECT_EQ(dump("caja"), ledger);
    EXPECT_EQ(m_navigator->career().week().number(), 1);
    EXPECT_EQ(find<QLabel>(QStringLiteral("lblJornada"))->text(), QStringLiteral("1"));
}

// Guards: a panel button enabled for a screen that does not exist, or left disabled once
// the screen has been added to the game's table after the panel was made.
TEST_F(NavigatorScreens, aPanelButtonFollowsWhetherItsScreenExistsEvenWhenAddedLater)
{
    reachFirstLeagueWeek();
    for (const auto &[button, screen] : kPanelButtons)
        EXPECT_EQ(find<QPushButton>(QString::fromLatin1(button))->isEnabled(),
                  m_navigator->has(QString::fromLatin1(screen)))
            << button;

    // A panel whose game gains a screen after the panel was made: the button lights up the
    // next time the week is shown, and asks for that screen.
    QSet<QString> existing{QStringLiteral("Caja")};
    ui::WeekPanel panel(m_navigator->career(), [&existing](const QString &name) { return existing.contains(name); });
    panel.showWeek();
    auto *standings = panel.findChild<QPushButton *>(QStringLiteral("cmdClasificacion"));
    ASSERT_NE(standings, nullptr);
    EXPECT_FALSE(standings->isEnabled());
    EXPECT_TRUE(panel.findChild<QPushButton *>(QStringLiteral("cmdCaja"))->isEnabled());
    existing.insert(QStringLiteral("Clasificacion"));
    panel.showWeek();
    EXPECT_TRUE(standings->isEnabled());
    QStringList asked;
    QObject::connect(&panel, &ui::WeekPanel::openRequested, [&asked](const QString &name) { asked << name; });
    standings->click();
    EXPECT_EQ(asked, QStringList{QStringLiteral("Clasificacion")});
}

// Guards: a window title showing a column name or an empty argument instead of the manager,
// his club and the week's real fixture.
TEST_F(NavigatorScreens, theWindowTitlesNameTheManagerTheClubAndTheRealFixture)
{
    reachFirstLeagueWeek();
    const game::Fixture fixture = *m_navigator->career().week().fixture();
    const QString title = m_window->windowTitle();
    for (const QString &piece : {QStringLiteral("Chema Ruiz"), m_navigator->career().week().career().clubName, fixture.homeName,
                                fixture.awayName, QStringLiteral("LIGA"), QStringLiteral("Jornada 1")})
        EXPECT_TRUE(!piece.isEmpty() && title.contains(piece)) << title.toStdString() << " lacks " << piece.toStdString();
    EXPECT_TRUE(title.contains(game::shownDate(fixture.date))) << title.toStdString();
    EXPECT_NE(fixture.homeName, fixture.awayName);
    expectRealTitle(title);

    // A page over the panel shows its own title (each page's is checked with its frame), and the
    // panel's comes back with it.
    for (const char *button : {"cmdSeguir", "cmdCaja"}) {
        click(QString::fromLatin1(button));
        EXPECT_NE(m_window->windowTitle(), title) << button;
        click(QStringLiteral("cmdVOLVER"));
        EXPECT_EQ(m_window->windowTitle(), title) << button;
    }
}

// Guards: a week that does not move on in the window, a ledger row lost or doubled, the
// call-up forgotten between weeks, or a panel or match that outgrows the 1280×720 window.
TEST_F(NavigatorScreens, tenWeeksPlayedInTheWindowKeepTheirCountAndTheirSize)
{
    reachFirstLeagueWeek();
    for (int week = 1; week <= 10; ++week) {
        ASSERT_EQ(m_navigator->current()->objectName(), QStringLiteral("Panel_Control_Manager")) << week;
        panel()->runWeekEvents();
        EXPECT_EQ(find<QLabel>(QStringLiteral("lblJornada"))->text(), QString::number(week));
        EXPECT_TRUE(m_window->windowTitle().contains(QStringLiteral("Jornada %1").arg(week)))
            << m_window->windowTitle().toStdString();
        EXPECT_EQ(count("caja"), week);
        EXPECT_EQ(m_window->size(), kWindow) << week;
        EXPECT_TRUE(QRect(QPoint(0, 0), kWindow).contains(panel()->geometry())) << week;
        for (QLabel *label : panel()->findChildren<QLabel *>()) {
            if (label->isVisible())
                EXPECT_TRUE(panel()->rect().contains(label->geometry())) << week << label->objectName().toStdString();
        }
        if (week == 1 || week == 5 || week == 10)
            screenshot(QStringLiteral("week_%1_panel").arg(week));

        click(QStringLiteral("cmdSeguir"));
        ASSERT_EQ(m_navigator->current()->objectName(), QStringLiteral("Alinear")) << week;
        // The squad once chosen stays: only the first week calls anyone up.
        if (week == 1)
            callUpFirstFourteen();
        m_dialogs.clear();
        click(QStringLiteral("cmdJugar"));
        ASSERT_NE(match(), nullptr) << "week " << week << ": " << m_dialogs.texts().join(QLatin1Char('|')).toStdString();
        playHalf();
        playHalf();
        ASSERT_TRUE(match()->engine().finished()) << week;
        expectMatchFits(week);
        if (week == 10)
            screenshot(QStringLiteral("week_10_match_full_time"), match());
        click(QStringLiteral("cmdSalir"));
        settle();
        EXPECT_EQ(match(), nullptr) << week;
    }
    EXPECT_EQ(find<QLabel>(QStringLiteral("lblJornada"))->text(), QStringLiteral("11"));
    EXPECT_EQ(m_store->integer("select jornada from datos_jugador"), 11);
    EXPECT_EQ(m_store->integer("select count(*) from liga_asobal where jornada <= 10"
                               " and goles_equipo_local + goles_equipo_visitante > 0"),
              80);
}

// Guards: the stadium and its money as a player lives them in the window going wrong
// between screens: a work ordered that never ends or ends early, its cost missing from the
// ledger, a price set on match day that the gate does not use, a broadcast that pays
// nothing.
TEST_F(NavigatorScreens, aWorkOrderedInTheWindowEndsWeeksLaterAndTheMoneyReachesTheLedger)
{
    reachFirstLeagueWeek(); // Valencia: toilets at the second level, a shop already built
    int broadcasts = 0;
    auto takeBroadcast = [&] {
        if (m_navigator->screen(QStringLiteral("Tele"))) {
            click(QStringLiteral("cmdOK"));
            ++broadcasts;
        }
    };
    takeBroadcast();

    click(QStringLiteral("cmdEstadio"));
    ASSERT_EQ(m_navigator->current()->objectName(), QStringLiteral("estadios"));
    click(QStringLiteral("cmdRemodelar"));
    click(QStringLiteral("cmdServicios"));
    click(QStringLiteral("cmdWc"));
    auto *toilets = find<QCheckBox>(QStringLiteral("Option26")); // "40 Lavabos": three weeks
    ASSERT_NE(toilets, nullptr);
    ASSERT_TRUE(toilets->isEnabled());
    toilets->click();
    m_dialogs.clear();
    click(QStringLiteral("cmdYA"));
    EXPECT_EQ(m_dialogs.texts(), QStringList{QStringLiteral("Las Obras Empezarán en la Jornada Actual")});
    click(QStringLiteral("cmdVOLVER"));

    const QString finished = QStringLiteral("Las Obras de La mejora de las LAVABOS Han Terminado");
    bool pricedAHomeMatch = false;
    for (int week = 1; week <= 3; ++week) {
        const auto &fixture = m_navigator->career().week().fixture();
        ASSERT_TRUE(fixture.has_value());
        const bool home = fixture->homeId == club();
        if (home && !pricedAHomeMatch) {
            // Match day at home: the ticket goes up one step before the match.
            click(QStringLiteral("cmdEstadio"));
            click(QStringLiteral("cmdPartido"));
            EXPECT_TRUE(find(QStringLiteral("Entradas"))->isVisible());
            click(QStringLiteral("cmdmas"));
            EXPECT_EQ(m_store->integer("select precio_entrada from entradas where idPrecio = 1"), 15);
            click(QStringLiteral("cmdVOLVER"));
        }
        click(QStringLiteral("cmdSeguir"));
        if (week == 1)
            callUpFirstFourteen();
        click(QStringLiteral("cmdJugar"));
        ASSERT_NE(match(), nullptr) << week;
        if (home && !pricedAHomeMatch) {
            // The crowd pays the price just set.
            const QString entry = find<QLabel>(QStringLiteral("lblEntrada"))->text();
            const int attendance = entry.section(QLatin1Char(' '), 1, 1).toInt();
            ASSERT_GT(attendance, 0) << entry.toStdString();
            EXPECT_EQ(find<QLabel>(QStringLiteral("lblRecaudacion1"))->text(),
                      QStringLiteral("RECAUDACIÓN: %1 €").arg(attendance * 15));
            pricedAHomeMatch = true;
        }
        playHalf();
        playHalf();
        m_dialogs.clear();
        click(QStringLiteral("cmdSalir"));
        settle();
        panel()->runWeekEvents();
        settle();
        takeBroadcast();
        // The work ends at the opening of the week it was ordered in plus its three weeks.
        EXPECT_EQ(m_dialogs.texts().contains(finished), week == 3) << week;
        EXPECT_EQ(m_store->integer("select lavabos from estadios where idequipo = ?", club()), week == 3 ? 3 : 2) << week;
    }
    EXPECT_TRUE(pricedAHomeMatch);
    EXPECT_EQ(count("selects"), 0);

    click(QStringLiteral("cmdCaja"));
    QWidget *ledger = m_navigator->current();
    ASSERT_EQ(ledger->objectName(), QStringLiteral("Caja"));
    EXPECT_EQ(indexed::find(ledger, QStringLiteral("lblRemodelar"), 0)->text(), QStringLiteral("612000 €"));
    EXPECT_EQ(indexed::find(ledger, QStringLiteral("lblTelevision"), 1)->text(),
              QStringLiteral("%1 €").arg(qint64(broadcasts) * 450000));
    screenshot(QStringLiteral("ledger_works_finished"));
}

// Guards: the market as a player lives it in the window going wrong across weeks: an offer
// answered early, late or never, a signing that does not move the player, a listed player
// never bid for, or a sale that leaves him in the squad or pays nothing.
TEST_F(NavigatorScreens, anOfferIsAnsweredThreeWeeksLaterAndAListedPlayerIsSoldOnABid)
{
    reachFirstLeagueWeek();
    if (m_navigator->screen(QStringLiteral("Tele")))
        click(QStringLiteral("cmdOK"));
    // Each screen's own way back, until the panel is on show.
    auto backToPanel = [this] {
        for (int step = 0; step < 5 && m_navigator->current()->objectName() != QStringLiteral("Panel_Control_Manager");
             ++step) {
            QWidget *page = m_navigator->current();
            if (page->findChild<QAbstractButton *>(QStringLiteral("cmdCancelar")))
                page->findChild<QAbstractButton *>(QStringLiteral("cmdCancelar"))->click();
            else
                page->findChild<QAbstractButton *>(QStringLiteral("cmdVOLVER"))->click();
            settle();
        }
        ASSERT_EQ(m_navigator->current()->objectName(), QStringLiteral("Panel_Control_Manager"));
    };

    // An offer for a listed back, at the terms he asks.
    click(QStringLiteral("cmdfichar"));
    ASSERT_EQ(m_navigator->current()->objectName(), QStringLiteral("Fichar_EnVenta"));
    auto *backs = find<QTableView>(QStringLiteral("DGLaterales"));
    const int signing = backs->model()->index(0, 0).data().toInt();
    ASSERT_GT(signing, 0);
    pickRow(backs, 0);
    ASSERT_EQ(m_navigator->current()->objectName(), QStringLiteral("Fichar_Jugadores"));
    click(QStringLiteral("cmdfichar"));
    EXPECT_EQ(m_store->integer("select count(*) from selects where jugador = ? and jornada = 1", signing), 1);
    backToPanel();

    // One of the squad listed from its contract screen, the rest too, so that bids come.
    click(QStringLiteral("cmdPlantilla"));
    auto *centres = find<QTableView>(QStringLiteral("DataGrid4"));
    const int listed = centres->model()->index(0, 0).data().toInt();
    pickRow(centres, 0);
    ASSERT_EQ(m_navigator->current()->objectName(), QStringLiteral("Renovar"));
    click(QStringLiteral("cmdTransferir"));
    EXPECT_EQ(m_store->integer("select venta from jugadores where idjugador = ?", listed), 1);
    backToPanel();
    ASSERT_TRUE(m_store->run([&] {
        m_store->execute("update jugadores set venta = 1 where idequipo = ? and idjugador <> ?", club(), listed);
    }).ok());
    m_dialogs.answer({true, true, true, true, true, true, true, true, true, true});

    bool signedHim = false;
    int sales = 0;
    for (int week = 1; week <= 8 && (!signedHim || sales == 0); ++week) {
        click(QStringLiteral("cmdSeguir"));
        if (week == 1)
            callUpFirstFourteen();
        // A sold man leaves a hole in the fourteen: the next of the squad takes it.
        for (int place = 0; place < 14; ++place) {
            if (find<QListWidget>(QStringLiteral("list1"))->item(place)->text().endsWith(QStringLiteral(" - "))) {
                auto *grid = find<QTableView>(QStringLiteral("DataGrid1"));
                for (int row = 0; row < grid->model()->rowCount(); ++row) {
                    const int id = grid->model()->index(row, 0).data().toInt();
                    if (m_store->integer("select count(*) from miequipo where idjugador = ?", id) == 0) {
                        grid->setCurrentIndex(grid->model()->index(row, 2));
                        find<QListWidget>(QStringLiteral("list1"))->setCurrentRow(place);
                        click(QStringLiteral("cmdAñadir"));
                        break;
                    }
                }
            }
        }
        click(QStringLiteral("cmdJugar"));
        ASSERT_NE(match(), nullptr) << week << ' ' << m_dialogs.texts().join(QLatin1Char('|')).toStdString();
        playHalf();
        playHalf();
        m_dialogs.clear();
        click(QStringLiteral("cmdSalir"));
        settle();
        panel()->runWeekEvents();
        settle();
        if (m_navigator->screen(QStringLiteral("Tele")))
            click(QStringLiteral("cmdOK"));
        const int opened = week + 1;
        const bool answered = m_store->integer("select idequipo from jugadores where idjugador = ?", signing) == club();
        // The offer of week 1 is answered at the opening of week 4, not before.
        EXPECT_EQ(answered, opened >= 4) << opened;
        if (answered && !signedHim) {
            EXPECT_TRUE(m_dialogs.texts().join(QLatin1Char('|')).contains(QStringLiteral("Has Fichado a "))) << opened;
            EXPECT_GT(m_store->integer("select Gastos_Fichajes from caja where semana = ?", opened), 0);
            signedHim = true;
        }
        sales += int(m_store->integer("select count(*) from caja where semana = ? and Ingresos_Venta_Jugador > 0", opened));
    }
    EXPECT_TRUE(signedHim);
    EXPECT_GT(sales, 0);
    EXPECT_GE(m_store->integer("select count(*) from jugadores where idequipo = ?", club()), 14);
}

// Guards: a career that stops after the last round, a verdict that never shows, orders left
// for a season that no longer exists, or a new season whose first week is charged twice.
TEST_F(NavigatorScreens, theLastRoundLeadsToTheVerdictAndTheNextPreseason)
{
    reachFirstLeagueWeek();
    // The season is played up to its last week.
    ASSERT_TRUE(m_store->run([&] { m_store->execute("update datos_jugador set jornada = 29"); }).ok());
    game::CallUp(*m_context).chooseBest();
    game::MatchEngine *played = m_navigator->career().kickOff();
    ASSERT_NE(played, nullptr);
    for (int half = 0; half < 2; ++half) {
        played->start();
        while (played->running())
            played->tick();
    }
    m_navigator->matchOver();
    settle();
    panel()->runWeekEvents();
    settle();
    if (m_navigator->screen(QStringLiteral("Tele")))
        click(QStringLiteral("cmdOK"));
    ASSERT_EQ(find<QLabel>(QStringLiteral("lblJornada"))->text(), QStringLiteral("30"));
    click(QStringLiteral("cmdSeguir"));
    callUpFirstFourteen();
    click(QStringLiteral("cmdJugar"));
    ASSERT_NE(match(), nullptr);
    playHalf();
    playHalf();
    click(QStringLiteral("cmdSalir"));
    settle();

    // The week after the last: the verdict, over the window.
    QWidget *verdict = m_navigator->screen(QStringLiteral("Finall"));
    ASSERT_NE(verdict, nullptr);
    EXPECT_TRUE(verdict->isVisible());
    const QString champion = m_store->text("select NombreEquipo from equipos where idequipo ="
                                           " (select teams from asobal where puesto_anterior = 16)");
    EXPECT_EQ(find<QLabel>(QStringLiteral("win"))->text(), champion);
    EXPECT_EQ(find<QLabel>(QStringLiteral("pos"))->text(),
              QString::number(m_store->integer("select puesto_anterior from asobal where teams = ?", club())));
    EXPECT_EQ(count("calendario"), 0);
    EXPECT_EQ(count("caja"), 0);
    screenshot(QStringLiteral("season_verdict"), verdict);

    click(QStringLiteral("cmdOK"));
    settle();
    EXPECT_EQ(m_navigator->screen(QStringLiteral("Finall")), nullptr);
    ASSERT_EQ(m_navigator->current()->objectName(), QStringLiteral("Pretemporada"));
    EXPECT_EQ(count("selects"), 0);
    EXPECT_EQ(count("pretemporada"), 0);
    EXPECT_EQ(m_store->integer("select jornada from datos_jugador"), 0);

    const qint64 budget = m_store->integer("select presupuesto from infoteams where idequipo = ?", club());
    for (int slot = 0; slot < 5; ++slot)
        click(QStringLiteral("cmdNoJugar"));
    click(QStringLiteral("cmdSeguir"));
    ASSERT_EQ(m_navigator->current()->objectName(), QStringLiteral("Panel_Control_Manager"));
    EXPECT_EQ(find<QLabel>(QStringLiteral("lblJornada"))->text(), QStringLiteral("1"));
    EXPECT_EQ(count("caja"), 1);
    EXPECT_EQ(m_store->integer("select presupuesto from infoteams where idequipo = ?", club()),
              budget - m_store->integer("select Gastos_Fichas + Gastos_Empleados from caja where semana = 1"));

    // The close ranked the champion 16; the table of the new season, everybody on nought, puts
    // the first club at the top and writes 1 there, while last season's places stay for the
    // fixtures.
    const int champion16 = int(m_store->integer("select teams from asobal where puesto_anterior = 16"));
    EXPECT_EQ(m_store->integer("select puesto_actual from asobal where teams = ?", champion16), 16);
    click(QStringLiteral("cmdClasificacion"));
    ASSERT_EQ(m_navigator->current()->objectName(), QStringLiteral("Clasificacion"));
    EXPECT_EQ(indexed::find(m_navigator->current(), QStringLiteral("lblPos"), 0)->text(), QStringLiteral("1"));
    EXPECT_EQ(indexed::find(m_navigator->current(), QStringLiteral("lblEquipo"), 0)->text(),
              m_store->text("select NombreEquipo from equipos where idequipo = 1"));
    EXPECT_EQ(m_store->integer("select puesto_actual from asobal where teams = 1"), 1);
    EXPECT_EQ(m_store->integer("select count(distinct puesto_actual) from asobal where puesto_actual between 1 and 16"),
              16);
    EXPECT_EQ(m_store->integer("select puesto_anterior from asobal where teams = ?", champion16), 16);
    click(QStringLiteral("cmdVOLVER"));
    EXPECT_EQ(m_navigator->current()->objectName(), QStringLiteral("Panel_Control_Manager"));
}

// Guards: forty-letter names of players and a very long rival club widening the match
// screen past the window, or the window with it.
TEST_F(NavigatorScreens, theMatchScreenFitsTheWindowWhateverTheNames)
{
    startCareerFromMenu(QStringLiteral("IValencia"));
    ASSERT_EQ(m_navigator->current()->objectName(), QStringLiteral("Pretemporada"));
    const int user = club();
    // The names are changed before the first week opens, which reads its fixture's names.
    ASSERT_TRUE(m_store->run([&] {
        m_store->execute("update jugadores set Nombre = substr('Maximiliano' || idjugador || '"
                         "AlejandroFernandoBartolomeoXXXXXXXXXXXXXXXXXXXXXXXX', 1, 40),"
                         " Apellidos = substr('Fernandez' || idjugador || '"
                         "DeLaSantisimaTrinidadYCastellanosXXXXXXXXXXXXXXXXX', 1, 40) where idequipo = ?",
                         user);
        m_store->execute("update equipos set NombreEquipo = 'CLUB DEPORTIVO BALONMANO DE LA MUY NOBLE, MUY"
                         " LEAL Y SIEMPRE HEROICA CIUDAD NUMERO ' || idequipo where idequipo between 1 and 16"
                         " and idequipo <> ?",
                         user);
    }).ok());
    ASSERT_EQ(m_store->integer("select min(length(Nombre) + length(Apellidos)) from jugadores where idequipo = ?", user), 80);
    declineFriendlies();
    ASSERT_FALSE(HasFatalFailure());
    const game::Fixture fixture = *m_navigator->career().week().fixture();
    const QString rival = fixture.homeId == user ? fixture.awayName : fixture.homeName;
    ASSERT_GT(rival.size(), 80) << rival.toStdString();

    click(QStringLiteral("cmdSeguir"));
    callUpFirstFourteen();
    click(QStringLiteral("cmdJugar"));
    ASSERT_NE(match(), nullptr);
    playHalf();
    expectMatchFits(1);
    EXPECT_LE(match()->sizeHint().width(), kWindow.width());
    EXPECT_LE(match()->minimumSizeHint().width(), kWindow.width());
    screenshot(QStringLiteral("match_long_names"), match());
}
