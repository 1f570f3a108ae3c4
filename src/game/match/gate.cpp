#include "gate.h"

#include "league/careerrow.h"
#include "dialogs.h"
#include "money.h"
#include "random.h"
#include "stadium/ledger.h"
#include "stadium/statements.h"
#include "store/gamestore.h"

#include <optional>

namespace game {

namespace {

// An ordinary match never draws fewer than this; a smaller hall is simply full.
constexpr int kLeastCrowd = 1500;
// At least a third of the hoardings always sell.
constexpr int kLeastHoardings = 10;

// Uniform from 1500 to the capacity: a draw below 1500 is thrown away and drawn again. A
// hall that holds fewer than 1500 fills up without a draw.
int ordinaryCrowd(Random &random, int capacity)
{
    if (capacity <= kLeastCrowd)
        return capacity;
    int crowd = 0;
    do
        crowd = random.draw(capacity);
    while (crowd < kLeastCrowd);
    return crowd;
}

// Uniform from 10 to 30, the same way.
int ordinaryHoardings(Random &random)
{
    int hoardings = 0;
    do
        hoardings = random.draw(Gate::kHoardings);
    while (hoardings < kLeastHoardings);
    return hoardings;
}

int percentOf(qint64 part, qint64 whole)
{
    return static_cast<int>(roundHalfEven(part * 100, whole));
}

} // namespace

Gate::Report Gate::draw(const Fixture &fixture)
{
    GameStore &store = m_context.store;
    Report report;

    // Each read that fails is passed over and leaves its figure at nothing.
    const CareerRow career = CareerRow::current(m_context);
    store.attempt([&] {
        if (const std::optional<sql::stadium::Hall> hall = sql::stadium::hall(store, fixture.homeId)) {
            report.hasStadium = true;
            report.stadium = hall->name;
            report.capacity = hall->capacity;
        }
    });
    // The prices are always the user's own, also in the rival's stadium.
    qint64 ticketPrice = 0;
    qint64 hoardingPrice = 0;
    store.attempt([&] { ticketPrice = sql::stadium::entrada(store, Entrada::TicketPrice); });
    store.attempt([&] { hoardingPrice = sql::stadium::entrada(store, Entrada::BoardPrice); });

    report.fullHouse = isBigMatch(store, fixture.homeId, fixture.awayId);
    if (report.fullHouse) {
        report.attendance = report.capacity;
        report.attendancePercent = 100;
        report.hoardings = kHoardings;
        report.hoardingsPercent = 100;
    } else {
        report.attendance = ordinaryCrowd(m_context.random, report.capacity);
        report.attendancePercent = percentOf(report.attendance, report.capacity);
        report.hoardings = ordinaryHoardings(m_context.random);
        report.hoardingsPercent = percentOf(report.hoardings, kHoardings);
    }
    report.gateTakings = qint64(report.attendance) * ticketPrice;
    report.hoardingsTakings = qint64(report.hoardings) * hoardingPrice;
    report.userAtHome = career.club != 0 && fixture.homeId == career.club;
    return report;
}

bool Gate::post(const Report &report)
{
    // Only the user's own home matches pay, and only into the week's row: the money is in the
    // ledger from the moment the match screen opens, whatever the result.
    if (!report.userAtHome || !report.hasStadium)
        return true;
    GameStore &store = m_context.store;
    const Result posted = store.run([&] {
        const CareerRow career = CareerRow::read(store);
        Ledger ledger(store);
        ledger.postGateAndBoards(career.week, report.gateTakings, report.hoardingsTakings);
        // The cafeterias take two euros a head.
        if (sql::stadium::hasCafeterias(store, career.club))
            ledger.postCafeterias(career.week, 2 * qint64(report.attendance));
    });
    if (!posted) {
        m_context.dialogs.tell(posted.message(), Dialogs::Icon::Exclamation);
        return false;
    }
    return true;
}

QString Gate::Report::capacityText() const
{
    return QStringLiteral("AFORO: %1 Espectadores").arg(capacity);
}

QString Gate::Report::attendanceText() const
{
    return QStringLiteral("ENTRADA: %1 Espectadores").arg(attendance);
}

QString Gate::Report::attendancePercentText() const
{
    return QString::number(attendancePercent) + QLatin1Char('%');
}

QString Gate::Report::gateTakingsText() const
{
    return QStringLiteral("RECAUDACIÓN: ") + euros(gateTakings);
}

QString Gate::Report::hoardingsCaption()
{
    return QStringLiteral("VALLAS CONTRATADAS:");
}

QString Gate::Report::hoardingsPercentText() const
{
    return QString::number(hoardingsPercent) + QLatin1Char('%');
}

QString Gate::Report::hoardingsTakingsText() const
{
    return QStringLiteral("RECAUDACIÓN: ") + euros(hoardingsTakings);
}

} // namespace game
