#pragma once

#include <QStringView>

struct sqlite3;

namespace game {

// The order of names as a Spanish reader looks for them in a list: Álvaro and Ángel among
// the A, Óscar and Ömer among the O, Željko among the Z, ñ after n; capitals and accents only
// part names that are otherwise alike. SQLite's own order is the order of the bytes, which
// puts every accented initial after the Z.
//
//   select ... from jugadores order by Nombre collate espanol, idjugador
int compareSpanish(QStringView left, QStringView right);

// Registers the order above on a connection as the collation "espanol".
void registerSpanishOrder(sqlite3 *connection);

} // namespace game
