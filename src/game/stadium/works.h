#pragma once

#include "context.h"

#include <QString>
#include <QStringList>

#include <array>
#include <optional>
#include <vector>

namespace game {

// Stadium works: the catalogue of the nineteen orders the stadium screen offers, the orders
// under way, and their end.
//
// An order costs nothing when it is placed: it becomes a row of `selects` holding the
// statement that applies the work (the seats' finished number fixed at the order), the week
// it was ordered and a text of four tokens, "item level cost weeks", e.g.
// "gradas 1000 1000000 12". A work ordered in week W with n weeks ends at the opening of
// week W + n: a message, its cost in that week's ledger row (not the budget), and the
// stadium changes. A work the season's close cuts short costs the budget instead.
//
//   Works works(context);
//   works.order({u"Option1"_s, u"Option21"_s});   // 1000 seats and the club shop
//   const Works::Screen screen = works.screen();  // what the stadium screen offers
//   works.runWeek();                              // at each week's opening
class Works
{
public:
    // The four groups of the screen: at most one work of each under way.
    enum class Group { Seats, Parking, Equipment, Services };

    struct Order
    {
        const char *box;      // the screen's box, "Option1"
        Group group;
        const char *caption;  // the box's caption, "1000 asientos"
        const char *text;     // the order text, "gradas 1000 1000000 12"
        const char *column;   // the column of estadios the work sets
        int value;            // what it sets the column to; seats added for min_gradas
        qint64 cost;
        int weeks;
    };
    // The nineteen orders, in the order in which the screen's button tests its boxes.
    static const std::array<Order, 19> &catalogue();
    static const Order *orderOfBox(const QString &box);
    // The group of an order text's item key (its first token); nothing for an unknown key.
    static std::optional<Group> groupOfKey(const QString &key);

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
        QString key;       // token 0: gradas, parking, focos, ...
        QString level;     // token 1
        qint64 cost = 0;   // token 2
        int weeksLeft = 0; // order week + weeks - current week
    };
    std::vector<UnderWay> underWay();

    // What the stadium screen offers on opening: the boxes enabled and ticked, the frames
    // closed by a work under way, the parking line and the picture (0: the design's own,
    // below 3000 seats; 1 from 3000 seats, 2 from 4000, ... 12 from 14000).
    struct Screen
    {
        Stadium stadium;
        QStringList enabledBoxes;  // of Option1..Option26; none inside a closed frame
        QStringList tickedBoxes;
        QStringList closedFrames;  // gradas, Parking, focos, Marcadores, Accesos, cale, ...
        QString parkingText;       // "Estadio Sin Parkings Propios" / "Estadio Con 4 Parkings"
        int picture = 0;
        std::vector<UnderWay> underWay;
    };
    Screen screen();
    static int pictureFor(int capacity);

    // Places one order for each ticked box that has one, in the catalogue's order, in one
    // transaction, and tells "Las Obras Empezarán en la Jornada Actual" (title
    // "Remodelación") when any was placed. No money is checked. Returns the orders placed.
    int order(const QStringList &tickedBoxes);

    // The week's stadium event: each work due ends (its message, its cost in the week's
    // ledger row, the stadium changed, its row gone), then the shop pays 1000 when the
    // stadium has one. Returns the works finished.
    int runWeek();

    // The season's close: every work left ends whatever its weeks, at the cost of the
    // budget, with its message. Returns the works finished.
    int finishAll();

private:
    Context m_context;
};

} // namespace game
