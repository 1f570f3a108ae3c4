#pragma once

#include "career/weekpanel.h"
#include "common/elidedlabel.h"
#include "common/indexedlabel.h"
#include "match/callup.h"
#include "match/matchscreen.h"
#include "navigator.h"
#include "tempstore.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QEnterEvent>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMainWindow>
#include <QPainter>
#include <QPushButton>
#include <QScrollBar>
#include <QTableView>
#include <QTest>
#include <QTimer>

#include <algorithm>
#include <string>
#include <vector>

// A screen test: the real navigator and widgets over a copy of the pristine database, with
// scripted dialogs and no real browser.
class ScreenTest : public StoreTest
{
protected:
    void SetUp() override
    {
        StoreTest::SetUp();
        m_window = std::make_unique<QMainWindow>();
        m_window->resize(1280, 720);
        m_navigator = std::make_unique<app::Navigator>(*m_context, *m_window);
        m_navigator->setUrlOpener([this](const QUrl &url) {
            m_opened << url;
            return m_browserOpens;
        });
        m_window->show();
    }

    void TearDown() override
    {
        m_navigator.reset();
        m_window.reset();
        QApplication::processEvents();
    }

    // A widget of the game by its name. Screens reuse names ("Command2" is a button of the
    // menu and of the new career screen), so the open dialogs are searched first, then the
    // screen on show, then everything.
    template<typename T = QWidget>
    T *find(const QString &name)
    {
        QList<QWidget *> places;
        for (QWidget *top : QApplication::topLevelWidgets()) {
            if (qobject_cast<QDialog *>(top) && top->isVisible())
                places << top;
        }
        if (m_navigator && m_navigator->current())
            places << m_navigator->current();
        places << QApplication::topLevelWidgets();
        for (QWidget *place : std::as_const(places)) {
            if (place->objectName() == name && qobject_cast<T *>(place))
                return qobject_cast<T *>(place);
            if (T *child = place->findChild<T *>(name))
                return child;
        }
        return nullptr;
    }

    void click(const QString &name)
    {
        auto *button = find<QAbstractButton>(name);
        ASSERT_NE(button, nullptr) << name.toStdString();
        button->click();
        settle();
    }

    // Presses a button and arrives at the screen of that name.
    void go(const QString &button, const QString &screen)
    {
        click(button);
        ASSERT_EQ(at(), screen) << button.toStdString();
    }

    // Saves what the player sees: the window and, over it, the dialog that is open.
    void screenshot(const QString &name, QWidget *dialog = nullptr)
    {
        QApplication::processEvents();
        QPixmap picture = m_window->grab();
        if (dialog) {
            QPainter painter(&picture);
            painter.fillRect(picture.rect(), QColor(0, 0, 0, 110));
            const QPixmap front = dialog->grab();
            painter.drawPixmap((picture.width() - front.width()) / 2, (picture.height() - front.height()) / 2, front);
        }
        QDir().mkpath(QStringLiteral(ZARPAZO_SCREENSHOTS));
        EXPECT_TRUE(picture.save(QStringLiteral(ZARPAZO_SCREENSHOTS "/%1.png").arg(name)));
    }

    // Lets the event loop finish what the last act started, closed screens included.
    static void settle()
    {
        QApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QApplication::processEvents();
    }

    // Presses a row of a grid as the player does, on its second column's cell (the first is
    // the player's number, kept out of sight).
    void pickRow(QTableView *grid, int row)
    {
        ASSERT_GT(grid->model()->rowCount(), row);
        const QModelIndex index = grid->model()->index(row, 1);
        grid->scrollTo(index);
        QTest::mouseClick(grid->viewport(), Qt::LeftButton, {}, grid->visualRect(index).center());
        settle();
    }

    // The user's club.
    int club() { return int(m_store->integer("select idequipo from datos_jugador")); }

    // The ids a statement gives and the ids a grid shows (its first column), both sorted, to
    // compare a list on screen with the store.
    std::vector<int> storeIds(const std::string &sql)
    {
        std::vector<int> ids;
        game::GameStore::Query rows = m_store->query(sql);
        while (rows.next())
            ids.push_back(rows.integer(0));
        std::sort(ids.begin(), ids.end());
        return ids;
    }

    static std::vector<int> gridIds(QTableView *grid)
    {
        std::vector<int> ids;
        for (int row = 0; row < grid->model()->rowCount(); ++row)
            ids.push_back(grid->model()->index(row, 0).data().toInt());
        std::sort(ids.begin(), ids.end());
        return ids;
    }

    // The row of the grid that shows this player, or -1.
    static int rowOf(QTableView *grid, int player)
    {
        for (int row = 0; row < grid->model()->rowCount(); ++row) {
            if (grid->model()->index(row, 0).data().toInt() == player)
                return row;
        }
        return -1;
    }

