// The market as the player walks it from the panel's "FICHAR": the players for sale in four
// grids, the clubs of each country and their squads, the technical secretary's search, and
// the offer that a row picked on any of them opens.

#include "screenfixture.h"

#include <QToolButton>

#include <set>

using namespace Qt::StringLiterals;

namespace {

const QString kPanel = QStringLiteral("Panel_Control_Manager");
const QString kSale = QStringLiteral("Fichar_EnVenta");
const QString kClubs = QStringLiteral("Fichar");
const QString kScout = QStringLiteral("Secretario");
const QString kOffer = QStringLiteral("Fichar_Jugadores");

// The four sale grids and the positions each of them lists.
struct SaleGrid
{
    const char *name;
    const char *positions; // a list for "Posicion in (...)"
};
const SaleGrid kSaleGrids[] = {
    {"DGPorteros", "'Portero'"},
    {"DGExtremos", "'Extremo Izquierdo', 'Extremo Derecho'"},
    {"DGLaterales", "'Lateral Izquierdo', 'Lateral Derecho'"},
    {"DataGrid4", "'Central'"},
};

// The country buttons: their names, their texts and the country code of the clubs they list.
struct Country
{
    const char *button;
    const char *text;
    int code;
};
const Country kCountries[] = {
    {"cmdEspaña", "ESPAÑA", 1},          {"cmdAlemania", "ALEMANIA", 2},
    {"cmdFrancia", "FRANCIA", 3},        {"cmdItalia", "ITALIA", 4},
    {"cmdUcrania", "UCRANIA", 5},        {"cmdIslandia", "ISLANDIA", 6},
    {"cmdDinamarca", "DINAMARCA", 7},    {"cmdEslovenia", "ESLOVENIA", 8},
    {"cmdSuecia", "SUECIA", 9},          {"cmdCroacia", "CROACIA", 10},
    {"cmdRusia", "RUSIA", 11},           {"cmdHungria", "HUNGRÍA", 12},
    {"cmdCheca", "REPÚBLICA CHECA", 13}, {"cmdSuiza", "SUIZA", 14},
    {"cmdGrecia", "GRECIA", 15},         {"cmdTurquia", "TURQUÍA", 16},
    {"cmdPortugal", "PORTUGAL", 17},     {"cmdSerbiaMontenegro", "SERBIA-MONTENEGRO", 18},
};

} // namespace

class MarketScreens : public ScreenTest
{
protected:
    void openSaleLists()
    {
        ASSERT_EQ(m_navigator->current()->objectName(), kPanel);
        click(QStringLiteral("cmdfichar"));
        ASSERT_EQ(m_navigator->current()->objectName(), kSale);
    }

    void list(const char *where)
    {
        ASSERT_TRUE(m_store->run([&] { m_store->execute(std::string("update jugadores set venta = 1 where ") + where); }).ok());
    }

    void pickClub(const QString &name)
    {
        auto *clubs = find<QListWidget>(QStringLiteral("DataList1"));
        ASSERT_NE(clubs, nullptr);
        const QList<QListWidgetItem *> items = clubs->findItems(name, Qt::MatchExactly);
        ASSERT_EQ(items.size(), 1) << name.toStdString();
        clubs->scrollToItem(items.first());
        QTest::mouseClick(clubs->viewport(), Qt::LeftButton, {}, clubs->visualItemRect(items.first()).center());
        settle();
    }

    static QStringList listed(QListWidget *list)
    {
        QStringList texts;
        for (int row = 0; row < list->count(); ++row)
            texts << list->item(row)->text();
        return texts;
    }

    template<typename... Args>
    QStringList storeTexts(const std::string &sql, const Args &...args)
    {
        QStringList texts;
        game::GameStore::Query rows = m_store->query(sql, args...);
        while (rows.next())
            texts << rows.text(0);
        return texts;
    }

