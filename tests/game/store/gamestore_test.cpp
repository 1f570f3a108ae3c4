#include "tempstore.h"

#include <QFile>

#include <stdexcept>
#include <string>
#include <vector>

using game::GameStore;
using game::Result;

// Guards: a new player's first start, when no working file exists yet.
TEST_F(StoreTest, createsTheWorkingFileFromThePristineCopyWhenMissing)
{
    EXPECT_TRUE(QFile::exists(workingPath()));
    EXPECT_EQ(m_store->integer("select count(*) from datos_jugador"), 1);
}

// Guards: a working file replaced at every start would lose the youths added from the menu.
TEST_F(StoreTest, usesTheWorkingFileAsFoundAtTheNextStart)
{
    ASSERT_TRUE(m_store->run([&] { m_store->execute("update datos_jugador set jornada = ?", 7); }).ok());
    m_store->close();
    GameStore again(workingPath(), pristinePath());
    ASSERT_TRUE(again.open().ok());
    EXPECT_EQ(again.integer("select jornada from datos_jugador"), 7);
}

// Guards: typed text pasted into SQL, where an apostrophe breaks the statement.
TEST_F(StoreTest, boundValuesKeepQuotesAccentsAndSqlAsPlainText)
{
    const QString tricky = QStringLiteral("O'Donnell'); delete from jugadores; -- Muñoz");
    ASSERT_TRUE(m_store->run([&] { m_store->execute("update datos_jugador set apellidos = ?", tricky); }).ok());
    EXPECT_EQ(m_store->text("select apellidos from datos_jugador"), tricky);
    EXPECT_GT(count("jugadores"), 1000);
}

// Guards: a week or a signing left half written when one statement fails.
TEST_F(StoreTest, aFailureInsideARunLeavesEveryTableAsItWas)
{
    const QString career = dump("datos_jugador");
    const QString players = dump("jugadores");
    const Result result = m_store->run([&] {
        m_store->execute("update datos_jugador set jornada = 12, nombre = ?", QStringLiteral("Medio"));
        m_store->execute("update jugadores set venta = 1");
        m_store->execute("update tabla_que_no_existe set x = 1");
    });
    EXPECT_FALSE(result.ok());
    EXPECT_TRUE(result.message().startsWith(QStringLiteral("No se ha podido completar")));
    EXPECT_EQ(dump("datos_jugador"), career);
    EXPECT_EQ(dump("jugadores"), players);

    // The store goes on working after the failure.
    EXPECT_TRUE(m_store->run([&] { m_store->execute("update datos_jugador set jornada = 2"); }).ok());
    EXPECT_EQ(m_store->integer("select jornada from datos_jugador"), 2);
}

// Guards: a routine that calls another writing routine committing half of the outer work.
TEST_F(StoreTest, aRunInsideARunIsPartOfTheOuterTransaction)
{
    const Result result = m_store->run([&] {
        m_store->execute("update datos_jugador set jornada = 5");
        ASSERT_TRUE(m_store->run([&] { m_store->execute("update datos_jugador set nombre = 'x'"); }).ok());
        throw std::runtime_error("a later step fails");
    });
    EXPECT_FALSE(result.ok());
    EXPECT_EQ(m_store->integer("select jornada from datos_jugador"), 0);
    EXPECT_EQ(m_store->text("select nombre from datos_jugador"), QString());
}

namespace {

const std::string kSquad = "select idjugador from jugadores where idequipo = ? order by idjugador";

std::vector<int> squadOf(GameStore &store, int club)
{
    std::vector<int> ids;
    GameStore::Query rows = store.query(kSquad, club);
    while (rows.next())
        ids.push_back(rows.integer(0));
    return ids;
}

} // namespace

// Guards: an inner query of the same text as a live loop (the squad of another club while
// going through one club's squad) resetting the outer loop, which then starts over on the
// inner club's rows or never ends.
TEST_F(StoreTest, nestedQueriesOfTheSameTextEachKeepTheirOwnRows)
{
    const std::vector<int> first = squadOf(*m_store, 1);
    const std::vector<int> second = squadOf(*m_store, 2);
    ASSERT_FALSE(first.empty());
    ASSERT_FALSE(second.empty());
    ASSERT_NE(first, second);

    std::vector<int> outer;
    GameStore::Query rows = m_store->query(kSquad, 1);
    while (outer.size() <= first.size() && rows.next()) { // the bound stops a loop that restarts
        outer.push_back(rows.integer(0));
        EXPECT_EQ(squadOf(*m_store, 2), second);
    }
    EXPECT_EQ(outer, first);
}

// Guards: a one-value lookup of the same text inside a live loop resetting the loop.
TEST_F(StoreTest, aSameTextLookupInsideALiveLoopLeavesTheLoopWhereItWas)
{
    const std::vector<int> first = squadOf(*m_store, 1);
    const std::vector<int> second = squadOf(*m_store, 2);
    ASSERT_FALSE(second.empty());

    std::vector<int> outer;
    GameStore::Query rows = m_store->query(kSquad, 1);
    while (outer.size() <= first.size() && rows.next()) {
        outer.push_back(rows.integer(0));
        EXPECT_EQ(m_store->integer(kSquad, 2), second.front());
        EXPECT_EQ(m_store->text(kSquad, 2), QString::number(second.front()));
    }
    EXPECT_EQ(outer, first);
}

// Guards: a restore that copies over an open file, or leaves a log that SQLite would replay
// over the pristine copy at the next open.
TEST_F(StoreTest, restoreGivesThePristineFileWithNoLogFilesLeft)
{
    ASSERT_TRUE(m_store->run([&] {
        m_store->execute("update datos_jugador set jornada = 9, nombre = 'Pep'");
        m_store->execute("delete from jugadores where idequipo = 84");
    }).ok());
    ASSERT_TRUE(QFile::exists(workingPath() + "-wal"));

    const Result restored = m_store->restore();
    ASSERT_TRUE(restored.ok()) << restored.message().toStdString();
    EXPECT_FALSE(QFile::exists(workingPath() + "-wal"));
    EXPECT_FALSE(QFile::exists(workingPath() + "-shm"));
    EXPECT_EQ(fileBytes(workingPath()), fileBytes(pristinePath()));

    // The next use opens the restored file.
    EXPECT_EQ(m_store->integer("select jornada from datos_jugador"), 0);
    EXPECT_GT(m_store->integer("select count(*) from jugadores where idequipo = 84"), 0);
}

TEST_F(StoreTest, restoreWithoutThePristineCopyReportsItAndKeepsTheCareer)
{
    ASSERT_TRUE(m_store->run([&] { m_store->execute("update datos_jugador set jornada = 3"); }).ok());
    m_store->close();
    GameStore orphan(workingPath(), m_folder.filePath(QStringLiteral("no-existe.mdb")));
    const Result restored = orphan.restore();
    EXPECT_FALSE(restored.ok());
    EXPECT_TRUE(restored.message().contains(QStringLiteral("no-existe.mdb")));
    EXPECT_EQ(orphan.integer("select jornada from datos_jugador"), 3);
}

TEST(GameStoreOpen, failsWithAMessageWhenNeitherFileExists)
{
    QTemporaryDir folder;
    GameStore store(folder.filePath(QStringLiteral("balonmano.mdb")), folder.filePath(QStringLiteral("balonmanoX.mdb")));
    const Result opened = store.open();
    EXPECT_FALSE(opened.ok());
    EXPECT_FALSE(opened.message().isEmpty());
    EXPECT_FALSE(store.isOpen());
}