    // The text of a cell of a grid.
    static QString cell(QTableView *grid, int row, int column) { return grid->model()->index(row, column).data().toString(); }

    // Types into a box as the player would; text beyond ASCII goes in as one insertion.
    void type(const QString &name, const QString &text)
    {
        auto *box = find<QLineEdit>(name);
        ASSERT_NE(box, nullptr) << name.toStdString();
        box->setFocus();
        bool ascii = true;
        for (QChar c : text)
            ascii = ascii && c.unicode() < 128;
        if (ascii)
            QTest::keyClicks(box, text);
        else
            box->insert(text);
    }

    void goToMenu() { m_navigator->showMenu(), QApplication::processEvents(); }

    // From the menu to the planner with a manager and the club of that crest.
    void startCareerFromMenu(const QString &crest)
    {
        goToMenu();
        click("Command4");
        type("txtNombre", "Chema");
        type("txtApellidos", "Ruiz");
        QTest::mouseClick(find(crest), Qt::LeftButton);
        click("cmdSeguir");
    }

    // A new career with the club of that crest, every friendly declined, on the panel of its
    // first week, a league round; the week's events run as the panel's timer would run them.
    void reachFirstLeagueWeek(const QString &crest = "IValencia")
    {
        startCareerFromMenu(crest);
        declineFriendlies();
        ASSERT_EQ(at(), "Panel_Control_Manager");
        runWeekEvents();
    }

    // On the planner: every friendly declined, and on to the first week's panel.
    void declineFriendlies()
    {
        for (int slot = 0; slot < 5; ++slot)
            click("cmdNoJugar");
        click("cmdSeguir");
    }

    // The name of the screen on show.
    QString at() { return m_navigator->current() ? m_navigator->current()->objectName() : QString(); }

    // The broadcast of the week, when television bought it, taken.
    void takeBroadcast()
    {
        if (m_navigator->screen("Tele"))
            click("cmdOK");
    }

    ui::WeekPanel *panel() { return m_navigator->screen<ui::WeekPanel>("Panel_Control_Manager"); }
    void runWeekEvents() { panel()->runWeekEvents(), settle(); }

    // On the call-up: the player of a grid row (any cell of it will do) to a place of the list.
    void placeRow(int gridRow, int place)
    {
        auto *grid = find<QTableView>("DataGrid1");
        grid->setCurrentIndex(grid->model()->index(gridRow, 2));
        find<QListWidget>("list1")->setCurrentRow(place);
        click("cmdAñadir");
    }

    void callUpFirstFourteen()
    {
        ASSERT_GE(find<QTableView>("DataGrid1")->model()->rowCount(), 14);
        for (int place = 0; place < 14; ++place)
            placeRow(place, place);
    }

    ui::MatchScreen *match() { return m_navigator->screen<ui::MatchScreen>("partido"); }

    // A half of the match on screen, from its kick-off to its whistle, tick by tick.
    void playHalf()
    {
        click("cmdStart");
        for (int guard = 0; guard < 1000 && match()->engine().running(); ++guard)
            match()->tick();
        settle();
    }

    // The match from the call-up to full time; false when it does not start.
    bool playMatch()
    {
        click("cmdJugar");
        if (!match())
            return false;
        playHalf();
        playHalf();
        return true;
    }

    // From an open week to the panel of the last round: the week is moved to the season's
    // 29th and its match played without the screen, as a finished match comes back.
    void reachLastRound()
    {
        exec("update datos_jugador set jornada = 29");
        game::CallUp(*m_context).chooseBest();
        game::MatchEngine *played = m_navigator->career().kickOff();
        ASSERT_NE(played, nullptr);
        while (!played->finished()) {
            played->start();
            while (played->running())
                played->tick();
        }
        m_navigator->matchOver();
        settle();
        runWeekEvents();
        takeBroadcast();
    }

    // On the planner: a country's flag, then a club of its list by row.
    void chooseClub(const char *country, int row)
    {
        click(QString::fromUtf8(country));
        auto *list = find<QListWidget>("DataList1");
        ASSERT_NE(list, nullptr);
        ASSERT_GT(list->count(), row);
        QListWidgetItem *item = list->item(row);
        list->setCurrentItem(item);
        emit list->itemClicked(item);
        settle();
    }

    // Writes in a box as the player does: what is there is selected and typed over, and the
    // box is left.
    void fill(const QString &name, const QString &text)
    {
        auto *box = find<QLineEdit>(name);
        ASSERT_NE(box, nullptr) << name.toStdString();
        box->setFocus();
        box->selectAll();
        if (text.isEmpty())
            QTest::keyClick(box, Qt::Key_Backspace);
        else
            type(name, text);
        QFocusEvent leaving(QEvent::FocusOut, Qt::TabFocusReason);
        QApplication::sendEvent(box, &leaving);
    }

