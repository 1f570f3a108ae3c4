// The squad as the player meets it from the panel's "PLANTILLA": the four grids of his
// players, the contract of one of them (renewed, listed, dismissed), the youth search and the
// offer for a young player, with the step buttons of its money boxes.

#include "screenfixture.h"

namespace {

const char *kPanel = "Panel_Control_Manager";
const char *kSquad = "Plantilla";
const char *kContract = "Renovar";
const char *kOffer = "Fichar_Jugadores";
const QString kListed = QStringLiteral("JUGADOR EN CONDICIÓN DE TRANSFERIBLE");

// The squad's grids and the positions each of them lists (a list for "Posicion in (...)");
// pivots have none.
const std::pair<const char *, const char *> kSquadGrids[] = {
    {"DGPorteros", "'Portero'"},
    {"DGExtremos", "'Extremo Izquierdo', 'Extremo Derecho'"},
    {"DGLaterales", "'Lateral Izquierdo', 'Lateral Derecho'"},
    {"DataGrid4", "'Central'"},
};

const QStringList kPositions{"Portero", "Extremo Izquierdo", "Extremo Derecho", "Lateral Izquierdo",
                             "Lateral Derecho", "Pivote", "Central"};

} // namespace

class ContractScreens : public ScreenTest
{
protected:
    void openSquad()
    {
        ASSERT_EQ(at(), kPanel);
        go("cmdPlantilla", kSquad);
    }

    // The squad's goalkeeper of the lowest number, and his contract opened from the grid.
    int openFirstGoalkeeper()
    {
        auto *grid = find<QTableView>("DGPorteros");
        if (!grid || grid->model()->rowCount() == 0)
            return 0;
        const int player = grid->model()->index(0, 0).data().toInt();
        pickRow(grid, 0);
        EXPECT_EQ(at(), kContract);
        return player;
    }

    int week() { return int(value("select jornada from datos_jugador")); }

    // The player's contract opened afresh from a squad made afresh, once his terms are these.
    void reopenContract(int player, int wage, int clause, int years)
    {
        setTerms(player, wage, clause, years);
        click("cmdVOLVER");
        openSquad();
        ASSERT_EQ(openFirstGoalkeeper(), player);
    }

    // Holds a step button down for so many ticks of its timer, then lets go.
    void hold(const QString &button, int ticks)
    {
        auto *pressed = find<QPushButton>(button);
        ASSERT_NE(pressed, nullptr) << button.toStdString();
        auto *timer = m_navigator->current()->findChild<QTimer *>("Timer1");
        ASSERT_NE(timer, nullptr);
        QTest::mousePress(pressed, Qt::LeftButton);
        EXPECT_TRUE(timer->isActive() && timer->interval() == 50) << button.toStdString();
        for (int tick = 0; tick < ticks; ++tick)
            QMetaObject::invokeMethod(timer, "timeout");
        QTest::mouseRelease(pressed, Qt::LeftButton);
        EXPECT_FALSE(timer->isActive()) << button.toStdString();
    }

    // The player's terms as the store keeps them: club, wage, clause, years and listing.
    QString terms(int player)
    {
        return m_store->text("select idequipo || '/' || Ficha || '/' || Clausula_Recision || '/' || \"Años_Contrato\""
                             " || '/' || venta from jugadores where idjugador = ?",
                             player);
    }

    void setTerms(int player, int wage, int clause, int years)
    {
        exec("update jugadores set Ficha = ?, Clausula_Recision = ?, \"Años_Contrato\" = ? where idjugador = ?", wage,
             clause, years, player);
    }
};

