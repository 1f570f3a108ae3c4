#include "sim/autoseason.h"
#include "tempstore.h"

#include <functional>

// Seasons played by the headless manager, looked at as each ends: the final table and the
// season's ledger stand until the close that follows at once empties them.
class HeadlessSeason : public StoreTest
{
protected:
    // Plays the season to its end; atTheEnd runs once, on the final table.
    void playToTheEnd(game::AutoSeason &season, const std::function<void()> &atTheEnd)
    {
        int ended = 0;
        const QMetaObject::Connection hook = QObject::connect(&season.career(), &game::Career::seasonEnding, [&] {
            ++ended;
            atTheEnd();
        });
        int weeks = 0;
        while (season.playWeek())
            ASSERT_LT(++weeks, 40);
        QObject::disconnect(hook);
        EXPECT_EQ(ended, 1);
        ASSERT_TRUE(season.failure().isEmpty()) << season.failure().toStdString();
    }

    void checkTheTable();
    void checkTheLedger(const game::AutoSeason::Totals &totals);
};

// Guards: a season that cannot be played to its end, or a table that does not add up after
// thirty rounds played by the engine and the strength rule together.
TEST_F(HeadlessSeason, aWholeSeasonPlaysToTheEndAndTheTableAddsUp)
{
    m_random = ScriptedRandom(31);
    game::AutoSeason season(*m_context, {9, 3});
    ASSERT_TRUE(season.begin());
    playToTheEnd(season, [&] { checkTheTable(); });
    EXPECT_EQ(season.totals().weeks, 33);
    EXPECT_EQ(season.totals().matches, 33);
    EXPECT_EQ(season.totals().worksOrdered, 0);
    EXPECT_EQ(season.totals().tvIncome, 0);
    // A quiet manager hears only the television's weekly word, and touches nothing else.
    EXPECT_EQ(m_dialogs.texts(), QStringList(33, QStringLiteral("Cargando... Pulse Aceptar para continuar")));
}

void HeadlessSeason::checkTheTable()
{
    EXPECT_EQ(m_store->integer("select jornada from datos_jugador"), 34);
    EXPECT_EQ(m_store->integer("select count(*) from liga_asobal where goles_equipo_local = 0 and goles_equipo_visitante = 0"), 0);
    EXPECT_EQ(m_store->integer("select count(*) from asobal where \"Partidos_ Ganados\" + Partidos_Empatados + Partidos_Perdidos <> 30"), 0);
    EXPECT_EQ(m_store->integer("select sum(Goles_Favor) - sum(Goles_Contra) from asobal"), 0);
    EXPECT_EQ(m_store->integer("select sum(goles_equipo_local + goles_equipo_visitante) from liga_asobal"),
              m_store->integer("select sum(Goles_Favor) from asobal"));
    EXPECT_EQ(m_store->integer("select sum(Puntos) from asobal"), 240 * 2);
    // The user's club's line in the table holds the goals of its thirty fixtures.
    EXPECT_EQ(m_store->integer("select Goles_Favor from asobal where teams = 9"),
              m_store->integer("select sum(case when h.teams = 9 then goles_equipo_local else goles_equipo_visitante end)"
                               " from liga_asobal f join asobal h on h.puesto_anterior = f.pos_equipo_local"
                               " join asobal a on a.puesto_anterior = f.pos_equipo_visitante where 9 in (h.teams, a.teams)"));
    EXPECT_EQ(count("caja"), 33);
    EXPECT_EQ(count("selects"), 0);
    EXPECT_EQ(m_store->integer("select sum(ingresos_TV) + sum(Gastos_Remodelaciones) from caja"), 0);
    EXPECT_EQ(m_store->integer("select precio_entrada from entradas where idPrecio = 1"), 10);
}

// Guards: a season in which works, broadcasts, the shop and the gate do not add up in the
// ledger week after week: an income that reaches the budget, a work charged twice or never,
// a fee booked without the OK, or the busy manager's choices not the cheapest on offer.
TEST_F(HeadlessSeason, aBusySeasonEndsWorksAndKeepsTheLedgerConsistent)
{
    m_random = ScriptedRandom(13);
    // Club 13 lacks a lot: parking, a shop, heating; small levels elsewhere; 3100 seats.
    game::AutoSeason season(*m_context, {13, 3, game::AutoSeason::Policy::Busy});
    ASSERT_TRUE(season.begin());
    ASSERT_TRUE(season.playWeek());
    // The cheapest work on offer in each of the four groups (among equals the first listed).
    QStringList ordered;
    game::GameStore::Query orders =
        m_store->query("select observaciones from selects where observaciones <> ' ' order by rowid");
    while (orders.next())
        ordered << orders.text(0);
    EXPECT_EQ(ordered, (QStringList{QStringLiteral("gradas 1000 1000000 12"), QStringLiteral("parking 0 3500000 30"),
                                    QStringLiteral("focos 2 120000 6"), QStringLiteral("enfermeria 1 60000 4")}));

    playToTheEnd(season, [&] { checkTheLedger(season.totals()); });
}