    // A label of a row of labels (the index-th of that name) on the screen on show or on another.
    QLabel *entry(const QString &name, int index, QWidget *on = nullptr)
    {
        return indexed::find(on ? on : m_navigator->current(), name, index);
    }

    // The texts of the items of a list, in order.
    static QStringList items(QListWidget *list)
    {
        QStringList texts;
        for (int row = 0; row < list->count(); ++row)
            texts << list->item(row)->text();
        return texts;
    }

    // The text of a box or a label of the game, or a note that it is missing.
    QString text(const QString &name)
    {
        if (auto *box = find<QLineEdit>(name))
            return box->text();
        auto *label = find<QLabel>(name);
        return label ? label->text() : QStringLiteral("<no %1>").arg(name);
    }

    // What the player sees of a screen is whole: the window keeps its size, every label is
    // plain text, every grid shows its columns whole without scrolling sideways, and every
    // label, button, box, bar, list and chart on show lies inside the window with its whole
    // text, none of them over another.
    void expectTidy(const QString &step, QWidget *screen = nullptr)
    {
        screen = screen ? screen : m_navigator->current();
        const std::string at = step.toStdString() + ": ";
        EXPECT_EQ(m_window->size(), QSize(1280, 720)) << at;
        for (QLabel *label : screen->findChildren<QLabel *>())
            EXPECT_EQ(label->textFormat(), Qt::PlainText) << at << label->text().toStdString();
        for (QTableView *grid : screen->findChildren<QTableView *>()) {
            if (!grid->isVisible())
                continue;
            EXPECT_EQ(grid->horizontalScrollBar()->maximum(), 0) << at << grid->objectName().toStdString();
            for (int column = 0; column < grid->model()->columnCount(); ++column) {
                if (!grid->isColumnHidden(column)) {
                    EXPECT_GE(grid->columnWidth(column), grid->horizontalHeader()->sectionSizeHint(column))
                        << at << grid->objectName().toStdString() << " column " << column;
                }
            }
        }
        auto insideAView = [screen](QWidget *widget) {
            for (QWidget *above = widget->parentWidget(); above && above != screen; above = above->parentWidget()) {
                if (qobject_cast<QAbstractScrollArea *>(above))
                    return true;
            }
            return false;
        };
        QList<QWidget *> shown;
        for (QWidget *widget : screen->findChildren<QWidget *>()) {
            if (widget->isVisible() && !insideAView(widget)
                && (qobject_cast<QLabel *>(widget) || qobject_cast<QAbstractButton *>(widget)
                    || qobject_cast<QLineEdit *>(widget) || qobject_cast<QAbstractScrollArea *>(widget)
                    || qobject_cast<QComboBox *>(widget) || qobject_cast<QScrollBar *>(widget)))
                shown << widget;
        }
        EXPECT_GE(shown.size(), 5) << at << "the screen's own widgets, not an empty shell";
        const QRect window = screen->isWindow() ? screen->rect() : m_window->rect();
        auto area = [screen](QWidget *widget) {
            return QRect(widget->mapTo(screen->window(), QPoint(0, 0)), widget->size());
        };
        for (int i = 0; i < shown.size(); ++i) {
            QWidget *widget = shown[i];
            auto *label = qobject_cast<QLabel *>(widget);
            const std::string name = at + widget->objectName().toStdString() + " '"
                + (label ? label->text().toStdString() : std::string()) + "'";
            EXPECT_TRUE(window.contains(area(widget))) << name;
            if (label && label->wordWrap()) {
                EXPECT_GE(widget->height(), label->heightForWidth(widget->width())) << name;
            } else if ((label && !dynamic_cast<ui::ElidedLabel *>(widget)) || qobject_cast<QAbstractButton *>(widget)) {
                EXPECT_TRUE(widget->width() >= widget->sizeHint().width()
                            && widget->height() >= widget->sizeHint().height())
                    << name << " is cut: " << widget->width() << 'x' << widget->height();
            }
            for (int j = i + 1; j < shown.size(); ++j) {
                QWidget *other = shown[j];
                if (!widget->isAncestorOf(other) && !other->isAncestorOf(widget)) {
                    EXPECT_FALSE(area(widget).intersects(area(other))) << name << " covers "
                                                                       << other->objectName().toStdString();
                }
            }
        }
    }

    std::unique_ptr<QMainWindow> m_window;
    std::unique_ptr<app::Navigator> m_navigator;
    QList<QUrl> m_opened;
    bool m_browserOpens = true;
};

