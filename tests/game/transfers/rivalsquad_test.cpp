#include "league/fixture.h"
#include "league/leagueclubs.h"
#include "careerfixture.h"
#include "transfers/rivalsquad.h"

using game::Fixture;
using game::RivalSquad;

namespace {

// Club 2 (BM Ciudad Real) has one clear best man in each position: its seven, by plaza.
constexpr int kRival = 2;
const std::vector<int> kRivalBest{19, 22, 24, 26, 29, 31, 34};
constexpr int kRivalPivots[] = {31, 32, 33};

// Players the draws hit: a pivot of the user's own club, a pivot of the youth pool, a
// goalkeeper abroad, and the pivots of clubs 17 and 30.
constexpr int kUserPivot = 65;
constexpr int kYouthPivot = 1303;
constexpr int kKeeperAbroad = 270;
constexpr int kLowestPivotAbroad = 280; // club 17, the lowest id of a pivot outside the league
constexpr int kPivotOf30 = 479;

constexpr double kSentinel = 0.123;

} // namespace

class RivalSquadTest : public CareerTest
{
protected:
    void SetUp() override
    {
        CareerTest::SetUp();
        startCareer();
        m_players = static_cast<int>(count("jugadores"));
    }

    static Fixture against(int rival, Fixture::Type type = Fixture::Type::League)
    {
        Fixture fixture;
        fixture.week = 1;
        fixture.type = type;
        fixture.homeId = kClub;
        fixture.awayId = rival;
        fixture.rivalId = rival;
        return fixture;
    }

    void prepare(int rival, Fixture::Type type = Fixture::Type::League)
    {
        RivalSquad(*m_context).prepare(against(rival, type));
    }

    void sql(const std::string &statement)
    {
        const game::Result done = m_store->run([&] { m_store->execute(statement); });
        ASSERT_TRUE(done.ok()) << done.message().toStdString();
    }

    // Scripts the next draws among all the players to hit these ids, in order.
    void scriptDraws(std::initializer_list<int> ids)
    {
        for (const int id : ids)
            m_random.scriptDraw(id, m_players);
    }
    void scriptDrawsOf(int id, int times)
    {
        for (int i = 0; i < times; ++i)
            m_random.scriptDraw(id, m_players);
    }

    // The rows of jugar as plaza|idequipo|idjugador|Posicion, one a line, in plaza order (as
    // std::string, so a failure prints them readably).
    std::string named()
    {
        QString rows;
        game::GameStore::Query row =
            m_store->query("select plaza, idequipo, idjugador, Posicion from jugar order by plaza, idjugador");
        while (row.next())
            rows += QStringLiteral("%1|%2|%3|%4\n").arg(row.integer(0)).arg(row.integer(1)).arg(row.integer(2)).arg(row.text(3));
        return rows.toStdString();
    }

    // The row of jugar for one plaza, as named() shows it.
    std::string namedAt(int plaza)
    {
        game::GameStore::Query row =
            m_store->query("select plaza, idequipo, idjugador, Posicion from jugar where plaza = ?", plaza);
        if (!row.next())
            return {};
        return QStringLiteral("%1|%2|%3|%4").arg(row.integer(0)).arg(row.integer(1)).arg(row.integer(2)).arg(row.text(3)).toStdString();
    }

    // What named() shows for a club whose seven are these ids, read from their rows now.
    std::string namedBest(int club, const std::vector<int> &ids)
    {
        QString rows;
        for (int plaza = 1; plaza <= 7; ++plaza) {
            const int id = ids.at(plaza - 1);
            rows += QStringLiteral("%1|%2|%3|%4\n")
                        .arg(plaza)
                        .arg(club)
                        .arg(id)
                        .arg(m_store->text("select Posicion from jugadores where idjugador = ?", id));
        }
        return rows.toStdString();
    }

    // One player's whole row.
    std::string player(int id)
    {
        game::GameStore::Query row = m_store->query("select * from jugadores where idjugador = ?", id);
        if (!row.next())
            return {};
        QStringList values;
        for (int column = 0; column < row.columns(); ++column)
            values << row.text(column);
        return values.join(QLatin1Char('|')).toStdString();
    }

    // The player's row as it should read after a move to `club` wearing `dorsal`.
    static std::string moved(const std::string &before, int club, int dorsal)
    {
        QStringList values = QString::fromStdString(before).split(QLatin1Char('|'));
        values[1] = QString::number(club);
        values[7] = QString::number(dorsal);
        return values.join(QLatin1Char('|')).toStdString();
    }

    // Every player but one, for checking that nobody else moved.
    QString playersBut(int id)
    {
        QString text;
        game::GameStore::Query row = m_store->query("select * from jugadores where idjugador <> ? order by idjugador", id);
        while (row.next()) {
            for (int column = 0; column < row.columns(); ++column)
                text += row.text(column) + QLatin1Char('|');
            text += QLatin1Char('\n');
        }
        return text;
    }