// Guards: a grid bound to the wrong group or to another club, a pivot listed, a visible id
// over the grids, years that are not the contract's, a pick that opens the wrong player, a
// contract screen that starts from other terms, and "CANCELAR" that writes anything or leaves
// the screen behind.
TEST_F(ContractScreens, squadListsTheClubByGroupAndOpensThePickedPlayersContract)
{
    reachFirstLeagueWeek();
    const int user = club();
    openSquad();

    for (const auto &[name, positions] : kSquadGrids) {
        auto *grid = find<QTableView>(name);
        ASSERT_NE(grid, nullptr) << name;
        EXPECT_EQ(gridIds(grid), storeIds("select idjugador from jugadores where idequipo = " + std::to_string(user)
                                + " and Posicion in (" + positions + ")"))
            << name;
        EXPECT_TRUE(grid->isColumnHidden(0)) << name;
        QStringList cells;
        for (int column = 1; column <= 6; ++column)
            cells << cell(grid, 0, column);
        EXPECT_EQ(cells.join('/'), m_store->text("select Nombre || '/' || Apellidos || '/' || Edad || '/' || Posicion"
                                                 " || '/' || Media || '/' || \"Años_Contrato\" from jugadores"
                                                 " where idjugador = ?",
                                                 cell(grid, 0, 0).toInt()))
            << name;
    }
    screenshot("squad_plantilla");

    // A centre picked: his contract, his card, and the new contract starting from the old one.
    auto *centres = find<QTableView>("DataGrid4");
    const int row = centres->model()->rowCount() - 1;
    const int player = cell(centres, row, 0).toInt();
    const QString before = dump("jugadores");
    pickRow(centres, row);
    ASSERT_EQ(at(), kContract);
    // The card beside the terms: the player as the store has him, his club by name.
    EXPECT_EQ(text("lblNombre"),
              m_store->text("select Nombre || ' ' || Apellidos from jugadores where idjugador = ?", player));
    QStringList facts;
    for (int index = 0; index < 5; ++index)
        facts << entry("lblEdad", index)->text();
    EXPECT_EQ((facts << text("lblEquipo")).join('/'),
              m_store->text("select Edad || '/' || Nacionalidad || '/' || Posicion || '/' || nombre_lesion || '/' ||"
                            " Media || '/' || NombreEquipo from jugadores join lesiones on idlesion = Lesiones"
                            " join equipos using (idequipo) where idjugador = ?",
                            player));
    EXPECT_EQ(QStringList({text("txtclausula"), text("txtficha"), text("txtaños"), text("lbltr")}).join('/'),
              m_store->text("select Clausula_Recision || '€/' || Ficha || '€/5/' from jugadores where idjugador = ?",
                            player));
    EXPECT_EQ(find<QScrollBar>("HScroll4")->value(), 5);
    // Beside the new contract, the one he has now.
    EXPECT_EQ(QStringList({text("lblFichaActual"), text("lblClausulaActual"), text("lblAñosActual")}).join('/'),
              m_store->text("select Ficha || ' €/' || Clausula_Recision || ' €/' || \"Años_Contrato\" from jugadores"
                            " where idjugador = ?",
                            player));
    screenshot("contract_renovar");

    // "CANCELAR" with the boxes changed and a box ticked: nothing is written.
    fill("txtficha", "999999");
    click("Check2");
    m_dialogs.clear();
    go("cmdCancelar", kSquad);
    EXPECT_EQ(m_navigator->screen(kContract), nullptr);
    EXPECT_EQ(dump("jugadores"), before);
    EXPECT_TRUE(m_dialogs.texts().isEmpty());

    go("cmdVOLVER", kPanel);
    EXPECT_EQ(m_navigator->screen(kSquad), nullptr);
}

// Guards: the boxes' terms not passed on as shown (each of the three tests met exactly at its
// limit is a renewal), the screen left open after the answer, a renewal that sets the years
// instead of adding them, and a squad shown again with its old years. (The refusals are the
// game's.)
TEST_F(ContractScreens, renewalIsAnsweredAtOnceAndTheSquadIsReadAfresh)
{
    reachFirstLeagueWeek();
    openSquad();
    const int player = int(m_store->integer(
        "select min(idjugador) from jugadores where idequipo = ? and Posicion = 'Portero'", club()));
    const QString nombre = m_store->text("select Nombre from jugadores where idjugador = ?", player);

    // Every test met at its limit: five and five years, exactly one and a half times the
    // clause, exactly a thousand more; the years from the bar are added to those left.
    reopenContract(player, 50000, 400000, 5);
    fill("txtclausula", "600000");
    EXPECT_EQ(text("txtclausula"), "600000 €");
    fill("txtficha", "51000");
    find<QScrollBar>("HScroll4")->setValue(5);
    m_dialogs.clear();
    click("cmdfichar");
    EXPECT_EQ(m_dialogs.texts(), QStringList({nombre + " Ha Renovado su Contrato",
                                              "El Jugador Cobrará Lo Acordado al Finalizar Esta Temporada"}));
    EXPECT_EQ(terms(player), QStringLiteral("%1/51000/600000/10/0").arg(club()));
    EXPECT_EQ(m_navigator->screen(kContract), nullptr);
    ASSERT_EQ(at(), kSquad);
    auto *goalkeepers = find<QTableView>("DGPorteros");
    ASSERT_GE(rowOf(goalkeepers, player), 0);
    EXPECT_EQ(cell(goalkeepers, rowOf(goalkeepers, player), 6), "10");
}

