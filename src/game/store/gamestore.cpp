#include "gamestore.h"

#include "spanishorder.h"
#include "unicodelike.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QObject>
#include <QSaveFile>

#include <SQLiteCpp/Backup.h>
#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Exception.h>
#include <SQLiteCpp/Statement.h>

#include <sqlite3.h>

#include <string>
#include <unordered_map>

#include <unistd.h>

namespace game {

// One compiled statement. It is busy while a Query reads through it; a query of the same text
// run meanwhile gets another statement of its own.
struct GameStore::Prepared
{
    Prepared(SQLite::Database &db, const std::string &sql) : statement(db, sql) {}
    SQLite::Statement statement;
    bool busy = false;
    bool done = false;
};

struct GameStore::Connection
{
    Connection(const std::string &path, bool readOnly)
        : db(path, (readOnly ? SQLite::OPEN_READONLY : SQLite::OPEN_READWRITE) | SQLite::OPEN_NOMUTEX)
    {
        for (const char *text : kControlTexts)
            controls.emplace_back(db, text);
    }

    struct TextHash
    {
        using is_transparent = void;
        std::size_t operator()(std::string_view text) const { return std::hash<std::string_view>{}(text); }
    };

    SQLite::Database db;
    // Every statement compiled for a text; usually one, more while queries of it are nested.
    std::unordered_map<std::string, std::vector<std::unique_ptr<Prepared>>, TextHash, std::equal_to<>> statements;

    // The statements that open and close transactions and the savepoints of attempt(), run
    // thousands of times a season: compiled once with the connection, like every other
    // statement, instead of parsed again at each use.
    enum Control { Begin, Commit, Savepoint, Release };
    static constexpr const char *kControlTexts[] = {"BEGIN IMMEDIATE", "COMMIT", "SAVEPOINT attempt",
                                                    "RELEASE attempt"}; // in the order of Control
    std::vector<SQLite::Statement> controls;

    void control(Control which)
    {
        SQLite::Statement &statement = controls[which];
        statement.tryReset();
        statement.exec();
        statement.tryReset();
    }

    // Finishes the statements that no query is reading through, as one that failed is left.
    void resetIdle()
    {
        for (auto &[text, pool] : statements) {
            for (auto &prepared : pool) {
                if (!prepared->busy)
                    prepared->statement.tryReset();
            }
        }
    }

    void resetAll()
    {
        for (auto &[text, pool] : statements) {
            for (auto &prepared : pool) {
                prepared->statement.tryReset();
                prepared->busy = false;
                prepared->done = false;
            }
        }
    }
};

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
    if (m_connection)
        return Result::success();
    if (!QFileInfo::exists(m_workingPath)) {
        QDir().mkpath(QFileInfo(m_workingPath).absolutePath());
        if (Result copied = replaceFile(m_pristinePath, m_workingPath); !copied)
            return copied;
    }
    return openConnection();
}

Result GameStore::openConnection(bool readOnly)
{
    try {
        // One thread uses the connection, so SQLite's own locking is not needed.
        auto connection = std::make_unique<Connection>(m_workingPath.toStdString(), readOnly);
        if (readOnly) {
            // A file that is not a database fails here, not at the first statement.
            SQLite::Statement check(connection->db, "PRAGMA quick_check");
            if (!check.executeStep() || check.getColumn(0).getString() != "ok")
                throw SQLite::Exception("the file fails SQLite's quick check");
        } else {
            // The game is the file's one user (a session holds its folder alone), so the
            // connection keeps its lock from the first write on instead of taking and leaving
            // it at every transaction, and the log's index lives in the connection's memory.
            connection->db.exec("PRAGMA locking_mode=EXCLUSIVE");
            connection->db.exec("PRAGMA journal_mode=WAL");
            connection->db.exec("PRAGMA synchronous=NORMAL");
        }
        connection->db.exec("PRAGMA foreign_keys=OFF");
        registerUnicodeLike(connection->db.getHandle());
        registerSpanishOrder(connection->db.getHandle());
        m_connection = std::move(connection);
        return Result::success();
    } catch (const std::exception &e) {
        return Result::failure(QObject::tr("No se puede abrir la base de datos de la partida (%1).\n(%2)")
                                   .arg(m_workingPath, QString::fromUtf8(e.what())));
    }
}

