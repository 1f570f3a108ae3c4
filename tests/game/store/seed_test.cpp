// What the rules of the game count on in the database every career starts from.

#include "league/leagueclubs.h"
#include "tempstore.h"

#include <QDate>
#include <QSet>

#include <map>
#include <set>


class Seed : public StoreTest
{
protected:
    // Distinct positions of the players of the clubs in [low, high].
    QSet<QString> positions(int low, int high)
    {
        game::GameStore::Query query = m_store->query(
            "select distinct Posicion from jugadores where idequipo between ? and ?", low, high);
        QSet<QString> found;
        while (query.next())
            found.insert(query.text(0));
        return found;
    }
};

TEST_F(Seed, holdsOneCareerRowAndTheFixedTables)
{
    EXPECT_EQ(count("datos_jugador"), 1);
    EXPECT_EQ(m_store->integer("select jornada from datos_jugador"), 0);
    EXPECT_EQ(count("televisiones"), 7);
    EXPECT_EQ(m_store->integer("select min(idTelevision) * 10 + max(idTelevision) from televisiones"), 17);
    EXPECT_EQ(count("entrenadores"), 16);
    EXPECT_EQ(count("infoteams"), 16);
    EXPECT_EQ(m_store->integer("select count(*) from lesiones where idlesion = 0"), 1);
    for (const char *table : {"pretemporada", "calendario", "caja", "selects", "jugar"})
        EXPECT_EQ(count(table), 0) << table;
}

TEST_F(Seed, hasEveryClubFrom1To85WithUniqueNames)
{
    EXPECT_EQ(m_store->integer("select count(*) from equipos where idequipo between 1 and 85"), 85);
    EXPECT_EQ(count("equipos"), 85);
    game::GameStore::Query names = m_store->query("select NombreEquipo from equipos");
    QSet<QString> folded;
    while (names.next())
        folded.insert(names.text(0).toCaseFolded());
    EXPECT_EQ(folded.size(), 85);
}

// Guards: the gate, the results and the crests find a league club by its caption.
TEST_F(Seed, namesTheLeagueClubsAsTheirCrestsIgnoringCase)
{
    for (const game::LeagueClub &club : game::kLeagueClubs) {
        const QString name = m_store->text("select NombreEquipo from equipos where idequipo = ?", club.id);
        EXPECT_EQ(name.toUpper(), QString::fromUtf16(club.caption)) << club.id;
        EXPECT_EQ(m_store->integer("select codpais from equipos where idequipo = ?", club.id), 1);
    }
    EXPECT_EQ(m_store->text("select NombreEquipo from equipos where idequipo = 7"), QStringLiteral("Caja Cantabria"));
}

// Guards: a country button of the planner or the market with nobody to play or sign.
TEST_F(Seed, givesEveryCountryAtLeastThreeClubsAndKeepsThePoolsOffTheLists)
{
    for (int country = 1; country <= 18; ++country) {
        EXPECT_GE(m_store->integer("select count(*) from equipos where codpais = ? and idequipo between 17 and 83", country), 3)
            << "country " << country;
    }
    EXPECT_EQ(m_store->integer("select count(*) from equipos where idequipo > 16 and idequipo < 84 and codpais not between 1 and 18"), 0);
    EXPECT_EQ(m_store->integer("select count(*) from equipos where idequipo in (84, 85) and codpais between 1 and 18"), 0);
}

// Guards: random draws of a player by id that hit a gap and read no row.
TEST_F(Seed, numbersThePlayersFromOneWithoutGaps)
{
    const qint64 players = count("jugadores");
    EXPECT_GE(players, 1300);
    EXPECT_EQ(m_store->integer("select min(idjugador) from jugadores"), 1);
    EXPECT_EQ(m_store->integer("select max(idjugador) from jugadores"), players);
    EXPECT_LT(players, 32768);
}

