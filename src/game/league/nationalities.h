#pragma once

#include <QStringList>

namespace game {

// The thirty nationalities a manager or a youth can be given, in the order the forms list
// them. The add-youth form has always written Serbia and Montenegro without the hyphen, and
// youths keep that spelling.
enum class SerbiaSpelling { Hyphen, Blank };

inline QStringList nationalities(SerbiaSpelling spelling)
{
    QStringList names{
        QStringLiteral("Albania"),   QStringLiteral("Argelia"),   QStringLiteral("Australia"),
        QStringLiteral("Alemania"),  QStringLiteral("Brasil"),    QStringLiteral("Canada"),
        QStringLiteral("China"),     QStringLiteral("Croacia"),   QStringLiteral("Dinamarca"),
        QStringLiteral("España"),    QStringLiteral("Eslovenia"), QStringLiteral("Francia"),
        QStringLiteral("Grecia"),    QStringLiteral("Hungría"),   QStringLiteral("Islandia"),
        QStringLiteral("Italia"),    QStringLiteral("Inglaterra"), QStringLiteral("Japón"),
        QStringLiteral("Luxemburgo"), QStringLiteral("Macedonia"), QStringLiteral("Marruecos"),
        QStringLiteral("Noruega"),   QStringLiteral("Portugal"),  QStringLiteral("Rusia"),
        QStringLiteral("República Checa"), QStringLiteral("Suiza"), QStringLiteral("Suecia"),
        spelling == SerbiaSpelling::Hyphen ? QStringLiteral("Serbia-Montenegro") : QStringLiteral("Serbia Montenegro"),
        QStringLiteral("Turquía"),   QStringLiteral("Ucrania"),
    };
    return names;
}

} // namespace game
