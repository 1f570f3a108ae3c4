#include "matchday.h"

#include "league/careerrow.h"
#include "match/statements.h"
#include "match/tactics.h"
#include "store/gamestore.h"

namespace game {

MatchEngine::Setup MatchDay::setup(const Fixture &fixture)
{
    GameStore &store = m_context.store;
    MatchEngine::Setup setup;
    setup.homeName = fixture.homeName;
    setup.awayName = fixture.awayName;
    setup.system = storedDefence();
    m_context.store.attempt([&] {
        const CareerRow career = CareerRow::read(store);
        setup.userClubName = career.clubName;
        // The user is at home when the home club's name is his, capitals or not.
        setup.userAtHome = career.isUserClub(fixture.homeName);

        const std::vector<sql::match::SheetLine> places = sql::match::userSheet(store);
        for (std::size_t row = 0; row < setup.rows.size() && row < places.size(); ++row) {
            MatchEngine::Row &place = setup.rows[row];
            place.playerId = places[row].id;
            place.name = places[row].nombre + QLatin1Char(' ') + places[row].apellidos;
            place.position = places[row].posicion;
            place.rating = places[row].media;
        }

        for (const sql::match::SheetLine &rival : sql::match::rivalSheet(store)) {
            setup.rival.push_back({rival.nombre + QLatin1Char(' ') + rival.apellidos, rival.media,
                                   rival.posicion.compare(QStringLiteral("Portero"), Qt::CaseInsensitive) == 0});
        }
    });
    return setup;
}

QString MatchDay::storedDefence()
{
    QString system;
    m_context.store.attempt([&] {
        const int code = Tactics(m_context).defenceCode();
        if (code >= 1 && code <= int(Tactics::defences().size()))
            system = Tactics::defences().at(code - 1);
    });
    return system;
}

QStringList MatchDay::squadSurnames()
{
    QStringList surnames;
    m_context.store.attempt([&] { surnames = sql::match::squadSurnames(m_context.store); });
    return surnames;
}

} // namespace game
