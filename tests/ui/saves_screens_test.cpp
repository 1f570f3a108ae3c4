#include "career/saves.h"
#include "career/weekpanel.h"
#include "screenfixture.h"
#include "sim/autoseason.h"

#include <QChartView>
#include <QCloseEvent>
#include <QComboBox>
#include <QSignalSpy>
#include <QXYSeries>
#include <QTableView>

// The window with careers kept in a folder of the test's own.
class SavedScreens : public ScreenTest
{
protected:
    void SetUp() override
    {
        ScreenTest::SetUp();
        m_saves = std::make_unique<game::Saves>(m_folder.filePath("carreras"));
        m_navigator->setSaves(m_saves.get());
    }

    // A new career of Barcelona in the window, planned without friendlies, at its first week
    // with the week's events run.
    void reachFirstWeek()
    {
        reachFirstLeagueWeek("IBarcelona");
        takeBroadcast();
    }

    // Closes the main window by its frame, as the window manager does.
    bool closeWindow()
    {
        QCloseEvent close;
        QApplication::sendEvent(m_window.get(), &close);
        settle();
        return close.isAccepted();
    }

    std::unique_ptr<game::Saves> m_saves;
};

// Guards: a way out of a career that throws it away without a word, or asks and still leaves
// when the player says No, leaves without saving it, or leaves its screens or file behind;
// "CONTINUAR" that opens a new week (wages charged twice, a second ledger row), runs the
// week's events again, or brings back another career than the last one played.
TEST_F(SavedScreens, everyWayOutOfACareerAsksAndKeepsTheCareerForContinuar)
{
    goToMenu();
    screenshot("menu_continue");
    click("cmdContinuar"); // nothing saved yet
    EXPECT_TRUE(m_dialogs.texts().value(0).contains("No hay ninguna carrera guardada"));

    const QString question = QStringLiteral("Salir|¿Salir de la partida? La carrera queda guardada y podrás continuarla "
                                            "desde el menú.");
    struct Way
    {
        const char *name;
        std::function<void()> leave;
        const char *screenAfterYes;
    };
    const Way ways[] = {
        {"panel", [this] { click("Command4"); }, "Form1"},
        {"menu",
         [this] {
             goToMenu();
             click("Image3");
         },
         nullptr},
        {"window", [this] { closeWindow(); }, nullptr},
    };
    for (const Way &way : ways) {
        reachFirstWeek();
        const qint64 week = m_store->integer("select jornada from datos_jugador");
        const QString ledger = dump("caja");
        m_dialogs.clear();
        m_dialogs.answer({false});
        way.leave();
        EXPECT_EQ(m_dialogs.questions(), QStringList{question}) << way.name;
        EXPECT_TRUE(m_navigator->career().inProgress()) << way.name;
        EXPECT_EQ(m_store->integer("select jornada from datos_jugador"), week) << way.name;

        QSignalSpy finished(m_navigator.get(), &app::Navigator::finished);
        m_dialogs.clear();
        m_dialogs.answer({true});
        way.leave();
        EXPECT_EQ(m_dialogs.questions(), QStringList{question}) << way.name;
        EXPECT_FALSE(m_navigator->career().inProgress()) << way.name;
        ASSERT_TRUE(m_saves->latest().has_value()) << way.name;
        EXPECT_EQ(m_saves->latest()->week, week) << way.name;
        EXPECT_EQ(fileBytes(workingPath()), fileBytes(pristinePath())) << way.name;
        if (way.screenAfterYes) {
            EXPECT_EQ(at(), QLatin1String(way.screenAfterYes)) << way.name;
            EXPECT_EQ(find("Panel_Control_Manager"), nullptr) << way.name;
            // Taken up again from the menu: the same week, its ledger and events as they were.
            m_dialogs.clear();
            go("cmdContinuar", "Panel_Control_Manager");
            EXPECT_EQ(text("lblJornada"), QString::number(week));
            EXPECT_EQ(dump("caja"), ledger);
            runWeekEvents();
            EXPECT_TRUE(m_dialogs.texts().isEmpty());
            EXPECT_TRUE(m_navigator->window().windowTitle().contains("Chema Ruiz"));
        } else {
            EXPECT_EQ(finished.count(), 1) << way.name;
        }
        m_navigator.reset();
        m_navigator = std::make_unique<app::Navigator>(*m_context, *m_window);
        m_navigator->setSaves(m_saves.get());
    }
    // Without a career nothing is asked.
    m_dialogs.clear();
    EXPECT_TRUE(m_navigator->mayLeave());
    EXPECT_TRUE(m_dialogs.questions().isEmpty());
}

