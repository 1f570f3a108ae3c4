#include "league/fixture.h"
#include "careerfixture.h"
#include "transfers/rivalsquad.h"

using game::Fixture;
using game::RivalSquad;

namespace {

// Club 2 (BM Ciudad Real) has one clear best man in each position: 19, 22, 24, 26, 29, 31
// and 34, by plaza.
constexpr int kRival = 2;

// Players the draws hit: a pivot of the user's own club, a pivot of the youth pool, a
// goalkeeper abroad, and the pivots of clubs 17 and 30.
constexpr int kUserPivot = 65;
constexpr int kYouthPivot = 1303;
constexpr int kKeeperAbroad = 270;
constexpr int kLowestPivotAbroad = 280; // club 17, the lowest id of a pivot outside the league
constexpr int kPivotOf30 = 479;

// Scripted after the draws a test expects: the next value of chance must be this one.
constexpr double kSentinel = 0.123;

} // namespace

class RivalSquadTest : public CareerTest
{
protected:
    void SetUp() override
    {
        CareerTest::SetUp();
        startCareer();
        m_players = int(count("jugadores"));
    }

    void prepare(int rival, Fixture::Type type = Fixture::Type::League)
    {
        Fixture fixture;
        fixture.week = 1;
        fixture.type = type;
        fixture.homeId = kClub;
        fixture.awayId = rival;
        fixture.rivalId = rival;
        RivalSquad(*m_context).prepare(fixture);
    }

    // Scripts the next draws among all the players to hit these ids, in order.
    void scriptDraws(std::initializer_list<int> ids, int times = 1)
    {
        for (int i = 0; i < times; ++i)
            for (const int id : ids)
                m_random.scriptDraw(id, m_players);
    }

    // The match sheet as club:player, in plaza order.
    QString sheet() { return text("select group_concat(idequipo || ':' || idjugador, ' ')"
                                   " from (select * from jugar order by plaza, idjugador)"); }

    // The dump of jugadores before, with one player moved to `club` wearing `shirt`.
    static QString moved(const QString &before, int id, int club, int shirt)
    {
        QStringList rows = before.split(QLatin1Char('\n'));
        for (QString &row : rows) {
            QStringList values = row.split(QLatin1Char('|'));
            if (values.first() == QString::number(id)) {
                values[1] = QString::number(club);
                values[7] = QString::number(shirt);
                row = values.join(QLatin1Char('|'));
            }
        }
        return rows.join(QLatin1Char('\n'));
    }

    int userTopShirt() { return int(value("select max(Dorsal) from jugadores where idequipo = ?", kClub)); }

    int m_players = 0;
};

// Guards: a routine that acts in a week without a match; a wrong plaza order or position, a
// second-best starting, the user's starters of an earlier week left on the sheet, or a move
// or a draw where the rival already has his seven.
TEST_F(RivalSquadTest, aRivalWithOneBestPerPositionFieldsHisSevenAndMovesNobody)
{
    exec("insert into jugar values (4, 53, 'A', 'B', 70, 'Portero', 1)");
    const QString players = dump("jugadores");
    const QString earlier = dump("jugar");
    m_random.script({kSentinel});

    RivalSquad(*m_context).prepare(std::nullopt);
    EXPECT_EQ(dump("jugar"), earlier);
    prepare(kRival);

    EXPECT_EQ(dump("jugar"), QStringLiteral("2|19|Jan|Sjöberg|91|Portero|1|\n"
                                            "2|22|Jon|Cano Cruz|82|Extremo Izquierdo|2|\n"
                                            "2|24|Andrés|Cano Puig|87|Extremo Derecho|3|\n"
                                            "2|26|Andrés|Méndez Moya|82|Lateral Izquierdo|4|\n"
                                            "2|29|Kim|Berg|81|Lateral Derecho|5|\n"
                                            "2|31|Atli|Ragnarsson|85|Pivote|6|\n"
                                            "2|34|Javier|Gómez Mas|81|Central|7|\n"));
    EXPECT_EQ(dump("jugadores"), players);
    EXPECT_EQ(m_random.uniform(), kSentinel);
    EXPECT_TRUE(m_dialogs.texts().isEmpty());
}

