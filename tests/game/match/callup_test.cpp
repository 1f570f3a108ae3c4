#include "league/leagueclubs.h"
#include "careerfixture.h"
#include "match/callup.h"
#include "match/matchday.h"
#include "match/tactics.h"

#include <map>
#include <tuple>
#include <utility>

using game::CallUp;
using game::Tactics;

// A career of F.C. Barcelona (club 1), whose squad holds player 1, the lowest id there is.
class CallUpTest : public CareerTest
{
protected:
    static constexpr int kBarcelona = 1;

    void SetUp() override
    {
        CareerTest::SetUp();
        startCareer(kBarcelona);
        for (const CallUp::Player &player : CallUp(*m_context).squad())
            m_ids.push_back(player.id);
        ASSERT_GE(m_ids.size(), 15u);
    }

    QString placeOf(int index) { return CallUp(*m_context).places().at(std::size_t(index)).listText(); }
    qint64 placesOf(int player) { return value("select count(*) from miequipo where idjugador = ?", player); }

    std::vector<int> m_ids; // by position, then id: centrals first, goalkeepers last
};

// Guards: a player standing in two places, an occupant left half in the squad, or a place
// taken with no such place, no player or a player of another club.
TEST_F(CallUpTest, placesEachPlayerInOnePlaceAndNobodyWithoutAPlaceOrOfAnotherClub)
{
    CallUp callUp(*m_context);
    const QString empty = dump("miequipo");
    const int stranger = int(value("select min(idjugador) from jugadores where idequipo = 9"));
    const std::pair<int, int> refused[] = {{-1, 1}, {14, 1}, {0, 0}, {0, stranger}};
    for (const auto &[place, player] : refused)
        EXPECT_FALSE(callUp.place(place, player)) << place << ' ' << player;
    EXPECT_EQ(dump("miequipo"), empty);

    ASSERT_TRUE(callUp.place(0, 1));
    ASSERT_TRUE(callUp.place(8, m_ids[1]));
    ASSERT_TRUE(callUp.place(3, 1)); // moving a placed player frees his old place
    EXPECT_EQ(placeOf(0), QStringLiteral("PORTERO: PORTERO  - "));
    ASSERT_TRUE(callUp.place(8, m_ids[2])); // the occupant goes out of the squad
    ASSERT_TRUE(callUp.place(8, m_ids[2])); // the same place again leaves him there
    EXPECT_EQ(std::tuple(value("select count(*) from miequipo where idjugador <> 0"), placesOf(1), placesOf(m_ids[1])),
              std::tuple(2, 1, 0));
    EXPECT_EQ(placeOf(8), QStringLiteral("SUPLENTE2: ")
                              + text("select Nombre || ' ' || Apellidos || ' - ' || Posicion from jugadores"
                                     " where idjugador = ?",
                                     m_ids[2]));
}

// Guards: a system stored under the wrong code or refused at either end of the list, a
// diagram given outside the list, or a price overwritten by the tactics.
TEST_F(CallUpTest, tacticsStoreTheCodeOfEachSystemAndTouchNoPrice)
{
    Tactics tactics(*m_context);
    const QString prices = dump("entradas where idPrecio in (1, 2)");
    EXPECT_EQ(tactics.attackCode(), 1);
    for (const int code : {2, 1}) {
        tactics.setAttack(code);
        EXPECT_EQ(tactics.attackCode(), code);
    }
    EXPECT_EQ(Tactics::attacks().indexOf(QStringLiteral("2-2-2")), 1);
    tactics.setDefence(Tactics::defences().indexOf(QStringLiteral("3-2-1")) + 1);
    EXPECT_EQ(tactics.defenceCode(), 4);
    tactics.setDefence(9); // no such system: nothing changes
    EXPECT_EQ(tactics.defenceCode(), 4);
    // Every system, the last included, opens the match as stored and has its own diagram;
    // a code outside the lists has none.
    for (int code = 1; code <= int(Tactics::defences().size()); ++code) {
        tactics.setDefence(code);
        EXPECT_EQ(game::MatchDay(*m_context).storedDefence(), Tactics::defences().at(code - 1)) << code;
    }
    EXPECT_EQ(tactics.attackCode(), 1);
    const std::map<int, int> defencePictures{{1, 7}, {2, 6}, {3, 4}, {4, 2}, {5, 5}}, attackPictures{{1, 8}, {2, 1}};
    for (int code = -64; code <= 64; ++code) {
        EXPECT_EQ(Tactics::defencePicture(code), defencePictures.count(code) ? defencePictures.at(code) : 0) << code;
        EXPECT_EQ(Tactics::attackPicture(code), attackPictures.count(code) ? attackPictures.at(code) : 0) << code;
    }
    EXPECT_EQ(dump("entradas where idPrecio in (1, 2)"), prices);
}
