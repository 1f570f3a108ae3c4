#pragma once

#include <QString>

// The names of the game's screens, each written once: the navigator opens a screen by its
// name, and a screen's name is also its objectName.
namespace app::screen {

inline const QString Splash = QStringLiteral("frmSplash");
inline const QString Menu = QStringLiteral("Form1");
inline const QString NewCareer = QStringLiteral("Liga_Manager");
inline const QString AddYouth = QStringLiteral("Agregar_Juveniles");
inline const QString Instructions = QStringLiteral("Instrucciones");
inline const QString HandballHistory = QStringLiteral("Historia");
inline const QString HandballInfo = QStringLiteral("infoHandball");
inline const QString Load = QStringLiteral("Cargar");
inline const QString Planner = QStringLiteral("Pretemporada");
inline const QString Panel = QStringLiteral("Panel_Control_Manager");
inline const QString CallUp = QStringLiteral("Alinear");
inline const QString Tactics = QStringLiteral("Tactica");
inline const QString Match = QStringLiteral("partido");
inline const QString Calendar = QStringLiteral("Calendario");
inline const QString Ledger = QStringLiteral("Caja");
inline const QString Stadium = QStringLiteral("estadios");
inline const QString Television = QStringLiteral("Tele");
inline const QString Squad = QStringLiteral("Plantilla");
inline const QString Contract = QStringLiteral("Renovar");
inline const QString Youth = QStringLiteral("Juveniles");
inline const QString Offer = QStringLiteral("Fichar_Jugadores");
inline const QString Sale = QStringLiteral("Fichar_EnVenta");
inline const QString Clubs = QStringLiteral("Fichar");
inline const QString Scout = QStringLiteral("Secretario");
inline const QString Standings = QStringLiteral("Clasificacion");
inline const QString Rounds = QStringLiteral("Resultados");
inline const QString CareerHistory = QStringLiteral("Historial");
inline const QString Verdict = QStringLiteral("Finall");

} // namespace app::screen