// Guards: "TRASPASAR" that only sets or only clears, a label that does not follow, the screen
// closing on it, a listed player's contract opened without the label; a dismissal without the
// question, a No that dismisses, and the squad shown with the dismissed player still in it.
TEST_F(ContractScreens, traspasarTogglesTheListingAndDespedirAsksThenReleasesThePlayer)
{
    reachFirstLeagueWeek();
    const int user = club();
    openSquad();
    const int player = openFirstGoalkeeper();
    ASSERT_GT(player, 0);
    setTerms(player, 1000, 40000, 5);
    const QString start = terms(player);
    ASSERT_EQ(start, QStringLiteral("%1/1000/40000/5/0").arg(user));

    click("cmdTransferir");
    EXPECT_EQ(terms(player), QStringLiteral("%1/1000/40000/5/1").arg(user));
    EXPECT_EQ(text("lbltr"), kListed);
    EXPECT_EQ(at(), kContract);
    expectTidy("listed");
    screenshot("contract_listed");
    // Opened again, a listed player shows it at once; a second press clears it.
    click("cmdCancelar");
    ASSERT_EQ(openFirstGoalkeeper(), player);
    EXPECT_EQ(text("lbltr"), kListed);
    click("cmdTransferir");
    EXPECT_EQ(text("lbltr"), QString());
    EXPECT_EQ(at(), kContract);
    EXPECT_EQ(terms(player), start);
    EXPECT_TRUE(m_dialogs.questions().isEmpty());

    // No keeps him; Yes sends him to the released players (what he is paid is the game's rule).
    m_dialogs.answer({false});
    click("cmdDespedir");
    EXPECT_EQ(m_dialogs.questions().size(), 1);
    EXPECT_EQ(terms(player), start);
    EXPECT_EQ(at(), kContract);
    m_dialogs.answer({true});
    click("cmdDespedir");
    EXPECT_EQ(terms(player), "85/1000/40000/5/0");
    EXPECT_EQ(m_navigator->screen(kContract), nullptr);
    ASSERT_EQ(at(), kSquad);
    EXPECT_EQ(rowOf(find<QTableView>("DGPorteros"), player), -1);
}

// Guards: the positions missing or out of order, a grid that starts full, a search of the
// wrong position or outside the pool, and a youth offered for as a free player or with other
// starting sums than the ones he asks; an offer that writes more or less than one order.
TEST_F(ContractScreens, youthSearchLeadsToAnOfferFromTheTermsTheYouthAsks)
{
    reachFirstLeagueWeek();
    openSquad();
    go("cmdJuveniles", "Juveniles");
    auto *positions = find<QListWidget>("list1");
    auto *youths = find<QTableView>("DGJugadores");
    ASSERT_TRUE(positions && youths);
    EXPECT_EQ(items(positions), kPositions);
    EXPECT_EQ(positions->currentRow(), 0);
    EXPECT_EQ(youths->model()->rowCount(), 0);

    // Every position and back to the first: the pool's youths of that position.
    for (int row : {1, 2, 3, 4, 5, 6, 0}) {
        positions->setCurrentRow(row);
        click("Command1");
        EXPECT_EQ(gridIds(youths), storeIds("select idjugador from jugadores where idequipo = 84 and Posicion = '"
                                  + kPositions[row].toStdString() + "'"))
            << row;
    }
    expectTidy("youth search");
    screenshot("youth_search");

    // A youth picked: the offer as for a listed player.
    const int row = youths->model()->rowCount() - 1;
    const int youth = cell(youths, row, 0).toInt();
    const qint64 clause = m_store->integer("select Clausula_Recision from jugadores where idjugador = ?", youth);
    const qint64 wage = m_store->integer("select Ficha from jugadores where idjugador = ?", youth);
    pickRow(youths, row);
    ASSERT_EQ(at(), kOffer);
    EXPECT_EQ(text("lblNotas"), QStringLiteral("El Jugador desea Cobrar como Mínimo %1€. El Club, por lo contrario "
                                               "quiere recibir como mínimo %2€.")
                                    .arg(wage)
                                    .arg(clause));
    EXPECT_EQ(QStringList({text("txtOferta"), text("txtclausula"), text("txtficha"), text("txtaños")}).join('/'),
              QStringLiteral("%1€/%1€/%2€/5").arg(clause).arg(wage));
    expectTidy("offer");
    screenshot("offer_listed");

    // "HACER OFERTA" unchanged, with both boxes ticked: one order, as asked, and no word.
    click("Check1");
    click("Check2");
    m_dialogs.clear();
    click("cmdfichar");
    EXPECT_TRUE(m_dialogs.texts().isEmpty());
    ASSERT_EQ(count("selects"), 1);
    EXPECT_EQ(m_store->text("select jornada || '/' || oferta || '/' || clausula || '/' || ficha || '/' || jugador"
                            " from selects"),
              QStringLiteral("%1/%2/%2/%3/%4").arg(week()).arg(clause).arg(wage).arg(youth));
    EXPECT_TRUE(m_store->text("select \"select\" from selects")
                    .endsWith(QStringLiteral(" años_contrato=5 where idjugador=%1").arg(youth)));
    EXPECT_EQ(m_navigator->screen(kOffer), nullptr);
    EXPECT_EQ(at(), "Juveniles");
    EXPECT_EQ(m_store->integer("select idequipo from jugadores where idjugador = ?", youth), 84);
    go("cmdVOLVER", kSquad);
}

