#pragma once

#include <QColor>
#include <QString>
#include <QVariant>

class QApplication;
class QLabel;
class QListWidget;
class QPushButton;
class QWidget;

// The look of the game: deep navy screens, light text, amber buttons, bold headings. It lives
// in one style sheet, content/zarpazo.qss; screens give their widgets names and properties
// (a label's "role", a row's "users") and the sheet paints them.
namespace theme {

inline const QColor kNavy{15, 30, 60};
inline const QColor kAmber{232, 163, 61};

// Sets the fonts and the game's style sheet on the whole application, once at start.
void apply(QApplication &app);

// The sheet as Qt reads it: the palette's names put in place of the colours they stand for.
// Empty when the sheet is missing from the program.
QString styleSheet();

// A label of one of the sheet's roles: "caption" (amber, over a list or a column), "field" (the
// caption of a field of a form, "Nombre:"), "value", "cell", "hint", "muted", "section"...
// Its text is shown as it is, never as markup.
QLabel *label(const char *role, const QString &text = {}, QWidget *parent = nullptr);

// The caption of a field of a form ("Nombre:").
QLabel *fieldCaption(const QString &text, QWidget *parent = nullptr);

// A screen heading in the game's style ("INTRODUCE NOMBRE Y EQUIPO").
QLabel *heading(const QString &text, QWidget *parent = nullptr);

// The "<- VOLVER" button ("cmdVOLVER") that leaves a screen for the one it was opened from.
// Leaving is never the act the screen is there for, so it wears the quieter secondary colours
// and the screen's own button keeps the amber.
QPushButton *backButton(QWidget *parent = nullptr);

// A list of the sheet's role ("places", "positions", "clubs", "search"). A list may measure its
// lines before the sheet has been applied to it (a screen filled before it is shown); it
// measures them again when it first shows.
QListWidget *list(const char *name, const char *role, QWidget *parent = nullptr);

// Sets a property the sheet selects on, such as a row that becomes the user's, and has the
// widget painted anew when it changed. A property set before the widget is first shown needs
// no more than setProperty.
void restyle(QWidget *widget, const char *name, const QVariant &value);

} // namespace theme
