#include "tempstore.h"

#include <QFile>

void StoreTest::SetUp()
{
    ASSERT_TRUE(m_folder.isValid());
    m_store = std::make_unique<game::GameStore>(workingPath(), pristinePath());
    const game::Result opened = m_store->open();
    ASSERT_TRUE(opened.ok()) << opened.message().toStdString();
    m_context = std::make_unique<game::Context>(game::Context{*m_store, m_random, m_dialogs});
}

QString dumpTable(game::GameStore &store, const std::string &table)
{
    game::GameStore::Query query = store.query("select * from " + table + " order by rowid");
    QString text;
    while (query.next()) {
        for (int column = 0; column < query.columns(); ++column)
            text += query.text(column) + QLatin1Char('|');
        text += QLatin1Char('\n');
    }
    return text;
}

QString StoreTest::dump(const std::string &table)
{
    return dumpTable(*m_store, table);
}

void StoreTest::breakWrites(const std::string &table, const std::string &what)
{
    exec("create temp trigger broken before " + what + " on " + table
         + " begin select raise(abort, 'database or disk is full'); end");
}

qint64 StoreTest::count(const std::string &table)
{
    return m_store->integer("select count(*) from " + table);
}

QByteArray fileBytes(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return file.readAll();
}
