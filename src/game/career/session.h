#pragma once

#include "context.h"
#include "random.h"
#include "result.h"

#include <QString>

#include <memory>

namespace game {

class Dialogs;
class GameStore;

// What one run of the game holds for its whole life: the connection to the working database
// and the dice. The program makes one, opens it and hands its context to the screens; the
// screens never see the database itself.
//
//   Session session(dataFolder + "/balonmano.mdb", pristine, dialogs);
//   if (Result opened = session.open(); !opened) { tell(opened.message()); return 1; }
//   app::Navigator navigator(session.context(), window);
class Session
{
public:
    Session(const QString &workingPath, const QString &pristinePath, Dialogs &dialogs);
    ~Session();

    // Opens the working file, made from the pristine copy when it is missing.
    Result open();
    Context context() const { return m_context; }

private:
    std::unique_ptr<GameStore> m_store;
    SystemRandom m_random;
    Context m_context;
};

} // namespace game
