#pragma once

class QCoreApplication;

namespace ui {

// Qt's own words (the buttons of its dialogs: "Sí", "No", "Aceptar", "Cancelar"; its menus
// and tooltips) in Spanish, as the rest of the game. Loaded once at start; the game goes on in
// Qt's English when the translations are not installed.
bool installSpanish(QCoreApplication &app);

} // namespace ui
