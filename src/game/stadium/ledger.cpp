#include "ledger.h"

#include "money.h"
#include "stadium/statements.h"
#include "store/gamestore.h"

namespace game {

qint64 Ledger::weeklyWages(int club)
{
    const qint64 seasonWages = sql::stadium::seasonWages(m_store, club);
    const qint64 weeks = sql::stadium::calendarWeeks(m_store);
    return roundHalfEven(seasonWages, weeks);
}

void Ledger::openWeek(int week, int club)
{
    const qint64 wages = weeklyWages(club);
    const qint64 budgetNow = budget(club);
    sql::stadium::openLedgerWeek(m_store, week, wages, kStaffWages, budgetNow - kStaffWages - wages);
    sql::stadium::payWeekFromBudget(m_store, club, kStaffWages, wages);
}

void Ledger::postGateAndBoards(int week, qint64 gate, qint64 boards)
{
    sql::stadium::postGateAndBoards(m_store, week, gate, boards);
}

void Ledger::postCafeterias(int week, qint64 amount)
{
    sql::stadium::post(m_store, week, sql::stadium::Posting::ShopAndCafeterias, amount);
}

void Ledger::postClubShop(int week, qint64 amount)
{
    postCafeterias(week, amount); // the shop and the cafeterias share the column
}

void Ledger::postTelevision(int week)
{
    sql::stadium::post(m_store, week, sql::stadium::Posting::Television, kTelevisionFee);
}

void Ledger::postSale(int week, qint64 amount)
{
    sql::stadium::post(m_store, week, sql::stadium::Posting::Sale, amount);
}

void Ledger::postSigning(int week, qint64 amount)
{
    sql::stadium::post(m_store, week, sql::stadium::Posting::Signing, amount);
}

void Ledger::postDismissal(int week, qint64 amount)
{
    sql::stadium::post(m_store, week, sql::stadium::Posting::Dismissal, amount);
}

void Ledger::postWorks(int week, qint64 amount)
{
    sql::stadium::post(m_store, week, sql::stadium::Posting::Works, amount);
}

std::optional<Ledger::Row> Ledger::row(int week)
{
    return sql::stadium::ledgerRow(m_store, week);
}

Ledger::Row Ledger::seasonTotals()
{
    return sql::stadium::ledgerTotals(m_store);
}

qint64 Ledger::firstBalance()
{
    return sql::stadium::firstBalance(m_store);
}

qint64 Ledger::budget(int club)
{
    return sql::stadium::budget(m_store, club);
}

std::vector<Ledger::Row> Ledger::season()
{
    std::vector<Row> rows;
    m_store.attempt([&] { rows = sql::stadium::ledgerRows(m_store); });
    return rows;
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