void GameStore::close()
{
    // The connection's statements go with it, before the database is closed.
    m_connection.reset();
    m_transactionDepth = 0;
}

void GameStore::ensureOpen()
{
    if (m_connection)
        return;
    if (Result opened = open(); !opened)
        throw SQLite::Exception(opened.message().toStdString());
}

Result GameStore::restore()
{
    return replaceWith(m_pristinePath);
}

Result GameStore::replaceWith(const QString &source)
{
    close();
    // The logs go first: a kill between the rename and their removal would leave the old
    // file's log beside the new file, and SQLite would replay it into a file it never belonged to.
    for (const char *log : {"-wal", "-shm", "-journal"}) {
        const QString path = m_workingPath + QLatin1String(log);
        if (QFile::exists(path) && !QFile::remove(path))
            return Result::failure(QObject::tr("No se puede borrar el registro %1 de la base de datos de la partida.")
                                       .arg(QFileInfo(path).fileName()));
    }
    return replaceFile(source, m_workingPath);
}

Result GameStore::openReadOnly()
{
    close();
    if (!QFileInfo(m_workingPath).isFile())
        return Result::failure(QObject::tr("No existe el archivo %1.").arg(m_workingPath));
    return openConnection(true);
}

Result GameStore::backupTo(const QString &target)
{
    try {
        ensureOpen();
        SQLite::Database copy(target.toStdString(), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE);
        copy.exec("PRAGMA synchronous=OFF");
        {
            SQLite::Backup backup(copy, m_connection->db);
            backup.executeStep(); // every page at once
        }
        // The copy stands on its own: no write-ahead log beside it.
        copy.exec("PRAGMA journal_mode=DELETE");
    } catch (const std::exception &e) {
        return Result::failure(QObject::tr("No se ha podido copiar la partida en %1.\n(%2)")
                                   .arg(target, QString::fromUtf8(e.what())));
    }
    // Written whole to the disk once, at the end, before anyone renames it into place.
    QFile written(target);
    if (!written.open(QIODevice::ReadWrite) || ::fdatasync(written.handle()) != 0)
        return Result::failure(QObject::tr("No se ha podido escribir la partida en %1 en el disco.").arg(target));
    return Result::success();
}

GameStore::Prepared &GameStore::start(std::string_view sql, std::span<const Value> values)
{
    ensureOpen();
    ++m_statementsRun;
    auto found = m_connection->statements.find(sql);
    if (found == m_connection->statements.end())
        found = m_connection->statements.emplace(std::string(sql), std::vector<std::unique_ptr<Prepared>>()).first;
    Prepared *free = nullptr;
    for (auto &candidate : found->second) {
        if (!candidate->busy) {
            free = candidate.get();
            break;
        }
    }
    if (!free) {
        found->second.push_back(std::make_unique<Prepared>(m_connection->db, found->first));
        ++m_statementsPrepared;
        free = found->second.back().get();
    }
    SQLite::Statement &statement = free->statement;
    statement.tryReset();
    statement.clearBindings();
    free->done = false;
    int index = 0;
    for (const Value &value : values) {
        ++index;
        switch (value.kind()) {
        case Value::Kind::Null:
            statement.bind(index);
            break;
        case Value::Kind::Integer:
            statement.bind(index, static_cast<int64_t>(value.integer()));
            break;
        case Value::Kind::Real:
            statement.bind(index, value.real());
            break;
        case Value::Kind::Utf8:
            statement.bind(index, std::string(value.utf8()));
            break;
        case Value::Kind::Utf16:
            statement.bind(index, value.utf16().toStdString());
            break;
        }
    }
    if (m_trace)
        trace(sql, values);
    return *free;
}

void GameStore::trace(std::string_view sql, std::span<const Value> values)
{
    TracedStatement step{std::string(sql), {}};
    for (const Value &value : values) {
        switch (value.kind()) {
        case Value::Kind::Null:
            step.values.emplace_back(std::string());
            break;
        case Value::Kind::Integer:
            step.values.emplace_back(value.integer());
            break;
        case Value::Kind::Real:
            step.values.emplace_back(value.real());
            break;
        case Value::Kind::Utf8:
            step.values.emplace_back(std::string(value.utf8()));
            break;
        case Value::Kind::Utf16:
            step.values.emplace_back(value.utf16().toStdString());
            break;
        }
    }
    m_trace->push_back(std::move(step));
}