    int userTopShirt() { return static_cast<int>(m_store->integer("select max(Dorsal) from jugadores where idequipo = ?", kClub)); }

    // The next value of chance is the sentinel: the routine drew exactly what was scripted.
    void expectDrawsSpent()
    {
        EXPECT_EQ(m_random.uniform(), kSentinel) << "the routine drew more or fewer numbers than scripted";
    }

    int m_players = 0;
};

// --- A rival with a clear best in each position ----------------------------------------------

// Guards: a wrong plaza order or position, a second-best starting, a move or a draw where the
// rival already has his seven.
TEST_F(RivalSquadTest, aRivalWithOneBestPerPositionFieldsHisSevenAndMovesNobody)
{
    const QString players = dump("jugadores");
    m_random.script({kSentinel});

    prepare(kRival);

    EXPECT_EQ(named(), namedBest(kRival, kRivalBest));
    for (int plaza = 1; plaza <= 7; ++plaza)
        EXPECT_EQ(m_store->text("select Posicion from jugar where plaza = ?", plaza),
                  QString::fromUtf16(game::kPositions[plaza - 1]));
    EXPECT_EQ(dump("jugar"),
              QStringLiteral("2|19|Jan|Sjöberg|91|Portero|1|\n"
                             "2|22|Jon|Cano Cruz|82|Extremo Izquierdo|2|\n"
                             "2|24|Andrés|Cano Puig|87|Extremo Derecho|3|\n"
                             "2|26|Andrés|Méndez Moya|82|Lateral Izquierdo|4|\n"
                             "2|29|Kim|Berg|81|Lateral Derecho|5|\n"
                             "2|31|Atli|Ragnarsson|85|Pivote|6|\n"
                             "2|34|Javier|Gómez Mas|81|Central|7|\n"));
    EXPECT_EQ(dump("jugadores"), players);
    expectDrawsSpent();
    EXPECT_TRUE(m_dialogs.texts().isEmpty());
}

// Guards: the user's starters of an earlier week left behind beside the rival's seven.
TEST_F(RivalSquadTest, theUsersOwnRowsAreClearedFromTheMatchSheet)
{
    sql("insert into jugar values (4, 53, 'A', 'B', 70, 'Portero', 1)");
    sql("insert into jugar values (4, 65, 'C', 'D', 84, 'Pivote', 6)");

    prepare(kRival);

    EXPECT_EQ(named(), namedBest(kRival, kRivalBest));
    EXPECT_EQ(m_store->integer("select count(*) from jugar where idequipo = ?", kClub), 0);
}

// Guards: a routine that acts in a week without a match.
TEST_F(RivalSquadTest, aWeekWithoutAMatchChangesNothing)
{
    sql("insert into jugar values (4, 53, 'A', 'B', 70, 'Portero', 1)");
    const QString players = dump("jugadores");
    const QString sheet = dump("jugar");
    m_random.script({kSentinel});

    RivalSquad(*m_context).prepare(std::nullopt);

    EXPECT_EQ(dump("jugadores"), players);
    EXPECT_EQ(dump("jugar"), sheet);
    expectDrawsSpent();
    EXPECT_TRUE(m_dialogs.texts().isEmpty());
}

// --- Bringing a player in ----------------------------------------------------------------------

// Guards: a newcomer taken from the league (the user's club included), from the youth pool or
// from the wrong position; a tied man started; the newcomer's club, number or other terms wrong.
TEST_F(RivalSquadTest, aTieAtTheTopBringsInTheFirstDrawnPlayerOfThePositionFromAbroad)
{
    sql("update jugadores set Media = 85 where idjugador = 32"); // ties Ragnarsson at pivot
    const std::string newcomerBefore = player(kPivotOf30);
    const QString others = playersBut(kPivotOf30);
    const int shirt = userTopShirt();
    scriptDraws({kUserPivot, kYouthPivot, kKeeperAbroad, kPivotOf30});
    m_random.script({kSentinel});

    prepare(kRival);

    EXPECT_EQ(player(kPivotOf30), moved(newcomerBefore, kRival, shirt));
    EXPECT_EQ(playersBut(kPivotOf30), others);
    std::vector<int> starters = kRivalBest;
    starters[5] = kPivotOf30; // he starts, though both tied men are better
    EXPECT_EQ(named(), namedBest(kRival, starters));
    EXPECT_EQ(m_store->text("select Nombre || ' ' || Apellidos || ' ' || Media from jugar where plaza = 6"),
              m_store->text("select Nombre || ' ' || Apellidos || ' ' || Media from jugadores where idjugador = ?",
                            kPivotOf30));
    expectDrawsSpent();
}

