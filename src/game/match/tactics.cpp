#include "tactics.h"

#include "dialogs.h"
#include "stadium/statements.h"
#include "store/gamestore.h"

namespace game {

const QStringList &Tactics::defences()
{
    static const QStringList list{QStringLiteral("6-0"), QStringLiteral("5-1"), QStringLiteral("3-3"),
                                  QStringLiteral("3-2-1"), QStringLiteral("4-2")};
    return list;
}

const QStringList &Tactics::attacks()
{
    static const QStringList list{QStringLiteral("6-0"), QStringLiteral("2-2-2")};
    return list;
}

int Tactics::defencePicture(int code)
{
    static const int pictures[] = {7, 6, 4, 2, 5};
    return code >= 1 && code <= 5 ? pictures[code - 1] : 0;
}

int Tactics::attackPicture(int code)
{
    static const int pictures[] = {8, 1};
    return code >= 1 && code <= 2 ? pictures[code - 1] : 0;
}

int Tactics::defenceCode()
{
    return storedCode(Entrada::DefenceSystem);
}

int Tactics::attackCode()
{
    return storedCode(Entrada::AttackSystem);
}

int Tactics::storedCode(Entrada row)
{
    // A store that cannot be read shows no system rather than ending the game.
    int code = 0;
    m_context.store.attempt(
        [&] { code = int(sql::stadium::entrada(m_context.store, row)); });
    return code;
}

void Tactics::setDefence(int code)
{
    if (code >= 1 && code <= int(defences().size()))
        store(Entrada::DefenceSystem, code);
}

void Tactics::setAttack(int code)
{
    if (code >= 1 && code <= int(attacks().size()))
        store(Entrada::AttackSystem, code);
}

void Tactics::store(Entrada row, int code)
{
    const Result result = m_context.store.run(
        [&] { sql::stadium::setEntrada(m_context.store, row, code); });
    if (!result)
        m_context.dialogs.tell(result.message(), Dialogs::Icon::Exclamation);
}

} // namespace game
