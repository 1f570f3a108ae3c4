#include "navigator.h"
#include "screennames.h"

#include "career/saves.h"
#include "dialogs.h"

#include <QCloseEvent>
#include <QDesktopServices>
#include <QDialog>
#include <QMainWindow>
#include <QStackedWidget>

namespace app {

Navigator::Navigator(game::Context context, QMainWindow &window)
    : m_context(context), m_window(window), m_stack(new QStackedWidget(&window)),
      m_openUrl([](const QUrl &url) { return QDesktopServices::openUrl(url); }), m_career(context)
{
    m_window.setCentralWidget(m_stack);
    registerScreens(*this);

    // Each step of the career brings up its screen: a week opened shows its panel over
    // nothing of the week before, a closed season its verdict (the panel belongs to the season
    // that ended; the next one gets its own), a pre-season its planner.
    connect(&m_career, &game::Career::weekOpened, this, [this] {
        closeWeekScreens();
        showPanel();
    });
    connect(&m_career, &game::Career::broadcastOffered, this, [this] { open(screen::Television); });
    connect(&m_career, &game::Career::verdictReady, this, [this] {
        closeWeekScreens();
        unload(screen::Panel);
        if (!open(screen::Verdict))
            verdictRead();
    });
    connect(&m_career, &game::Career::seasonClosed, this, [this] { close(screen::Verdict); });
    connect(&m_career, &game::Career::planningStarted, this, [this] { open(screen::Planner); });
    m_window.installEventFilter(this);
}

void Navigator::setSaves(const game::Saves *saves)
{
    m_saves = saves;
    m_career.setSaves(saves);
}

bool Navigator::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == &m_window && event->type() == QEvent::Close && !m_quitting) {
        if (mayLeave())
            endGame();
        else
            event->ignore();
        return true;
    }
    return QObject::eventFilter(watched, event);
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
    if (!page)
        return;
    m_stack->setCurrentWidget(page);
    // Also when the stack already shows it (it falls back on a page by itself as another goes):
    // the window is titled after the page in front.
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
    open(screen::Splash);
}

void Navigator::showMenu()
{
    open(screen::Menu);
}

void Navigator::verdictRead()
{
    // Every order still waiting is settled, with its messages, before the next pre-season.
    m_career.settleOrders();
}

void Navigator::goOn()
{
    // A step of the career that failed (told to the player) is taken up again from the panel.
    m_career.goOn();
}

void Navigator::showPanel()
{
    // Showing the panel opens no week: it shows the one that is open.
    open(screen::Panel);
}

void Navigator::playMatch()
{
    open(screen::Match);
}

void Navigator::matchOver()
{
    // The match is recorded and the next week opens. When either failed the player has been
    // told: the match can be played again, or the panel's "SEGUIR" takes the career on.
    close(screen::Match);
    if (!m_career.finishMatch())
        showPanel();
}

bool Navigator::mayLeave()
{
    if (!m_career.inProgress())
        return true;
    if (!m_context.dialogs.ask(tr("Salir"), tr("¿Salir de la partida? La carrera queda guardada y podrás "
                                               "continuarla desde el menú.")))
        return false;
    m_career.save();
    return true;
}

void Navigator::leaveCareer()
{
    // Leaving the career (saved first) closes every screen of it and puts the pristine copy
    // back; a new career gets a freshly opened panel.
    if (!mayLeave())
        return;
    if (game::Result restored = m_career.leave(); !restored)
        m_context.dialogs.tell(restored.message(), game::Dialogs::Icon::Exclamation);
    for (const QString &name : m_loaded.keys())
        unload(name);
    showMenu();
}

void Navigator::quitGame()
{
    // Leaving the game (the career saved first): the working file goes back to the original.
    if (!m_quitting && mayLeave())
        endGame();
}

void Navigator::endGame()
{
    m_quitting = true;
    if (game::Result restored = m_career.leave(); !restored)
        m_context.dialogs.tell(restored.message(), game::Dialogs::Icon::Exclamation);
    emit finished();
}

void Navigator::continueCareer(const QString &path)
{
    if (!m_saves)
        return;
    QString file = path;
    if (file.isEmpty()) {
        const std::optional<game::SaveRecord> latest = m_saves->latest();
        if (!latest) {
            m_context.dialogs.tell(tr("No hay ninguna carrera guardada. Empieza una nueva desde el menú."),
                                   game::Dialogs::Icon::Information);
            return;
        }
        file = latest->path;
    }
    // A career in progress is kept before another takes its place.
    if (m_career.inProgress())
        m_career.save();
    if (const game::Result loaded = m_saves->load(m_context.store, file); !loaded) {
        m_context.dialogs.tell(loaded.message(), game::Dialogs::Icon::Exclamation);
        return;
    }
    if (!m_career.resume()) {
        m_context.dialogs.tell(tr("La partida no se ha podido continuar."), game::Dialogs::Icon::Exclamation);
        return;
    }
    for (const QString &name : m_loaded.keys()) {
        if (name != screen::Menu)
            unload(name);
    }
    showCareer();
}

void Navigator::showCareer()
{
    using Stage = game::Career::Stage;
    switch (m_career.stage()) {
    case Stage::None:
        showMenu();
        return;
    case Stage::Planning:
        open(screen::Planner);
        return;
    case Stage::Verdict:
        close(screen::Menu);
        if (!open(screen::Verdict))
            verdictRead();
        return;
    case Stage::Week:
    case Stage::Played:
    case Stage::SeasonOver:
        break;
    }
    showPanel();
    close(screen::Menu);
    if (m_career.week().broadcast())
        open(screen::Television);
}

} // namespace app
