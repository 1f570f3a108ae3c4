#pragma once

#include "context.h"

#include <QString>

namespace game {

// What the player fills in on the new-career screen.
struct CareerChoice
{
    QString nombre;
    QString apellidos;
    int clubId = 0;        // 0 until a crest has been clicked
    QString clubCaption;   // the chosen crest's caption, empty until then
};

// Starting a career: checks the name and the club, then writes the career row and empties
// what belonged to the last career. The squads, the league, budgets and stadiums are not
// touched: they are as the last restore left them.
//
//   game::NewCareer career(context);
//   if (career.start({u"Ana"_s, u"O'Donnell"_s, 3, u"CAJA ESPAÑA ADEMAR DE LEÓN"_s}))
//       navigator.openPreseason();
class NewCareer
{
public:
    explicit NewCareer(Context context) : m_context(context) {}

    // True when the career has begun. A refusal or a failure tells the player why and
    // writes nothing.
    bool start(const CareerChoice &choice);

private:
    Context m_context;
};

} // namespace game
