// What the rules of the game count on in the database every career starts from.

#include "league/leagueclubs.h"
#include "tempstore.h"

#include <QDate>

struct SeedRule {
    friend void PrintTo(const SeedRule &c, std::ostream *out) { *out << c.name; }
    const char *name;
    const char *sql; // counts what breaks the rule
    qint64 expected = 0;
};

class Seed : public StoreTest, public ::testing::WithParamInterface<SeedRule>
{};

// Guards: a seed regenerated into something the rules cannot work with: a draw of a player by
// id that hits a gap, a call-up that cannot fill its fourteen places, a country button with
// nobody to play, prices off the buttons' grids (whose bounds are then never met exactly), a
// template position that stands for no club or for two, a league club missing its crest's
// name, a week that starts with leftovers of a career.
TEST_P(Seed, holdsWhatTheRulesCountOn)
{
    EXPECT_EQ(value(GetParam().sql), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    Pristine, Seed,
    ::testing::Values(
        SeedRule{"oneCareerRowAtWeekZero", "select count(*) * 100 + sum(jornada) from datos_jugador", 100},
        SeedRule{"noLeftovers", "select (select count(*) from pretemporada) + (select count(*) from calendario)"
                                " + (select count(*) from caja) + (select count(*) from selects) + (select count(*) from jugar)"},
        SeedRule{"fixedTables", "select (select count(*) from televisiones) * 1000000 + (select count(*) from entrenadores)"
                                " * 10000 + (select count(*) from infoteams) * 100 + (select count(*) from estadios)",
                 7161616},
        SeedRule{"clubs1To85UniqueNames", "select count(distinct lower(NombreEquipo)) * 1000 + max(idequipo) from equipos", 85085},
        SeedRule{"playersFromOneWithoutGaps", "select max(idjugador) - count(*) + min(idjugador) from jugadores", 1},
        SeedRule{"countriesOfThreeClubs", "select count(*) from (select codpais from equipos where idequipo between 17 and 83"
                                          " group by codpais having count(*) >= 3 and codpais between 1 and 18)",
                 18},
        SeedRule{"poolsOffTheLists", "select count(*) from equipos where (idequipo in (84, 85)) = (codpais between 1 and 18)"},
        SeedRule{"positions", "select count(*) from jugadores where Posicion not in ('Portero', 'Extremo Izquierdo',"
                              " 'Extremo Derecho', 'Lateral Izquierdo', 'Lateral Derecho', 'Pivote', 'Central')"},
        SeedRule{"contractsAndShirts", "select count(*) from jugadores where \"Años_Contrato\" not between 1 and 5"
                                       " or Dorsal not between 1 and 99 or Ficha <= 0 or Clausula_Recision < Ficha"
                                       " or venta + libre1 + libre2 + libre3 <> 0 or Lesiones not in (select idlesion from lesiones)"
                                       " or (idequipo < 84 and Edad not between 17 and 36)"},
        SeedRule{"uniqueShirtsAndNames", "select (select count(*) from (select 1 from jugadores where idequipo < 84"
                                         " group by idequipo, Dorsal having count(*) > 1)) + (select count(*) from"
                                         " (select 1 from jugadores group by Nombre, Apellidos having count(*) > 1))"},
        SeedRule{"squadsOfAllSevenPositions", "select count(*) from (select idequipo from jugadores where idequipo <= 16"
                                              " group by idequipo having count(*) between 14 and 20"
                                              " and count(distinct Posicion) = 7)",
                 16},
        SeedRule{"poolsOfAllSevenPositions", "select count(distinct max(idequipo, 83) || Posicion) from jugadores"
                                             " where idequipo > 16",
                 21},
        SeedRule{"bigClubsStronger", "select (select avg(Media) from jugadores where idequipo in (1, 2))"
                                     " > 5 + (select avg(Media) from jugadores where idequipo in (15, 16))",
                 1},
        SeedRule{"templatePositions", "select count(distinct puesto_anterior) * 100 + count(*) from asobal"
                                      " where puesto_anterior between 1 and 16 and teams between 1 and 16"
                                      " and Puntos + Goles_Favor + Goles_Contra = 0",
                 1616},
        SeedRule{"callUpPlacesFree", "select count(*) * 100 + sum(idjugador) from miequipo where Nombre = Pos_Partido", 1400}),
    [](const auto &info) { return std::string(info.param.name); });

// Guards: the gate, the results and the crests find a league club by its caption; prices off
// the buttons' grids (tickets 5 to 30 in fives, boards 900 to 1800 in hundreds); the call-up's
// places out of their order.
TEST_F(StoreTest, theSeedNamesTheLeagueClubsAsTheirCrestsWithPricesAndPlacesInOrder)
{
    for (const game::LeagueClub &club : game::kLeagueClubs) {
        EXPECT_EQ(text("select NombreEquipo from equipos where idequipo = ? and codpais = 1", club.id).toUpper(),
                  QString::fromUtf16(club.caption))
            << club.id;
    }
    EXPECT_EQ(text("select group_concat(precio_entrada, ' ') from (select * from entradas order by idPrecio)"),
              QStringLiteral("10 1000 1 1"));
    EXPECT_EQ(text("select group_concat(Pos_Partido, ',') from (select * from miequipo order by rowid)"),
              QStringLiteral("PORTERO,EXTREMO IZQUIERDO,EXTREMO DERECHO,LATERAL IZQUIERDO,LATERAL DERECHO,PIVOTE,"
                             "CENTRAL,SUPLENTE1,SUPLENTE2,SUPLENTE3,SUPLENTE4,SUPLENTE5,SUPLENTE6,SUPLENTE7"));
}

// Guards: a club that plays twice in a round or misses one, a pairing met twice, rounds out of
// date order, friendlies' ids (1 to 5) taken by league matches.
TEST_F(StoreTest, theSeedHoldsADoubleRoundRobinOf240FixturesInDateOrder)
{
    EXPECT_EQ(value("select count(*) from liga_asobal where idpartido > 5 and goles_equipo_local + goles_equipo_visitante = 0"), 240);
    EXPECT_EQ(value("select count(distinct pos_equipo_local * 100 + pos_equipo_visitante) from liga_asobal"
                    " where pos_equipo_local <> pos_equipo_visitante"), 240);
    EXPECT_EQ(value("select count(*) from (select jornada, p from (select jornada, pos_equipo_local p from liga_asobal"
                    " union all select jornada, pos_equipo_visitante from liga_asobal) group by jornada, p having count(*) = 1)"),
              30 * 16);
    EXPECT_EQ(value("select count(distinct jornada) * 100 + count(distinct fecha) from liga_asobal"), 3030);
    EXPECT_EQ(value("select count(*) from liga_asobal a join liga_asobal b on b.jornada = a.jornada + 1 where b.fecha <= a.fecha"), 0);
    EXPECT_TRUE(QDate::fromString(text("select min(fecha) from liga_asobal"), Qt::ISODate).isValid());
}
