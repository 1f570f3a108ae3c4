#pragma once

#include "context.h"

#include <QString>

#include <algorithm>
#include <array>
#include <optional>
#include <vector>

namespace game {

class Announcements;
namespace sql::stadium {
struct QueuedOrder;
}

// Stadium works: the choices the stadium offers for each of its items, the nineteen of them
// that order a work, the orders under way, and their end.
//
// An order costs nothing when it is placed: it becomes a row of `selects` holding the
// statement that applies the work (the seats' finished number fixed at the order), the week
// it was ordered and a text of four tokens, "item level cost weeks", e.g.
// "gradas 1000 1000000 12". A work ordered in week W with n weeks ends at the opening of
// week W + n: a message, its cost in that week's ledger row (not the budget), and the
// stadium changes. A work the season's close cuts short costs the budget instead.
//
//   Works works(context);
//   works.order({Works::Choice::Seats1000, Works::Choice::Shop});   // 1000 seats and the club shop
//   const Works::Screen screen = works.screen();  // what the stadium offers now
//   works.runWeek();                              // at each week's opening
class Works
{
public:
    // The four groups of works: at most one work of each under way.
    enum class Group { Seats, Parking, Equipment, Services };

    // What a stadium has and the works change, with the key that names each in an order's
    // text: gradas, parking, focos, marcadores, calefaccion, accesos, enfermeria, tienda,
    // lavabos, cafeteria.
    enum class Item { Seats, Parking, Lights, Scoreboards, Heating, Access, Infirmary, Shop, Toilets, Cafeterias };
    static Group groupOf(Item item);
    // The item of an order text's key (its first token); nothing for an unknown key.
    static std::optional<Item> itemOfKey(const QString &key);

    // Every choice the stadium offers, item by item, from the lowest step up. Most order a
    // work; the "without" choices and the lowest level of the scoreboards, the accesses and
    // the toilets name the state a stadium starts from and order nothing.
    enum class Choice {
        Seats1000, Seats2000, Seats4000,
        NoParking, Parking,
        Lights170kW, Lights300kW, Lights500kW,
        ManualScoreboard, ElectronicScoreboard, VideoScoreboard,
        NoHeating, Heating,
        BasicAccess, FunctionalAccess, WideAccess,
        BasicInfirmary, FullInfirmary, IntensiveCare,
        NoShop, Shop,
        OneToilet, FifteenToilets, FortyToilets,
        NoCafeterias, Cafeterias,
    };
    // The choice as the stadium names it: "1000 asientos", "Sin Parking", "U.C.I.".
    static QString caption(Choice choice);

    struct Order
    {
        Choice choice;
        Item item;
        const char *text;     // the order text, "gradas 1000 1000000 12"
        int value;            // what the work sets the item to; seats added for the seats
        qint64 cost;
        int weeks;
    };
    // The nineteen orders, in the order in which they are placed when several are ticked.
    static const std::array<Order, 19> &catalogue();
    // The order a choice places; nothing for a choice that names a starting state.
    static const Order *orderOf(Choice choice);

    static constexpr qint64 kShopIncome = 1000;
    // Seat limits: from these capacities the 4000, the 2000 and then the 1000 extension are
    // no longer offered, so a stadium never goes above 20000 seats.
    static constexpr int kNo4000From = 16001;
    static constexpr int kNo2000From = 18001;
    static constexpr int kNo1000From = 19001;

    explicit Works(Context context) : m_context(context) {}

    // The user's stadium as it stands.
    struct Stadium
    {
        QString name;
        int capacity = 0;
        bool parking = false;
        int focos = 0;
        int marcadores = 0;
        bool calefaccion = false;
        int accesos = 0;
        int enfermeria = 0;
        bool tienda = false;
        int lavabos = 0;
        bool cafeteria = false;
    };
    std::optional<Stadium> stadium();

    // A work under way, as the "Estado de las Obras" table shows it.
    struct UnderWay
    {
        Item item;
        QString level;     // token 1 of the order text: the seats added, the level reached
        qint64 cost = 0;   // token 2
        int weeksLeft = 0; // order week + weeks - current week
    };
    std::vector<UnderWay> underWay();

    // What the stadium offers as the player looks: the choices open to him, the choices that
    // stand ticked, the items closed by a work under way, the parking line and the picture
    // (0: the design's own, below 3000 seats; 1 from 3000 seats, 2 from 4000, ... 12 from
    // 14000).
    struct Screen
    {
        Stadium stadium;
        std::vector<Choice> offered;   // none of an item a work under way closes
        std::vector<Choice> ticked;    // the "without" choice of each item the stadium lacks
        std::vector<Item> closed;
        QString parkingText;           // "Estadio Sin Parkings Propios" / "Estadio Con 4 Parkings"
        int picture = 0;
        std::vector<UnderWay> underWay;

        bool offers(Choice choice) const { return std::ranges::find(offered, choice) != offered.end(); }
        bool isTicked(Choice choice) const { return std::ranges::find(ticked, choice) != ticked.end(); }
        bool isClosed(Item item) const { return std::ranges::find(closed, item) != closed.end(); }
    };
    Screen screen();
    static int pictureFor(int capacity);

    // Places one order for each ticked choice that has one, in the catalogue's order, in one
    // transaction, and tells "Las Obras Empezarán en la Jornada Actual" (title
    // "Remodelación") when any was placed. No money is checked. Returns the orders placed.
    int order(const std::vector<Choice> &ticked);

    // The week's stadium event: each work due ends (its message, its cost in the week's
    // ledger row, the stadium changed, its row gone), then the shop pays 1000 when the
    // stadium has one. The messages are told once it is all written. Returns the works
    // finished, or nothing when the store failed: nothing was written and the event is to be
    // tried again.
    std::optional<int> runWeek();

    // The season's close ends a works order of the queue, in the queue's order among the
    // offers, whatever its weeks: its cost from the budget, its message added to told (to be
    // told once the close is written), the stadium changed, its row gone. False for a row
    // that is no works order.
    bool finishAtClose(const sql::stadium::QueuedOrder &row, int club, Announcements &told);

private:
    Context m_context;
};

} // namespace game
