#include "sim/autoseason.h"
#include "tempstore.h"

// Seasons played by the headless manager, one after another, each closed and the next planned.
class HeadlessSeasons : public StoreTest
{};

// Guards: a career that drifts over many seasons: a ledger row that does not add up or a
// week that does not open from the budget the week before left; a close that leaves orders,
// ledger rows, fixtures or friendlies behind, places that repeat, players' ids with gaps, a
// league club left without a squad, or a match that cannot be played.
TEST_F(HeadlessSeasons, twentyBusySeasonsKeepEveryInvariantAfterEachClose)
{
    m_random = ScriptedRandom(2020);
    game::AutoSeason season(*m_context, {6, 2, game::AutoSeason::Policy::Busy});
    int ended = 0;
    QObject::connect(&season.career(), &game::Career::seasonEnding, [&] {
        ++ended;
        EXPECT_EQ(count("caja where Ingresos <> ingresos_Taquilla + ingresos_publi + ingresos_TV"
                        " + Ingresos_Venta_Jugador + Ingresos_Tienda"),
                  0);
        EXPECT_EQ(count("caja where Gastos <> Gastos_Fichajes + Gastos_Despido + Gastos_Fichas + Gastos_Hospitales"
                        " + Gastos_Empleados + Gastos_Remodelaciones"),
                  0);
        EXPECT_EQ(count("caja a join caja b on b.semana = a.semana + 1 where b.Caja - b.Ingresos + b.Gastos"
                        " <> a.Caja - a.Ingresos + a.Gastos - a.Gastos_Fichas - a.Gastos_Empleados"),
                  0);
    });
    ASSERT_TRUE(season.begin());
    for (int played = 1; played <= 20; ++played) {
        int weeks = 0;
        while (season.playWeek())
            ASSERT_LT(++weeks, 40) << played;
        ASSERT_TRUE(season.failure().isEmpty()) << played << ' ' << season.failure().toStdString();
        EXPECT_EQ(ended, played);
        game::AutoSeason::SeasonSummary summary;
        // The close is checked before the next season is planned over it.
        ASSERT_TRUE(season.closeSeason(&summary)) << played << ' ' << season.failure().toStdString();
        EXPECT_FALSE(summary.champion.isEmpty()) << played;
        EXPECT_TRUE(summary.place >= 1 && summary.place <= 16) << played;
        EXPECT_EQ(count("selects") + count("caja") + count("calendario"), 0) << played;
        EXPECT_EQ(value("select count(distinct puesto_anterior) from asobal where puesto_anterior between 1 and 16"), 16)
            << played;
        EXPECT_EQ(value("select sum(Puntos + Goles_Favor + Goles_Contra) from asobal"), 0) << played;
        EXPECT_EQ(value("select max(idjugador) - count(*) from jugadores"), 0) << played;
        // A league club may sell its only man of a position to the user; it still keeps a
        // squad, and the rival's imports complete it for its matches (every match is played).
        EXPECT_EQ(value("select count(*) from (select idequipo from jugadores where idequipo between 1 and 16"
                        " group by idequipo having count(*) >= 7)"),
                  16)
            << played;
        EXPECT_EQ(season.totals().matches, played * 32) << played;
        // The next season is planned: its two friendlies; the calendar comes as it begins.
        EXPECT_EQ(count("pretemporada"), 2) << played;
        EXPECT_EQ(value("select jornada from datos_jugador"), 0) << played;
    }
}