void HeadlessSeason::checkTheLedger(const game::AutoSeason::Totals &totals)
{
    EXPECT_EQ(totals.weeks, 33);
    EXPECT_GT(totals.worksFinished, 0);
    EXPECT_EQ(count("selects where observaciones <> ' '"), totals.worksOrdered - totals.worksFinished);
    EXPECT_GT(m_store->integer("select sum(Gastos_Remodelaciones) from caja"), 0);
    EXPECT_EQ(m_store->integer("select tienda from estadios where idequipo = 13"), 1);
    EXPECT_EQ(m_store->integer("select parking from estadios where idequipo = 13"), 1); // weeks 1 to 31

    // Each row adds up, and every week opens from the budget the week before left: no income
    // and no finished work ever reaches it.
    EXPECT_EQ(count("caja where Ingresos <> ingresos_Taquilla + ingresos_publi + ingresos_TV + Ingresos_Venta_Jugador"
                    " + Ingresos_Tienda"),
              0);
    EXPECT_EQ(count("caja where Gastos <> Gastos_Fichajes + Gastos_Despido + Gastos_Fichas + Gastos_Hospitales"
                    " + Gastos_Empleados + Gastos_Remodelaciones"),
              0);
    EXPECT_EQ(count("caja a join caja b on b.semana = a.semana + 1"
                    " where b.Caja - b.Ingresos + b.Gastos <> a.Caja - a.Ingresos + a.Gastos - a.Gastos_Fichas - a.Gastos_Empleados"),
              0);
    EXPECT_EQ(m_store->integer("select presupuesto from infoteams where idequipo = 13"),
              m_store->integer("select Caja - Ingresos + Gastos - Gastos_Fichas - Gastos_Empleados from caja"
                               " order by semana desc limit 1"));

    // The totals are what the ledger holds.
    EXPECT_GT(totals.tvIncome, 0);
    EXPECT_EQ(totals.tvIncome, m_store->integer("select sum(ingresos_TV) from caja"));
    EXPECT_EQ(totals.tvIncome % 450000, 0);
    EXPECT_EQ(totals.gateIncome, m_store->integer("select sum(ingresos_Taquilla + ingresos_publi) from caja"));
    EXPECT_GT(totals.shopIncome, 0);
    EXPECT_EQ(totals.shopIncome % 1000, 0);
    EXPECT_LE(totals.shopIncome, m_store->integer("select sum(Ingresos_Tienda) from caja"));
    EXPECT_EQ(m_store->integer("select precio_entrada from entradas where idPrecio = 1"), 30);

    // The market: an offer a week, answered three weeks on; the players' table stays whole.
    EXPECT_EQ(totals.offersMade, 33);
    EXPECT_EQ(totals.signings + totals.refusals, totals.offersMade - int(count("selects where observaciones = ' '")));
    EXPECT_GT(totals.signings, 0);
    // One offer a week, so one signing at most a week.
    EXPECT_EQ(totals.signings, int(m_store->integer("select count(*) from caja where Gastos_Fichajes > 0")));
    EXPECT_EQ(totals.sales, int(m_store->integer("select count(*) from caja where Ingresos_Venta_Jugador > 0")));
    EXPECT_EQ(m_store->integer("select max(idjugador) - count(*) from jugadores"), 0); // ids without gaps
    EXPECT_GE(m_store->integer("select count(*) from jugadores where idequipo = 13"), 15);
    // Every other club of the league can still field all seven positions.
    EXPECT_EQ(m_store->integer("select count(*) from (select idequipo from jugadores where idequipo between 1 and 16"
                               " and idequipo <> 13 group by idequipo having count(distinct Posicion) >= 7)"),
              15);
}

// Guards: a career that drifts over many seasons: a close that leaves orders, ledger rows,
// fixtures or friendlies behind, places that repeat, players' ids with gaps, a league club
// left without a squad, or a match that cannot be played.
TEST_F(HeadlessSeason, twentyBusySeasonsKeepEveryInvariantAfterEachClose)
{
    m_random = ScriptedRandom(2020);
    game::AutoSeason season(*m_context, {6, 2, game::AutoSeason::Policy::Busy});
    ASSERT_TRUE(season.begin());
    for (int played = 1; played <= 20; ++played) {
        int weeks = 0;
        while (season.playWeek())
            ASSERT_LT(++weeks, 40) << played;
        ASSERT_TRUE(season.failure().isEmpty()) << played << ' ' << season.failure().toStdString();
        game::AutoSeason::SeasonSummary summary;
        // The close is checked before the next season is planned over it.
        ASSERT_TRUE(season.closeSeason(&summary)) << played << ' ' << season.failure().toStdString();
        EXPECT_FALSE(summary.champion.isEmpty()) << played;
        EXPECT_TRUE(summary.place >= 1 && summary.place <= 16) << played;
        for (const char *table : {"selects", "caja"})
            EXPECT_EQ(count(table), 0) << played << ' ' << table;
        EXPECT_EQ(m_store->integer("select count(distinct puesto_anterior) from asobal"
                                   " where puesto_anterior between 1 and 16"),
                  16)
            << played;
        EXPECT_EQ(m_store->integer("select sum(Puntos + Goles_Favor + Goles_Contra) from asobal"), 0) << played;
        EXPECT_EQ(m_store->integer("select max(idjugador) - count(*) from jugadores"), 0) << played;
        // A league club may sell its only man of a position to the user; it still keeps a
        // squad, and the rival's imports complete it for its matches (every match is played).
        EXPECT_EQ(m_store->integer("select count(*) from (select idequipo from jugadores where idequipo between 1 and 16"
                                   " group by idequipo having count(*) >= 7)"),
                  16)
            << played;
        EXPECT_EQ(season.totals().matches, played * 32) << played;
        // The next season is planned: its two friendlies; the calendar comes as it begins.
        EXPECT_EQ(count("pretemporada"), 2) << played;
        EXPECT_EQ(count("calendario"), 0) << played;
        EXPECT_EQ(m_store->integer("select jornada from datos_jugador"), 0) << played;
    }
    EXPECT_EQ(season.totals().matches, 20 * 32);
}
