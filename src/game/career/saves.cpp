#include "saves.h"

#include "career/statements.h"
#include "store/gamestore.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QObject>

#include <algorithm>
#include <cstdio>

namespace game {

namespace {

bool renameOver(const QString &from, const QString &to)
{
    // QFile::rename does not replace; rename(2) does, in one step.
    return std::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) == 0;
}

QString shownName(const QString &path)
{
    return QFileInfo(path).fileName();
}

} // namespace

Saves::Saves(const QString &folder) : m_folder(folder), m_rename(renameOver)
{
}

QString Saves::fileOf(const QString &career) const
{
    return QDir(m_folder).filePath(career + QLatin1String(kExtension));
}

Result Saves::save(GameStore &working, const QString &career) const
{
    return saveAs(working, fileOf(career));
}

Result Saves::saveAs(GameStore &working, const QString &path) const
{
    const QString failed = QObject::tr("No se ha podido guardar la partida; la partida guardada antes sigue "
                                       "intacta.\n(%1)");
    if (!QDir().mkpath(QFileInfo(path).absolutePath()))
        return Result::failure(failed.arg(QObject::tr("no se puede crear la carpeta %1").arg(QFileInfo(path).absolutePath())));
    const Result described = working.run([&] {
        sql::career::describeForSave(working, QDateTime::currentDateTime(), kFormat);
    });
    if (!described)
        return Result::failure(failed.arg(described.message()));
    const QString temporary = path + QStringLiteral(".tmp");
    QFile::remove(temporary); // what a save cut short left behind
    if (const Result copied = working.backupTo(temporary); !copied) {
        QFile::remove(temporary);
        return Result::failure(failed.arg(copied.message()));
    }
    if (!m_rename(temporary, path)) {
        QFile::remove(temporary);
        return Result::failure(failed.arg(QObject::tr("no se puede escribir %1").arg(path)));
    }
    return Result::success();
}

std::variant<SaveRecord, QString> Saves::inspect(const QString &path)
{
    const QString name = shownName(path);
    const QString notASave = QObject::tr("El archivo %1 no es una partida guardada de Zarpazo.").arg(name);
    const QString damaged = QObject::tr("La partida %1 está dañada y no se puede cargar.").arg(name);
    if (!QFileInfo(path).isFile() || QFileInfo(path).size() == 0)
        return notASave;
    GameStore file(path, QString());
    if (const Result opened = file.openReadOnly(); !opened) {
        // A file SQLite cannot read at all is no save; one it reads but finds broken is damaged.
        QFile probe(path);
        const bool sqlite = probe.open(QIODevice::ReadOnly) && probe.read(16).startsWith("SQLite format 3");
        return sqlite ? damaged : notASave;
    }
    std::optional<SaveRecord> record;
    bool whole = false;
    const bool read = file.attempt([&] {
        if (sql::career::hasStanding(file))
            record = sql::career::saveRecord(file);
        whole = sql::career::holdsTheGame(file);
    });
    if (!read)
        return damaged;
    if (!record || record->career.isEmpty())
        return notASave;
    // A newer game may have changed the tables; it says so before anything else is judged.
    if (record->format > kFormat) {
        return QObject::tr("La partida %1 se guardó con una versión más nueva de Zarpazo y no se puede cargar.")
            .arg(name);
    }
    if (!whole)
        return damaged;
    record->path = path;
    return *record;
}

std::vector<SaveRecord> Saves::list() const
{
    std::vector<SaveRecord> saves;
    const QStringList files =
        QDir(m_folder).entryList({QStringLiteral("*") + QLatin1String(kExtension)}, QDir::Files, QDir::Name);
    for (const QString &file : files) {
        const auto inspected = inspect(QDir(m_folder).filePath(file));
        if (const SaveRecord *record = std::get_if<SaveRecord>(&inspected))
            saves.push_back(*record);
    }
    std::stable_sort(saves.begin(), saves.end(),
                     [](const SaveRecord &a, const SaveRecord &b) { return a.savedAt > b.savedAt; });
    return saves;
}

std::optional<SaveRecord> Saves::latest() const
{
    const std::vector<SaveRecord> saves = list();
    if (saves.empty())
        return std::nullopt;
    return saves.front();
}

Result Saves::load(GameStore &working, const QString &path) const
{
    const auto inspected = inspect(path);
    if (const QString *refusal = std::get_if<QString>(&inspected))
        return Result::failure(*refusal);
    return working.replaceWith(path);
}

Result Saves::remove(const QString &path) const
{
    if (!QFile::remove(path))
        return Result::failure(QObject::tr("No se ha podido borrar la partida %1.").arg(shownName(path)));
    return Result::success();
}

} // namespace game
