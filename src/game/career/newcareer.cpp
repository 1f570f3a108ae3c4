#include "newcareer.h"

#include "league/leagueclubs.h"
#include "dialogs.h"
#include "career/statements.h"
#include "store/gamestore.h"

#include <QObject>

namespace game {

bool NewCareer::start(const CareerChoice &choice)
{
    Dialogs &dialogs = m_context.dialogs;
    // A name of blanks is no name; what is written is the text as typed, blanks included.
    if (choice.nombre.trimmed().isEmpty() || choice.apellidos.trimmed().isEmpty()) {
        dialogs.tell(QObject::tr("introduce Nombre y Apellidos"), Dialogs::Icon::Exclamation);
        return false;
    }
    if (choice.clubCaption.isEmpty() || !isLeagueClub(choice.clubId)) {
        dialogs.tell(QObject::tr("Selecciona un Equipo de la Liga ASOBAL"), Dialogs::Icon::Exclamation);
        return false;
    }

    GameStore &store = m_context.store;
    const Result written = store.run([&] {
        // The manager becomes the coach of the club he takes over.
        sql::career::appointCoach(store, choice.clubId, choice.nombre, choice.apellidos);
        sql::career::clearLastCareer(store);
        sql::career::writeCareerRow(store, choice.nombre, choice.apellidos, choice.clubId, choice.clubCaption);
    });
    if (!written) {
        dialogs.tell(written.message(), Dialogs::Icon::Exclamation);
        return false;
    }
    return true;
}

} // namespace game
