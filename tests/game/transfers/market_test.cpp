#include "careerfixture.h"
#include "transfers/market.h"

#include <algorithm>

using game::Market;

class MarketTest : public CareerTest
{
protected:
    void SetUp() override
    {
        CareerTest::SetUp();
        startCareer();
    }

    static std::vector<int> ids(const std::vector<Market::Line> &lines)
    {
        std::vector<int> found;
        for (const Market::Line &line : lines)
            found.push_back(line.id);
        return found;
    }

    static bool has(const std::vector<Market::Line> &lines, int id)
    {
        return std::any_of(lines.begin(), lines.end(), [id](const Market::Line &line) { return line.id == id; });
    }

    void list(int player)
    {
        ASSERT_TRUE(m_store->run([&] { m_store->execute("update jugadores set venta = 1 where idjugador = ?", player); }).ok());
    }

    int firstOf(const char *position, int club)
    {
        return int(m_store->integer("select min(idjugador) from jugadores where Posicion = ? and idequipo = ?", position, club));
    }
};

// Guards: a grid that lists a pivot, leaves out the user's own listed players, or puts a
// player in the wrong group.
TEST_F(MarketTest, theFourSaleGridsTakeEveryListedPlayerButThePivots)
{
    ASSERT_TRUE(m_store->run([&] { m_store->execute("update jugadores set venta = 0"); }).ok());
    const int keeper = firstOf("Portero", 20);
    const int wing = firstOf("Extremo Derecho", 21);
    const int back = firstOf("Lateral Izquierdo", 22);
    const int centre = firstOf("Central", kClub);
    const int pivot = firstOf("Pivote", 23);
    for (int player : {keeper, wing, back, centre, pivot})
        list(player);
    Market market(*m_context);
    EXPECT_EQ(ids(market.forSale(Market::Group::Goalkeepers)), std::vector<int>{keeper});
    EXPECT_EQ(ids(market.forSale(Market::Group::Wings)), std::vector<int>{wing});
    EXPECT_EQ(ids(market.forSale(Market::Group::Backs)), std::vector<int>{back});
    EXPECT_EQ(ids(market.forSale(Market::Group::Centres)), std::vector<int>{centre});
    for (auto group : {Market::Group::Goalkeepers, Market::Group::Wings, Market::Group::Backs, Market::Group::Centres})
        EXPECT_FALSE(has(market.forSale(group), pivot));

    // The user's squad in the same four groups, with the contracts' years; no pivot either.
    const auto centres = market.squad(Market::Group::Centres);
    EXPECT_TRUE(has(centres, centre));
    EXPECT_GT(centres.front().years, 0);
    std::size_t listed = 0;
    for (auto group : {Market::Group::Goalkeepers, Market::Group::Wings, Market::Group::Backs, Market::Group::Centres})
        listed += market.squad(group).size();
    EXPECT_EQ(qint64(listed), m_store->integer("select count(*) from jugadores where idequipo = ? and Posicion <> 'Pivote'", kClub));
}

// Guards: the user's club offered to himself in Spain's list, or another country's list
// that leaves a club out.
TEST_F(MarketTest, spainsClubsLeaveOutTheUsersOwnAndEveryClubIsListedAtFirst)
{
    Market market(*m_context);
    const QStringList spain = market.clubsOf(1);
    const QString own = m_store->text("select NombreEquipo from equipos where idequipo = ?", kClub);
    EXPECT_FALSE(spain.contains(own));
    EXPECT_EQ(spain.size(), m_store->integer("select count(*) from equipos where codpais = 1") - 1);
    EXPECT_EQ(market.clubsOf(2).size(), m_store->integer("select count(*) from equipos where codpais = 2"));
    EXPECT_EQ(market.clubsOf(0).size(), 85);
    EXPECT_TRUE(market.clubsOf(0).contains(own));
    const QString club = market.clubsOf(2).front();
    EXPECT_EQ(qint64(market.playersOf(club).size()),
              m_store->integer("select count(*) from jugadores j join equipos e on e.idequipo = j.idequipo"
                               " where e.NombreEquipo = ?", club));
}

struct SearchCase {
    const char *name;
    Market::Search criteria;
    const char *where; // the players the search must find
};

class ScoutSearch : public MarketTest, public ::testing::WithParamInterface<SearchCase>
{};

