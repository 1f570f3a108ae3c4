#pragma once

#include "context.h"

#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

namespace game {

// What the market's screens list: players on sale, the clubs of a country and their
// squads, the scout's search, the user's squad and the youth pool, and the card of one
// player for the offer and contract screens. It only reads.
//
//   Market market(context);
//   for (const Market::Line &line : market.forSale(Market::Group::Backs)) grid.add(line);
class Market
{
public:
    // A player as the grids show him; each grid picks its columns.
    struct Line
    {
        int id = 0;
        QString nombre;
        QString apellidos;
        int edad = 0;
        QString posicion;
        int media = 0;
        int dorsal = 0;
        QString nacionalidad;
        int years = 0;   // Años_Contrato
        int club = 0;    // idequipo
    };

    // The four grids by position group. No grid lists pivots: a listed pivot is reached
    // through the clubs or the search.
    enum class Group { Goalkeepers, Wings, Backs, Centres };

    explicit Market(Context context) : m_context(context) {}

    // Everybody on the market (venta 1), of any club, the user's own included.
    std::vector<Line> forSale(Group group);
    // One player of the four sale grids, of any club but one, drawn at random with every one
    // as likely; 0 when they list nobody else.
    int drawForSale(int exceptClub);
    // Blind draws among every player's id before the lists are counted.
    static constexpr int kBlindDraws = 8;
    // The user's squad in the group, with the years of each contract.
    std::vector<Line> squad(Group group);

    // The clubs of a country by its code (1 Spain ... 18 Serbia-Montenegro); Spain's list
    // leaves out the user's club. Code 0 lists every club, pools included.
    QStringList clubsOf(int countryCode);
    std::vector<Line> playersOf(const QString &clubName);

    // The scout's criteria as typed. Name and surname always apply, as the start of the
    // name; a rating or an age replaces the position, and a rating replaces an age, unless
    // all of name, surname, rating and age are given, when all five apply.
    struct Search
    {
        QString nombre;
        QString apellidos;
        QString posicion;  // "TODOS" or empty for any
        QString media;     // digits; empty or 0 for any
        QString edad;
    };
    std::vector<Line> search(const Search &criteria);
    // Every player, by first name as a Spanish reader orders it: the scout's list before a
    // search.
    std::vector<Line> everybody();

    // The youth pool (club 84) in one position.
    std::vector<Line> youths(const QString &posicion);

    // One player as the offer and contract screens show him.
    struct Card
    {
        int id = 0;
        int club = 0;
        QString nombre;
        QString apellidos;
        int edad = 0;
        QString nacionalidad;
        QString posicion;
        QString lesion;   // the injury's name; "no injury" has its own row
        int media = 0;
        QString equipo;   // his club's name
        int clausula = 0;
        int ficha = 0;
        int years = 0;
        bool listed = false;
    };
    std::optional<Card> card(int player);

private:
    Context m_context;
};

} // namespace game
