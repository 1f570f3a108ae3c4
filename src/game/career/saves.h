#pragma once

#include "result.h"

#include <QDateTime>
#include <QString>

#include <functional>
#include <optional>
#include <variant>
#include <vector>

namespace game {

class GameStore;

// What a career's save says of itself (its table partida): which career, whose, where it
// stands, when it was saved.
struct SaveRecord
{
    QString path;        // the file
    int format = 0;
    QString career;      // the career's own name, which names its file
    QString nombre;
    QString apellidos;
    int club = 0;
    QString clubName;
    int season = 1;
    int week = 0;
    QString stage;       // as the career stores it
    QDateTime savedAt;
    qint64 budget = 0;

    QString manager() const { return nombre + QLatin1Char(' ') + apellidos; }
};

// The careers kept in the player's data folder: one SQLite file each, a whole copy of the
// working file at the moment it was saved. A save is written under a temporary name and
// renamed over the old one, so a failure or a kill halfway leaves the old save whole.
//
//   Saves saves(dataFolder + u"/carreras"_s);
//   saves.save(store, career.name());               // autosave
//   if (auto last = saves.latest()) saves.load(store, last->path);
class Saves
{
public:
    // The format of the saves this game writes; a save of a newer one is refused.
    static constexpr int kFormat = 1;
    static constexpr const char *kExtension = ".zarpazo";

    explicit Saves(const QString &folder);

    const QString &folder() const { return m_folder; }
    QString fileOf(const QString &career) const;

    // Saves the working file as the career's file in the folder.
    Result save(GameStore &working, const QString &career) const;
    // Saves it at any path (the headless simulator's --save).
    Result saveAs(GameStore &working, const QString &path) const;

    // Every save in the folder that can be read, the latest first; anything else is passed
    // over.
    std::vector<SaveRecord> list() const;
    std::optional<SaveRecord> latest() const;

    // What a file says of itself, or, in Spanish, why it cannot be loaded: not a save of the
    // game, a save of a newer game, a damaged file.
    static std::variant<SaveRecord, QString> inspect(const QString &path);

    // Puts the save in place of the working file. When it is refused nothing has changed.
    Result load(GameStore &working, const QString &path) const;

    Result remove(const QString &path) const;

    // How a finished copy is put in place of the old save (a rename over it). A test may
    // make it fail, as a kill halfway through a save would.
    using Rename = std::function<bool(const QString &from, const QString &to)>;
    void setRename(Rename rename) { m_rename = std::move(rename); }

private:
    QString m_folder;
    Rename m_rename;
};

} // namespace game
