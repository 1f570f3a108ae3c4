// The market as the player walks it from the panel's "FICHAR": the players for sale in four
// grids, the clubs of each country and their squads, the technical secretary's search, and
// the offer that a row picked on any of them opens.

#include "screenfixture.h"

#include <set>

using namespace Qt::StringLiterals;

namespace {

const char *kPanel = "Panel_Control_Manager";
const char *kSale = "Fichar_EnVenta";
const char *kClubs = "Fichar";
const char *kScout = "Secretario";

// The four sale grids and the positions each of them lists (a list for "Posicion in (...)").
const std::pair<const char *, const char *> kSaleGrids[] = {
    {"DGPorteros", "'Portero'"},
    {"DGExtremos", "'Extremo Izquierdo', 'Extremo Derecho'"},
    {"DGLaterales", "'Lateral Izquierdo', 'Lateral Derecho'"},
    {"DataGrid4", "'Central'"},
};

// The country buttons and their texts, in the order of the country codes of the clubs they list.
const std::pair<const char *, const char *> kCountries[] = {
    {"cmdEspaña", "ESPAÑA"},       {"cmdAlemania", "ALEMANIA"},   {"cmdFrancia", "FRANCIA"},
    {"cmdItalia", "ITALIA"},       {"cmdUcrania", "UCRANIA"},     {"cmdIslandia", "ISLANDIA"},
    {"cmdDinamarca", "DINAMARCA"}, {"cmdEslovenia", "ESLOVENIA"}, {"cmdSuecia", "SUECIA"},
    {"cmdCroacia", "CROACIA"},     {"cmdRusia", "RUSIA"},         {"cmdHungria", "HUNGRÍA"},
    {"cmdCheca", "REPÚBLICA CHECA"}, {"cmdSuiza", "SUIZA"},       {"cmdGrecia", "GRECIA"},
    {"cmdTurquia", "TURQUÍA"},     {"cmdPortugal", "PORTUGAL"},   {"cmdSerbiaMontenegro", "SERBIA-MONTENEGRO"},
};

} // namespace

class MarketScreens : public ScreenTest
{
protected:
    void openSaleLists()
    {
        ASSERT_EQ(at(), kPanel);
        go("cmdfichar", kSale);
    }

    void list(const std::string &where) { exec("update jugadores set venta = 1 where " + where); }

    // The pointer over a button and away from it: its name under the pointer, then nothing.
    void hover(const char *button, const QString &name)
    {
        auto *hovered = find<QLabel>("lblPaises");
        QEvent enter(QEvent::Enter), leave(QEvent::Leave);
        QApplication::sendEvent(find(button), &enter);
        EXPECT_EQ(hovered->text(), name) << button;
        QApplication::sendEvent(find(button), &leave);
        EXPECT_EQ(hovered->text(), QString()) << button;
    }

    // The offer opens over the screen about the row picked, listed or not; it is made as it
    // stands (a listed player's own terms, or 1 € for a free one), and the screen is back.
    void pickAndOffer(QTableView *grid, int row, bool listed, const char *back)
    {
        const int player = grid->model()->index(row, 0).data().toInt();
        pickRow(grid, row);
        QWidget *offer = m_navigator->screen("Fichar_Jugadores");
        ASSERT_NE(offer, nullptr);
        EXPECT_TRUE(offer->isVisible());
        EXPECT_EQ(offer->findChild<QLabel *>("lblNombre")->text(),
                  m_store->text("select Nombre || ' ' || Apellidos from jugadores where idjugador = ?", player));
        EXPECT_EQ(offer->findChild<QLabel *>("lblNotas")->text().isEmpty(), !listed);
        const qint64 before = value("select count(*) from selects where jugador = ?", player);
        offer->findChild<QAbstractButton *>("cmdfichar")->click();
        settle();
        EXPECT_EQ(value("select count(*) from selects where jugador = ?", player), before + 1);
        EXPECT_EQ(value("select oferta from selects where jugador = ? order by rowid desc limit 1", player),
                  listed ? value("select Clausula_Recision from jugadores where idjugador = ?", player) : 1);
        m_navigator->close("Fichar_Jugadores");
        settle();
        EXPECT_EQ(at(), back);
    }
};

