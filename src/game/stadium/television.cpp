#include "television.h"

#include "dialogs.h"
#include "random.h"
#include "stadium/ledger.h"
#include "stadium/statements.h"
#include "store/gamestore.h"

namespace game {

std::optional<QString> Television::run(const std::optional<Fixture> &fixture)
{
    // The player hears from the channels every week, whether or not one buys the match.
    m_context.dialogs.tell(QStringLiteral("Cargando... Pulse Aceptar para continuar"));
    if (!fixture)
        return std::nullopt; // no match, nothing to broadcast
    if (!buys(fixture->homeId, fixture->awayId))
        return std::nullopt;
    return drawChannel();
}

bool Television::buys(int homeClub, int awayClub)
{
    // Television wants the matches that fill the house: the same test.
    return isBigMatch(m_context.store, homeClub, awayClub);
}

QString Television::drawChannel()
{
    GameStore &store = m_context.store;
    const int channel = m_context.random.draw(kChannels);
    QString name;
    store.attempt([&] { name = sql::stadium::channel(store, channel); });
    return name;
}

bool Television::bookFee(int week)
{
    GameStore &store = m_context.store;
    const Result booked = store.run([&] { Ledger(store).postTelevision(week); });
    if (!booked) {
        m_context.dialogs.tell(booked.message(), Dialogs::Icon::Exclamation);
        return false;
    }
    return true;
}

} // namespace game
