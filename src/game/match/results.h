#pragma once

#include "league/fixture.h"
#include "context.h"

namespace game {

// What a league match leaves behind: its score in the fixture list, the two clubs' lines in
// the table, and the rest of its round, played at once without an engine. A friendly leaves
// nothing. The other fixtures are decided by which squad has the higher average rating: the
// stronger side scores 21 to 41, the other 1 to 41; at equal strength the away side is
// taken as the stronger.
//
//   Results(context).record(fixture, 27, 25);
class Results
{
public:
    explicit Results(Context context) : m_context(context) {}

    // Records the user's match and plays the other fixtures of its round, in one transaction.
    // False when the store failed (the player has been told and nothing was written).
    bool record(const Fixture &fixture, int homeGoals, int awayGoals);

private:
    // Writes a fixture's score and the two clubs' lines of the table.
    void settle(int idpartido, int homeClub, int awayClub, int homeGoals, int awayGoals);
    // Plays a fixture of the round that the user's club is not in.
    void simulate(int idpartido, int homePosition, int awayPosition);
    // The average rating of the whole squad, rounded half to even.
    int strength(int club);
    // The goals of the stronger side: 1 to 41 drawn again until at least 21.
    int strongerGoals();

    Context m_context;
};

} // namespace game