TEST_F(Seed, givesEveryPlayerValidValues)
{
    EXPECT_EQ(m_store->integer("select count(*) from jugadores where Posicion not in ('Portero', 'Extremo Izquierdo',"
                               " 'Extremo Derecho', 'Lateral Izquierdo', 'Lateral Derecho', 'Pivote', 'Central')"),
              0);
    EXPECT_EQ(m_store->integer("select count(*) from jugadores where idequipo < 84 and (Edad < 17 or Edad > 36)"), 0);
    EXPECT_EQ(m_store->integer("select count(*) from jugadores where \"Años_Contrato\" not between 1 and 5"), 0);
    EXPECT_EQ(m_store->integer("select count(*) from jugadores where venta <> 0 or libre1 <> 0 or libre2 <> 0 or libre3 <> 0"), 0);
    EXPECT_EQ(m_store->integer("select count(*) from jugadores where Lesiones not in (select idlesion from lesiones)"), 0);
    EXPECT_EQ(m_store->integer("select count(*) from jugadores where Dorsal not between 1 and 99"), 0);
    EXPECT_EQ(m_store->integer("select count(*) from jugadores where Ficha <= 0 or Clausula_Recision < Ficha"), 0);
    EXPECT_EQ(m_store->integer("select count(*) from (select idequipo, Dorsal from jugadores where idequipo < 84"
                               " group by idequipo, Dorsal having count(*) > 1)"),
              0);
    EXPECT_EQ(m_store->integer("select count(*) from (select Nombre, Apellidos from jugadores"
                               " group by Nombre, Apellidos having count(*) > 1)"),
              0);
}

// Guards: a call-up that cannot fill its fourteen places or a position nobody can play.
TEST_F(Seed, givesEveryLeagueClubFourteenToTwentyPlayersInAllSevenPositions)
{
    for (int club = 1; club <= 16; ++club) {
        const qint64 squad = m_store->integer("select count(*) from jugadores where idequipo = ?", club);
        EXPECT_GE(squad, 14) << club;
        EXPECT_LE(squad, 20) << club;
        EXPECT_EQ(positions(club, club).size(), 7) << club;
    }
    // The rivals complete a thin squad from the clubs abroad and the released players.
    EXPECT_EQ(positions(17, 83).size(), 7);
    EXPECT_EQ(positions(85, 85).size(), 7);
    EXPECT_EQ(positions(84, 84).size(), 7);
}

// Guards: a league where the small clubs beat the big ones as often as not.
TEST_F(Seed, makesTheBigClubsStrongerAndBetterPaid)
{
    auto average = [&](int club) {
        return m_store->integer("select avg(Media) from jugadores where idequipo = ?", club);
    };
    for (int big : {1, 2})
        for (int small : {15, 16})
            EXPECT_GT(average(big), average(small) + 5) << big << " vs " << small;
    EXPECT_GT(m_store->integer("select avg(Ficha) from jugadores where Media >= 80"),
              2 * m_store->integer("select avg(Ficha) from jugadores where Media < 60"));
    EXPECT_GT(m_store->integer("select presupuesto from infoteams where idequipo = 1"),
              m_store->integer("select presupuesto from infoteams where idequipo = 16"));
}

TEST_F(Seed, givesEveryStadiumRoomAndLevelsThatCanClimb)
{
    EXPECT_EQ(count("estadios"), 16);
    EXPECT_EQ(m_store->integer("select count(*) from estadios where min_gradas < 3000"), 0);
    EXPECT_EQ(m_store->integer("select count(*) from estadios where marcadores < 1 or accesos < 1 or lavabos < 1"), 0);
}

// Guards: pristine prices off the price buttons' grids (tickets 5 to 30 in fives, boards 900 to
// 1800 in hundreds), whose bounds are then never met exactly, so prices climb or fall for ever.
TEST_F(Seed, storesPricesOnTheButtonsGridsAndValidTacticsCodes)
{
    EXPECT_EQ(count("entradas"), 4);
    const qint64 ticket = m_store->integer("select precio_entrada from entradas where idPrecio = 1");
    const qint64 boards = m_store->integer("select precio_entrada from entradas where idPrecio = 2");
    EXPECT_EQ(ticket, 10);
    EXPECT_EQ(boards, 1000);
    EXPECT_TRUE(ticket >= 5 && ticket <= 30 && ticket % 5 == 0) << ticket;
    EXPECT_TRUE(boards >= 900 && boards <= 1800 && boards % 100 == 0) << boards;
    EXPECT_EQ(m_store->integer("select precio_entrada between 1 and 5 from entradas where idPrecio = 3"), 1);
    EXPECT_EQ(m_store->integer("select precio_entrada between 1 and 2 from entradas where idPrecio = 4"), 1);
}

