#include "works.h"

#include "league/careerrow.h"
#include "dialogs.h"
#include "stadium/ledger.h"
#include "stadium/statements.h"
#include "store/gamestore.h"

#include <QObject>
#include <QStringList>


namespace game {

namespace {

using Choice = Works::Choice;
using Group = Works::Group;
using Item = Works::Item;

// The nineteen orders, in the order in which they are placed when several are ticked. Seat
// orders add to the capacity of the moment; the finished number goes into the order.
const std::array<Works::Order, 19> kCatalogue{{
    {Choice::Seats1000, Item::Seats, "gradas 1000 1000000 12", 1000, 1000000, 12},
    {Choice::Seats2000, Item::Seats, "gradas 2000 5000000 17", 2000, 5000000, 17},
    {Choice::Seats4000, Item::Seats, "gradas 4000 10000000 22", 4000, 10000000, 22},
    {Choice::Parking, Item::Parking, "parking 0 3500000 30", 1, 3500000, 30},
    {Choice::Lights170kW, Item::Lights, "focos 1 120000 6", 1, 120000, 6},
    {Choice::Lights300kW, Item::Lights, "focos 2 120000 6", 2, 120000, 6},
    {Choice::Lights500kW, Item::Lights, "focos 3 120000 6", 3, 120000, 6},
    {Choice::ElectronicScoreboard, Item::Scoreboards, "marcadores 2 120000 3", 2, 120000, 3},
    {Choice::VideoScoreboard, Item::Scoreboards, "marcadores 3 240000 3", 3, 240000, 3},
    {Choice::Heating, Item::Heating, "calefaccion 0 240000 10", 1, 240000, 10},
    {Choice::FunctionalAccess, Item::Access, "accesos 2 540000 8", 2, 540000, 8},
    {Choice::WideAccess, Item::Access, "accesos 3 540000 8", 3, 540000, 8},
    {Choice::BasicInfirmary, Item::Infirmary, "enfermeria 1 60000 4", 1, 60000, 4},
    {Choice::FullInfirmary, Item::Infirmary, "enfermeria 2 60000 4", 2, 60000, 4},
    {Choice::IntensiveCare, Item::Infirmary, "enfermeria 3 60000 4", 3, 60000, 4},
    {Choice::Shop, Item::Shop, "tienda 0 90000 7", 1, 90000, 7},
    {Choice::FifteenToilets, Item::Toilets, "lavabos 2 612000 2", 2, 612000, 2},
    {Choice::FortyToilets, Item::Toilets, "lavabos 3 612000 3", 3, 612000, 3},
    {Choice::Cafeterias, Item::Cafeterias, "cafeteria 0 135000 9", 1, 135000, 9},
}};

// Every choice with its item and its step: the level it stands for, or for the seats the
// seats it adds.
struct ChoiceLine
{
    Choice choice;
    Item item;
    int step;
    const char *caption;
};
constexpr std::array<ChoiceLine, 26> kChoices{{
    {Choice::Seats1000, Item::Seats, 1000, "1000 asientos"},
    {Choice::Seats2000, Item::Seats, 2000, "2000 asientos"},
    {Choice::Seats4000, Item::Seats, 4000, "4000 asientos"},
    {Choice::NoParking, Item::Parking, 0, "Sin Parking"},
    {Choice::Parking, Item::Parking, 1, "Con Parking"},
    {Choice::Lights170kW, Item::Lights, 1, "170000 K.W."},
    {Choice::Lights300kW, Item::Lights, 2, "300000 K.W."},
    {Choice::Lights500kW, Item::Lights, 3, "500000 K.W."},
    {Choice::ManualScoreboard, Item::Scoreboards, 1, "MANUAL"},
    {Choice::ElectronicScoreboard, Item::Scoreboards, 2, "ELECTRÓNICO"},
    {Choice::VideoScoreboard, Item::Scoreboards, 3, "VÍDEO-MARCADOR"},
    {Choice::NoHeating, Item::Heating, 0, "Sin Calefacción"},
    {Choice::Heating, Item::Heating, 1, "Con Calefacción"},
    {Choice::BasicAccess, Item::Access, 1, "BÁSICOS"},
    {Choice::FunctionalAccess, Item::Access, 2, "FUNCIONALES"},
    {Choice::WideAccess, Item::Access, 3, "AMPLIOS"},
    {Choice::BasicInfirmary, Item::Infirmary, 1, "BÁSICA"},
    {Choice::FullInfirmary, Item::Infirmary, 2, "COMPLETA"},
    {Choice::IntensiveCare, Item::Infirmary, 3, "U.C.I."},
    {Choice::NoShop, Item::Shop, 0, "Sin Tiendas"},
    {Choice::Shop, Item::Shop, 1, "15 Tiendas"},
    {Choice::OneToilet, Item::Toilets, 1, "1 Lavabo"},
    {Choice::FifteenToilets, Item::Toilets, 2, "15 Lavabos"},
    {Choice::FortyToilets, Item::Toilets, 3, "40 Lavabos"},
    {Choice::NoCafeterias, Item::Cafeterias, 0, "Sin Cafeterías"},
    {Choice::Cafeterias, Item::Cafeterias, 1, "20 Cafeterías"},
}};

// The items in their order, with the key that names each in an order's text and its group.
struct ItemLine
{
    Item item;
    const char *key;
    Group group;
};
constexpr std::array<ItemLine, 10> kItems{{
    {Item::Seats, "gradas", Group::Seats},
    {Item::Parking, "parking", Group::Parking},
    {Item::Lights, "focos", Group::Equipment},
    {Item::Scoreboards, "marcadores", Group::Equipment},
    {Item::Heating, "calefaccion", Group::Equipment},
    {Item::Access, "accesos", Group::Equipment},
    {Item::Infirmary, "enfermeria", Group::Services},
    {Item::Shop, "tienda", Group::Services},
    {Item::Toilets, "lavabos", Group::Services},
    {Item::Cafeterias, "cafeteria", Group::Services},
}};

// A work under way closes every item of its group. A service work closes the heating too: it
// was drawn among the services' as well, and the stadium has always behaved that way.
bool closes(Group group, Item item)
{
    return Works::groupOf(item) == group || (group == Group::Services && item == Item::Heating);
}

// Whether the stadium offers a choice, by what it has: the seats within their limits, the
// next level of a levelled item and nothing else of it, and an item that is only there or not
// while it is missing.
bool offered(const ChoiceLine &line, const Works::Stadium &stadium)
{
    // A level outside 0 to 3 is one the stadium does not know: it changes no choice.
    const auto nextLevel = [&](int level) { return level < 0 || level > 3 || line.step == level + 1; };
    switch (line.item) {
    case Item::Seats:
        // The limits lie one seat above the round numbers, so an extension that just reaches
        // 20000 seats is still offered.
        if (line.step == 4000)
            return stadium.capacity < Works::kNo4000From;
        if (line.step == 2000)
            return stadium.capacity < Works::kNo2000From;
        return stadium.capacity < Works::kNo1000From;
    case Item::Parking:
        return !stadium.parking;
    case Item::Lights:
        return nextLevel(stadium.focos);
    case Item::Scoreboards:
        return nextLevel(stadium.marcadores);
    case Item::Heating:
        return !stadium.calefaccion;
    case Item::Access:
        return nextLevel(stadium.accesos);
    case Item::Infirmary:
        return nextLevel(stadium.enfermeria);
    case Item::Shop:
        return !stadium.tienda;
    case Item::Toilets:
        return nextLevel(stadium.lavabos);
    case Item::Cafeterias:
        return !stadium.cafeteria;
    }
    return false;
}

// An item that is only there or not stands at its "without" choice while it is missing.
bool ticked(const ChoiceLine &line, const Works::Stadium &stadium)
{
    if (line.step != 0)
        return false;
    switch (line.item) {
    case Item::Parking:
        return !stadium.parking;
    case Item::Heating:
        return !stadium.calefaccion;
    case Item::Shop:
        return !stadium.tienda;
    case Item::Cafeterias:
        return !stadium.cafeteria;
    default:
        return false;
    }
}

// The four tokens of a works order: "gradas 1000 1000000 12". A transfer offer holds a single
// blank instead, and anything that is not four tokens with a number for the cost and one for
// the weeks is no order the stadium wrote: the works routines leave it alone, and it goes
// only when the season's close empties the queue.
struct OrderText
{
    QString key;
    QString level;
    qint64 cost = 0;
    int weeks = 0;
};

std::optional<OrderText> parseOrder(const QString &text)
{
    if (text == QLatin1String(" "))
        return std::nullopt;
    const QStringList tokens = text.split(QLatin1Char(' '));
    if (tokens.size() != 4)
        return std::nullopt;
    OrderText order;
    bool costOk = false;
    bool weeksOk = false;
    order.key = tokens.at(0);
    order.level = tokens.at(1);
    order.cost = tokens.at(2).toLongLong(&costOk);
    order.weeks = tokens.at(3).toInt(&weeksOk);
    if (!costOk || !weeksOk || order.key.isEmpty())
        return std::nullopt;
    return order;
}

// Puts into effect the statement an order holds, as it was stored, whatever its text says;
// the statement fixed the item and its new level or capacity when the order was placed. A
// statement that is not of the kind the stadium writes is refused, and the player is told:
// the work never silently leaves the stadium as it was. A statement the store fails on is
// skipped like any failed statement of the walk.
void applyWork(GameStore &store, const sql::stadium::QueuedOrder &row, const QString &key, Announcements &told)
{
    bool applied = false;
    if (store.attempt([&] { applied = sql::stadium::carryOut(store, row.statement); }) && !applied) {
        told.add(QObject::tr("La orden de las obras de %1 no es válida y no se ha podido cumplir: el estadio sigue "
                             "como estaba.")
                     .arg(key.toUpper()),
                 Dialogs::Icon::Exclamation);
    }
}

QString finishedMessage(const QString &key)
{
    return QStringLiteral("Las Obras de La mejora de las ") + key.toUpper() + QStringLiteral(" Han Terminado");
}

} // namespace

Works::Group Works::groupOf(Item item)
{
    for (const ItemLine &line : kItems) {
        if (line.item == item)
            return line.group;
    }
    return Group::Services;
}

std::optional<Works::Item> Works::itemOfKey(const QString &key)
{
    for (const ItemLine &line : kItems) {
        if (key == QLatin1String(line.key))
            return line.item;
    }
    return std::nullopt;
}

QString Works::caption(Choice choice)
{
    for (const ChoiceLine &line : kChoices) {
        if (line.choice == choice)
            return QString::fromUtf8(line.caption);
    }
    return {};
}

const std::array<Works::Order, 19> &Works::catalogue()
{
    return kCatalogue;
}

const Works::Order *Works::orderOf(Choice choice)
{
    for (const Order &order : kCatalogue) {
        if (order.choice == choice)
            return &order;
    }
    return nullptr;
}

int Works::pictureFor(int capacity)
{
    if (capacity < 3000)
        return 0;
    return std::min(12, capacity / 1000 - 2);
}

std::optional<Works::Stadium> Works::stadium()
{
    GameStore &store = m_context.store;
    std::optional<Stadium> stadium;
    store.attempt([&] { stadium = sql::stadium::stadium(store, userClub(store)); });
    return stadium;
}

std::vector<Works::UnderWay> Works::underWay()
{
    GameStore &store = m_context.store;
    std::vector<UnderWay> works;
    store.attempt([&] {
        const int week = CareerRow::read(store).week;
        for (const sql::stadium::QueuedOrder &row : sql::stadium::queue(store)) {
            const std::optional<OrderText> order = parseOrder(row.text);
            if (!order)
                continue;
            // An unknown item fills no line of the table.
            const std::optional<Item> item = itemOfKey(order->key);
            if (!item)
                continue;
            works.push_back({*item, order->level, order->cost, row.week + order->weeks - week});
        }
    });
    return works;
}

Works::Screen Works::screen()
{
    Screen screen;
    const std::optional<Stadium> stadium = this->stadium();
    if (stadium) {
        screen.stadium = *stadium;
        screen.parkingText = stadium->parking ? QStringLiteral("Estadio Con 4 Parkings")
                                              : QStringLiteral("Estadio Sin Parkings Propios");
        screen.picture = pictureFor(stadium->capacity);
    }

    // A work under way closes its group until it ends.
    screen.underWay = underWay();
    for (const ItemLine &line : kItems) {
        for (const UnderWay &work : screen.underWay) {
            if (closes(groupOf(work.item), line.item)) {
                screen.closed.push_back(line.item);
                break;
            }
        }
    }

    // Without a stadium to read every choice stands open but for the closed items.
    for (const ChoiceLine &line : kChoices) {
        if ((!stadium || offered(line, *stadium)) && !screen.isClosed(line.item))
            screen.offered.push_back(line.choice);
        if (stadium && ticked(line, *stadium))
            screen.ticked.push_back(line.choice);
    }
    return screen;
}

int Works::order(const std::vector<Choice> &ticked)
{
    GameStore &store = m_context.store;
    int placed = 0;
    const Result written = store.run([&] {
        placed = 0;
        const CareerRow career = CareerRow::read(store);
        for (const Order &order : kCatalogue) {
            if (std::ranges::find(ticked, order.choice) == ticked.end())
                continue;
            qint64 value = order.value;
            // A seats order holds the finished capacity, counted from the seats of this
            // moment: two seat orders before the first ends both count from the same number.
            if (order.item == Item::Seats)
                value += sql::stadium::seats(store, career.club);
            sql::stadium::queueWork(store, order.item, value, career.club, career.week, order.text, order.cost);
            ++placed;
        }
    });
    if (!written) {
        m_context.dialogs.tell(written.message(), Dialogs::Icon::Exclamation);
        return 0;
    }
    // No money is asked for: the works are paid when they end.
    if (placed > 0)
        m_context.dialogs.tell(QStringLiteral("Las Obras Empezarán en la Jornada Actual"), Dialogs::Icon::None,
                               QStringLiteral("Remodelación"));
    return placed;
}

std::optional<int> Works::runWeek()
{
    GameStore &store = m_context.store;
    int finished = 0;
    Announcements told;
    const Result walked = store.run([&] {
        finished = 0;
        told.clear();
        const CareerRow career = CareerRow::read(store);
        Ledger ledger(store);
        for (const sql::stadium::QueuedOrder &row : sql::stadium::queue(store)) {
            const std::optional<OrderText> order = parseOrder(row.text);
            if (!order)
                continue; // a transfer offer, answered elsewhere
            // A work ordered in week 20 with 12 weeks ends as week 32 opens, not 31.
            if (row.week + order->weeks > career.week)
                continue;
            told.add(finishedMessage(order->key));
            // Each step may fail on its own: the work is still paid for and its order goes,
            // so it never ends twice.
            store.attempt([&] { ledger.postWorks(career.week, order->cost); });
            applyWork(store, row, order->key, told);
            store.attempt([&] { sql::stadium::dropQueued(store, row.rowid); });
            ++finished;
        }
        // The shop pays every week it stands, also the week it opens.
        store.attempt([&] {
            if (sql::stadium::hasShop(store, career.club))
                ledger.postClubShop(career.week, kShopIncome);
        });
    });
    if (!walked) {
        m_context.dialogs.tell(walked.message(), Dialogs::Icon::Exclamation);
        return std::nullopt;
    }
    told.tellTo(m_context.dialogs);
    return finished;
}

bool Works::finishAtClose(const sql::stadium::QueuedOrder &row, int club, Announcements &told)
{
    GameStore &store = m_context.store;
    const std::optional<OrderText> order = parseOrder(row.text);
    if (!order)
        return false;
    // Cut short by the season's end: the budget pays, not a week of the ledger.
    store.attempt([&] { sql::stadium::chargeBudget(store, club, order->cost); });
    told.add(QStringLiteral("Si Tenías Obras de Mejora del Estadio se Han terminado"));
    applyWork(store, row, order->key, told);
    store.attempt([&] { sql::stadium::dropQueued(store, row.rowid); });
    return true;
}

} // namespace game
