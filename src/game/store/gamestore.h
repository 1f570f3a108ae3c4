#pragma once

#include "result.h"

#include <QString>

#include <array>
#include <cstddef>
#include <cstring>
#include <functional>
#include <memory>
#include <span>
#include <string>
#include <string_view>
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
//   GameStore::Query squad = store.query("select idjugador from jugadores where idequipo = ?", club);
//   while (squad.next()) { use(squad.integer(0)); }
//
// Failures of the database are thrown; run() and attempt() turn them into values.
class GameStore
{
    struct Prepared;

public:
    // The rows of one statement. While the query lives its statement is its own: another
    // query of the same text, even inside the loop, gets a statement of its own. The
    // statement is reset when the query goes, so no read is left open to hold a table. A
    // query must not outlive close() or restore().
    class Query
    {
    public:
        Query(Query &&other) noexcept : m_prepared(std::exchange(other.m_prepared, nullptr)) {}
        Query(const Query &) = delete;
        Query &operator=(const Query &) = delete;
        ~Query();

        // Moves to the next row; false when there is none, and from then on.
        bool next();
        int integer(int column) const;
        qint64 integer64(int column) const;
        QString text(int column) const; // empty for NULL
        int columns() const;

    private:
        friend class GameStore;
        explicit Query(Prepared &prepared); // takes the statement until the query goes
        Prepared *m_prepared;
    };

    GameStore(const QString &workingPath, const QString &pristinePath);
    ~GameStore();

    GameStore(const GameStore &) = delete;
    GameStore &operator=(const GameStore &) = delete;

    // Opens the working file, creating it from the pristine copy when it is missing.
    Result open();
    // Closes the connection; SQLite folds the write-ahead log back into the file.
    void close();
    bool isOpen() const { return m_connection != nullptr; }

    // Puts the pristine copy in place of the working file, atomically: the connection is
    // closed, any log files left beside the working file are removed (a log of the old file
    // must never be replayed into the new one), the copy is written beside it under a
    // temporary name, flushed and renamed over it. The store stays closed and reopens on its
    // next use.
    Result restore();
    // The same with another file in place of the pristine copy (a career's save).
    Result replaceWith(const QString &source);

    // Writes a whole copy of the working database as it stands in the connection, committed
    // changes only, into a new file at target (which must not exist), through SQLite's online
    // backup, flushed to disk before it returns.
    Result backupTo(const QString &target);

    // Opens the working file for reading only, as found (never made from the pristine copy):
    // for looking into a file that may not be a database at all. Fails on a file SQLite cannot
    // read or that fails SQLite's quick check.
    Result openReadOnly();

    const QString &workingPath() const { return m_workingPath; }
    const QString &pristinePath() const { return m_pristinePath; }

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
    Query query(std::string_view sql, const Args &...args)
    {
        const std::array<Value, sizeof...(Args)> values{Value(args)...};
        return Query(start(sql, values));
    }

    // Runs a statement that returns no rows, binding args to its ?s in order. Returns the
    // number of rows changed.
    template<typename... Args>
    int execute(std::string_view sql, const Args &...args)
    {
        const std::array<Value, sizeof...(Args)> values{Value(args)...};
        return changesOf(sql, values);
    }

    // The first column of the first row, or 0 when there is no row or it is NULL.
    template<typename... Args>
    qint64 integer(std::string_view sql, const Args &...args)
    {
        const std::array<Value, sizeof...(Args)> values{Value(args)...};
        return integerOf(sql, values);
    }

    // The first column of the first row as text, or empty when there is no row.
    template<typename... Args>
    QString text(std::string_view sql, const Args &...args)
    {
        const std::array<Value, sizeof...(Args)> values{Value(args)...};
        return textOf(sql, values);
    }

    // Runs body as one transaction. Any failure inside rolls back everything the body wrote
    // and comes back as a failure carrying a Spanish message. A run() inside another joins it.
    Result run(const std::function<void()> &body);

    // For the steps that may fail without stopping what the player is doing: a failure of the
    // database returns false and leaves the rest of the routine to go on. Inside run() a step
    // is whole or nothing: one that fails takes back what it wrote. A failure that has cost
    // the whole transaction is not swallowed: it fails the run() around it.
    bool attempt(const std::function<void()> &step);

    // How many statements have been executed since the store was made (for the benchmarks).
    quint64 statementsRun() const { return m_statementsRun; }
    // How many statements have been compiled: one per text, and one more for each query of a
    // text run while another query of it is still live.
    quint64 statementsPrepared() const { return m_statementsPrepared; }

private:
    // One value for a ?, as the caller passed it: a number, or a view of text that lives until
    // the statement has been bound. Making one never allocates; a QString is turned into UTF-8
    // only when it is bound.
    class Value
    {
    public:
        enum class Kind { Null, Integer, Real, Utf8, Utf16 };

        Value() = default;
        Value(int value) : m_kind(Kind::Integer), m_integer(value) {}
        Value(long value) : m_kind(Kind::Integer), m_integer(value) {}
        Value(long long value) : m_kind(Kind::Integer), m_integer(value) {}
        Value(double value) : m_kind(Kind::Real), m_real(value) {}
        Value(const QString &value) : m_kind(Kind::Utf16), m_qstring(&value) {}
        Value(const std::string &value) : m_kind(Kind::Utf8), m_utf8{value.data(), value.size()} {}
        Value(const char *value)
            : m_kind(value ? Kind::Utf8 : Kind::Null), m_utf8{value, value ? std::strlen(value) : 0}
        {
        }

        Kind kind() const { return m_kind; }
        qint64 integer() const { return m_integer; }
        double real() const { return m_real; }
        std::string_view utf8() const { return {m_utf8.data, m_utf8.size}; }
        const QString &utf16() const { return *m_qstring; }

    private:
        struct Utf8View
        {
            const char *data;
            std::size_t size;
        };
        Kind m_kind = Kind::Null;
        union {
            qint64 m_integer = 0;
            double m_real;
            const QString *m_qstring;
            Utf8View m_utf8;
        };
    };

    // The statement for sql, free of any live query, bound to values and counted.
    Prepared &start(std::string_view sql, std::span<const Value> values);
    int changesOf(std::string_view sql, std::span<const Value> values);
    qint64 integerOf(std::string_view sql, std::span<const Value> values);
    QString textOf(std::string_view sql, std::span<const Value> values);
    void trace(std::string_view sql, std::span<const Value> values);

    struct Connection;
    void ensureOpen();
    Result openConnection(bool readOnly = false);

    QString m_workingPath;
    QString m_pristinePath;
    std::unique_ptr<Connection> m_connection;
    int m_transactionDepth = 0;
    quint64 m_statementsRun = 0;
    quint64 m_statementsPrepared = 0;
    std::vector<TracedStatement> *m_trace = nullptr;
};

} // namespace game
