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
