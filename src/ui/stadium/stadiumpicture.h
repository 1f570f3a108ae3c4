#pragma once

#include <QPixmap>
#include <QSize>

namespace ui {

// The pictures of the stadium screen, drawn by the program. Pictures 1 to 12 show the same
// arena from above with its stands grown by a thousand seats each, from 3000 to 14000 and
// more: more tiers, more people, then a roof rim, a scoreboard and floodlights. Picture 0 is
// the screen's own picture, a plain town sports hall seen from the street, shown while the
// stadium is smaller than any of the twelve.
QPixmap stadiumPicture(int picture, QSize size);

} // namespace ui
