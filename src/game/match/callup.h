#pragma once

#include "context.h"

#include <QString>

#include <vector>

namespace game {

// The fourteen places of the match squad: seven starters, one for each place on the court,
// and seven substitutes. Any player of the club can stand in any place; a player stands in
// one place at most. The squad once chosen stays for the next match.
//
//   CallUp callUp(context);
//   callUp.place(0, goalkeeperId);       // PORTERO
//   if (callUp.readyToPlay()) screen.openMatch();
class CallUp
{
public:
    static constexpr int kPlaces = 14;

    struct Place
    {
        QString key;        // PORTERO ... SUPLENTE7, never changes
        int playerId = 0;   // 0 for a free place
        QString nombre;     // a free place holds its own key here
        QString apellidos;
        QString posicion;
        int media = 0;

        // The place's line in the list: "PORTERO: Juan García - Portero".
        QString listText() const;
    };

    struct Player
    {
        int id = 0;
        QString nombre;
        QString apellidos;
        QString posicion;
        int media = 0;
        int dorsal = 0;
        int lesiones = 0;
    };

    explicit CallUp(Context context) : m_context(context) {}

    std::vector<Place> places();
    // The club's players, ordered by position.
    std::vector<Player> squad();

    // The fourteen places as players, in place order; a free place has id 0 and its own key
    // as the name.
    std::vector<Player> calledUp();

    // Puts the player in the place: out of any place he held, and whoever stood there is out
    // of the squad. False, with nothing written, when no place or no player of the club is
    // picked.
    bool place(int placeIndex, int playerId);

    // True with fourteen places filled; otherwise tells the player so.
    bool readyToPlay();

    // The best of each position as starters (the goalkeeper in goal, each court place by its
    // own position), then the next seven best of any position as substitutes.
    void chooseBest();

private:
    Context m_context;
};

} // namespace game
