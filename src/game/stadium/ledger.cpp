#include "ledger.h"

#include "money.h"
#include "store/gamestore.h"

namespace game {

qint64 Ledger::weeklyWages(int club)
{
    const qint64 seasonWages = m_store.integer("select sum(Ficha) from jugadores where idequipo = ?", club);
    const qint64 weeks = m_store.integer("select count(*) from calendario");
    return roundHalfEven(seasonWages, weeks);
}

void Ledger::openWeek(int week, int club)
{
    const qint64 wages = weeklyWages(club);
    const qint64 budgetNow = budget(club);
    // Every other column of the row opens at 0.
    m_store.execute("insert into caja (semana, Gastos_Fichas, Gastos_Empleados, Gastos, Caja) values (?, ?, ?, ?, ?)",
                    week, wages, kStaffWages, wages + kStaffWages, budgetNow - kStaffWages - wages);
    m_store.execute("update infoteams set presupuesto = presupuesto - ? - ? where idequipo = ?", kStaffWages,
                    wages, club);
}

void Ledger::postGateAndBoards(int week, qint64 gate, qint64 boards)
{
    m_store.execute("update caja set Caja = Caja + ?, Ingresos = Ingresos + ?, ingresos_Taquilla = ingresos_Taquilla + ?,"
                    " ingresos_publi = ingresos_publi + ? where semana = ?",
                    gate + boards, gate + boards, gate, boards, week);
}

void Ledger::postIncome(const char *sql, int week, qint64 amount)
{
    m_store.execute(sql, amount, amount, amount, week);
}

void Ledger::postCafeterias(int week, qint64 amount)
{
    postIncome("update caja set Caja = Caja + ?, Ingresos_Tienda = Ingresos_Tienda + ?, Ingresos = Ingresos + ?"
               " where semana = ?",
               week, amount);
}

void Ledger::postClubShop(int week, qint64 amount)
{
    postCafeterias(week, amount); // the shop and the cafeterias share the column
}

void Ledger::postTelevision(int week)
{
    postIncome("update caja set Caja = Caja + ?, Ingresos = Ingresos + ?, ingresos_TV = ingresos_TV + ? where semana = ?",
               week, kTelevisionFee);
}

void Ledger::postSale(int week, qint64 amount)
{
    postIncome("update caja set Caja = Caja + ?, Ingresos = Ingresos + ?,"
               " Ingresos_Venta_Jugador = Ingresos_Venta_Jugador + ? where semana = ?",
               week, amount);
}

void Ledger::postSigning(int week, qint64 amount)
{
    postIncome("update caja set Caja = Caja - ?, Gastos = Gastos + ?, Gastos_Fichajes = Gastos_Fichajes + ?"
               " where semana = ?",
               week, amount);
}

void Ledger::postDismissal(int week, qint64 amount)
{
    postIncome("update caja set Caja = Caja - ?, Gastos = Gastos + ?, Gastos_Despido = Gastos_Despido + ?"
               " where semana = ?",
               week, amount);
}

void Ledger::postWorks(int week, qint64 amount)
{
    postIncome("update caja set Caja = Caja - ?, Gastos = Gastos + ?,"
               " Gastos_Remodelaciones = Gastos_Remodelaciones + ? where semana = ?",
               week, amount);
}

namespace {

Ledger::Row readRow(const GameStore::Query &query)
{
    auto value = [&](int column) { return query.integer64(column); };
    Ledger::Row row;
    row.semana = query.integer(0);
    row.taquilla = value(1);
    row.publicidad = value(2);
    row.television = value(3);
    row.ventaJugadores = value(4);
    row.tiendas = value(5);
    row.fichajes = value(6);
    row.despidos = value(7);
    row.salarios = value(8);
    row.hospitales = value(9);
    row.empleados = value(10);
    row.remodelaciones = value(11);
    row.ingresos = value(12);
    row.gastos = value(13);
    row.caja = value(14);
    return row;
}

} // namespace

std::optional<Ledger::Row> Ledger::row(int week)
{
    GameStore::Query query = m_store.query("select * from caja where semana = ?", week);
    if (!query.next())
        return std::nullopt;
    return readRow(query);
}

Ledger::Row Ledger::seasonTotals()
{
    GameStore::Query query = m_store.query(
        "select 0, total(ingresos_Taquilla), total(ingresos_publi), total(ingresos_TV), total(Ingresos_Venta_Jugador),"
        " total(Ingresos_Tienda), total(Gastos_Fichajes), total(Gastos_Despido), total(Gastos_Fichas),"
        " total(Gastos_Hospitales), total(Gastos_Empleados), total(Gastos_Remodelaciones), total(Ingresos),"
        " total(Gastos), 0 from caja");
    query.next();
    return readRow(query);
}

qint64 Ledger::firstBalance()
{
    return m_store.integer("select Caja from caja order by semana limit 1");
}

qint64 Ledger::budget(int club)
{
    return m_store.integer("select presupuesto from infoteams where idequipo = ?", club);
}

Ledger::Sheet Ledger::sheet(int week)
{
    Sheet sheet;
    m_store.attempt([&] {
        sheet.week = row(week).value_or(Row{});
        sheet.before = row(week - 1).value_or(Row{});
        sheet.season = seasonTotals();
        // The season's cash is the balance of the earliest week on file.
        sheet.seasonCash = firstBalance();
    });
    return sheet;
}

} // namespace game
