#include "spanishorder.h"

#include <QCollator>
#include <QLocale>

#include <sqlite3.h>

namespace game {

namespace {

// One collator for the program's life: making one loads the language's rules.
const QCollator &spanishCollator()
{
    static const QCollator collator{QLocale(QLocale::Spanish, QLocale::Spain)};
    return collator;
}

int sqlCompare(void *, int leftBytes, const void *left, int rightBytes, const void *right)
{
    // Registered for UTF-16 in the machine's order, so SQLite hands the texts over as QChars.
    return compareSpanish(QStringView(static_cast<const QChar *>(left), leftBytes / 2),
                          QStringView(static_cast<const QChar *>(right), rightBytes / 2));
}

} // namespace

int compareSpanish(QStringView left, QStringView right)
{
    const int order = spanishCollator().compare(left, right);
    return order < 0 ? -1 : (order > 0 ? 1 : 0);
}

void registerSpanishOrder(sqlite3 *connection)
{
    sqlite3_create_collation_v2(connection, "espanol", SQLITE_UTF16, nullptr, sqlCompare, nullptr);
}

} // namespace game
