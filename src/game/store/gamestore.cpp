#include "gamestore.h"

#include "unicodelike.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QObject>
#include <QSaveFile>

#include <SQLiteCpp/Exception.h>

namespace game {

namespace {

QString storeFailure(const std::exception &e)
{
    return QObject::tr("No se ha podido completar la operación en la base de datos; no se ha "
                       "guardado nada de ella.\n(%1)")
        .arg(QString::fromUtf8(e.what()));
}

// Writes a copy of source at target through a temporary file in target's folder, flushed to
// disk before it is renamed over target, so target is always either the old or the new file.
Result replaceFile(const QString &source, const QString &target)
{
    QFile in(source);
    if (!in.open(QIODevice::ReadOnly)) {
        return Result::failure(QObject::tr("No se encuentra la base de datos original (%1).")
                                   .arg(QFileInfo(source).fileName()));
    }
    QSaveFile out(target);
    if (!out.open(QIODevice::WriteOnly)) {
        return Result::failure(
            QObject::tr("No se puede escribir la base de datos de la partida en %1.").arg(target));
    }
    while (!in.atEnd()) {
        const QByteArray chunk = in.read(1 << 20);
        if (chunk.isEmpty() || out.write(chunk) != chunk.size()) {
            out.cancelWriting();
            return Result::failure(QObject::tr("No se ha podido copiar la base de datos original."));
        }
    }
    if (!out.commit())
        return Result::failure(QObject::tr("No se ha podido copiar la base de datos original."));
    return Result::success();
}

} // namespace

GameStore::GameStore(const QString &workingPath, const QString &pristinePath)
    : m_workingPath(workingPath), m_pristinePath(pristinePath)
{
}

GameStore::~GameStore()
{
    close();
}

Result GameStore::open()
{
    if (m_db)
        return Result::success();
    if (!QFileInfo::exists(m_workingPath)) {
        QDir().mkpath(QFileInfo(m_workingPath).absolutePath());
        if (Result copied = replaceFile(m_pristinePath, m_workingPath); !copied)
            return copied;
    }
    return openConnection();
}

Result GameStore::openConnection()
{
    try {
        // One thread uses the connection, so SQLite's own locking is not needed.
        auto db = std::make_unique<SQLite::Database>(m_workingPath.toStdString(),
                                                     SQLite::OPEN_READWRITE | SQLite::OPEN_NOMUTEX);
        db->exec("PRAGMA journal_mode=WAL");
        db->exec("PRAGMA synchronous=NORMAL");
        db->exec("PRAGMA foreign_keys=OFF");
        registerUnicodeLike(db->getHandle());
        m_db = std::move(db);
        return Result::success();
    } catch (const std::exception &e) {
        return Result::failure(QObject::tr("No se puede abrir la base de datos de la partida (%1).\n(%2)")
                                   .arg(m_workingPath, QString::fromUtf8(e.what())));
    }
}

void GameStore::close()
{
    // Statements belong to the connection and must go before it.
    m_statements.clear();
    m_db.reset();
    m_transactionDepth = 0;
}

void GameStore::ensureOpen()
{
    if (m_db)
        return;
    if (Result opened = open(); !opened)
        throw SQLite::Exception(opened.message().toStdString());
}

Result GameStore::restore()
{
    close();
    Result replaced = replaceFile(m_pristinePath, m_workingPath);
    QFile::remove(m_workingPath + QStringLiteral("-wal"));
    QFile::remove(m_workingPath + QStringLiteral("-shm"));
    return replaced;
}

SQLite::Statement &GameStore::statement(const std::string &sql)
{
    ensureOpen();
    ++m_statementsRun;
    auto found = m_statements.find(sql);
    if (found == m_statements.end())
        found = m_statements.emplace(sql, std::make_unique<SQLite::Statement>(*m_db, sql)).first;
    SQLite::Statement &query = *found->second;
    query.tryReset();
    query.clearBindings();
    return query;
}

Result GameStore::run(const std::function<void()> &body)
{
    if (m_transactionDepth > 0) {
        body(); // the outer run() owns the transaction and catches for both
        return Result::success();
    }
    try {
        ensureOpen();
        m_db->exec("BEGIN IMMEDIATE");
    } catch (const std::exception &e) {
        return Result::failure(storeFailure(e));
    }
    ++m_transactionDepth;
    try {
        body();
        m_db->exec("COMMIT");
        --m_transactionDepth;
        return Result::success();
    } catch (const std::exception &e) {
        --m_transactionDepth;
        // Finish any statement still stepping, or the rollback would fail on a busy table.
        for (auto &[text, query] : m_statements)
            query->tryReset();
        try {
            m_db->exec("ROLLBACK");
        } catch (const std::exception &) {
            // Nothing more can be done; SQLite rolls back an open transaction at close.
        }
        return Result::failure(storeFailure(e));
    }
}

bool GameStore::attempt(const std::function<void()> &step)
{
    try {
        step();
        return true;
    } catch (const SQLite::Exception &) {
        return false;
    }
}

QString GameStore::columnText(SQLite::Statement &query, int column)
{
    const SQLite::Column value = query.getColumn(column);
    return QString::fromUtf8(value.getText(), value.getBytes());
}

} // namespace game