// Guards: the scout's criteria applied in another precedence than the game's: a rating or an
// age that should replace the position, an age that should give way to a rating, or the full
// search that should apply all five.
TEST_P(ScoutSearch, appliesItsCriteriaInTheGamesPrecedence)
{
    const SearchCase &c = GetParam();
    const auto found = ids(Market(*m_context).search(c.criteria));
    std::vector<int> expected;
    {
        auto rows = m_store->query(std::string("select idjugador from jugadores where ") + c.where + " order by idjugador");
        while (rows.next())
            expected.push_back(rows.integer(0));
    }
    EXPECT_FALSE(expected.empty());
    EXPECT_EQ(found, expected);
}

INSTANTIATE_TEST_SUITE_P(
    Criteria, ScoutSearch,
    ::testing::Values(
        SearchCase{"nothingListsEverybody", {}, "1 = 1"},
        SearchCase{"positionAlone", {{}, {}, QStringLiteral("Pivote"), {}, {}}, "Posicion = 'Pivote'"},
        SearchCase{"allIsAnyPosition", {{}, {}, QStringLiteral("TODOS"), QStringLiteral("0"), {}}, "1 = 1"},
        SearchCase{"ratingReplacesPosition", {{}, {}, QStringLiteral("Pivote"), QStringLiteral("70"), {}}, "Media = 70"},
        SearchCase{"ratingReplacesAge", {{}, {}, {}, QStringLiteral("70"), QStringLiteral("25")}, "Media = 70"},
        SearchCase{"ageAlone", {{}, {}, QStringLiteral("Portero"), {}, QStringLiteral("25")}, "Edad = 25"},
        SearchCase{"blankNamesMatchAll", {QStringLiteral("  "), {}, {}, {}, QStringLiteral("25")}, "Edad = 25"},
        SearchCase{"namePrefixIgnoringCase", {QStringLiteral("ju"), {}, {}, {}, {}}, "Nombre like 'ju%'"}),
    [](const auto &info) { return std::string(info.param.name); });

// Guards: the full search losing one of its five criteria.
TEST_F(MarketTest, theFullSearchAppliesAllFiveCriteria)
{
    const int player = firstOf("Lateral Derecho", 25);
    auto card = Market(*m_context).card(player);
    ASSERT_TRUE(card.has_value());
    Market::Search full{card->nombre, card->apellidos.left(3), QStringLiteral("Lateral"), QString::number(card->media),
                        QString::number(card->edad)};
    const auto found = Market(*m_context).search(full);
    EXPECT_TRUE(has(found, player));
    for (const Market::Line &line : found) {
        EXPECT_TRUE(line.posicion.startsWith(QStringLiteral("Lateral")));
        EXPECT_EQ(line.edad, card->edad);
        EXPECT_EQ(line.media, card->media);
    }
    full.posicion = QStringLiteral("Portero");
    EXPECT_TRUE(Market(*m_context).search(full).empty());
}

// Guards: the scout's starting list in the order of the bytes, which puts Álvaro, Óscar and
// Željko after every plain Z.
TEST_F(MarketTest, everybodyStandsByFirstNameAsASpanishReaderOrdersThem)
{
    const std::vector<Market::Line> all = Market(*m_context).everybody();
    ASSERT_EQ(qint64(all.size()), count("jugadores"));
    // The initials, without their accents, never go back in the alphabet.
    QString initials;
    for (const Market::Line &line : all) {
        const QChar initial = line.nombre.normalized(QString::NormalizationForm_D).at(0).toUpper();
        if (initials.isEmpty() || initials.back() != initial)
            initials += initial;
    }
    QString sorted = initials;
    std::sort(sorted.begin(), sorted.end());
    EXPECT_EQ(initials, sorted);
}

// Guards: a club found by name with like, so that a name like a pattern ("_" for any letter)
// picks another club: the planner's rival or the players a club shows.
TEST_F(MarketTest, aClubIsFoundByItsExactName)
{
    ASSERT_TRUE(m_store->run([&] {
        m_store->execute("update equipos set NombreEquipo = 'Club X' where idequipo = 17");
        m_store->execute("update equipos set NombreEquipo = 'Club_X' where idequipo = 18");
    }).ok());
    const std::vector<Market::Line> players = Market(*m_context).playersOf(QStringLiteral("Club_X"));
    ASSERT_FALSE(players.empty());
    for (const Market::Line &line : players)
        EXPECT_EQ(line.club, 18);
    game::Preseason planner(*m_context);
    planner.begin();
    ASSERT_EQ(planner.choose(QStringLiteral("Club_X")), 0);
    EXPECT_EQ(m_store->integer("select equipo_local from pretemporada where idpartido = 1"), 18);
}

