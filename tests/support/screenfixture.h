#pragma once

#include "navigator.h"
#include "tempstore.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QEnterEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QPainter>
#include <QPushButton>
#include <QTableView>
#include <QTest>

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
    // compare a list on screen with the store; the headers of the columns the grid shows.
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

    static QStringList shownHeaders(QTableView *grid)
    {
        QStringList headers;
        for (int column = 0; column < grid->model()->columnCount(); ++column) {
            if (!grid->isColumnHidden(column))
                headers << grid->model()->headerData(column, Qt::Horizontal).toString();
        }
        return headers;
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
    static QString cell(QTableView *grid, int row, int column)
    {
        return grid->model()->index(row, column).data().toString();
    }

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

    void goToMenu()
    {
        m_navigator->showMenu();
        QApplication::processEvents();
    }

    // From the menu to the planner with a manager and the club of that crest.
    void startCareerFromMenu(const QString &crest)
    {
        goToMenu();
        click(QStringLiteral("Command4"));
        type(QStringLiteral("txtNombre"), QStringLiteral("Chema"));
        type(QStringLiteral("txtApellidos"), QStringLiteral("Ruiz"));
        QTest::mouseClick(find(crest), Qt::LeftButton);
        click(QStringLiteral("cmdSeguir"));
    }

    std::unique_ptr<QMainWindow> m_window;
    std::unique_ptr<app::Navigator> m_navigator;
    QList<QUrl> m_opened;
    bool m_browserOpens = true;
};

