// Zarpazo: a handball club manager of the Liga ASOBAL.

#include "common/messageboxdialogs.h"
#include "common/theme.h"
#include "common/translations.h"
#include "navigator.h"
#include "career/session.h"

#include <QApplication>
#include <QFileInfo>
#include <QMainWindow>
#include <QMessageBox>
#include <QStandardPaths>
#include <QTimer>

#include <cstdio>
#include <ctime>

namespace {

// The pristine database lies beside the program in a build, in the data folder when installed.
QString pristineDatabase()
{
    const QString besideProgram = QCoreApplication::applicationDirPath() + QStringLiteral("/balonmanoX.mdb");
    if (QFileInfo::exists(besideProgram))
        return besideProgram;
    const QString installed = QStandardPaths::locate(QStandardPaths::GenericDataLocation,
                                                     QStringLiteral("zarpazo/balonmanoX.mdb"));
    if (!installed.isEmpty())
        return installed;
    return QCoreApplication::applicationDirPath() + QStringLiteral("/../share/zarpazo/balonmanoX.mdb");
}

// With ZARPAZO_FIRST_FRAME set, the game reports the CPU time from the start of its process to
// its first frame painted, and ends there: the screen benchmark starts it so.
class FirstFrame : public QObject
{
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Paint && !m_seen) {
            m_seen = true;
            // Reported once the paint that begins now has been done.
            QTimer::singleShot(0, [] {
                std::printf("first frame: %.1f ms CPU\n", 1e3 * double(std::clock()) / CLOCKS_PER_SEC);
                std::fflush(stdout);
                QCoreApplication::exit(0);
            });
        }
        return false;
    }

private:
    bool m_seen = false;
};

} // namespace

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("zarpazo"));
    QApplication::setApplicationDisplayName(QStringLiteral("Zarpazo"));
    theme::apply(app);
    ui::installSpanish(app);

    // The working file and the careers' saves live in the player's data folder, which one
    // copy of the game holds at a time.
    const QString dataFolder = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    ui::MessageBoxDialogs dialogs;
    game::Session session(dataFolder, pristineDatabase(), dialogs);
    if (game::Result opened = session.open(); !opened) {
        QMessageBox::critical(nullptr, QStringLiteral("Zarpazo"), opened.message());
        return 1;
    }

    QMainWindow window;
    window.setObjectName(QStringLiteral("MainWindow"));
    window.resize(1280, 720);
    window.setMinimumSize(1024, 640);
    app::Navigator navigator(session.context(), window);
    navigator.setSaves(&session.saves());
    QObject::connect(&navigator, &app::Navigator::finished, &app, &QApplication::quit);
    navigator.showSplash();
    if (qEnvironmentVariableIsSet("ZARPAZO_FIRST_FRAME")) {
        if (QWidget *splash = navigator.current())
            splash->installEventFilter(new FirstFrame(&window));
    }
    window.show();
    const int status = app.exec();
    // The run ends through a restore, so the next one starts clean.
    if (game::Result closed = session.close(); !closed)
        QMessageBox::warning(nullptr, QStringLiteral("Zarpazo"), closed.message());
    return status;
}
