#include "youthacademy.h"

#include "dialogs.h"
#include "store/gamestore.h"
#include "transfers/statements.h"

#include <QObject>

namespace game {

namespace {

// A whole number within [low, high], or 0 when the text is anything else.
int boundedNumber(const QString &text, int low, int high)
{
    bool isNumber = false;
    const int value = text.trimmed().toInt(&isNumber);
    return isNumber && value >= low && value <= high ? value : 0;
}

} // namespace

int YouthAcademy::add(const NewYouth &youth)
{
    Dialogs &dialogs = m_context.dialogs;
    if (youth.nacionalidad.isEmpty() || youth.posicion.isEmpty() || youth.apellidos.isEmpty()
        || youth.nombre.isEmpty()) {
        dialogs.tell(QObject::tr("Rellene todos los campos"));
        return 0;
    }
    const int edad = boundedNumber(youth.edad, kMinAge, kMaxAge);
    if (edad == 0) {
        dialogs.tell(QObject::tr("La edad de un juvenil debe estar entre %1 y %2 años.").arg(kMinAge).arg(kMaxAge),
                     Dialogs::Icon::Exclamation);
        return 0;
    }
    const int dorsal = boundedNumber(youth.dorsal, kMinShirt, kMaxShirt);
    if (dorsal == 0) {
        dialogs.tell(QObject::tr("El dorsal debe estar entre %1 y %2.").arg(kMinShirt).arg(kMaxShirt),
                     Dialogs::Icon::Exclamation);
        return 0;
    }

    GameStore &store = m_context.store;
    int id = 0;
    const Result written = store.run([&] {
        // Ids follow the highest one, so they stay without gaps: the random draws of players
        // count on every id up to the number of players existing.
        id = sql::transfers::highestPlayerId(store) + 1;
        sql::transfers::addYouth(store, id, youth, edad, dorsal);
    });
    if (!written) {
        dialogs.tell(written.message(), Dialogs::Icon::Exclamation);
        return 0;
    }
    dialogs.tell(QObject::tr("Se ha insetado al Juvenil Satisfactoriamente"));
    return id;
}

} // namespace game