// Guards: a load list that shows what the saves do not say, deletes without asking or deletes
// when the player says No, or loads another career than the one chosen.
TEST_F(SavedScreens, theLoadListShowsEachCareerAndDeletesOnlyWhenAsked)
{
    for (const char *crest : {"IBarcelona", "IValencia"}) {
        startCareerFromMenu(QString::fromLatin1(crest));
        m_dialogs.answer({true});
        click("cmdVOLVER"); // the planner back to the menu: the career stays
        goToMenu();
        click("Image3");
        m_navigator.reset();
        m_navigator = std::make_unique<app::Navigator>(*m_context, *m_window);
        m_navigator->setSaves(m_saves.get());
    }
    goToMenu();
    go("cmdCargar", "Cargar");
    auto *list = find<QTableView>("DGPartidas");
    ASSERT_NE(list, nullptr);
    ASSERT_EQ(list->model()->rowCount(), 2);
    // The latest first, with its crest, manager, club, season, week, date and budget.
    EXPECT_EQ(cell(list, 0, 0), "BM VALENCIA");
    EXPECT_FALSE(list->model()->index(0, 0).data(Qt::DecorationRole).value<QPixmap>().isNull());
    EXPECT_EQ(cell(list, 0, 1), "Chema Ruiz");
    EXPECT_EQ(cell(list, 0, 2), "2004-2005");
    EXPECT_EQ(cell(list, 0, 3), "Pretemporada");
    EXPECT_TRUE(cell(list, 0, 5).endsWith(" €"));
    screenshot("load");

    list->selectRow(1);
    m_dialogs.answer({false});
    click("cmdBorrar");
    EXPECT_EQ(list->model()->rowCount(), 2);
    m_dialogs.answer({true});
    click("cmdBorrar");
    ASSERT_EQ(list->model()->rowCount(), 1);
    EXPECT_EQ(m_saves->list().size(), 1u);

    go("cmdCargar", "Pretemporada");
    EXPECT_EQ(find<QLabel>("lblEquipo")->text(), "BM VALENCIA");
}

// Guards: a history screen that loses a season, counts the place upside down, or draws no
// chart; the season's years that stand still in the dates the player reads.
TEST_F(SavedScreens, theHistoryTellsThreeSeasonsInATableAndTwoCharts)
{
    m_random = ScriptedRandom(17);
    std::vector<game::AutoSeason::SeasonSummary> summaries;
    {
        game::AutoSeason season(*m_context, {5, 2, game::AutoSeason::Policy::Busy});
        ASSERT_TRUE(season.begin());
        for (int played = 0; played < 3; ++played) {
            while (season.playWeek()) {
            }
            game::AutoSeason::SeasonSummary summary;
            ASSERT_TRUE(season.closeSeason(&summary)) << season.failure().toStdString();
            summaries.push_back(summary);
        }
        ASSERT_TRUE(season.playWeek()); // the fourth season's first week played, its goals counted
    }
    ASSERT_TRUE(m_navigator->career().resume());
    m_navigator->showPanel();
    settle();
    // The fourth season's dates fall three years on.
    EXPECT_TRUE(find<QLabel>("lblFecha")->text().endsWith("2007"));

    go("cmdHistorial", "Historial");
    auto *seasons = find<QTableView>("DGTemporadas");
    ASSERT_NE(seasons, nullptr);
    ASSERT_EQ(seasons->model()->rowCount(), 3);
    for (int row = 0; row < 3; ++row) {
        EXPECT_EQ(cell(seasons, row, 0), QStringLiteral("%1-%2").arg(2004 + row).arg(2005 + row));
        EXPECT_EQ(cell(seasons, row, 1), summaries[std::size_t(row)].champion);
        EXPECT_EQ(cell(seasons, row, 2).toInt(), summaries[std::size_t(row)].place);
    }
    auto *scorers = find<QTableView>("DGGoleadores");
    ASSERT_NE(scorers, nullptr);
    EXPECT_GT(scorers->model()->rowCount(), 0); // the season under way
    auto *picker = find<QComboBox>("cboTemporada");
    picker->setCurrentIndex(picker->count() - 1); // 2004-2005
    EXPECT_EQ(cell(scorers, 0, 0), cell(seasons, 0, 10).section(" (", 0, 0));
    for (const char *chart : {"chartPuestos", "chartPresupuesto"}) {
        auto *view = find<QChartView>(QString::fromLatin1(chart));
        ASSERT_NE(view, nullptr) << chart;
        ASSERT_FALSE(view->chart()->series().isEmpty()) << chart;
        EXPECT_EQ(qobject_cast<QXYSeries *>(view->chart()->series().front())->count(), 3) << chart;
    }
    expectTidy("history");
    screenshot("history");
}