// Guards: a step on the press itself, a timer left running after the release, a step of the
// wrong size or on the wrong box, a lowering below the floor, a minus sign kept, letters
// typed into a box, an emptied box left empty, a years box that takes any number, and a sum
// too large for the game written as a wrapped number.
TEST_F(ContractScreens, offerBoxesStepTakeDigitsAndRefuseSumsTooLarge)
{
    reachFirstLeagueWeek();
    const int player = int(m_store->integer("select min(idjugador) from jugadores where idequipo = 21"));
    m_navigator->open(kOffer, QVariantMap{{"player", player}, {"listed", false}});
    settle();
    ASSERT_EQ(at(), kOffer);
    const char *boxes[] = {"txtOferta", "txtclausula", "txtficha"};
    auto money = [&] { return QStringList({text(boxes[0]), text(boxes[1]), text(boxes[2])}); };
    // A player not on the market: one euro each, one year, and no demands.
    EXPECT_EQ(money(), QStringList({"1 €", "1 €", "1 €"}));
    EXPECT_EQ(text("txtaños"), "1");
    EXPECT_EQ(text("lblNotas"), QString());

    // Each button steps its own box only, at the ticks and not at the press: the three boxes after.
    struct Step
    {
        const char *button;
        int ticks;
        QStringList shows;
    };
    const Step steps[] = {
        {"bajaficha", 1, {"1 €", "1 €", "1 €"}},         {"bajaficha", 3, {"1 €", "1 €", "1 €"}},
        {"subeficha", 0, {"1 €", "1 €", "1 €"}},         {"subeoferta", 1, {"55 €", "1 €", "1 €"}},
        {"subeoferta", 2, {"163 €", "1 €", "1 €"}},      {"bajaoferta", 1, {"109 €", "1 €", "1 €"}},
        {"subleclausula", 2, {"109 €", "109 €", "1 €"}}, {"bajaclausula", 2, {"109 €", "1 €", "1 €"}},
        {"subeficha", 1, {"109 €", "1 €", "55 €"}},
    };
    for (const Step &step : steps) {
        hold(step.button, step.ticks);
        EXPECT_EQ(money(), step.shows) << step.button << " x" << step.ticks;
    }
    // From 10 a step down loses its minus sign.
    fill("txtficha", "10");
    EXPECT_EQ(text("txtficha"), "10 €");
    hold("bajaficha", 1);
    EXPECT_EQ(text("txtficha"), "44 €");

    // Only digits go in; an emptied box holds one euro; a box left shows the sign.
    fill("txtclausula", "12a.3-4 x");
    EXPECT_EQ(text("txtclausula"), "1234 €");
    auto *oferta = find<QLineEdit>("txtOferta");
    oferta->setFocus();
    oferta->selectAll();
    QTest::keyClick(oferta, Qt::Key_Backspace);
    EXPECT_EQ(oferta->text(), "1 €");

    // The years: the bar gives 1 to 5, a typed 6 stays, anything else is one year.
    auto *bar = find<QScrollBar>("HScroll4");
    EXPECT_EQ(bar->minimum(), 1);
    EXPECT_EQ(bar->maximum(), 5);
    bar->setValue(3);
    EXPECT_EQ(text("txtaños"), "3");
    for (const auto &[typed, shows] : {std::pair{"6", "6"}, {"7", "1"}, {"0", "1"}, {"4", "4"}, {"x", "4"}}) {
        fill("txtaños", typed);
        EXPECT_EQ(text("txtaños"), shows) << typed;
    }
    EXPECT_EQ(bar->value(), 4);

    // A sum one above the largest is refused with a message and the offer stays open.
    fill("txtOferta", "2147483648");
    m_dialogs.clear();
    click("cmdfichar");
    EXPECT_EQ(m_dialogs.texts().size(), 1);
    EXPECT_EQ(count("selects"), 0);
    EXPECT_EQ(at(), kOffer);
    // A sum the game takes is an offer like any other.
    fill("txtOferta", "2147483647");
    m_dialogs.clear();
    click("cmdfichar");
    EXPECT_TRUE(m_dialogs.texts().isEmpty());
    ASSERT_EQ(count("selects"), 1);
    EXPECT_EQ(m_store->text("select oferta || '/' || clausula || '/' || ficha || '/' || jugador from selects"),
              QStringLiteral("2147483647/1234/44/%1").arg(player));
    EXPECT_TRUE(m_store->text("select \"select\" from selects").contains(" años_contrato=4 "));
    EXPECT_EQ(m_navigator->screen(kOffer), nullptr);
    EXPECT_EQ(at(), kPanel);
}
