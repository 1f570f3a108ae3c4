#include "translations.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace ui {

bool installSpanish(QCoreApplication &app)
{
    // Owned by the application, which keeps it for its whole life.
    auto *translator = new QTranslator(&app);
    if (!translator->load(QLocale(QLocale::Spanish, QLocale::Spain), QStringLiteral("qtbase"), QStringLiteral("_"),
                          QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        delete translator;
        return false;
    }
    return QCoreApplication::installTranslator(translator);
}

} // namespace ui
