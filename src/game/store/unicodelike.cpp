#include "unicodelike.h"

#include <sqlite3.h>

namespace game {

namespace {

// Classic wildcard matching with one point of backtracking for the last %: linear for the
// patterns the game uses and never recursive.
bool matchFolded(const QString &pattern, const QString &text, QChar escape)
{
    qsizetype p = 0;
    qsizetype t = 0;
    qsizetype starPattern = -1;
    qsizetype starText = 0;
    while (t < text.size()) {
        if (p < pattern.size()) {
            QChar c = pattern.at(p);
            if (!escape.isNull() && c == escape && p + 1 < pattern.size()) {
                if (pattern.at(p + 1) == text.at(t)) {
                    p += 2;
                    ++t;
                    continue;
                }
            } else if (c == u'%') {
                starPattern = p++;
                starText = t;
                continue;
            } else if (c == u'_' || c == text.at(t)) {
                ++p;
                ++t;
                continue;
            }
        }
        if (starPattern < 0)
            return false;
        p = starPattern + 1;
        t = ++starText;
    }
    while (p < pattern.size() && pattern.at(p) == u'%')
        ++p;
    return p == pattern.size();
}

QString argumentText(sqlite3_value *value)
{
    const auto *bytes = reinterpret_cast<const char *>(sqlite3_value_text(value));
    return bytes ? QString::fromUtf8(bytes, sqlite3_value_bytes(value)) : QString();
}

void sqlLike(sqlite3_context *context, int argc, sqlite3_value **argv)
{
    if (sqlite3_value_type(argv[0]) == SQLITE_NULL || sqlite3_value_type(argv[1]) == SQLITE_NULL) {
        sqlite3_result_null(context);
        return;
    }
    QChar escape;
    if (argc == 3) {
        const QString escapeText = argumentText(argv[2]);
        if (escapeText.size() != 1) {
            sqlite3_result_error(context, "ESCAPE expression must be a single character", -1);
            return;
        }
        escape = escapeText.at(0).toCaseFolded();
    }
    // like(X, Y) is "Y like X": the pattern comes first.
    sqlite3_result_int(context, likeMatches(argumentText(argv[0]), argumentText(argv[1]), escape) ? 1 : 0);
}

} // namespace

bool likeMatches(const QString &pattern, const QString &text, QChar escape)
{
    return matchFolded(pattern.toCaseFolded(), text.toCaseFolded(), escape.toCaseFolded());
}

void registerUnicodeLike(sqlite3 *connection)
{
    const int flags = SQLITE_UTF8 | SQLITE_DETERMINISTIC;
    sqlite3_create_function_v2(connection, "like", 2, flags, nullptr, sqlLike, nullptr, nullptr, nullptr);
    sqlite3_create_function_v2(connection, "like", 3, flags, nullptr, sqlLike, nullptr, nullptr, nullptr);
}

} // namespace game
