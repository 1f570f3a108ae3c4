#include "session.h"

#include "career/statements.h"
#include "dialogs.h"
#include "store/gamestore.h"

#include <QDir>
#include <QFile>
#include <QLockFile>
#include <QObject>

#include <stdexcept>

namespace game {

namespace {

const QString kWorkingFile = QStringLiteral("balonmano.mdb");
// Present while a run is under way; left behind by a run that never ended.
const QString kRunMark = QStringLiteral("partida-en-curso");

} // namespace

Session::Session(const QString &dataFolder, const QString &pristinePath, Dialogs &dialogs)
    : m_folder(dataFolder),
      m_store(std::make_unique<GameStore>(QDir(dataFolder).filePath(kWorkingFile), pristinePath)),
      m_context{*m_store, m_random, dialogs}, m_saves(QDir(dataFolder).filePath(QStringLiteral("carreras")))
{
}

Session::~Session() = default;

QString Session::workingPath() const
{
    return m_store->workingPath();
}

Result Session::open()
{
    QDir().mkpath(m_folder);
    m_lock = std::make_unique<QLockFile>(QDir(m_folder).filePath(QStringLiteral("zarpazo.lock")));
    // A lock left by a copy that died is taken over; one held by a live copy is not.
    if (!m_lock->tryLock(0)) {
        m_lock.reset();
        return Result::failure(QObject::tr("Zarpazo ya está abierto en este equipo. Cierra la otra ventana del juego "
                                           "antes de abrir otra."));
    }
    const QString mark = QDir(m_folder).filePath(kRunMark);
    if (QFile::exists(mark)) {
        if (Result restored = m_store->restore(); !restored)
            return restored;
    }
    Result opened = m_store->open();
    if (opened && !m_store->attempt([&] {
            if (!sql::career::holdsTheGame(*m_store))
                throw std::runtime_error("the working file lacks the game's tables");
        }))
        opened = Result::failure(QObject::tr("Faltan tablas en la base de datos de la partida."));
    if (!opened) {
        // The working file can always be made again from the pristine copy.
        if (!m_context.dialogs.ask(QObject::tr("Base de datos dañada"),
                                   QObject::tr("La base de datos de la partida está dañada y no se puede usar.\n"
                                               "¿Quieres volver a ponerla como la original? Las carreras guardadas "
                                               "no se pierden.")))
            return opened;
        if (Result restored = m_store->restore(); !restored)
            return restored;
        if (Result reopened = m_store->open(); !reopened)
            return reopened;
    }
    QFile marker(mark);
    if (!marker.open(QIODevice::WriteOnly))
        return Result::failure(QObject::tr("No se puede escribir en la carpeta de la partida %1.").arg(m_folder));
    return Result::success();
}

Result Session::close()
{
    const Result restored = m_store->restore();
    if (restored)
        QFile::remove(QDir(m_folder).filePath(kRunMark));
    if (m_lock)
        m_lock->unlock();
    m_lock.reset();
    return restored;
}

} // namespace game
