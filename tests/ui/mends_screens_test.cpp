// Screens as the player meets them at their edges: the ledger's chart, the seasons' names, the
// planner at its limits, a pasted sum, the match window, and the verdict.

#include "career/crestbutton.h"
#include "career/seasonclose.h"
#include "match/callup.h"
#include "reports/verdictscreen.h"
#include "screenfixture.h"

#include <QBarSeries>
#include <QBarSet>
#include <QChartView>
#include <QClipboard>
#include <QLineSeries>

#include <functional>
#include <map>

class MendsScreens : public ScreenTest
{
protected:
    QString clubName(int id) { return m_store->text("select NombreEquipo from equipos where idequipo = ?", id); }

    // Every label of the screen on show, by name and index, with its text.
    std::vector<std::pair<QString, QString>> labels()
    {
        std::vector<std::pair<QString, QString>> texts;
        for (QLabel *label : m_navigator->current()->findChildren<QLabel *>())
            texts.emplace_back(label->objectName() + label->property("index").toString(), label->text());
        return texts;
    }

    // From an open week to the verdict: the week is moved to the season's 29th, its match
    // played, then the 30th played from the panel as the player does.
    void playToTheVerdict()
    {
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
        runWeekEvents();
        if (m_navigator->screen(QStringLiteral("Tele")))
            click(QStringLiteral("cmdOK"));
        click(QStringLiteral("cmdSeguir"));
        callUpFirstFourteen();
        click(QStringLiteral("cmdJugar"));
        ASSERT_NE(match(), nullptr);
        playHalf();
        playHalf();
        click(QStringLiteral("cmdSalir"));
        settle();
    }
};

// Guards: a chart that misses a week, or draws its bars or its line from another column.
TEST_F(MendsScreens, theLedgerChartsEachWeekOfTheSeasonFromItsRow)
{
    reachFirstLeagueWeek();
    playTheWeek(true);
    playTheWeek(false);
    click(QStringLiteral("cmdCaja"));
    auto *view = find<QChartView>(QStringLiteral("chartCaja"));
    ASSERT_NE(view, nullptr);
    QBarSeries *bars = nullptr;
    QLineSeries *balance = nullptr;
    for (QAbstractSeries *series : view->chart()->series()) {
        bars = bars ? bars : qobject_cast<QBarSeries *>(series);
        balance = balance ? balance : qobject_cast<QLineSeries *>(series);
    }
    ASSERT_TRUE(bars && balance && bars->count() == 2);
    const qint64 weeks = count("caja");
    ASSERT_EQ(weeks, 3);
    ASSERT_EQ(balance->count(), weeks);
    const auto set = [&](const QString &label) {
        for (QBarSet *bar : bars->barSets()) {
            if (bar->label() == label)
                return bar;
        }
        return static_cast<QBarSet *>(nullptr);
    };
    ASSERT_TRUE(set(QStringLiteral("Ingresos")) && set(QStringLiteral("Gastos")));
    for (int week = 1; week <= weeks; ++week) {
        const int i = week - 1;
        const std::pair<const char *, double> columns[] = {{"ingresos", set(QStringLiteral("Ingresos"))->at(i)},
                                                           {"gastos", set(QStringLiteral("Gastos"))->at(i)},
                                                           {"caja", balance->at(i).y()}};
        for (const auto &[column, shown] : columns)
            EXPECT_EQ(shown, double(m_store->integer("select " + std::string(column) + " from caja where semana = ?", week)))
                << column << " of week " << week;
    }
    // The chart lies in the window beside the figures, over none of them.
    expectTidy(QStringLiteral("ledger"));
    const auto area = [](QWidget *widget) { return QRect(widget->mapTo(widget->window(), QPoint()), widget->size()); };
    EXPECT_TRUE(m_window->rect().contains(area(view)));
    for (QWidget *widget : m_navigator->current()->findChildren<QWidget *>()) {
        const bool figure = qobject_cast<QLabel *>(widget) || qobject_cast<QAbstractButton *>(widget);
        EXPECT_FALSE(figure && widget->isVisible() && area(widget).intersects(area(view)))
            << widget->objectName().toStdString();
    }
    screenshot(QStringLiteral("ledger_chart"));
}