// Guards: a template position that stands for no club, or for two.
TEST_F(Seed, mapsTheSixteenTemplatePositionsToTheSixteenClubs)
{
    EXPECT_EQ(count("asobal"), 16);
    EXPECT_EQ(m_store->integer("select count(distinct puesto_anterior) from asobal where puesto_anterior between 1 and 16"), 16);
    EXPECT_EQ(m_store->integer("select count(*) from asobal where teams not between 1 and 16"), 0);
    EXPECT_EQ(m_store->integer("select sum(Puntos) + sum(Goles_Favor) + sum(Goles_Contra) from asobal"), 0);
}

// Guards: a club that plays twice in a round or misses one, and friendlies mistaken for
// league matches.
TEST_F(Seed, holdsADoubleRoundRobinOf240Fixtures)
{
    EXPECT_EQ(count("liga_asobal"), 240);
    EXPECT_EQ(m_store->integer("select count(*) from liga_asobal where idpartido between 1 and 5"), 0);
    EXPECT_EQ(m_store->integer("select count(*) from liga_asobal where goles_equipo_local <> 0 or goles_equipo_visitante <> 0"), 0);

    std::map<int, std::set<int>> seenInRound;
    std::map<std::pair<int, int>, int> meetings;
    std::map<int, int> matchesOf;
    int lastRound = 0;
    game::GameStore::Query fixtures = m_store->query(
        "select jornada, pos_equipo_local, pos_equipo_visitante, fecha from liga_asobal order by idpartido");
    std::map<int, QString> dateOfRound;
    while (fixtures.next()) {
        const int round = fixtures.integer(0);
        const int home = fixtures.integer(1);
        const int away = fixtures.integer(2);
        EXPECT_GE(round, lastRound) << "fixtures out of round order";
        lastRound = round;
        EXPECT_TRUE(seenInRound[round].insert(home).second) << "round " << round << " position " << home;
        EXPECT_TRUE(seenInRound[round].insert(away).second) << "round " << round << " position " << away;
        ++meetings[{home, away}];
        ++matchesOf[home];
        ++matchesOf[away];
        const QString date = fixtures.text(3);
        EXPECT_TRUE(QDate::fromString(date, Qt::ISODate).isValid()) << date.toStdString();
        if (dateOfRound.count(round)) {
            EXPECT_EQ(dateOfRound[round], date);
        }
        dateOfRound[round] = date;
    }
    EXPECT_EQ(seenInRound.size(), 30u);
    for (const auto &[round, positions] : seenInRound)
        EXPECT_EQ(positions.size(), 16u) << "round " << round;
    for (int position = 1; position <= 16; ++position)
        EXPECT_EQ(matchesOf[position], 30) << position;
    for (int home = 1; home <= 16; ++home) {
        for (int away = 1; away <= 16; ++away) {
            if (home != away) {
                const std::pair<int, int> pair{home, away};
                EXPECT_EQ(meetings[pair], 1) << home << " v " << away;
            }
        }
    }
    for (int round = 2; round <= 30; ++round)
        EXPECT_LT(dateOfRound[round - 1], dateOfRound[round]) << round;
}

TEST_F(Seed, hasFourteenFreePlacesInCallUpOrder)
{
    const QStringList expected{QStringLiteral("PORTERO"),         QStringLiteral("EXTREMO IZQUIERDO"),
                               QStringLiteral("EXTREMO DERECHO"), QStringLiteral("LATERAL IZQUIERDO"),
                               QStringLiteral("LATERAL DERECHO"), QStringLiteral("PIVOTE"),
                               QStringLiteral("CENTRAL"),         QStringLiteral("SUPLENTE1"),
                               QStringLiteral("SUPLENTE2"),       QStringLiteral("SUPLENTE3"),
                               QStringLiteral("SUPLENTE4"),       QStringLiteral("SUPLENTE5"),
                               QStringLiteral("SUPLENTE6"),       QStringLiteral("SUPLENTE7")};
    game::GameStore::Query places = m_store->query("select Pos_Partido, idjugador, Nombre from miequipo order by rowid");
    QStringList found;
    while (places.next()) {
        found << places.text(0);
        EXPECT_EQ(places.integer(1), 0);
        EXPECT_EQ(places.text(2), found.last());
    }
    EXPECT_EQ(found, expected);
}
