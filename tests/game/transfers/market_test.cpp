#include "careerfixture.h"
#include "transfers/market.h"

#include <algorithm>

using game::Market;

class MarketTest : public CareerTest
{
protected:
    static constexpr Market::Group kGroups[] = {Market::Group::Goalkeepers, Market::Group::Wings, Market::Group::Backs,
                                                Market::Group::Centres};

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

    // The market's lines, every column, and a player's row read the same way.
    static QStringList linesOf(const std::vector<Market::Line> &lines)
    {
        QStringList texts;
        for (const Market::Line &l : lines)
            texts << QStringLiteral("%1|%2|%3|%4|%5|%6|%7|%8|%9|%10").arg(l.id).arg(l.nombre, l.apellidos).arg(l.edad).arg(l.posicion)
                         .arg(l.media).arg(l.dorsal).arg(l.nacionalidad).arg(l.years).arg(l.club);
        return texts;
    }
    QString rowOf(int id)
    {
        return text("select idjugador || '|' || Nombre || '|' || Apellidos || '|' || Edad || '|' || Posicion || '|' || Media"
                    " || '|' || Dorsal || '|' || Nacionalidad || '|' || \"Años_Contrato\" || '|' || idequipo"
                    " from jugadores where idjugador = ?",
                    id);
    }

    int firstOf(const char *position, int club)
    {
        return int(value("select min(idjugador) from jugadores where Posicion = ? and idequipo = ?", position, club));
    }
};

// Guards: a grid that lists a pivot, leaves out the user's own listed players, puts a player
// in the wrong group or shows a column of another; the user's squad by the same groups.
TEST_F(MarketTest, theFourSaleGridsTakeEveryListedPlayerButThePivots)
{
    exec("update jugadores set venta = 0");
    const std::vector<int> listed = {firstOf("Portero", 20), firstOf("Extremo Derecho", 21),
                                     firstOf("Lateral Izquierdo", 22), firstOf("Central", kClub)};
    const int pivot = firstOf("Pivote", 23);
    exec("update jugadores set venta = 1 where idjugador in (?, ?, ?, ?, ?)", listed[0], listed[1], listed[2], listed[3],
         pivot);
    Market market(*m_context);
    std::size_t squad = 0;
    for (std::size_t group = 0; group < 4; ++group) {
        EXPECT_EQ(linesOf(market.forSale(kGroups[group])), QStringList{rowOf(listed[group])}) << group;
        squad += market.squad(kGroups[group]).size();
    }
    EXPECT_EQ(qint64(squad), value("select count(*) from jugadores where idequipo = ? and Posicion <> 'Pivote'", kClub));
}

struct SearchCase {
    const char *name;
    Market::Search criteria;
    const char *where; // the players the search must find
};

class ScoutSearch : public MarketTest, public ::testing::WithParamInterface<SearchCase>
{};

// Guards: the scout's criteria applied in another precedence than the game's: a rating or an
// age that should replace the position, an age that should give way to a rating, a blank or
// mixed-case name box read as typed, or the full search losing one of its five criteria.
TEST_P(ScoutSearch, appliesItsCriteriaInTheGamesPrecedence)
{
    const SearchCase &c = GetParam();
    std::vector<int> expected;
    for (auto rows = m_store->query(std::string("select idjugador from jugadores where ") + c.where + " order by idjugador");
         rows.next();)
        expected.push_back(rows.integer(0));
    EXPECT_EQ(expected.empty(), std::string(c.where) == "0");
    EXPECT_EQ(ids(Market(*m_context).search(c.criteria)), expected);
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
        SearchCase{"namePrefixIgnoringCase", {QStringLiteral("ju"), {}, {}, {}, {}}, "Nombre like 'ju%'"},
        SearchCase{"allFive", {QStringLiteral("Markus"), QStringLiteral("Mey"), QStringLiteral("Lateral"), QStringLiteral("67"), QStringLiteral("26")},
                   "Nombre like 'Markus%' and Apellidos like 'Mey%' and Posicion like 'Lateral%' and Media = 67 and Edad = 26"},
        SearchCase{"allFiveWithAnotherPosition", {QStringLiteral("Markus"), QStringLiteral("Mey"), QStringLiteral("Portero"), QStringLiteral("67"), QStringLiteral("26")}, "0"}),
    [](const auto &info) { return std::string(info.param.name); });

// Guards: a club found by name with like, so that a name like a pattern ("_" for any letter)
// picks another club: the planner's rival or the players a club shows.
TEST_F(MarketTest, aClubIsFoundByItsExactName)
{
    exec("update equipos set NombreEquipo = 'Club X' where idequipo = 17");
    exec("update equipos set NombreEquipo = 'Club_X' where idequipo = 18");
    const std::vector<Market::Line> players = Market(*m_context).playersOf(QStringLiteral("Club_X"));
    ASSERT_FALSE(players.empty());
    for (const Market::Line &line : players)
        EXPECT_EQ(line.club, 18);
    game::Preseason planner(*m_context);
    planner.begin();
    ASSERT_EQ(planner.choose(QStringLiteral("Club_X")), 0);
    EXPECT_EQ(value("select equipo_local from pretemporada where idpartido = 1"), 18);
}

// Guards: the busy manager's draw straying from what the four sale grids show (a pivot, his
// own man, a player not listed), a blind draw that lands on such a player and is taken, or a
// draw among the lists that skips one or reaches past the last.
TEST_F(MarketTest, theDrawForSaleTakesOnlyWhatTheFourGridsShowButOneClubs)
{
    exec("update jugadores set venta = 1 where idjugador % 7 = 0");
    Market market(*m_context);
    std::vector<int> fromGrids;
    for (const Market::Group group : kGroups)
        for (const Market::Line &line : market.forSale(group))
            if (line.club != kClub)
                fromGrids.push_back(line.id);
    std::sort(fromGrids.begin(), fromGrids.end());
    ASSERT_FALSE(fromGrids.empty());
    const int highest = int(value("select max(idjugador) from jugadores"));
    const int unlisted = int(value("select min(idjugador) from jugadores where venta = 0"));
    const int ownListed = int(value("select min(idjugador) from jugadores where venta = 1 and idequipo = ? and Posicion <> 'Pivote'", kClub));
    const int listedPivot = int(value("select min(idjugador) from jugadores where venta = 1 and idequipo <> ? and Posicion = 'Pivote'", kClub));
    ASSERT_GT(ownListed * listedPivot, 0);

    // Blind draws on a player not listed, the club's own listed man and a listed pivot miss;
    // the next, on a listed player of another club, is taken.
    for (int drawn : {unlisted, ownListed, listedPivot, fromGrids.back()})
        m_random.scriptDraw(drawn, highest);
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
    exec("update jugadores set venta = 0 where idequipo <> ?", kClub);
    EXPECT_EQ(market.drawForSale(kClub), 0);
}