int GameStore::changesOf(std::string_view sql, std::span<const Value> values)
{
    Prepared &prepared = start(sql, values);
    const int changed = prepared.statement.exec();
    prepared.statement.tryReset();
    return changed;
}

qint64 GameStore::integerOf(std::string_view sql, std::span<const Value> values)
{
    Prepared &prepared = start(sql, values);
    qint64 value = 0;
    if (prepared.statement.executeStep() && !prepared.statement.getColumn(0).isNull())
        value = prepared.statement.getColumn(0).getInt64();
    prepared.statement.tryReset(); // a statement left stepping would hold its table
    return value;
}

QString GameStore::textOf(std::string_view sql, std::span<const Value> values)
{
    Prepared &prepared = start(sql, values);
    QString value;
    if (prepared.statement.executeStep()) {
        const SQLite::Column column = prepared.statement.getColumn(0);
        value = QString::fromUtf8(column.getText(), column.getBytes());
    }
    prepared.statement.tryReset();
    return value;
}

GameStore::Query::Query(Prepared &prepared) : m_prepared(&prepared)
{
    m_prepared->busy = true;
}

GameStore::Query::~Query()
{
    if (m_prepared) {
        m_prepared->statement.tryReset();
        m_prepared->busy = false;
        m_prepared->done = false;
    }
}

bool GameStore::Query::next()
{
    if (m_prepared->done)
        return false;
    const bool row = m_prepared->statement.executeStep();
    m_prepared->done = !row;
    return row;
}

int GameStore::Query::integer(int column) const
{
    return m_prepared->statement.getColumn(column).getInt();
}

qint64 GameStore::Query::integer64(int column) const
{
    return m_prepared->statement.getColumn(column).getInt64();
}

QString GameStore::Query::text(int column) const
{
    const SQLite::Column value = m_prepared->statement.getColumn(column);
    return QString::fromUtf8(value.getText(), value.getBytes());
}

int GameStore::Query::columns() const
{
    return m_prepared->statement.getColumnCount();
}

Result GameStore::run(const std::function<void()> &body)
{
    if (m_transactionDepth > 0) {
        body(); // the outer run() owns the transaction and catches for both
        return Result::success();
    }
    try {
        ensureOpen();
        m_connection->control(Connection::Begin);
    } catch (const std::exception &e) {
        return Result::failure(storeFailure(e));
    }
    ++m_transactionDepth;
    try {
        body();
        m_connection->control(Connection::Commit);
        --m_transactionDepth;
        return Result::success();
    } catch (const std::exception &e) {
        --m_transactionDepth;
        // Finish any statement still stepping, or the rollback would fail on a busy table.
        if (m_connection)
            m_connection->resetAll();
        try {
            if (m_connection)
                m_connection->db.exec("ROLLBACK");
        } catch (const std::exception &) {
            // Nothing more can be done; SQLite rolls back an open transaction at close.
        }
        return Result::failure(storeFailure(e));
    }
}

bool GameStore::attempt(const std::function<void()> &step)
{
    // Inside a transaction the step stands on a savepoint of its own: a step that fails takes
    // back all it wrote, and what the routine wrote before it stays.
    const bool inTransaction = m_transactionDepth > 0 && m_connection;
    if (inTransaction)
        m_connection->control(Connection::Savepoint);
    try {
        step();
        if (inTransaction)
            m_connection->control(Connection::Release);
        return true;
    } catch (const std::runtime_error &) { // the database's failures, SQLite's own included
        if (inTransaction) {
            // Some failures (a full disk, a lost file) take the whole transaction with them;
            // the savepoint is gone then, and the routine cannot go on as if the step had
            // simply been skipped: the failure goes up to run(), which gives up the routine.
            if (sqlite3_get_autocommit(m_connection->db.getHandle()))
                throw;
            m_connection->resetIdle();
            m_connection->db.exec("ROLLBACK TO attempt");
            m_connection->control(Connection::Release);
        }
        return false;
    }
}

} // namespace game