// Guards: a position left empty, or a newcomer who does not become the club's own.
TEST_F(RivalSquadTest, aMissingPositionIsFilledAndTheNewcomerStaysTheClubsBest)
{
    for (const int pivot : kRivalPivots)
        sql("update jugadores set idequipo = 30 where idjugador = " + std::to_string(pivot));
    scriptDraws({kLowestPivotAbroad});

    prepare(kRival);

    std::vector<int> starters = kRivalBest;
    starters[5] = kLowestPivotAbroad;
    EXPECT_EQ(named(), namedBest(kRival, starters));
    EXPECT_EQ(m_store->integer("select count(*) from jugadores where idequipo = ? and Posicion = 'Pivote'", kRival), 1);

    // The next week against the same club needs no newcomer.
    sql("delete from jugar");
    const QString players = dump("jugadores");
    m_random.script({kSentinel});
    prepare(kRival);
    EXPECT_EQ(named(), namedBest(kRival, starters));
    EXPECT_EQ(dump("jugadores"), players);
    expectDrawsSpent();
}

// Guards: a draw that never ends, that stops early or late, or a fallback that ignores the
// club or position rules.
TEST_F(RivalSquadTest, afterTheLastFailedDrawTheLowestQualifyingIdComesIn)
{
    sql("update jugadores set Media = 85 where idjugador = 32");
    const std::string newcomerBefore = player(kLowestPivotAbroad);
    scriptDrawsOf(kUserPivot, RivalSquad::kMaxDraws);
    scriptDraws({kPivotOf30}); // one draw too many: it must stay unused
    m_random.script({kSentinel});

    prepare(kRival);

    EXPECT_EQ(player(kLowestPivotAbroad), moved(newcomerBefore, kRival, userTopShirt()));
    EXPECT_EQ(m_store->integer("select idjugador from jugar where plaza = 6"), kLowestPivotAbroad);
    EXPECT_EQ(m_random.draw(m_players), kPivotOf30);
    expectDrawsSpent();
}

// Guards: an empty place, or a place filled by a man already named, when no club can give a
// player of the position.
TEST_F(RivalSquadTest, withNoCandidateAnywhereTheRivalsBestUnnamedManStandsIn)
{
    sql("update jugadores set idequipo = 84 where Posicion = 'Pivote' and (idequipo > 16 or idequipo = 2)");
    sql("update jugadores set Media = 82 where idjugador = 25"); // ties the second goalkeeper, id 20
    const QString players = dump("jugadores");

    prepare(kRival);

    EXPECT_EQ(namedAt(6), "6|2|20|Portero");
    EXPECT_EQ(count("jugar"), 7);
    EXPECT_EQ(dump("jugadores"), players);
    EXPECT_TRUE(m_dialogs.texts().isEmpty());
}

// Guards: a club above 16 losing or duplicating its own man when the draw hits him.
TEST_F(RivalSquadTest, aForeignRivalDrawingItsOwnPlayerOnlyChangesHisNumber)
{
    constexpr int kForeignRival = 17;
    sql("update jugadores set Media = 61 where idjugador = 281"); // ties 280 at pivot
    const std::string drawnBefore = player(281);
    const QString others = playersBut(281);
    scriptDraws({281});
    m_random.script({kSentinel});

    prepare(kForeignRival, Fixture::Type::Friendly);

    EXPECT_EQ(player(281), moved(drawnBefore, kForeignRival, userTopShirt()));
    EXPECT_EQ(playersBut(281), others);
    EXPECT_EQ(namedAt(6), "6|17|281|Pivote");
    EXPECT_EQ(count("jugar"), 7);
    expectDrawsSpent();
}

// --- Failure -------------------------------------------------------------------------------------

// Guards: a half-written week (a move kept without its match sheet) or a silent failure.
TEST_F(RivalSquadTest, aStoreFailureUndoesTheMoveAndTellsThePlayerOnce)
{
    sql("update jugadores set Media = 85 where idjugador = 32");
    sql("insert into jugar values (4, 53, 'A', 'B', 70, 'Portero', 1)");
    // The sheet refuses the last place, after the pivot has moved.
    sql("create trigger no_central before insert on jugar when new.plaza = 7"
        " begin select raise(abort, 'sin sitio'); end");
    const QString players = dump("jugadores");
    const QString sheet = dump("jugar");
    scriptDraws({kPivotOf30});

    prepare(kRival);

    EXPECT_EQ(dump("jugadores"), players);
    EXPECT_EQ(dump("jugar"), sheet);
    ASSERT_EQ(m_dialogs.messages().size(), 1u);
    EXPECT_EQ(m_dialogs.messages().front().icon, game::Dialogs::Icon::Exclamation);
    EXPECT_FALSE(m_dialogs.messages().front().text.isEmpty());
}

// Guards: a failure when the match sheet itself is missing that goes unreported or half done.
TEST_F(RivalSquadTest, aMissingMatchSheetTellsThePlayerOnceAndMovesNobody)
{
    sql("update jugadores set Media = 85 where idjugador = 32");
    sql("drop table jugar");
    const QString players = dump("jugadores");
    scriptDraws({kPivotOf30});

    prepare(kRival);

    EXPECT_EQ(dump("jugadores"), players);
    ASSERT_EQ(m_dialogs.messages().size(), 1u);
    EXPECT_EQ(m_dialogs.messages().front().icon, game::Dialogs::Icon::Exclamation);
}
