#pragma once

#include "context.h"
#include "stadium/entradas.h"

#include <QStringList>

namespace game {

// The club's systems: one in defence, one in attack. They are a statement of intent that
// the match shows and announces; no result depends on them.
class Tactics
{
public:
    explicit Tactics(Context context) : m_context(context) {}

    // The systems in the order of their lists; a system's code is its place, from 1.
    static const QStringList &defences();  // "6-0", "5-1", "3-3", "3-2-1", "4-2"
    static const QStringList &attacks();   // "6-0", "2-2-2"
    // The diagram that shows a system, 1 to 8; 0 for a code outside its list.
    static int defencePicture(int code);
    static int attackPicture(int code);

    int defenceCode();
    int attackCode();
    void setDefence(int code);
    void setAttack(int code);

private:
    void store(Entrada row, int code);
    int storedCode(Entrada row);

    Context m_context;
};

} // namespace game