    // The offer is open over the screen, about the player picked, listed or not; it is made,
    // and the screen that opened it is back.
    void expectOfferFor(int player, bool listed, const QString &back)
    {
        QWidget *offer = m_navigator->screen(kOffer);
        ASSERT_NE(offer, nullptr);
        EXPECT_TRUE(offer->isVisible());
        auto *name = offer->findChild<QLabel *>(QStringLiteral("lblNombre"));
        ASSERT_NE(name, nullptr);
        EXPECT_EQ(name->text(), m_store->text("select Nombre || ' ' || Apellidos from jugadores where idjugador = ?",
                                              player));
        EXPECT_EQ(offer->findChild<QLabel *>(QStringLiteral("lblNotas"))->text().isEmpty(), !listed);
        // The offer is made as it stands: a listed player's own terms, or 1 € for a free one.
        const qint64 before = m_store->integer("select count(*) from selects where jugador = ?", player);
        auto *make = offer->findChild<QAbstractButton *>(QStringLiteral("cmdfichar"));
        ASSERT_NE(make, nullptr);
        make->click();
        settle();
        EXPECT_EQ(m_store->integer("select count(*) from selects where jugador = ?", player), before + 1);
        EXPECT_EQ(m_store->integer("select oferta from selects where jugador = ? order by rowid desc limit 1", player),
                  listed ? m_store->integer("select Clausula_Recision from jugadores where idjugador = ?", player) : 1);
        m_navigator->close(kOffer);
        settle();
        EXPECT_EQ(m_navigator->current()->objectName(), back);
    }

};

