#include "statements.h"

#include "store/gamestore.h"

#include <QRegularExpression>

#include <stdexcept>

namespace game::sql::stadium {

namespace {

using Item = Works::Item;

// The column of estadios that holds each item, and the statement that sets it.
struct Column
{
    Item item;
    const char *name;
    const char *set;
};
constexpr Column kColumns[] = {
    {Item::Seats, "min_gradas", "update estadios set min_gradas = ? where idequipo = ?"},
    {Item::Parking, "parking", "update estadios set parking = ? where idequipo = ?"},
    {Item::Lights, "focos", "update estadios set focos = ? where idequipo = ?"},
    {Item::Scoreboards, "marcadores", "update estadios set marcadores = ? where idequipo = ?"},
    {Item::Heating, "calefaccion", "update estadios set calefaccion = ? where idequipo = ?"},
    {Item::Access, "accesos", "update estadios set accesos = ? where idequipo = ?"},
    {Item::Infirmary, "enfermeria", "update estadios set enfermeria = ? where idequipo = ?"},
    {Item::Shop, "tienda", "update estadios set tienda = ? where idequipo = ?"},
    {Item::Toilets, "lavabos", "update estadios set lavabos = ? where idequipo = ?"},
    {Item::Cafeterias, "cafeteria", "update estadios set cafeteria = ? where idequipo = ?"},
};

const Column &columnOf(Item item)
{
    for (const Column &column : kColumns) {
        if (column.item == item)
            return column;
    }
    throw std::logic_error("an item of the stadium without its column");
}

// Every posting moves its column, the week's total of its side and the balance, by the same
// sum: the statement binds it three times and then the week.
const char *postingStatement(Posting posting)
{
    switch (posting) {
    case Posting::ShopAndCafeterias:
        return "update caja set Caja = Caja + ?, Ingresos_Tienda = Ingresos_Tienda + ?, Ingresos = Ingresos + ?"
               " where semana = ?";
    case Posting::Television:
        return "update caja set Caja = Caja + ?, Ingresos = Ingresos + ?, ingresos_TV = ingresos_TV + ?"
               " where semana = ?";
    case Posting::Sale:
        return "update caja set Caja = Caja + ?, Ingresos = Ingresos + ?,"
               " Ingresos_Venta_Jugador = Ingresos_Venta_Jugador + ? where semana = ?";
    case Posting::Signing:
        return "update caja set Caja = Caja - ?, Gastos = Gastos + ?, Gastos_Fichajes = Gastos_Fichajes + ?"
               " where semana = ?";
    case Posting::Dismissal:
        return "update caja set Caja = Caja - ?, Gastos = Gastos + ?, Gastos_Despido = Gastos_Despido + ?"
               " where semana = ?";
    case Posting::Works:
        return "update caja set Caja = Caja - ?, Gastos = Gastos + ?,"
               " Gastos_Remodelaciones = Gastos_Remodelaciones + ? where semana = ?";
    }
    throw std::logic_error("a posting without its column");
}

// A row of caja, or of its sums, in the ledger's column order.
Ledger::Row ledgerRowAt(const GameStore::Query &query)
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

qint64 seasonWages(GameStore &store, int club)
{
    return store.integer("select sum(Ficha) from jugadores where idequipo = ?", club);
}

int calendarWeeks(GameStore &store)
{
    return int(store.integer("select count(*) from calendario"));
}

void openLedgerWeek(GameStore &store, int week, qint64 wages, qint64 staff, qint64 balance)
{
    store.execute("insert into caja (semana, Gastos_Fichas, Gastos_Empleados, Gastos, Caja) values (?, ?, ?, ?, ?)",
                  week, wages, staff, wages + staff, balance);
}

void payWeekFromBudget(GameStore &store, int club, qint64 staff, qint64 wages)
{
    store.execute("update infoteams set presupuesto = presupuesto - ? - ? where idequipo = ?", staff, wages, club);
}

void chargeBudget(GameStore &store, int club, qint64 amount)
{
    store.execute("update infoteams set presupuesto = presupuesto - ? where idequipo = ?", amount, club);
}

qint64 budget(GameStore &store, int club)
{
    return store.integer("select presupuesto from infoteams where idequipo = ?", club);
}

void post(GameStore &store, int week, Posting posting, qint64 amount)
{
    store.execute(postingStatement(posting), amount, amount, amount, week);
}

void postGateAndBoards(GameStore &store, int week, qint64 gate, qint64 boards)
{
    store.execute("update caja set Caja = Caja + ?, Ingresos = Ingresos + ?, ingresos_Taquilla = ingresos_Taquilla + ?,"
                  " ingresos_publi = ingresos_publi + ? where semana = ?",
                  gate + boards, gate + boards, gate, boards, week);
}

std::optional<Ledger::Row> ledgerRow(GameStore &store, int week)
{
    GameStore::Query query = store.query("select * from caja where semana = ?", week);
    if (!query.next())
        return std::nullopt;
    return ledgerRowAt(query);
}

std::vector<Ledger::Row> ledgerRows(GameStore &store)
{
    std::vector<Ledger::Row> rows;
    GameStore::Query query = store.query("select * from caja order by semana");
    while (query.next())
        rows.push_back(ledgerRowAt(query));
    return rows;
}

Ledger::Row ledgerTotals(GameStore &store)
{
    GameStore::Query query = store.query(
        "select 0, total(ingresos_Taquilla), total(ingresos_publi), total(ingresos_TV), total(Ingresos_Venta_Jugador),"
        " total(Ingresos_Tienda), total(Gastos_Fichajes), total(Gastos_Despido), total(Gastos_Fichas),"
        " total(Gastos_Hospitales), total(Gastos_Empleados), total(Gastos_Remodelaciones), total(Ingresos),"
        " total(Gastos), 0 from caja");
    query.next();
    return ledgerRowAt(query);
}

qint64 firstBalance(GameStore &store)
{
    return store.integer("select Caja from caja order by semana limit 1");
}

qint64 entrada(GameStore &store, Entrada row)
{
    return store.integer("select precio_entrada from entradas where idPrecio = ?", static_cast<int>(row));
}

void setEntrada(GameStore &store, Entrada row, qint64 value)
{
    store.execute("update entradas set precio_entrada = ? where idPrecio = ?", value, static_cast<int>(row));
}

std::optional<Works::Stadium> stadium(GameStore &store, int club)
{
    GameStore::Query row = store.query(
        "select Nombre, min_gradas, parking, focos, marcadores, calefaccion, accesos, enfermeria, tienda, lavabos,"
        " cafeteria from estadios where idequipo = ?",
        club);
    if (!row.next())
        return std::nullopt;
    Works::Stadium read;
    read.name = row.text(0);
    read.capacity = row.integer(1);
    read.parking = row.integer(2) != 0;
    read.focos = row.integer(3);
    read.marcadores = row.integer(4);
    read.calefaccion = row.integer(5) != 0;
    read.accesos = row.integer(6);
    read.enfermeria = row.integer(7);
    read.tienda = row.integer(8) != 0;
    read.lavabos = row.integer(9);
    read.cafeteria = row.integer(10) != 0;
    return read;
}

std::optional<Hall> hall(GameStore &store, int club)
{
    GameStore::Query row = store.query("select Nombre, min_gradas from estadios where idequipo = ?", club);
    if (!row.next())
        return std::nullopt;
    return Hall{row.text(0), row.integer(1)};
}

qint64 seats(GameStore &store, int club)
{
    return store.integer("select min_gradas from estadios where idequipo = ?", club);
}

bool hasShop(GameStore &store, int club)
{
    return store.integer("select tienda from estadios where idequipo = ?", club) != 0;
}

bool hasCafeterias(GameStore &store, int club)
{
    return store.integer("select cafeteria from estadios where idequipo = ?", club) != 0;
}

std::vector<QueuedOrder> queue(GameStore &store)
{
    std::vector<QueuedOrder> rows;
    GameStore::Query query = store.query("select rowid, \"select\", jornada, observaciones from selects order by rowid");
    while (query.next())
        rows.push_back({query.integer64(0), query.text(1), query.integer(2), query.text(3)});
    return rows;
}

void queueWork(GameStore &store, Works::Item item, qint64 value, int club, int week, const char *text, qint64 cost)
{
    // The statement and the payment are kept as the game writes them, of numbers only.
    const QString statement = QStringLiteral("update estadios set %1=%2 where idequipo=%3")
                                  .arg(QLatin1String(columnOf(item).name))
                                  .arg(value)
                                  .arg(club);
    const QString payment =
        QStringLiteral("update infoteams set presupuesto=presupuesto - %1 where idequipo=%2").arg(cost).arg(club);
    store.execute("insert into selects (\"select\", jornada, oferta, clausula, ficha, jugador, observaciones, pago)"
                  " values (?, ?, 0, 0, 0, 0, ?, ?)",
                  statement, week, text, payment);
}

bool carryOut(GameStore &store, const QString &statement)
{
    // The statement is read back by the pattern the game wrote it in, and the change is made
    // with its numbers bound; so the capacity is the one fixed when the order was placed.
    static const QRegularExpression pattern(
        QStringLiteral("^update estadios set ([A-Za-z_]+)=(-?\\d+) where idequipo=(-?\\d+)$"));
    const QRegularExpressionMatch match = pattern.match(statement);
    if (!match.hasMatch())
        return false;
    for (const Column &column : kColumns) {
        if (match.captured(1).compare(QLatin1String(column.name), Qt::CaseInsensitive) == 0) {
            store.execute(column.set, match.captured(2).toLongLong(), match.captured(3).toLongLong());
            return true;
        }
    }
    return false;
}

void dropQueued(GameStore &store, qint64 rowid)
{
    store.execute("delete from selects where rowid = ?", rowid);
}

QString channel(GameStore &store, int channel)
{
    return store.text("select NombreTV from televisiones where idTelevision = ?", channel);
}

} // namespace game::sql::stadium