// Guards: a newcomer taken from the league (the user's club included), from the youth pool or
// from the wrong position; a tied man started; the newcomer's club, number or other terms
// wrong, or his line on the sheet not his.
TEST_F(RivalSquadTest, aTieAtTheTopBringsInTheFirstDrawnPlayerOfThePositionFromAbroad)
{
    exec("update jugadores set Media = 85 where idjugador = 32"); // ties Ragnarsson at pivot
    const QString before = dump("jugadores");
    const int shirt = userTopShirt();
    scriptDraws({kUserPivot, kYouthPivot, kKeeperAbroad, kPivotOf30});
    m_random.script({kSentinel});

    prepare(kRival);

    EXPECT_EQ(dump("jugadores"), moved(before, kPivotOf30, kRival, shirt));
    EXPECT_EQ(sheet(), QStringLiteral("2:19 2:22 2:24 2:26 2:29 2:479 2:34")); // he starts, though both tied men are better
    EXPECT_EQ(text("select Nombre || Apellidos || Media || Posicion from jugar where plaza = 6"),
              text("select Nombre || Apellidos || Media || Posicion from jugadores where idjugador = ?", kPivotOf30));
    EXPECT_EQ(m_random.uniform(), kSentinel);
}

// Guards: a draw that never ends, that stops early or late, or a fallback that ignores the
// club or position rules.
TEST_F(RivalSquadTest, afterTheLastFailedDrawTheLowestQualifyingIdComesIn)
{
    exec("update jugadores set Media = 85 where idjugador = 32");
    const QString before = dump("jugadores");
    scriptDraws({kUserPivot}, RivalSquad::kMaxDraws);
    scriptDraws({kPivotOf30}); // one draw too many: it must stay unused

    prepare(kRival);

    EXPECT_EQ(dump("jugadores"), moved(before, kLowestPivotAbroad, kRival, userTopShirt()));
    EXPECT_EQ(sheet(), QStringLiteral("2:19 2:22 2:24 2:26 2:29 2:280 2:34"));
    EXPECT_EQ(m_random.draw(m_players), kPivotOf30);
}

// Guards: an empty place, or a place filled by a man already named, when no club can give a
// player of the position.
TEST_F(RivalSquadTest, withNoCandidateAnywhereTheRivalsBestUnnamedManStandsIn)
{
    exec("update jugadores set idequipo = 84 where Posicion = 'Pivote' and (idequipo > 16 or idequipo = 2)");
    exec("update jugadores set Media = 82 where idjugador = 25"); // ties the second goalkeeper, id 20
    const QString players = dump("jugadores");

    prepare(kRival);

    EXPECT_EQ(sheet(), QStringLiteral("2:19 2:22 2:24 2:26 2:29 2:20 2:34"));
    EXPECT_EQ(text("select Posicion from jugar where plaza = 6"), QStringLiteral("Portero"));
    EXPECT_EQ(dump("jugadores"), players);
    EXPECT_TRUE(m_dialogs.texts().isEmpty());
}

// Guards: a club above 16 losing or duplicating its own man when the draw hits him.
TEST_F(RivalSquadTest, aForeignRivalDrawingItsOwnPlayerOnlyChangesHisNumber)
{
    exec("update jugadores set Media = 61 where idjugador = 281"); // ties 280 at pivot
    const QString before = dump("jugadores");
    scriptDraws({281});

    prepare(17, Fixture::Type::Friendly);

    EXPECT_EQ(dump("jugadores"), moved(before, 281, 17, userTopShirt()));
    EXPECT_EQ(text("select idequipo || ':' || idjugador || ':' || Posicion from jugar where plaza = 6"),
              QStringLiteral("17:281:Pivote"));
    EXPECT_EQ(count("jugar"), 7);
}

class RivalSquadFailure : public RivalSquadTest, public ::testing::WithParamInterface<const char *>
{};

// Guards: a half-written week (a move kept without its match sheet), a missing sheet that
// goes unreported, or a failure told more than once.
TEST_P(RivalSquadFailure, undoesTheMoveAndTellsThePlayerOnce)
{
    exec("update jugadores set Media = 85 where idjugador = 32");
    exec("insert into jugar values (4, 53, 'A', 'B', 70, 'Portero', 1)");
    exec(GetParam());
    const QString players = dump("jugadores");
    const QString sheet = count("sqlite_master where name = 'jugar'") ? dump("jugar") : QString();
    scriptDraws({kPivotOf30});

    prepare(kRival);

    EXPECT_EQ(dump("jugadores"), players);
    if (!sheet.isEmpty()) {
        EXPECT_EQ(dump("jugar"), sheet);
    }
    ASSERT_EQ(m_dialogs.messages().size(), 1u);
    EXPECT_EQ(m_dialogs.messages().front().icon, game::Dialogs::Icon::Exclamation);
    EXPECT_FALSE(m_dialogs.messages().front().text.isEmpty());
}

INSTANTIATE_TEST_SUITE_P(Store, RivalSquadFailure,
                         ::testing::Values("drop table jugar",
                                           // The sheet refuses the last place, after the pivot has moved.
                                           "create trigger no_central before insert on jugar when new.plaza = 7"
                                           " begin select raise(abort, 'sin sitio'); end"));
