#include "matchday.h"

#include "league/careerrow.h"
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

        GameStore::Query places = store.query("select Nombre, Apellidos, Posicion, Media from miequipo order by rowid");
        for (std::size_t row = 0; row < setup.rows.size() && places.next(); ++row) {
            MatchEngine::Row &place = setup.rows[row];
            place.name = places.text(0) + QLatin1Char(' ') + places.text(1);
            place.position = places.text(2);
            place.rating = places.integer(3);
        }

        GameStore::Query rival = store.query("select Nombre, Apellidos, Media, Posicion from jugar order by plaza");
        while (rival.next()) {
            setup.rival.push_back({rival.text(0) + QLatin1Char(' ') + rival.text(1), rival.integer(2),
                                   rival.text(3).compare(QStringLiteral("Portero"), Qt::CaseInsensitive) == 0});
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
    m_context.store.attempt([&] {
        GameStore::Query places = m_context.store.query("select Apellidos from miequipo order by rowid");
        while (places.next())
            surnames << places.text(0);
    });
    return surnames;
}

} // namespace game