// Guards: a sale grid bound to the wrong positions, a listed pivot shown in a grid, the
// user's own listed players left out, a cell from another column, and a picked row that offers
// for the wrong player or as unlisted.
TEST_F(MarketScreens, saleListsShowEachGroupOfListedPlayersAndOfferForThePickedOne)
{
    reachFirstLeagueWeek();
    const int user = club();
    // Players of every group on the market, a pivot among them, and one of the user's own.
    list("idjugador in (select min(idjugador) from jugadores where idequipo <> 84 group by Posicion)");
    list("idjugador = (select min(idjugador) from jugadores where idequipo = " + std::to_string(user)
         + " and Posicion = 'Central')");
    const int pivot = int(value("select min(idjugador) from jugadores where venta = 1 and Posicion = 'Pivote'"));
    const int own = int(value("select min(idjugador) from jugadores where idequipo = ? and venta = 1", user));
    ASSERT_TRUE(pivot > 0 && own > 0);

    openSaleLists();
    std::set<int> shown;
    for (const auto &[name, positions] : kSaleGrids) {
        auto *grid = find<QTableView>(name);
        ASSERT_NE(grid, nullptr) << name;
        const std::vector<int> ids = gridIds(grid);
        EXPECT_EQ(ids, storeIds(std::string("select idjugador from jugadores where venta = 1 and Posicion in (")
                                + positions + ")"))
            << name;
        shown.insert(ids.begin(), ids.end());
        // The cells are the player's own, side by side with his number.
        EXPECT_EQ(QStringList({cell(grid, 0, 1), cell(grid, 0, 3), cell(grid, 0, 5)}).join('/'),
                  m_store->text("select Nombre || '/' || Edad || '/' || Media from jugadores where idjugador = ?",
                                cell(grid, 0, 0).toInt()));
    }
    EXPECT_EQ(shown.count(pivot), 0u);
    EXPECT_EQ(shown.count(own), 1u);
    EXPECT_EQ(qint64(shown.size()), value("select count(*) from jugadores where venta = 1 and Posicion <> 'Pivote'"));
    screenshot("market_sale_lists");

    // A row picked in each grid opens the offer for that player, as a listed one.
    for (const auto &[name, positions] : kSaleGrids) {
        auto *grid = find<QTableView>(name);
        pickAndOffer(grid, grid->model()->rowCount() - 1, true, kSale);
    }

    click("cmdVOLVER");
    EXPECT_EQ(m_navigator->screen(kSale), nullptr);
}

// Guards: a country button tied to the wrong code, Spain's list with the user's club in it,
// the list of every club missing before a country is chosen, Norway doing something, the
// name under the pointer left behind, a squad of the wrong club, and an offer from a squad
// made as a listed one.
TEST_F(MarketScreens, clubsWalkFromACountryToItsClubsAndOnToASquad)
{
    reachFirstLeagueWeek();
    const int user = club();
    const QString userClub = m_store->text("select NombreEquipo from equipos where idequipo = ?", user);
    const int pivot = int(value("select min(idjugador) from jugadores where Posicion = 'Pivote' and idequipo = 21"));
    list("idjugador = " + std::to_string(pivot));
    openSaleLists();

    // The clubs take the place of the sale lists.
    go("cmdOfertas", kClubs);
    EXPECT_EQ(m_navigator->screen(kSale), nullptr);
    auto *clubs = find<QListWidget>("DataList1");
    auto *squad = find<QTableView>("DataGrid1");
    ASSERT_TRUE(clubs && squad);
    EXPECT_FALSE(squad->isVisible());
    // Before a country is chosen: every club, the user's and the two pools too.
    EXPECT_EQ(clubs->count(), count("equipos"));
    EXPECT_TRUE(items(clubs).contains(userClub));
    EXPECT_TRUE(items(clubs).contains("Jugadores Libres"));
    screenshot("market_clubs_start");

    auto *chosen = find<QLabel>("lblPaisSel");
    for (int code = 1; code <= 18; ++code) {
        const auto &[button, name] = kCountries[code - 1];
        hover(button, name);
        click(button);
        EXPECT_EQ(chosen->text(), name) << button;
        QStringList expected;
        game::GameStore::Query rows = m_store->query(
            "select NombreEquipo from equipos where codpais = ?1 and not (codpais = 1 and idequipo = ?2)", code, user);
        while (rows.next())
            expected << rows.text(0);
        QStringList shownClubs = items(clubs);
        expected.sort();
        shownClubs.sort();
        EXPECT_EQ(shownClubs, expected) << button;
    }
    // Spain's list was without the user's club. Norway names itself under the pointer and
    // leaves the list as it was.
    hover("cmdNoruega", "NORUEGA");
    const QStringList before = items(clubs);
    click("cmdNoruega");
    EXPECT_EQ(items(clubs), before);
    EXPECT_EQ(chosen->text(), "SERBIA-MONTENEGRO");

    // A club of Germany: its squad, the listed pivot among them.
    click("cmdAlemania");
    const QString kiel = m_store->text("select NombreEquipo from equipos where idequipo = 21");
    const QList<QListWidgetItem *> found = clubs->findItems(kiel, Qt::MatchExactly);
    ASSERT_EQ(found.size(), 1);
    QTest::mouseClick(clubs->viewport(), Qt::LeftButton, {}, clubs->visualItemRect(found.first()).center());
    settle();
    EXPECT_TRUE(squad->isVisible());
    EXPECT_EQ(text("lblNombreEquipo"), kiel);
    EXPECT_EQ(gridIds(squad), storeIds("select idjugador from jugadores where idequipo = 21"));
    EXPECT_GE(rowOf(squad, pivot), 0);
    // Choosing a club leaves the list of the country as it was.
    EXPECT_EQ(clubs->count(), value("select count(*) from equipos where codpais = 2"));
    expectTidy("clubs");
    screenshot("market_clubs_squad");

    EXPECT_EQ(cell(squad, 3, 5), m_store->text("select Nacionalidad from jugadores where idjugador = ?",
                                               cell(squad, 3, 0).toInt()));
    pickAndOffer(squad, 3, false, kClubs);
    go("cmdVOLVER", kPanel);
    EXPECT_EQ(m_navigator->screen(kClubs), nullptr);
}