// Guards: a sale grid bound to the wrong positions, a listed pivot shown in a grid, the
// user's own listed players left out, a list read once and never again, raw column names
// over the grids, and a picked row that offers for the wrong player or as unlisted.
TEST_F(MarketScreens, saleListsShowEachGroupOfListedPlayersAndOfferForThePickedOne)
{
    reachFirstLeagueWeek();
    const int user = club();
    // Players of every group on the market, a pivot among them, and one of the user's own.
    list("idjugador in (select min(idjugador) from jugadores where idequipo <> 84 group by Posicion)");
    list(QStringLiteral("idjugador = (select min(idjugador) from jugadores where idequipo = %1 and Posicion = 'Central')")
             .arg(user).toStdString().c_str());
    const int pivot = int(m_store->integer("select min(idjugador) from jugadores where venta = 1 and Posicion = 'Pivote'"));
    ASSERT_GT(pivot, 0);
    const int own = int(m_store->integer("select min(idjugador) from jugadores where idequipo = ? and venta = 1", user));
    ASSERT_GT(own, 0);

    openSaleLists();
    std::set<int> shown;
    for (const SaleGrid &group : kSaleGrids) {
        auto *grid = find<QTableView>(QString::fromLatin1(group.name));
        ASSERT_NE(grid, nullptr) << group.name;
        const std::vector<int> ids = gridIds(grid);
        EXPECT_FALSE(ids.empty()) << group.name;
        EXPECT_EQ(ids, storeIds(std::string("select idjugador from jugadores where venta = 1 and Posicion in (")
                                + group.positions + ")"))
            << group.name;
        shown.insert(ids.begin(), ids.end());
        EXPECT_EQ(shownHeaders(grid), (QStringList{QStringLiteral("Nombre"), QStringLiteral("Apellidos"),
                                                   QStringLiteral("Edad"), QStringLiteral("Posición"),
                                                   QStringLiteral("Media")}))
            << group.name;
        // The cells are the player's own, side by side with his number.
        const int first = grid->model()->index(0, 0).data().toInt();
        EXPECT_EQ(cell(grid, 0, 1), m_store->text("select Nombre from jugadores where idjugador = ?", first));
        EXPECT_EQ(cell(grid, 0, 3), m_store->text("select Edad from jugadores where idjugador = ?", first));
        EXPECT_EQ(cell(grid, 0, 5), m_store->text("select Media from jugadores where idjugador = ?", first));
    }
    EXPECT_EQ(shown.count(pivot), 0u);
    EXPECT_EQ(shown.count(own), 1u);
    EXPECT_EQ(shown.size(), size_t(m_store->integer("select count(*) from jugadores where venta = 1 and Posicion <> 'Pivote'")));
    screenshot(QStringLiteral("market_sale_lists"));

    // A row picked in each grid opens the offer for that player, as a listed one.
    for (const SaleGrid &group : kSaleGrids) {
        auto *grid = find<QTableView>(QString::fromLatin1(group.name));
        const int row = grid->model()->rowCount() - 1;
        const int player = grid->model()->index(row, 0).data().toInt();
        pickRow(grid, row);
        expectOfferFor(player, true, kSale);
    }

    // A player signed meanwhile has left the market: the lists are read at every opening.
    const int goalkeeper = gridIds(find<QTableView>(QStringLiteral("DGPorteros"))).front();
    click(QStringLiteral("cmdVOLVER"));
    ASSERT_EQ(m_navigator->current()->objectName(), kPanel);
    EXPECT_EQ(m_navigator->screen(kSale), nullptr);
    ASSERT_TRUE(m_store->run([&] { m_store->execute("update jugadores set venta = 0 where idjugador = ?", goalkeeper); }).ok());
    openSaleLists();
    const std::vector<int> goalkeepers = gridIds(find<QTableView>(QStringLiteral("DGPorteros")));
    EXPECT_EQ(std::count(goalkeepers.begin(), goalkeepers.end(), goalkeeper), 0);
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
    const int pivot = int(m_store->integer("select min(idjugador) from jugadores where Posicion = 'Pivote' and idequipo = 21"));
    list(("idjugador = " + std::to_string(pivot)).c_str());
    openSaleLists();

    // The clubs take the place of the sale lists.
    click(QStringLiteral("cmdOfertas"));
    ASSERT_EQ(m_navigator->current()->objectName(), kClubs);
    EXPECT_EQ(m_navigator->screen(kSale), nullptr);

    auto *clubs = find<QListWidget>(QStringLiteral("DataList1"));
    auto *squad = find<QTableView>(QStringLiteral("DataGrid1"));
    ASSERT_TRUE(clubs && squad);
    EXPECT_FALSE(squad->isVisible());
    // Before a country is chosen: every club, the user's and the two pools too.
    EXPECT_EQ(clubs->count(), count("equipos"));
    EXPECT_FALSE(clubs->findItems(userClub, Qt::MatchExactly).isEmpty());
    EXPECT_FALSE(clubs->findItems(QStringLiteral("Jugadores Libres"), Qt::MatchExactly).isEmpty());
    screenshot(QStringLiteral("market_clubs_start"));

    auto *hovered = find<QLabel>(QStringLiteral("lblPaises"));
    auto *chosen = find<QLabel>(QStringLiteral("lblPaisSel"));
    for (const Country &country : kCountries) {
        const QString name = QString::fromUtf8(country.button);
        auto *button = find<QAbstractButton>(name);
        ASSERT_NE(button, nullptr) << country.button;
        EXPECT_EQ(button->text(), QString::fromUtf8(country.text)) << country.button;
        QEvent enter(QEvent::Enter);
        QApplication::sendEvent(button, &enter);
        EXPECT_EQ(hovered->text(), QString::fromUtf8(country.text)) << country.button;
        QEvent leave(QEvent::Leave);
        QApplication::sendEvent(button, &leave);
        EXPECT_EQ(hovered->text(), QString()) << country.button;

        click(name);
        EXPECT_EQ(chosen->text(), QString::fromUtf8(country.text)) << country.button;
        QStringList expected = storeTexts("select NombreEquipo from equipos where codpais = ?1"
                                          " and not (codpais = 1 and idequipo = ?2)",
                                          country.code, user);
        QStringList shownClubs = listed(clubs);
        expected.sort();
        shownClubs.sort();
        EXPECT_EQ(shownClubs, expected) << country.button;
        EXPECT_FALSE(shownClubs.isEmpty()) << country.button;
    }

    // Norway names itself under the pointer and leaves the list as it was.
    auto *norway = find<QAbstractButton>(QStringLiteral("cmdNoruega"));
    ASSERT_NE(norway, nullptr);
    QEvent enter(QEvent::Enter);
    QApplication::sendEvent(norway, &enter);
    EXPECT_EQ(hovered->text(), QStringLiteral("NORUEGA"));
    const QStringList before = listed(clubs);
    click(QStringLiteral("cmdNoruega"));
    EXPECT_EQ(listed(clubs), before);
    EXPECT_EQ(chosen->text(), QStringLiteral("SERBIA-MONTENEGRO"));
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(norway, &leave);
    EXPECT_EQ(hovered->text(), QString());

    // Spain without the user's club.
    click(QStringLiteral("cmdEspaña"));
    EXPECT_EQ(clubs->count(), m_store->integer("select count(*) from equipos where codpais = 1") - 1);
    EXPECT_TRUE(clubs->findItems(userClub, Qt::MatchExactly).isEmpty());

    // A club of Germany: its squad, the listed pivot among them.
    click(QStringLiteral("cmdAlemania"));
    const QString kiel = m_store->text("select NombreEquipo from equipos where idequipo = 21");
    pickClub(kiel);
    EXPECT_TRUE(squad->isVisible());
    EXPECT_EQ(find<QLabel>(QStringLiteral("lblNombreEquipo"))->text(), kiel);
    EXPECT_EQ(gridIds(squad), storeIds("select idjugador from jugadores where idequipo = 21"));
    EXPECT_EQ(shownHeaders(squad), (QStringList{QStringLiteral("Nombre"), QStringLiteral("Apellidos"),
                                                QStringLiteral("Posición"), QStringLiteral("Media"),
                                                QStringLiteral("Nacionalidad")}));
    const std::vector<int> ids = gridIds(squad);
    EXPECT_EQ(std::count(ids.begin(), ids.end(), pivot), 1);
    // Choosing a club leaves the list of the country as it was.
    EXPECT_EQ(clubs->count(), m_store->integer("select count(*) from equipos where codpais = 2"));
    expectTidy(QStringLiteral("clubs"));
    screenshot(QStringLiteral("market_clubs_squad"));

    const int player = squad->model()->index(3, 0).data().toInt();
    EXPECT_EQ(cell(squad, 3, 5), m_store->text("select Nacionalidad from jugadores where idjugador = ?", player));
    pickRow(squad, 3);
    expectOfferFor(player, false, kClubs);

    click(QStringLiteral("cmdVOLVER"));
    EXPECT_EQ(m_navigator->current()->objectName(), kPanel);
    EXPECT_EQ(m_navigator->screen(kClubs), nullptr);
}

