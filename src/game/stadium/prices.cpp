#include "prices.h"

#include "dialogs.h"
#include "stadium/statements.h"
#include "store/gamestore.h"

namespace game {

namespace {

int storedPrice(GameStore &store, Entrada row)
{
    int price = 0;
    store.attempt([&] { price = static_cast<int>(sql::stadium::entrada(store, row)); });
    return price;
}

} // namespace

int Prices::ticket()
{
    return storedPrice(m_context.store, Entrada::TicketPrice);
}

int Prices::boards()
{
    return storedPrice(m_context.store, Entrada::BoardPrice);
}

int Prices::raiseTicket()
{
    return press(static_cast<int>(Entrada::TicketPrice), kTicketHighest, kTicketStep);
}

int Prices::lowerTicket()
{
    return press(static_cast<int>(Entrada::TicketPrice), kTicketLowest, -kTicketStep);
}

int Prices::raiseBoards()
{
    return press(static_cast<int>(Entrada::BoardPrice), kBoardsHighest, kBoardsStep);
}

int Prices::lowerBoards()
{
    return press(static_cast<int>(Entrada::BoardPrice), kBoardsLowest, -kBoardsStep);
}

int Prices::press(int row, int bound, int step)
{
    GameStore &store = m_context.store;
    const Entrada entrada = static_cast<Entrada>(row);
    int old = 0;
    int now = 0;
    const Result written = store.run([&] {
        old = static_cast<int>(sql::stadium::entrada(store, entrada));
        now = stepped(old, bound, step);
        // Written at every press, also when the price stays at its bound.
        sql::stadium::setEntrada(store, entrada, now);
    });
    if (!written) {
        m_context.dialogs.tell(written.message(), Dialogs::Icon::Exclamation);
        return old;
    }
    return now;
}

bool Prices::homeWeek(const std::optional<Fixture> &fixture, const CareerRow &career)
{
    if (!fixture)
        return false;
    return (career.club != 0 && fixture->homeId == career.club) || career.isUserClub(fixture->homeName);
}

} // namespace game
