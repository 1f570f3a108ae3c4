#pragma once

#include <QColor>

class QApplication;
class QLabel;
class QPushButton;
class QWidget;

// The look of the game: deep navy screens, light text, amber buttons, bold headings.
namespace theme {

inline const QColor kNavy{15, 30, 60};
inline const QColor kAmber{232, 163, 61};

// Sets the fonts and the style sheet on the whole application.
void apply(QApplication &app);

// The caption of a field of a form ("Nombre:").
QLabel *fieldCaption(const QString &text, QWidget *parent = nullptr);

// A screen heading in the game's style ("INTRODUCE NOMBRE Y EQUIPO").
QLabel *heading(const QString &text, QWidget *parent = nullptr);

// The "<- VOLVER" button ("cmdVOLVER") that leaves a screen for the one it was opened from.
// Leaving is never the act the screen is there for, so it wears the quieter secondary colours
// and the screen's own button keeps the amber.
QPushButton *backButton(QWidget *parent = nullptr);

} // namespace theme
