#include "navigator.h"

#include "career/career.h"
#include "dialogs.h"

#include <QDesktopServices>
#include <QDialog>
#include <QMainWindow>
#include <QStackedWidget>

namespace app {

namespace {

// The screens the career's way passes through.
const QString kSplash = QStringLiteral("frmSplash");
const QString kMenu = QStringLiteral("Form1");
const QString kPanel = QStringLiteral("Panel_Control_Manager");
const QString kMatch = QStringLiteral("partido");
const QString kVerdict = QStringLiteral("Finall");
const QString kPlanner = QStringLiteral("Pretemporada");

} // namespace

Navigator::Navigator(game::Context context, QMainWindow &window)
    : m_context(context), m_window(window), m_stack(new QStackedWidget(&window)),
      m_openUrl([](const QUrl &url) { QDesktopServices::openUrl(url); }), m_week(context)
{
    m_window.setCentralWidget(m_stack);
    registerScreens(*this);
}

Navigator::~Navigator()
{
    // The screens go before the week and the context they were given.
    for (const QPointer<QWidget> &screen : std::as_const(m_loaded))
        delete screen.data();
}

void Navigator::add(const QString &name, ScreenKind kind)
{
    m_kinds.insert(name, std::move(kind));
}

QWidget *Navigator::current() const
{
    return m_stack->currentWidget();
}

QWidget *Navigator::open(const QString &name, const QVariant &about)
{
    const auto kind = m_kinds.constFind(name);
    if (kind == m_kinds.constEnd())
        return nullptr;
    if (m_loaded.value(name) && !kind->hides)
        unload(name);
    QPointer<QWidget> screen = m_loaded.value(name);
    if (!screen) {
        screen = kind->make(*this);
        if (!screen)
            return nullptr;
        m_loaded.insert(name, screen);
        if (kind->mode == ScreenKind::Mode::Page) {
            m_stack->addWidget(screen);
            // The window carries the title of the page on show, also when the page retitles
            // itself (the panel names each week's match).
            connect(screen, &QWidget::windowTitleChanged, this, [this, page = screen.data()] {
                if (current() == page)
                    m_window.setWindowTitle(page->windowTitle());
            });
        } else {
            screen->setParent(&m_window, screen->windowFlags() | Qt::Dialog);
        }
    }
    if (kind->opened)
        kind->opened(*this, screen);
    if (screen && about.isValid() && kind->about)
        kind->about(*this, screen, about);
    if (!screen)
        return nullptr; // its opening closed it again
    switch (kind->mode) {
    case ScreenKind::Mode::Page:
        m_pages.removeAll(name);
        m_pages.append(name);
        showTopPage();
        break;
    case ScreenKind::Mode::Dialog:
        if (auto *dialog = qobject_cast<QDialog *>(screen.data()))
            dialog->open();
        else
            screen->show();
        break;
    case ScreenKind::Mode::Window:
        screen->show();
        screen->raise();
        break;
    }
    return screen;
}

void Navigator::close(const QString &name)
{
    const auto kind = m_kinds.constFind(name);
    if (kind == m_kinds.constEnd() || !m_loaded.value(name))
        return;
    if (kind->hides) {
        m_loaded.value(name)->hide();
        m_pages.removeAll(name);
        showTopPage();
    } else {
        unload(name);
    }
}

void Navigator::unload(const QString &name)
{
    QPointer<QWidget> screen = m_loaded.take(name);
    m_pages.removeAll(name);
    if (screen) {
        m_stack->removeWidget(screen);
        screen->hide();
        screen->deleteLater();
    }
    showTopPage();
}

void Navigator::showTopPage()
{
    if (m_pages.isEmpty())
        return;
    QWidget *page = m_loaded.value(m_pages.constLast());
    if (!page || m_stack->currentWidget() == page)
        return;
    m_stack->setCurrentWidget(page);
    m_window.setWindowTitle(page->windowTitle().isEmpty() ? QStringLiteral("Zarpazo") : page->windowTitle());
}

void Navigator::closeWeekScreens()
{
    for (const QString &name : m_loaded.keys()) {
        if (!m_kinds.value(name).outlivesTheWeek)
            unload(name);
    }
}

void Navigator::showSplash()
{
    open(kSplash);
}

void Navigator::showMenu()
{
    open(kMenu);
}

void Navigator::beginSeason()
{
    nextWeek();
}

void Navigator::nextWeek()
{
    // The only way to a new week: the last one's match is played, or the season begins. A
    // week that cannot open leaves everything as it was, and the player has been told.
    if (!m_week.open())
        return;
    closeWeekScreens();
    if (m_week.seasonOver()) {
        endSeason();
        return;
    }
    showPanel();
}

void Navigator::endSeason()
{
    // The season is ranked and emptied; a failure leaves it as it was, and the panel stays
    // for the player to try again.
    if (!m_week.closeSeason()) {
        showPanel();
        return;
    }
    // The panel belongs to the season that ended; the next one gets its own.
    unload(kPanel);
    if (!open(kVerdict))
        seasonClosed();
}

void Navigator::seasonClosed()
{
    close(kVerdict);
    // Every order still waiting is settled, with its messages, before the next pre-season.
    m_week.settleOrders();
    open(kPlanner);
}

void Navigator::showPanel()
{
    // Showing the panel opens no week: it shows the one that is open.
    open(kPanel);
}

void Navigator::playMatch()
{
    open(kMatch);
}

void Navigator::matchOver(int homeGoals, int awayGoals)
{
    const bool recorded = m_week.recordResult(homeGoals, awayGoals);
    close(kMatch);
    if (recorded)
        nextWeek();
    else
        showPanel(); // the player has been told; the match can be played again
}

void Navigator::leaveCareer()
{
    // Leaving the career throws it away and closes every screen of it; a new career gets a
    // freshly opened panel.
    if (game::Result restored = game::Career::discard(m_context); !restored)
        m_context.dialogs.tell(restored.message(), game::Dialogs::Icon::Exclamation);
    m_week.close();
    for (const QString &name : m_loaded.keys())
        unload(name);
    showMenu();
}

void Navigator::quitGame()
{
    // Leaving the game throws the career away: the working file goes back to the original.
    if (game::Result restored = game::Career::discard(m_context); !restored)
        m_context.dialogs.tell(restored.message(), game::Dialogs::Icon::Exclamation);
    emit finished();
}

} // namespace app
