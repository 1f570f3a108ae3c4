#include "career/session.h"

#include "store/gamestore.h"

namespace game {

Session::Session(const QString &workingPath, const QString &pristinePath, Dialogs &dialogs)
    : m_store(std::make_unique<GameStore>(workingPath, pristinePath)), m_context{*m_store, m_random, dialogs}
{
}

Session::~Session() = default;

Result Session::open()
{
    return m_store->open();
}

} // namespace game
