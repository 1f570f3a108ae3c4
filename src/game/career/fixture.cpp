#include "fixture.h"

#include "store/gamestore.h"

namespace game {

QString Fixture::typeText() const
{
    return type == Type::League ? QStringLiteral("LIGA") : QStringLiteral("AMISTOSO");
}

QString shownDate(const QDate &date)
{
    return date.isValid() ? date.toString(QStringLiteral("dd/MM/yyyy")) : QString();
}

std::optional<Fixture> fixtureOfWeek(GameStore &store, int week, int userClub)
{
    Fixture fixture;
    fixture.week = week;
    {
        GameStore::Query calendar = store.query("select idpartido from calendario where semana = ?", week);
        if (!calendar.next())
            return std::nullopt;
        fixture.idpartido = calendar.integer(0);
    }

    GameStore::Query friendly = store.query(
        "select p.equipo_local, p.equipo_visitante, p.fecha, l.NombreEquipo, v.NombreEquipo"
        " from pretemporada p join equipos l on l.idequipo = p.equipo_local"
        " join equipos v on v.idequipo = p.equipo_visitante where p.idpartido = ?",
        fixture.idpartido);
    if (friendly.next()) {
        fixture.type = Fixture::Type::Friendly;
        fixture.homeId = friendly.integer(0);
        fixture.awayId = friendly.integer(1);
        fixture.date = QDate::fromString(friendly.text(2), Qt::ISODate);
        fixture.homeName = friendly.text(3);
        fixture.awayName = friendly.text(4);
    } else {
        GameStore::Query league = store.query(
            "select f.jornada, f.fecha, h.teams, a.teams, eh.NombreEquipo, ea.NombreEquipo"
            " from liga_asobal f"
            " join asobal h on h.puesto_anterior = f.pos_equipo_local"
            " join asobal a on a.puesto_anterior = f.pos_equipo_visitante"
            " join equipos eh on eh.idequipo = h.teams join equipos ea on ea.idequipo = a.teams"
            " where f.idpartido = ?",
            fixture.idpartido);
        if (!league.next())
            return std::nullopt;
        fixture.type = Fixture::Type::League;
        fixture.round = league.integer(0);
        fixture.date = QDate::fromString(league.text(1), Qt::ISODate);
        fixture.homeId = league.integer(2);
        fixture.awayId = league.integer(3);
        fixture.homeName = league.text(4);
        fixture.awayName = league.text(5);
    }
    fixture.rivalId = fixture.homeId == userClub ? fixture.awayId : fixture.homeId;
    return fixture;
}

} // namespace game
