#pragma once

#include "result.h"

#include <QString>

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Statement.h>

#include <functional>
#include <memory>
#include <string>
#include <unordered_map>
#include <utility>
#include <variant>
#include <vector>

namespace game {

// The one connection to the working database for the program's life.
//
// Every statement is prepared once and reused; every value is bound as a parameter. A routine
// that writes runs inside run(), which is one transaction: it completes, or it leaves the file
// as it was and returns a Spanish message for the player.
//
//   GameStore store(dataDir + "/balonmano.mdb", appDir + "/balonmanoX.mdb");
//   if (auto opened = store.open(); !opened) { show(opened.message()); }
//   auto result = store.run([&] {
//       store.execute("update datos_jugador set jornada = ?", 0);
//   });
class GameStore
{
public:
    // The rows of one statement. The statement is reset when the query goes, so no read is
    // left open to hold a table.
    class Query
    {
    public:
        explicit Query(SQLite::Statement &statement) : m_statement(&statement) {}
        Query(Query &&other) noexcept : m_statement(std::exchange(other.m_statement, nullptr)) {}
        Query(const Query &) = delete;
        Query &operator=(const Query &) = delete;
        ~Query()
        {
            if (m_statement)
                m_statement->tryReset();
        }

        // Moves to the next row; false when there is none.
        bool next() { return m_statement->executeStep(); }
        int integer(int column) const { return m_statement->getColumn(column).getInt(); }
        qint64 integer64(int column) const { return m_statement->getColumn(column).getInt64(); }
        QString text(int column) const { return columnText(*m_statement, column); }
        int columns() const { return m_statement->getColumnCount(); }

    private:
        SQLite::Statement *m_statement;
    };

    GameStore(const QString &workingPath, const QString &pristinePath);
    ~GameStore();

    GameStore(const GameStore &) = delete;
    GameStore &operator=(const GameStore &) = delete;

    // Opens the working file, creating it from the pristine copy when it is missing.
    Result open();
    // Closes the connection; SQLite folds the write-ahead log back into the file.
    void close();
    bool isOpen() const { return m_db != nullptr; }

    // Puts the pristine copy in place of the working file, atomically: the connection is
    // closed, the copy is written beside the working file under a temporary name, flushed and
    // renamed over it, and any log files left beside it are removed. The store stays closed
    // and reopens on its next use.
    Result restore();

    const QString &workingPath() const { return m_workingPath; }
    const QString &pristinePath() const { return m_pristinePath; }

    // The prepared statement for this text, reset and with its bindings cleared. Throws
    // SQLite::Exception on failure, which run() and attempt() turn into a value.
    SQLite::Statement &statement(const std::string &sql);

    // A statement as it was run, with its values: what the benchmarks replay on raw SQLite.
    struct TracedStatement
    {
        std::string sql;
        std::vector<std::variant<qint64, double, std::string>> values;
    };
    // Records every statement run through query(), execute(), integer() and text() into
    // trace, or stops recording with nullptr.
    void setTrace(std::vector<TracedStatement> *trace) { m_trace = trace; }

    // Runs a select, binding args to its ?s in order; read the rows with next().
    template<typename... Args>
    Query query(const std::string &sql, const Args &...args)
    {
        SQLite::Statement &prepared = prepare(sql, args...);
        return Query(prepared);
    }

    // Runs a statement that returns no rows, binding args to its ?s in order. Returns the
    // number of rows changed.
    template<typename... Args>
    int execute(const std::string &sql, const Args &...args)
    {
        return prepare(sql, args...).exec();
    }

    // The first column of the first row, or fallback when there is no row or it is NULL.
    template<typename... Args>
    qint64 integer(const std::string &sql, const Args &...args)
    {
        SQLite::Statement &query = prepare(sql, args...);
        qint64 value = 0;
        if (query.executeStep() && !query.getColumn(0).isNull())
            value = query.getColumn(0).getInt64();
        query.tryReset(); // a statement left stepping would hold its table
        return value;
    }

    template<typename... Args>
    QString text(const std::string &sql, const Args &...args)
    {
        SQLite::Statement &query = prepare(sql, args...);
        QString value;
        if (query.executeStep())
            value = columnText(query, 0);
        query.tryReset();
        return value;
    }

    // Runs body as one transaction. Any failure inside rolls back everything the body wrote
    // and comes back as a failure carrying a Spanish message. A run() inside another joins it.
    Result run(const std::function<void()> &body);

    // For the steps that may fail without stopping what the player is doing: returns false
    // and leaves the rest of the routine to go on.
    bool attempt(const std::function<void()> &step);

    // How many statements have been executed since the store was made (for the benchmarks).
    quint64 statementsRun() const { return m_statementsRun; }

    static QString columnText(SQLite::Statement &query, int column);

    template<typename... Args>
    static void bindAll(SQLite::Statement &query, const Args &...args)
    {
        int index = 0;
        (bindValue(query, ++index, args), ...);
    }

private:
    template<typename... Args>
    SQLite::Statement &prepare(const std::string &sql, const Args &...args)
    {
        SQLite::Statement &prepared = statement(sql);
        bindAll(prepared, args...);
        if (m_trace)
            m_trace->push_back({sql, {traced(args)...}});
        return prepared;
    }
    static std::variant<qint64, double, std::string> traced(int value) { return qint64(value); }
    static std::variant<qint64, double, std::string> traced(long value) { return qint64(value); }
    static std::variant<qint64, double, std::string> traced(long long value) { return qint64(value); }
    static std::variant<qint64, double, std::string> traced(double value) { return value; }
    static std::variant<qint64, double, std::string> traced(const QString &value) { return value.toStdString(); }
    static std::variant<qint64, double, std::string> traced(const char *value) { return std::string(value); }
    static std::variant<qint64, double, std::string> traced(const std::string &value) { return value; }

    static void bindValue(SQLite::Statement &query, int index, int value) { query.bind(index, value); }
    static void bindValue(SQLite::Statement &query, int index, long value)
    {
        query.bind(index, static_cast<int64_t>(value));
    }
    static void bindValue(SQLite::Statement &query, int index, long long value)
    {
        query.bind(index, static_cast<int64_t>(value));
    }
    static void bindValue(SQLite::Statement &query, int index, double value) { query.bind(index, value); }
    static void bindValue(SQLite::Statement &query, int index, const QString &value)
    {
        query.bind(index, value.toStdString());
    }
    static void bindValue(SQLite::Statement &query, int index, const char *value) { query.bind(index, value); }
    static void bindValue(SQLite::Statement &query, int index, const std::string &value)
    {
        query.bind(index, value);
    }

    void ensureOpen();
    Result openConnection();

    QString m_workingPath;
    QString m_pristinePath;
    std::unique_ptr<SQLite::Database> m_db;
    std::unordered_map<std::string, std::unique_ptr<SQLite::Statement>> m_statements;
    int m_transactionDepth = 0;
    quint64 m_statementsRun = 0;
    std::vector<TracedStatement> *m_trace = nullptr;
};

} // namespace game
