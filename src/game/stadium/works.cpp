#include "works.h"

#include "league/careerrow.h"
#include "dialogs.h"
#include "stadium/ledger.h"
#include "store/gamestore.h"

#include <QRegularExpression>
#include <QSet>

#include <algorithm>
#include <stdexcept>
#include <string>

namespace game {

namespace {

using Group = Works::Group;

// The orders in the order in which the screen's button tests its boxes. Seat orders add to
// the capacity of the moment; the finished number goes into the order.
const std::array<Works::Order, 19> kCatalogue{{
    {"Option1", Group::Seats, "1000 asientos", "gradas 1000 1000000 12", "min_gradas", 1000, 1000000, 12},
    {"Option2", Group::Seats, "2000 asientos", "gradas 2000 5000000 17", "min_gradas", 2000, 5000000, 17},
    {"Option3", Group::Seats, "4000 asientos", "gradas 4000 10000000 22", "min_gradas", 4000, 10000000, 22},
    {"Option5", Group::Parking, "Con Parking", "parking 0 3500000 30", "parking", 1, 3500000, 30},
    {"Option6", Group::Equipment, "170000 K.W.", "focos 1 120000 6", "focos", 1, 120000, 6},
    {"Option7", Group::Equipment, "300000 K.W.", "focos 2 120000 6", "focos", 2, 120000, 6},
    {"Option8", Group::Equipment, "500000 K.W.", "focos 3 120000 6", "focos", 3, 120000, 6},
    {"Option12", Group::Equipment, "ELECTRÓNICO", "marcadores 2 120000 3", "marcadores", 2, 120000, 3},
    {"Option11", Group::Equipment, "VÍDEO-MARCADOR", "marcadores 3 240000 3", "marcadores", 3, 240000, 3},
    {"Option9", Group::Equipment, "Con Calefacción", "calefaccion 0 240000 10", "calefaccion", 1, 240000, 10},
    {"Option15", Group::Equipment, "FUNCIONALES", "accesos 2 540000 8", "accesos", 2, 540000, 8},
    {"Option14", Group::Equipment, "AMPLIOS", "accesos 3 540000 8", "accesos", 3, 540000, 8},
    {"Option17", Group::Services, "BÁSICA", "enfermeria 1 60000 4", "enfermeria", 1, 60000, 4},
    {"Option18", Group::Services, "COMPLETA", "enfermeria 2 60000 4", "enfermeria", 2, 60000, 4},
    {"Option19", Group::Services, "U.C.I.", "enfermeria 3 60000 4", "enfermeria", 3, 60000, 4},
    {"Option21", Group::Services, "15 Tiendas", "tienda 0 90000 7", "tienda", 1, 90000, 7},
    {"Option25", Group::Services, "15 Lavabos", "lavabos 2 612000 2", "lavabos", 2, 612000, 2},
    {"Option26", Group::Services, "40 Lavabos", "lavabos 3 612000 3", "lavabos", 3, 612000, 3},
    {"Option23", Group::Services, "20 Cafeterías", "cafeteria 0 135000 9", "cafeteria", 1, 135000, 9},
}};

// The item keys of the order texts and the group each belongs to.
struct Key
{
    const char *key;
    Group group;
};
constexpr std::array<Key, 10> kKeys{{
    {"gradas", Group::Seats},
    {"parking", Group::Parking},
    {"focos", Group::Equipment},
    {"marcadores", Group::Equipment},
    {"calefaccion", Group::Equipment},
    {"accesos", Group::Equipment},
    {"enfermeria", Group::Services},
    {"tienda", Group::Services},
    {"lavabos", Group::Services},
    {"cafeteria", Group::Services},
}};

// Every box of the screen with the frame that holds it. A closed frame makes its boxes
// unusable whatever their own state.
struct Box
{
    const char *box;
    const char *frame;
};
constexpr std::array<Box, 26> kBoxes{{
    {"Option1", "gradas"},      {"Option2", "gradas"},      {"Option3", "gradas"},
    {"Option4", "Parking"},     {"Option5", "Parking"},
    {"Option6", "focos"},       {"Option7", "focos"},       {"Option8", "focos"},
    {"Option13", "Marcadores"}, {"Option12", "Marcadores"}, {"Option11", "Marcadores"},
    {"Option10", "cale"},       {"Option9", "cale"},
    {"Option16", "Accesos"},    {"Option15", "Accesos"},    {"Option14", "Accesos"},
    {"Option17", "Enfermeria"}, {"Option18", "Enfermeria"}, {"Option19", "Enfermeria"},
    {"Option20", "Tienda"},     {"Option21", "Tienda"},
    {"Option22", "Cafeteria"},  {"Option23", "Cafeteria"},
    {"Option24", "wc"},         {"Option25", "wc"},         {"Option26", "wc"},
}};

// The frames a work under way closes. The service frames close the heating frame too: it
// was drawn among the services' as well, and the stadium has always behaved that way.
QStringList framesClosedBy(Group group)
{
    switch (group) {
    case Group::Seats:
        return {QStringLiteral("gradas")};
    case Group::Parking:
        return {QStringLiteral("Parking")};
    case Group::Equipment:
        return {QStringLiteral("focos"), QStringLiteral("Marcadores"), QStringLiteral("Accesos"), QStringLiteral("cale")};
    case Group::Services:
        return {QStringLiteral("Enfermeria"), QStringLiteral("Tienda"), QStringLiteral("Cafeteria"), QStringLiteral("wc"),
                QStringLiteral("cale")};
    }
    return {};
}

// A row of selects as the works routines need it.
struct PendingRow
{
    qint64 rowid = 0;
    QString statement;
    int jornada = 0;
    QString observaciones;
};

std::vector<PendingRow> pendingRows(GameStore &store)
{
    std::vector<PendingRow> rows;
    GameStore::Query query = store.query("select rowid, \"select\", jornada, observaciones from selects order by rowid");
    while (query.next())
        rows.push_back({query.integer64(0), query.text(1), query.integer(2), query.text(3)});
    return rows;
}

// The four tokens of a works order: "gradas 1000 1000000 12". A transfer offer holds a single
// blank instead, and anything that is not four tokens with a number for the cost and one for
// the weeks is no order the stadium wrote: the works routines leave it alone.
struct OrderText
{
    QString key;
    QString level;
    qint64 cost = 0;
    int weeks = 0;
};

std::optional<OrderText> parseOrder(const QString &observaciones)
{
    if (observaciones == QLatin1String(" "))
        return std::nullopt;
    const QStringList tokens = observaciones.split(QLatin1Char(' '));
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

// Puts into effect the statement an order holds. The game wrote it itself, of numbers only,
// "update estadios set <column>=<value> where idequipo=<club>"; it is read back by that
// pattern and the change is made with the numbers bound, for the column the catalogue names
// for the order's text. So the capacity is the one fixed when the order was placed. A
// statement that does not fit fails like any failed statement.
void applyWork(GameStore &store, const PendingRow &row)
{
    static const QRegularExpression pattern(
        QStringLiteral("^update estadios set ([A-Za-z_]+)=(-?\\d+) where idequipo=(-?\\d+)$"));
    const Works::Order *order = nullptr;
    for (const Works::Order &candidate : kCatalogue) {
        if (row.observaciones == QLatin1String(candidate.text))
            order = &candidate;
    }
    const QRegularExpressionMatch match = pattern.match(row.statement);
    if (!order || !match.hasMatch() || match.captured(1).compare(QLatin1String(order->column), Qt::CaseInsensitive) != 0)
        throw std::runtime_error("the order's statement is not one the stadium wrote");
    const std::string sql = std::string("update estadios set ") + order->column + " = ? where idequipo = ?";
    store.execute(sql, match.captured(2).toLongLong(), match.captured(3).toLongLong());
}

void deleteRow(GameStore &store, const PendingRow &row)
{
    store.execute("delete from selects where rowid = ?", row.rowid);
}

QString finishedMessage(const QString &key)
{
    return QStringLiteral("Las Obras de La mejora de las ") + key.toUpper() + QStringLiteral(" Han Terminado");
}

} // namespace

const std::array<Works::Order, 19> &Works::catalogue()
{
    return kCatalogue;
}

const Works::Order *Works::orderOfBox(const QString &box)
{
    for (const Order &order : kCatalogue) {
        if (box == QLatin1String(order.box))
            return &order;
    }
    return nullptr;
}

std::optional<Works::Group> Works::groupOfKey(const QString &key)
{
    for (const Key &known : kKeys) {
        if (key == QLatin1String(known.key))
            return known.group;
    }
    return std::nullopt;
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
    store.attempt([&] {
        GameStore::Query row = store.query(
            "select Nombre, min_gradas, parking, focos, marcadores, calefaccion, accesos, enfermeria, tienda, lavabos,"
            " cafeteria from estadios where idequipo = ?",
            userClub(store));
        if (!row.next())
            return;
        Stadium read;
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
        stadium = read;
    });
    return stadium;
}

std::vector<Works::UnderWay> Works::underWay()
{
    GameStore &store = m_context.store;
    std::vector<UnderWay> works;
    store.attempt([&] {
        const int week = CareerRow::read(store).week;
        for (const PendingRow &row : pendingRows(store)) {
            const std::optional<OrderText> order = parseOrder(row.observaciones);
            // An unknown item fills no line of the table.
            if (!order || !groupOfKey(order->key))
                continue;
            works.push_back({order->key, order->level, order->cost, row.jornada + order->weeks - week});
        }
    });
    return works;
}

Works::Screen Works::screen()
{
    Screen screen;
    QSet<QString> disabled;
    QSet<QString> ticked;
    QSet<QString> closed;

    const std::optional<Stadium> stadium = this->stadium();
    if (stadium) {
        screen.stadium = *stadium;
        // A levelled item offers only its next step; at the top it offers nothing. A level
        // outside 0 to 3 changes no box.
        const auto level = [&](int value, std::array<const char *, 3> steps) {
            if (value < 0 || value > 3)
                return;
            for (int step = 0; step < 3; ++step) {
                if (step != value)
                    disabled.insert(QLatin1String(steps[std::size_t(step)]));
            }
        };
        level(stadium->enfermeria, {"Option17", "Option18", "Option19"});
        level(stadium->focos, {"Option6", "Option7", "Option8"});
        level(stadium->marcadores, {"Option13", "Option12", "Option11"});
        level(stadium->accesos, {"Option16", "Option15", "Option14"});
        level(stadium->lavabos, {"Option24", "Option25", "Option26"});

        // An item that is only there or not ticks its "without" box while it is missing, and
        // offers nothing once it is built.
        const auto onOff = [&](bool installed, const char *absent, const char *order) {
            if (installed) {
                disabled.insert(QLatin1String(absent));
                disabled.insert(QLatin1String(order));
            } else {
                ticked.insert(QLatin1String(absent));
            }
        };
        onOff(stadium->tienda, "Option20", "Option21");
        onOff(stadium->cafeteria, "Option22", "Option23");
        onOff(stadium->calefaccion, "Option10", "Option9");
        onOff(stadium->parking, "Option4", "Option5");

        // The limits lie one seat above the round numbers, so an extension that just reaches
        // 20000 seats is still offered.
        if (stadium->capacity >= kNo4000From)
            disabled.insert(QStringLiteral("Option3"));
        if (stadium->capacity >= kNo2000From)
            disabled.insert(QStringLiteral("Option2"));
        if (stadium->capacity >= kNo1000From)
            disabled.insert(QStringLiteral("Option1"));

        screen.parkingText = stadium->parking ? QStringLiteral("Estadio Con 4 Parkings")
                                              : QStringLiteral("Estadio Sin Parkings Propios");
        screen.picture = pictureFor(stadium->capacity);
    }

    // A work under way closes its group until it ends.
    screen.underWay = underWay();
    for (const UnderWay &work : screen.underWay) {
        if (const std::optional<Group> group = groupOfKey(work.key)) {
            for (const QString &frame : framesClosedBy(*group))
                closed.insert(frame);
        }
    }

    for (const Box &box : kBoxes) {
        const QString name = QLatin1String(box.box);
        if (!disabled.contains(name) && !closed.contains(QLatin1String(box.frame)))
            screen.enabledBoxes << name;
        if (ticked.contains(name))
            screen.tickedBoxes << name;
    }
    for (const char *frame : {"gradas", "Parking", "focos", "Marcadores", "Accesos", "cale", "Enfermeria", "Tienda",
                              "Cafeteria", "wc"}) {
        if (closed.contains(QLatin1String(frame)))
            screen.closedFrames << QLatin1String(frame);
    }
    return screen;
}

int Works::order(const QStringList &tickedBoxes)
{
    GameStore &store = m_context.store;
    int placed = 0;
    const Result written = store.run([&] {
        placed = 0;
        const CareerRow career = CareerRow::read(store);
        for (const Order &order : kCatalogue) {
            if (!tickedBoxes.contains(QLatin1String(order.box)))
                continue;
            qint64 value = order.value;
            // A seats order holds the finished capacity, counted from the seats of this
            // moment: two seat orders before the first ends both count from the same number.
            if (order.group == Group::Seats)
                value += store.integer("select min_gradas from estadios where idequipo = ?", career.club);
            const QString statement = QStringLiteral("update estadios set %1=%2 where idequipo=%3")
                                          .arg(QLatin1String(order.column))
                                          .arg(value)
                                          .arg(career.club);
            const QString payment = QStringLiteral("update infoteams set presupuesto=presupuesto - %1 where idequipo=%2")
                                        .arg(order.cost)
                                        .arg(career.club);
            store.execute("insert into selects (\"select\", jornada, oferta, clausula, ficha, jugador, observaciones, pago)"
                          " values (?, ?, 0, 0, 0, 0, ?, ?)",
                          statement, career.week, order.text, payment);
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

int Works::runWeek()
{
    GameStore &store = m_context.store;
    int finished = 0;
    const Result walked = store.run([&] {
        finished = 0;
        const CareerRow career = CareerRow::read(store);
        Ledger ledger(store);
        for (const PendingRow &row : pendingRows(store)) {
            const std::optional<OrderText> order = parseOrder(row.observaciones);
            if (!order)
                continue; // a transfer offer, answered elsewhere
            // A work ordered in week 20 with 12 weeks ends as week 32 opens, not 31.
            if (row.jornada + order->weeks > career.week)
                continue;
            m_context.dialogs.tell(finishedMessage(order->key));
            // Each step may fail on its own: the work is still paid for and its order goes,
            // so it never ends twice.
            store.attempt([&] { ledger.postWorks(career.week, order->cost); });
            store.attempt([&] { applyWork(store, row); });
            store.attempt([&] { deleteRow(store, row); });
            ++finished;
        }
        // The shop pays every week it stands, also the week it opens.
        store.attempt([&] {
            if (store.integer("select tienda from estadios where idequipo = ?", career.club) != 0)
                ledger.postClubShop(career.week, kShopIncome);
        });
    });
    if (!walked) {
        m_context.dialogs.tell(walked.message(), Dialogs::Icon::Exclamation);
        return 0;
    }
    return finished;
}

int Works::finishAll()
{
    GameStore &store = m_context.store;
    int finished = 0;
    const Result closed = store.run([&] {
        finished = 0;
        const CareerRow career = CareerRow::read(store);
        for (const PendingRow &row : pendingRows(store)) {
            const std::optional<OrderText> order = parseOrder(row.observaciones);
            if (!order)
                continue;
            // Cut short by the season's end: the budget pays, not a week of the ledger.
            store.attempt([&] {
                store.execute("update infoteams set presupuesto = presupuesto - ? where idequipo = ?", order->cost,
                              career.club);
            });
            m_context.dialogs.tell(QStringLiteral("Si Tenías Obras de Mejora del Estadio se Han terminado"));
            store.attempt([&] { applyWork(store, row); });
            store.attempt([&] { deleteRow(store, row); });
            ++finished;
        }
    });
    if (!closed) {
        m_context.dialogs.tell(closed.message(), Dialogs::Icon::Exclamation);
        return 0;
    }
    return finished;
}

} // namespace game
