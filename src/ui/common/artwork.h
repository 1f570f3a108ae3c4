#pragma once

#include <QColor>
#include <QIcon>
#include <QPixmap>
#include <QSize>
#include <QString>

// Every picture of the game is drawn here by the program itself: crests, flags, the
// title, the menu and its picture buttons. Nothing is loaded from image files, so the
// pictures scale to any size and stay sharp.
namespace artwork {

// The two colours a league club plays in; also used by screens for accents.
struct ClubColours {
    QColor primary;
    QColor secondary;
};

// clubId 1..16 (the league clubs). Other ids get a neutral grey pair.
ClubColours clubColours(int clubId);

// The crest of a league club (1..16): a shield in the club's colours with its initials.
// Transparent outside the shield.
QPixmap crest(int clubId, QSize size);

// The flag of a country by its code 1..18 (1 Spain ... 18 Serbia-Montenegro), or kNorway:
// Norway stands among the market's flags though no club of the game is Norwegian.
inline constexpr int kNorway = 19;
QPixmap flag(int countryCode, QSize size);

// A handball, white leather with coloured panels and lit from the upper left, drawn to
// fill the smaller side of the box; transparent around it.
QPixmap handball(QSize size);

// The title screen's picture: the game's name, a handball, a court.
QPixmap title(QSize size);

// The main menu's background picture (without the buttons).
QPixmap menuBackground(QSize size);

enum class MenuIcon {
    NewCareer,     // a whistle / a ball: start a new career
    AddYouth,      // a young player with a plus sign
    History,       // an old book
    Information,   // an "i" in a circle
    Instructions,  // a question mark / open manual
    Quit,          // an open door
    Continue,      // a ball rolling on along its track: the latest career, where it stood
    Load,          // a stack of saved cards: the careers kept
};

// The picture on a menu button, drawn for the given size (the buttons carry no caption).
QPixmap menuIcon(MenuIcon icon, QSize size);

// The diagrams of the tactics screen, entries 1 to 8: a court seen from above with the seven
// players of a system as markers. 1 attack "2-2-2", 2 defence "3-2-1", 3 attack "3-3"
// (shown by no system of the game), 4 defence "3-3", 5 defence "4-2", 6 defence "5-1",
// 7 defence "6-0", 8 attack "6-0". Drawn for 200 by 199 pixels and any other size.
QPixmap tacticsDiagram(int entry, QSize size);

} // namespace artwork
