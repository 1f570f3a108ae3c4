#pragma once

#include <QString>
#include <QtGlobal>

#include <array>
#include <optional>
#include <vector>

namespace game {

class GameStore;

// The club's money. The budget (infoteams.presupuesto) pays the wages and the staff each week;
// the ledger (caja) has one row a week of the season with every income and expense, two totals
// and the balance. Income never reaches the budget: next week's balance opens from the budget,
// not from the last row.
//
//   Ledger ledger(store);
//   ledger.openWeek(week, club);            // wages and 1000 € of staff leave the budget
//   ledger.postGateAndBoards(week, 25000, 10500);
class Ledger
{
public:
    static constexpr qint64 kStaffWages = 1000;
    static constexpr qint64 kTelevisionFee = 450000;

    // One week's row, in the ledger's column order.
    struct Row
    {
        int semana = 0;
        qint64 taquilla = 0;
        qint64 publicidad = 0;
        qint64 television = 0;
        qint64 ventaJugadores = 0;
        qint64 tiendas = 0;
        qint64 fichajes = 0;
        qint64 despidos = 0;
        qint64 salarios = 0;
        qint64 hospitales = 0;
        qint64 empleados = 0;
        qint64 remodelaciones = 0;
        qint64 ingresos = 0;
        qint64 gastos = 0;
        qint64 caja = 0;
    };

    explicit Ledger(GameStore &store) : m_store(store) {}

    // The players' wages of one week: the season's wages of the squad of the moment, paid in
    // equal parts over the weeks of the calendar.
    qint64 weeklyWages(int club);

    // Opens the week's row at the budget less the wages and the staff, and takes the same
    // from the budget. The budget may go below zero: nothing stops the week.
    void openWeek(int week, int club);

    // The postings. Each moves the week's balance, its total and its own column together;
    // a week without a row changes nothing.
    void postGateAndBoards(int week, qint64 gate, qint64 boards);
    void postCafeterias(int week, qint64 amount);
    void postClubShop(int week, qint64 amount);
    void postTelevision(int week);
    void postSale(int week, qint64 amount);
    void postSigning(int week, qint64 amount);
    void postDismissal(int week, qint64 amount);
    void postWorks(int week, qint64 amount);

    std::optional<Row> row(int week);

    // What the ledger screen shows when it looks at a week: the week's row (zeros for a week
    // not on file), the week before it, the season's sums and the season's cash. Zeros when
    // the store cannot be read; it never throws, for a screen that only shows.
    struct Sheet
    {
        Row week;
        Row before;
        Row season;
        qint64 seasonCash = 0;
    };
    Sheet sheet(int week);
    // The season so far, a row a week, for the ledger's chart; empty when the store cannot be
    // read.
    std::vector<Row> season();
    // The season's sums of every column but the week and the balance.
    Row seasonTotals();
    // The balance of the earliest week on file, what the season view shows as its cash.
    qint64 firstBalance();
    qint64 budget(int club);

private:
    GameStore &m_store;
};

} // namespace game

namespace game {

// Which week the ledger screen shows. It opens on the current week, written "Act"; the
// player steps back to week 1 and forward to the current week, never beyond.
class LedgerBrowser
{
public:
    explicit LedgerBrowser(int currentWeek) : m_current(currentWeek), m_viewed(currentWeek) {}

    int viewedWeek() const { return m_viewed; }
    bool atCurrentWeek() const { return m_viewed == m_current; }
    // What the week box shows: "Act" at the current week, else the week's number.
    QString weekText() const { return atCurrentWeek() ? QStringLiteral("Act") : QString::number(m_viewed); }

    void back()
    {
        if (m_viewed > 1)
            --m_viewed;
    }
    void forward()
    {
        if (m_viewed < m_current)
            ++m_viewed;
    }

private:
    int m_current;
    int m_viewed;
};

} // namespace game
