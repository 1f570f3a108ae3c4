#pragma once

#include "career/saves.h"
#include "context.h"
#include "random.h"
#include "result.h"

#include <QString>

#include <memory>

class QLockFile;

namespace game {

class Dialogs;
class GameStore;

// What one run of the game holds for its whole life: the data folder (held by this run
// alone), the connection to the working database, the dice and the careers' saves. The
// program makes one, opens it and hands its context to the screens; the screens never see
// the database itself.
//
// A run begins by marking the folder and ends by putting the pristine copy back and taking
// the mark away; a run that finds the mark was never ended (a crash, a kill, a window closed
// behind the game's back), so its working file is put back first: a new career never takes
// over what a dead run left. The career lives on in its save.
//
//   Session session(dataFolder, pristine, dialogs);
//   if (Result opened = session.open(); !opened) { tell(opened.message()); return 1; }
//   app::Navigator navigator(session.context(), window);
//   ...
//   session.close();
class Session
{
public:
    Session(const QString &dataFolder, const QString &pristinePath, Dialogs &dialogs);
    ~Session();

    // Takes the data folder for this run, puts the pristine copy back when the last run did
    // not end, and checks the working file: a damaged one is put back too when the player
    // agrees. Fails, with a Spanish message, when another copy of the game holds the folder
    // or the working file cannot be used.
    Result open();
    // Ends the run: the working file goes back to the pristine copy and the folder is freed.
    Result close();

    Context context() const { return m_context; }
    const Saves &saves() const { return m_saves; }
    QString workingPath() const;

private:
    QString m_folder;
    std::unique_ptr<QLockFile> m_lock;
    std::unique_ptr<GameStore> m_store;
    SystemRandom m_random;
    Context m_context;
    Saves m_saves;
};

} // namespace game
