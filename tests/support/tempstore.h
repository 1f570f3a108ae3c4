#pragma once

#include "context.h"
#include "scripted.h"
#include "store/gamestore.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <memory>
#include <ostream>

// Failed expectations print texts as text, not as bytes.
inline void PrintTo(const QString &text, std::ostream *out)
{
    *out << '"' << text.toStdString() << '"';
}

// A test that works on its own copy of the pristine database in a temporary folder, with
// scripted chance and dialogs.
class StoreTest : public ::testing::Test
{
protected:
    void SetUp() override;

    QString workingPath() const { return m_folder.filePath(QStringLiteral("balonmano.mdb")); }
    static QString pristinePath() { return QStringLiteral(ZARPAZO_PRISTINE); }

    // A whole table as text, one row a line, for before-and-after comparisons.
    QString dump(const std::string &table);
    qint64 count(const std::string &table);

    // One statement as a transaction of its own, its ?s bound to args, as the test's setting
    // of the scene; the test fails when the store refuses it.
    template<typename... Args>
    void exec(const std::string &sql, const Args &...args)
    {
        const game::Result done = m_store->run([&] { m_store->execute(sql, args...); });
        ASSERT_TRUE(done.ok()) << sql << ": " << done.message().toStdString();
    }
    template<typename... Args>
    qint64 value(const std::string &sql, const Args &...args)
    {
        return m_store->integer(sql, args...);
    }
    template<typename... Args>
    QString text(const std::string &sql, const Args &...args)
    {
        return m_store->text(sql, args...);
    }

    QString clubName(int club) { return text("select NombreEquipo from equipos where idequipo = ?", club); }

    // Every `what` (insert, update or delete) on the table fails from now on, as on a full
    // disk, until mend().
    void breakWrites(const std::string &table, const std::string &what = "insert");
    void mend() { exec("drop trigger broken"); }

    QTemporaryDir m_folder;
    std::unique_ptr<game::GameStore> m_store;
    ScriptedRandom m_random;
    ScriptedDialogs m_dialogs;
    std::unique_ptr<game::Context> m_context;
};

// A whole table as text, one row a line, its columns each followed by "|".
QString dumpTable(game::GameStore &store, const std::string &table);

// Reads a whole file, for comparing databases byte by byte.
QByteArray fileBytes(const QString &path);