// Guards: the scout's precedence (a rating or an age replacing the position, a rating
// replacing an age, all five only with name, surname, rating and age), blank names taken as
// typed, the number boxes taking letters or staying empty, the starting list, and the way
// back to the sale lists.
TEST_F(MarketScreens, scoutSearchesWithTheGamesPrecedenceAndOffersForThePickedPlayer)
{
    reachFirstLeagueWeek();
    openSaleLists();
    click(QStringLiteral("cmdSecretario"));
    ASSERT_EQ(m_navigator->current()->objectName(), kScout);
    EXPECT_NE(m_navigator->screen(kSale), nullptr);

    auto *grid = find<QTableView>(QStringLiteral("DGJugadores"));
    auto *positions = find<QListWidget>(QStringLiteral("List1"));
    auto *media = find<QLineEdit>(QStringLiteral("txtMedia"));
    auto *edad = find<QLineEdit>(QStringLiteral("txtEdad"));
    ASSERT_TRUE(grid && positions && media && edad);

    // Before a search: everybody, by first name.
    EXPECT_EQ(grid->model()->rowCount(), count("jugadores"));
    EXPECT_EQ(cell(grid, 0, 1), m_store->text("select min(Nombre) from jugadores"));
    EXPECT_EQ(shownHeaders(grid), (QStringList{QStringLiteral("Nombre"), QStringLiteral("Apellidos"),
                                               QStringLiteral("Edad"), QStringLiteral("Posición"),
                                               QStringLiteral("Media"), QStringLiteral("Dorsal"),
                                               QStringLiteral("Nacionalidad")}));
    EXPECT_EQ(listed(positions), (QStringList{QStringLiteral("TODOS"), QStringLiteral("Portero"),
                                              QStringLiteral("Extremo Izquierdo"), QStringLiteral("Extremo Derecho"),
                                              QStringLiteral("Lateral Izquierdo"), QStringLiteral("Lateral Derecho"),
                                              QStringLiteral("Pivote"), QStringLiteral("Central")}));
    EXPECT_EQ(positions->currentItem()->text(), QStringLiteral("TODOS"));
    EXPECT_EQ(media->text(), QStringLiteral("0"));
    EXPECT_EQ(edad->text(), QStringLiteral("0"));

    // The number boxes take digits only, and a box left empty is "0" again.
    fill(u"txtMedia"_s, u"7a1"_s);
    EXPECT_EQ(media->text(), u"71"_s);
    fill(u"txtMedia"_s, {});
    EXPECT_EQ(media->text(), u"0"_s);
    fill(u"txtEdad"_s, u"x"_s);
    EXPECT_EQ(edad->text(), u"0"_s);

    // A player whose name, surname, rating, age and position the cases use.
    const int target = int(m_store->integer("select min(idjugador) from jugadores where idequipo = 21"));
    const QString nombre = m_store->text("select Nombre from jugadores where idjugador = ?", target);
    const QString apellidos = m_store->text("select Apellidos from jugadores where idjugador = ?", target);
    const QString posicion = m_store->text("select Posicion from jugadores where idjugador = ?", target);
    const QString rating = m_store->text("select Media from jugadores where idjugador = ?", target);
    const QString age = m_store->text("select Edad from jugadores where idjugador = ?", target);
    const QString other = posicion == "Pivote"_L1 ? u"Portero"_s : u"Pivote"_s;

    // Each case as the player types it, and the rows it must list, with c.n the name, c.a the
    // surname, c.m the rating, c.e the age and c.p the position of the case.
    struct Case
    {
        const char *what;
        QString nombre, apellidos, posicion, media, edad;
        const char *where;
        bool findsTarget;
    };
    const QString any = u"TODOS"_s;
    const QString none = u"0"_s;
    const char *names = "Nombre like c.n || '%' and Apellidos like c.a || '%'";
    const std::string rated = std::string(names) + " and Media = c.m";
    const std::string allFive = rated + " and Edad = c.e and Posicion like c.p || '%'";
    const std::vector<Case> cases = {
        {"empty criteria list everybody", {}, {}, any, none, none, "1 = 1", true},
        {"a position on its own finds all of that position", {}, {}, u"Pivote"_s, none, none,
         "Posicion = 'Pivote'", posicion == "Pivote"_L1},
        {"a rating replaces the position", {}, {}, u"Portero"_s, rating, none, "Media = c.m", true},
        {"an age replaces the position", {}, {}, u"Central"_s, none, age, "Edad = c.e", true},
        {"without a name a rating replaces the age", {}, {}, any, rating, age, "Media = c.m", true},
        {"a name is the start of the first name", nombre.left(2), {}, any, none, none, names, true},
        {"a blank name is no name", u"   "_s, {}, u"Pivote"_s, none, none, "Posicion = 'Pivote'",
         posicion == "Pivote"_L1},
        {"without an age name, surname and rating drop the position", nombre, apellidos, other, rating, none,
         rated.c_str(), true},
        {"with name, surname, rating and age all five apply", nombre, apellidos, posicion, rating, age,
         allFive.c_str(), true},
        {"all five apply, so another position finds nobody", nombre, apellidos, other, rating, age, allFive.c_str(),
         false},
    };
    for (const Case &search : cases) {
        fill(u"txtNombre"_s, search.nombre);
        fill(u"txtApellidos"_s, search.apellidos);
        fill(u"txtMedia"_s, search.media);
        fill(u"txtEdad"_s, search.edad);
        const QList<QListWidgetItem *> position = positions->findItems(search.posicion, Qt::MatchExactly);
        ASSERT_EQ(position.size(), 1) << search.what;
        positions->setCurrentItem(position.first());
        click(u"cmdBuscar"_s);

        std::vector<int> expected;
        game::GameStore::Query rows = m_store->query(std::string("with c(n, a, m, e, p) as (select ?1, ?2, ?3, ?4, ?5)"
                                                                 " select idjugador from jugadores, c where ")
                                                         + search.where,
                                                     search.nombre.trimmed(), search.apellidos.trimmed(),
                                                     search.media.toInt(), search.edad.toInt(), search.posicion);
        while (rows.next())
            expected.push_back(rows.integer(0));
        std::sort(expected.begin(), expected.end());
        const std::vector<int> shownIds = gridIds(grid);
        EXPECT_EQ(shownIds, expected) << search.what;
        EXPECT_EQ(std::count(shownIds.begin(), shownIds.end(), target), search.findsTarget ? 1 : 0) << search.what;
    }

    // A position and a rating: the rating rules, and every player of that rating shows.
    fill(u"txtNombre"_s, {});
    fill(u"txtApellidos"_s, {});
    fill(u"txtMedia"_s, rating);
    fill(u"txtEdad"_s, {});
    EXPECT_EQ(edad->text(), u"0"_s);
    positions->setCurrentItem(positions->findItems(QStringLiteral("Portero"), Qt::MatchExactly).first());
    click(QStringLiteral("cmdBuscar"));
    EXPECT_EQ(grid->model()->rowCount(), m_store->integer("select count(*) from jugadores where Media = ?", rating.toInt()));
    ASSERT_GT(grid->model()->rowCount(), 1);
    expectTidy(QStringLiteral("scout"));
    screenshot(QStringLiteral("market_scout_results"));

    const int player = grid->model()->index(1, 0).data().toInt();
    EXPECT_EQ(cell(grid, 1, 6), m_store->text("select Dorsal from jugadores where idjugador = ?", player));
    pickRow(grid, 1);
    expectOfferFor(player, false, kScout);

    // Leaving the secretary shows the sale lists again.
    click(QStringLiteral("cmdVOLVER"));
    EXPECT_EQ(m_navigator->current()->objectName(), kSale);
    EXPECT_EQ(m_navigator->screen(kScout), nullptr);
}