// Guards: youths of another position or club, or a card that misses the injury's name.
TEST_F(MarketTest, theYouthPoolByPositionAndAPlayersCard)
{
    Market market(*m_context);
    for (const Market::Line &youth : market.youths(QStringLiteral("Portero")))
        EXPECT_EQ(youth.posicion, QStringLiteral("Portero"));
    EXPECT_EQ(qint64(market.youths(QStringLiteral("Portero")).size()),
              m_store->integer("select count(*) from jugadores where idequipo = 84 and Posicion = 'Portero'"));

    const int player = firstOf("Central", kClub);
    const auto card = market.card(player);
    ASSERT_TRUE(card.has_value());
    EXPECT_EQ(card->club, kClub);
    EXPECT_EQ(card->equipo, m_store->text("select NombreEquipo from equipos where idequipo = ?", kClub));
    EXPECT_EQ(card->lesion, m_store->text("select nombre_lesion from lesiones where idlesion = 0"));
    EXPECT_FALSE(market.card(999999).has_value());
}

// Guards: the busy manager's draw straying from what the four sale grids show (a pivot, his
// own man, a player not listed), a blind draw that lands on such a player and is taken, or a
// draw among the lists that skips one or reaches past the last.
TEST_F(MarketTest, theDrawForSaleTakesOnlyWhatTheFourGridsShowButOneClubs)
{
    ASSERT_TRUE(m_store->run([&] {
        m_store->execute("update jugadores set venta = 1 where idjugador % 7 = 0");
    }).ok());
    Market market(*m_context);
    std::vector<int> fromGrids;
    for (auto group : {Market::Group::Goalkeepers, Market::Group::Wings, Market::Group::Backs, Market::Group::Centres}) {
        for (const Market::Line &line : market.forSale(group)) {
            if (line.club != kClub)
                fromGrids.push_back(line.id);
        }
    }
    std::sort(fromGrids.begin(), fromGrids.end());
    ASSERT_FALSE(fromGrids.empty());
    const int highest = int(m_store->integer("select max(idjugador) from jugadores"));
    const int unlisted = int(m_store->integer("select min(idjugador) from jugadores where venta = 0"));
    const int ownListed = int(m_store->integer(
        "select min(idjugador) from jugadores where venta = 1 and idequipo = ? and Posicion <> 'Pivote'", kClub));
    const int listedPivot = int(m_store->integer(
        "select min(idjugador) from jugadores where venta = 1 and idequipo <> ? and Posicion = 'Pivote'", kClub));
    ASSERT_GT(ownListed, 0);
    ASSERT_GT(listedPivot, 0);

    // Blind draws on a player not listed, the club's own listed man and a listed pivot miss;
    // the next, on a listed player of another club, is taken.
    for (int miss : {unlisted, ownListed, listedPivot})
        m_random.scriptDraw(miss, highest);
    m_random.scriptDraw(fromGrids.back(), highest);
    EXPECT_EQ(market.drawForSale(kClub), fromGrids.back());

    // When every blind draw misses, the lists are counted and each of them can be drawn, in
    // id order, and nobody else.
    for (std::size_t i = 0; i < fromGrids.size(); ++i) {
        for (int blind = 0; blind < Market::kBlindDraws; ++blind)
            m_random.scriptDraw(unlisted, highest);
        m_random.scriptDraw(int(i) + 1, int(fromGrids.size()));
        EXPECT_EQ(market.drawForSale(kClub), fromGrids[i]) << "number " << i + 1;
    }

    // A market with nobody but the club's own: no player, whatever the draws.
    ASSERT_TRUE(m_store->run([&] {
        m_store->execute("update jugadores set venta = 0 where idequipo <> ?", kClub);
    }).ok());
    EXPECT_EQ(market.drawForSale(kClub), 0);
}
