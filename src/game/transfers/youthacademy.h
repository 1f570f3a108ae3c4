#pragma once

#include "context.h"

#include <QString>

namespace game {

// A youth as typed on the add-youth screen. The texts are taken as the player typed them;
// an empty position or country means none was chosen.
struct NewYouth
{
    QString nombre;
    QString apellidos;
    QString edad;          // 16 to 19
    QString dorsal;        // 1 to 99
    QString posicion;
    QString nacionalidad;
};

// The pool of unattached young players (club 84). A youth added here can be signed from the
// squad's youth search like any other player, on a modest wage and clause.
//
//   game::YouthAcademy academy(context);
//   academy.add({u"Iker"_s, u"Etxeberria"_s, u"17"_s, u"9"_s, u"Pivote"_s, u"España"_s});
class YouthAcademy
{
public:
    static constexpr int kMinAge = 16;
    static constexpr int kMaxAge = 19;
    static constexpr int kMinShirt = 1;
    static constexpr int kMaxShirt = 99;

    explicit YouthAcademy(Context context) : m_context(context) {}

    // Adds the youth and confirms it to the player; returns his new id, or 0 when the form
    // was refused (with the reason told) and nothing was written.
    int add(const NewYouth &youth);

private:
    Context m_context;
};

} // namespace game
