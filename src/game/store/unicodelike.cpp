#include "unicodelike.h"

#include <algorithm>

#include <sqlite3.h>

namespace game {

namespace {

// A name read through its folded letters: a QString already case-folded, or UTF-8 bytes that
// are all ASCII, folded one at a time as they are read (no copy, no conversion).
struct FoldedText {
    const QString &text;
    qsizetype size() const { return text.size(); }
    char16_t at(qsizetype i) const { return text.at(i).unicode(); }
};

struct AsciiText {
    const unsigned char *bytes;
    qsizetype length;
    qsizetype size() const { return length; }
    char16_t at(qsizetype i) const
    {
        const unsigned char c = bytes[i];
        return c >= 'A' && c <= 'Z' ? char16_t(c + ('a' - 'A')) : char16_t(c);
    }
};

// Classic wildcard matching with one point of backtracking for the last %: linear for the
// patterns the game uses and never recursive. A null escape (0) means none.
template <typename Text>
bool matchFolded(const Text &pattern, const Text &text, char16_t escape)
{
    qsizetype p = 0;
    qsizetype t = 0;
    qsizetype starPattern = -1;
    qsizetype starText = 0;
    while (t < text.size()) {
        if (p < pattern.size()) {
            const char16_t c = pattern.at(p);
            if (escape != 0 && c == escape && p + 1 < pattern.size()) {
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

bool isAscii(const unsigned char *bytes, int length)
{
    return std::all_of(bytes, bytes + length, [](unsigned char byte) { return byte < 0x80; });
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
    // like(X, Y) is "Y like X": the pattern comes first. Most of what the game matches
    // (positions, plain names) is ASCII: those are folded byte by byte without building strings.
    const auto *pattern = sqlite3_value_text(argv[0]);
    const int patternLength = sqlite3_value_bytes(argv[0]);
    const auto *text = sqlite3_value_text(argv[1]);
    const int textLength = sqlite3_value_bytes(argv[1]);
    if (escape.unicode() < 0x80 && isAscii(pattern, patternLength) && isAscii(text, textLength)) {
        const bool matches = matchFolded(AsciiText{pattern, patternLength}, AsciiText{text, textLength},
                                         escape.unicode());
        sqlite3_result_int(context, matches ? 1 : 0);
        return;
    }
    sqlite3_result_int(context, likeMatches(argumentText(argv[0]), argumentText(argv[1]), escape) ? 1 : 0);
}

} // namespace

bool likeMatches(const QString &pattern, const QString &text, QChar escape)
{
    const QString foldedPattern = pattern.toCaseFolded();
    const QString foldedText = text.toCaseFolded();
    return matchFolded(FoldedText{foldedPattern}, FoldedText{foldedText}, escape.toCaseFolded().unicode());
}

void registerUnicodeLike(sqlite3 *connection)
{
    const int flags = SQLITE_UTF8 | SQLITE_DETERMINISTIC;
    sqlite3_create_function_v2(connection, "like", 2, flags, nullptr, sqlLike, nullptr, nullptr, nullptr);
    sqlite3_create_function_v2(connection, "like", 3, flags, nullptr, sqlLike, nullptr, nullptr, nullptr);
}

} // namespace game
