#include "tempstore.h"

#include <QFile>

#include <stdexcept>
#include <string>
#include <vector>

using game::GameStore;
using game::Result;

// Guards: a working file made again from the pristine copy at every start, losing the youths
// added from the menu, or never made on a new player's first start.
TEST_F(StoreTest, makesTheWorkingFileOnlyWhenMissingAndOpensItAsFoundAfterwards)
{
    EXPECT_TRUE(QFile::exists(workingPath()));
    exec("update datos_jugador set jornada = ?", 7);
    m_store->close();
    GameStore again(workingPath(), pristinePath());
    ASSERT_TRUE(again.open().ok());
    EXPECT_EQ(again.integer("select jornada from datos_jugador"), 7);
}

// Guards: a week or a signing left half written when one statement fails, a run inside a run
// committing half of the outer work, or a store that stops working after a failure.
TEST_F(StoreTest, aFailureInsideARunOrARunWithinItLeavesEveryTableAsItWas)
{
    const QString career = dump("datos_jugador");
    const QString players = dump("jugadores");
    const Result failed = m_store->run([&] {
        m_store->execute("update datos_jugador set jornada = 12, nombre = ?", QStringLiteral("Medio"));
        EXPECT_TRUE(m_store->run([&] { m_store->execute("update jugadores set venta = 1"); }).ok());
        m_store->execute("update tabla_que_no_existe set x = 1");
    });
    EXPECT_FALSE(failed.ok());
    EXPECT_TRUE(failed.message().startsWith(QStringLiteral("No se ha podido completar")));
    EXPECT_EQ(dump("datos_jugador"), career);
    EXPECT_EQ(dump("jugadores"), players);
    exec("update datos_jugador set jornada = 2");
    EXPECT_EQ(value("select jornada from datos_jugador"), 2);
}

// Guards: a step that failed inside a routine taking back what the routine wrote before it,
// keeping half of its own writes, or reported as gone through; a step outside any routine
// reported as gone through when it failed.
TEST_F(StoreTest, aFailedAttemptTakesBackOnlyItsOwnWritesAndSaysSo)
{
    bool first = true, second = true;
    const Result done = m_store->run([&] {
        m_store->execute("update datos_jugador set jornada = 5");
        first = m_store->attempt([&] {
            m_store->execute("update datos_jugador set nombre = 'x'");
            m_store->execute("update tabla_que_no_existe set x = 1");
        });
        second = m_store->attempt([&] { m_store->execute("update datos_jugador set apellidos = 'y'"); });
    });
    ASSERT_TRUE(done.ok());
    EXPECT_FALSE(first);
    EXPECT_TRUE(second);
    EXPECT_EQ(text("select jornada || nombre || apellidos from datos_jugador"), QStringLiteral("5y"));
    EXPECT_FALSE(m_store->attempt([&] { m_store->execute("update tabla_que_no_existe set x = 1"); }));
    EXPECT_TRUE(m_store->attempt([&] { m_store->execute("update datos_jugador set jornada = 6"); }));
    EXPECT_EQ(value("select jornada from datos_jugador"), 6);
}

// Guards: an inner query or lookup of the same text as a live loop (the squad of another club
// while going through one club's) resetting the outer loop, which then starts over on the
// inner club's rows or never ends.
TEST_F(StoreTest, nestedQueriesAndLookupsOfTheSameTextLeaveTheLiveLoopWhereItWas)
{
    const std::string squad = "select idjugador from jugadores where idequipo = ? order by idjugador";
    auto idsOf = [&](int club) {
        std::vector<int> ids;
        GameStore::Query rows = m_store->query(squad, club);
        while (rows.next())
            ids.push_back(rows.integer(0));
        return ids;
    };
    const std::vector<int> first = idsOf(1);
    const std::vector<int> second = idsOf(2);
    ASSERT_FALSE(second.empty());
    std::vector<int> outer;
    GameStore::Query rows = m_store->query(squad, 1);
    while (outer.size() <= first.size() && rows.next()) { // the bound stops a loop that restarts
        outer.push_back(rows.integer(0));
        EXPECT_EQ(idsOf(2), second);
        EXPECT_EQ(m_store->integer(squad, 2), second.front());
        EXPECT_EQ(m_store->text(squad, 2), QString::number(second.front()));
    }
    EXPECT_EQ(outer, first);
}

// Guards: a restore that copies over an open file, or leaves a log that SQLite would replay
// over the pristine copy at the next open; a missing pristine copy that silently loses the
// career at a restore, or a store that claims to be open with neither file there.
TEST_F(StoreTest, restoreGivesThePristineFileOrSaysWhyAndKeepsTheCareer)
{
    exec("delete from jugadores where idequipo = 84");
    ASSERT_TRUE(QFile::exists(workingPath() + "-wal"));
    const Result restored = m_store->restore();
    ASSERT_TRUE(restored.ok()) << restored.message().toStdString();
    EXPECT_FALSE(QFile::exists(workingPath() + "-wal") || QFile::exists(workingPath() + "-shm"));
    EXPECT_EQ(fileBytes(workingPath()), fileBytes(pristinePath()));
    EXPECT_GT(value("select count(*) from jugadores where idequipo = 84"), 0);

    exec("update datos_jugador set jornada = 3");
    m_store->close();
    GameStore orphan(workingPath(), m_folder.filePath(QStringLiteral("no-existe.mdb")));
    const Result refused = orphan.restore();
    EXPECT_FALSE(refused.ok());
    EXPECT_TRUE(refused.message().contains(QStringLiteral("no-existe.mdb")));
    EXPECT_EQ(orphan.integer("select jornada from datos_jugador"), 3);
    GameStore nothing(m_folder.filePath(QStringLiteral("a.mdb")), m_folder.filePath(QStringLiteral("b.mdb")));
    EXPECT_FALSE(nothing.open().ok());
    EXPECT_FALSE(nothing.isOpen());
}