// Guards: a box of the scout's search not reaching the search (all five criteria not applied
// together), the number boxes taking letters or staying empty, the starting list, and the
// way back to the sale lists.
TEST_F(MarketScreens, scoutSearchesWithTheGamesPrecedenceAndOffersForThePickedPlayer)
{
    reachFirstLeagueWeek();
    openSaleLists();
    go("cmdSecretario", kScout);
    EXPECT_NE(m_navigator->screen(kSale), nullptr);
    auto *grid = find<QTableView>("DGJugadores");
    auto *positions = find<QListWidget>("List1");
    ASSERT_TRUE(grid && positions);

    // Before a search: everybody, by first name.
    EXPECT_EQ(grid->model()->rowCount(), count("jugadores"));
    EXPECT_EQ(cell(grid, 0, 1), m_store->text("select min(Nombre) from jugadores"));
    EXPECT_EQ(items(positions), QStringList({"TODOS", "Portero", "Extremo Izquierdo", "Extremo Derecho",
                                             "Lateral Izquierdo", "Lateral Derecho", "Pivote", "Central"}));
    EXPECT_EQ(positions->currentItem()->text(), "TODOS");
    EXPECT_EQ(text("txtMedia") + text("txtEdad"), "00");

    // The number boxes take digits only, and a box left empty is "0" again.
    for (const auto &[box, typed, shows] : {std::tuple{"txtMedia", "7a1", "71"}, {"txtMedia", "", "0"},
                                            {"txtEdad", "x", "0"}}) {
        fill(box, typed);
        EXPECT_EQ(text(box), shows) << box << " " << typed;
    }

    // A player whose name, surname, rating, age and position the cases use.
    const int target = int(value("select min(idjugador) from jugadores where idequipo = 21"));
    const QStringList facts = m_store->text("select Nombre || '/' || Apellidos || '/' || Posicion || '/' || Media"
                                            " || '/' || Edad from jugadores where idjugador = ?",
                                            target)
                                  .split('/');
    const QString &nombre = facts[0], &apellidos = facts[1], &posicion = facts[2], &rating = facts[3], &age = facts[4];
    const QString other = posicion == "Pivote"_L1 ? u"Portero"_s : u"Pivote"_s;

    // Every box reaches the search: with all five filled in the player alone is found, and
    // with another position nobody. (How the boxes combine is the game's rule.)
    for (const QString &position : {posicion, other}) {
        fill("txtNombre", nombre);
        fill("txtApellidos", apellidos);
        fill("txtMedia", rating);
        fill("txtEdad", age);
        positions->setCurrentItem(positions->findItems(position, Qt::MatchExactly).value(0));
        click("cmdBuscar");
        EXPECT_EQ(gridIds(grid), std::vector<int>(position == posicion, target)) << position.toStdString();
    }

    // A position and a rating: the rating rules, and every player of that rating shows.
    for (const char *box : {"txtNombre", "txtApellidos", "txtEdad"})
        fill(box, {});
    fill("txtMedia", rating);
    positions->setCurrentItem(positions->findItems("Portero", Qt::MatchExactly).first());
    click("cmdBuscar");
    EXPECT_EQ(grid->model()->rowCount(), value("select count(*) from jugadores where Media = ?", rating.toInt()));
    ASSERT_GT(grid->model()->rowCount(), 1);
    expectTidy("scout");
    screenshot("market_scout_results");

    EXPECT_EQ(cell(grid, 1, 6), m_store->text("select Dorsal from jugadores where idjugador = ?", cell(grid, 1, 0).toInt()));
    pickAndOffer(grid, 1, false, kScout);
    // Leaving the secretary shows the sale lists again.
    go("cmdVOLVER", kSale);
    EXPECT_EQ(m_navigator->screen(kScout), nullptr);
}
