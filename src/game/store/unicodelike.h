#pragma once

#include <QString>

struct sqlite3;

namespace game {

// SQLite's own like folds only ASCII letters, so 'ESPAÑA' like 'españa' would be false. The
// game compares names of clubs and players that carry accents and ñ, so the connection gets
// a like that folds the case of every letter. % matches any run of characters, _ exactly one.
bool likeMatches(const QString &pattern, const QString &text, QChar escape = QChar());

// Registers the like above (with and without ESCAPE) on a connection.
void registerUnicodeLike(sqlite3 *connection);

} // namespace game
