#pragma once

#include "stadium/entradas.h"
#include "stadium/ledger.h"
#include "stadium/works.h"

#include <QString>
#include <QtGlobal>

#include <optional>
#include <vector>

namespace game {

class GameStore;

// Every statement of the stadium and the club's money: the ledger's rows and the budget, the
// settings kept in entradas, the stadium itself, the works' queue in selects and the
// broadcasters. Each reads or writes one thing and hands it back in the game's own terms;
// all throw on a store failure, for use inside a routine.
namespace sql::stadium {

// The players' wages of a season, for the whole squad of the club; and the weeks of the
// calendar they are paid over.
qint64 seasonWages(GameStore &store, int club);
int calendarWeeks(GameStore &store);

// Opens a week's row of the ledger with its wages, its staff and its balance; every other
// column opens at 0.
void openLedgerWeek(GameStore &store, int week, qint64 wages, qint64 staff, qint64 balance);
// Takes the staff and the wages of a week from the club's budget.
void payWeekFromBudget(GameStore &store, int club, qint64 staff, qint64 wages);
// Takes a sum from the budget, where the ledger of the season is gone.
void chargeBudget(GameStore &store, int club, qint64 amount);
qint64 budget(GameStore &store, int club);

// The ledger's columns that a posting moves, with its week's total and balance.
enum class Posting { ShopAndCafeterias, Television, Sale, Signing, Dismissal, Works };
void post(GameStore &store, int week, Posting posting, qint64 amount);
void postGateAndBoards(GameStore &store, int week, qint64 gate, qint64 boards);

std::optional<Ledger::Row> ledgerRow(GameStore &store, int week);
// Every row of the season's ledger, week by week.
std::vector<Ledger::Row> ledgerRows(GameStore &store);
// The sums of every column of the season but the week and the balance.
Ledger::Row ledgerTotals(GameStore &store);
// The balance of the earliest week on file.
qint64 firstBalance(GameStore &store);

// One of the four settings of entradas.
qint64 entrada(GameStore &store, Entrada row);
void setEntrada(GameStore &store, Entrada row, qint64 value);

// A club's stadium: all of it, or just its name and seats; nothing for a club without one.
std::optional<Works::Stadium> stadium(GameStore &store, int club);
struct Hall
{
    QString name;
    int capacity = 0;
};
std::optional<Hall> hall(GameStore &store, int club);
qint64 seats(GameStore &store, int club);
bool hasShop(GameStore &store, int club);
bool hasCafeterias(GameStore &store, int club);

// The rows of selects in the order they were written, works and transfer offers alike; a
// works order holds its statement, its week and its text.
struct QueuedOrder
{
    qint64 rowid = 0;
    QString statement;
    int week = 0;
    QString text;
};
std::vector<QueuedOrder> queue(GameStore &store);
// Queues a works order: the statement that sets the item to value for the club, written now
// with its numbers, the week, the order's text and the payment the game notes beside it.
void queueWork(GameStore &store, Works::Item item, qint64 value, int club, int week, const char *text, qint64 cost);
// Carries out the statement of a works order as it was stored, with its numbers bound: it sets
// one item of a club's stadium. False, with nothing written, when the statement is not of the
// kind the stadium writes.
bool carryOut(GameStore &store, const QString &statement);
void dropQueued(GameStore &store, qint64 rowid);

// The name of a broadcaster, 1 to 7.
QString channel(GameStore &store, int channel);

} // namespace sql::stadium

} // namespace game
