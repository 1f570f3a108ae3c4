#include "league/leagueclubs.h"
#include "careerfixture.h"
#include "match/callup.h"
#include "match/matchday.h"
#include "match/tactics.h"

using game::CallUp;
using game::Tactics;

class CallUpTest : public CareerTest
{
protected:
    void SetUp() override
    {
        CareerTest::SetUp();
        startCareer();
        for (const CallUp::Player &player : CallUp(*m_context).squad())
            m_ids.push_back(player.id);
        ASSERT_GE(m_ids.size(), 15u);
    }

    QString placeOf(int index) { return CallUp(*m_context).places().at(std::size_t(index)).listText(); }
    qint64 filled() { return m_store->integer("select count(*) from miequipo where idjugador <> 0"); }

    std::vector<int> m_ids;
};

// Guards: a player standing in two places, or an occupant left half in the squad.
TEST_F(CallUpTest, movesReplacesAndKeepsPlayersInOnePlaceEach)
{
    CallUp callUp(*m_context);
    ASSERT_TRUE(callUp.place(0, m_ids[0]));
    ASSERT_TRUE(callUp.place(8, m_ids[1]));
    EXPECT_EQ(filled(), 2);

    // Moving a placed player frees his old place.
    ASSERT_TRUE(callUp.place(3, m_ids[0]));
    EXPECT_EQ(placeOf(0), QStringLiteral("PORTERO: PORTERO  - "));
    EXPECT_EQ(m_store->integer("select count(*) from miequipo where idjugador = ?", m_ids[0]), 1);
    EXPECT_EQ(filled(), 2);

    // Placing on a filled place puts the occupant out of the squad.
    ASSERT_TRUE(callUp.place(8, m_ids[2]));
    EXPECT_EQ(m_store->integer("select count(*) from miequipo where idjugador = ?", m_ids[1]), 0);
    EXPECT_EQ(filled(), 2);

    // The same place again leaves him there.
    ASSERT_TRUE(callUp.place(8, m_ids[2]));
    EXPECT_EQ(m_store->integer("select idjugador from miequipo where Pos_Partido = 'SUPLENTE2'"), m_ids[2]);
    const QString name = m_store->text("select Nombre || ' ' || Apellidos || ' - ' || Posicion from jugadores where idjugador = ?", m_ids[2]);
    EXPECT_EQ(placeOf(8), QStringLiteral("SUPLENTE2: ") + name);
}

TEST_F(CallUpTest, placesNobodyWithoutAPlaceOrAPlayerOfTheClub)
{
    CallUp callUp(*m_context);
    const QString before = dump("miequipo");
    EXPECT_FALSE(callUp.place(-1, m_ids[0]));
    EXPECT_FALSE(callUp.place(14, m_ids[0]));
    EXPECT_FALSE(callUp.place(0, 0));
    const int stranger = int(m_store->integer("select min(idjugador) from jugadores where idequipo = 9"));
    EXPECT_FALSE(callUp.place(0, stranger));
    EXPECT_EQ(dump("miequipo"), before);
}

TEST_F(CallUpTest, playsOnlyWithFourteenPlaces)
{
    CallUp callUp(*m_context);
    for (int place = 0; place < 13; ++place)
        callUp.place(place, m_ids[std::size_t(place)]);
    EXPECT_FALSE(callUp.readyToPlay());
    EXPECT_EQ(m_dialogs.texts(), QStringList{QStringLiteral("Debes Seleccionar 14 Jugadores para la Covocatoria")});
    callUp.place(13, m_ids[13]);
    EXPECT_TRUE(callUp.readyToPlay());
    EXPECT_EQ(m_dialogs.texts().size(), 1);
}

// Guards: an automatic call-up that leaves a court place to the wrong position or the bench
// to the weaker men.
TEST_F(CallUpTest, theBestFourteenAreTheBestOfEachPositionThenTheBestLeft)
{
    CallUp callUp(*m_context);
    callUp.chooseBest();
    ASSERT_EQ(filled(), 14);
    const std::vector<CallUp::Place> places = callUp.places();
    for (std::size_t place = 0; place < 7; ++place) {
        const QString position = QString::fromUtf16(game::kPositions[place]);
        EXPECT_EQ(places[place].posicion, position) << place;
        EXPECT_EQ(places[place].media,
                  m_store->integer("select max(Media) from jugadores where idequipo = ? and Posicion = ?", kClub, position));
    }
    const qint64 weakestSubstitute = m_store->integer(
        "select min(Media) from miequipo where Pos_Partido like 'SUPLENTE%'");
    EXPECT_GE(weakestSubstitute, m_store->integer("select max(Media) from jugadores where idequipo = ?"
                                                  " and idjugador not in (select idjugador from miequipo)",
                                                  kClub));
    // Choosing again changes nothing.
    const QString chosen = dump("miequipo");
    callUp.chooseBest();
    EXPECT_EQ(dump("miequipo"), chosen);
}

// Guards: a system stored under the wrong code, or a price overwritten by the tactics.
TEST_F(CallUpTest, tacticsStoreTheCodeOfEachSystemAndTouchNoPrice)
{
    Tactics tactics(*m_context);
    const QString prices = m_store->text("select group_concat(precio_entrada) from entradas where idPrecio in (1, 2)");
    tactics.setDefence(Tactics::defences().indexOf(QStringLiteral("3-2-1")) + 1);
    EXPECT_EQ(tactics.defenceCode(), 4);
    EXPECT_EQ(Tactics::defencePicture(tactics.defenceCode()), 2);
    const int attackBefore = tactics.attackCode();
    EXPECT_EQ(attackBefore, 1);
    tactics.setAttack(Tactics::attacks().indexOf(QStringLiteral("2-2-2")) + 1);
    EXPECT_EQ(tactics.attackCode(), 2);
    EXPECT_EQ(tactics.defenceCode(), 4);
    EXPECT_EQ(Tactics::attackPicture(2), 1);
    tactics.setDefence(9); // no such system: nothing changes
    EXPECT_EQ(tactics.defenceCode(), 4);
    EXPECT_EQ(Tactics::defencePicture(6), 0);
    // Every system, the last included, opens the match as stored and has its own diagram.
    const int defencePictures[] = {7, 6, 4, 2, 5};
    for (int code = 1; code <= int(Tactics::defences().size()); ++code) {
        tactics.setDefence(code);
        EXPECT_EQ(game::MatchDay(*m_context).storedDefence(), Tactics::defences().at(code - 1)) << code;
        EXPECT_EQ(Tactics::defencePicture(code), defencePictures[code - 1]) << code;
    }
    EXPECT_EQ(Tactics::attackPicture(1), 8);
    EXPECT_EQ(m_store->text("select group_concat(precio_entrada) from entradas where idPrecio in (1, 2)"), prices);
}
