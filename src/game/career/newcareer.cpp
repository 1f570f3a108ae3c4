#include "newcareer.h"

#include "league/leagueclubs.h"
#include "dialogs.h"
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
        // The manager becomes the coach of the club he takes over; the board and the public
        // start with a middling confidence in him.
        store.execute("update entrenadores set nombre = ?, apellidos = ?,"
                      " confianza_directivos = 5, confianza_publico = 5, puntuacion = 5"
                      " where idEntrenador = ?",
                      choice.nombre, choice.apellidos, choice.clubId);
        store.execute("delete from pretemporada");
        store.execute("delete from calendario");
        // A new career starts with an empty market.
        store.execute("update jugadores set venta = 0 where venta <> 0");
        store.execute("update datos_jugador set jornada = 0, nombre = ?, apellidos = ?,"
                      " idequipo = ?, NombreEquipo = ?",
                      choice.nombre, choice.apellidos, choice.clubId, choice.clubCaption);
        store.execute("delete from caja");
        store.execute("delete from selects");
        store.execute("delete from jugar");
    });
    if (!written) {
        dialogs.tell(written.message(), Dialogs::Icon::Exclamation);
        return false;
    }
    return true;
}

} // namespace game
