// The stadium as the player meets it from the panel's "ESTADIO": its frames, the works it
// offers and those under way, the match-day prices; and the television's offer of a match,
// with the crowd box of that match at a club abroad.

#include "screenfixture.h"
#include "stadium/stadiumpicture.h"

#include <QRadioButton>

#include <set>

namespace {

const char *kPanel = "Panel_Control_Manager";
const char *kStadium = "estadios";
const QString kOrdered = QStringLiteral("Las Obras Empezarán en la Jornada Actual");
const QString kLoading = QStringLiteral("Cargando... Pulse Aceptar para continuar");
const auto kTop = {"Obras", "Remodelar", "Entradas"};
const auto kRemodel = {"gradas", "Parking", "Equipamiento", "Servicios"};
const char *kNew = "min_gradas=16000, parking=0, focos=0, marcadores=1, calefaccion=0, accesos=1, enfermeria=0,"
                   " tienda=0, lavabos=1, cafeteria=0";
const char *kBuilt = "parking=1, focos=3, marcadores=3, calefaccion=1, accesos=3, enfermeria=3, tienda=1, lavabos=3,"
                     " cafeteria=1, min_gradas=";

// A stadium as the store holds it, and what the screen must offer for it.
struct StadiumCase
{
    const char *what;
    std::string columns; // an assignment list for estadios
    std::set<int> enabled, ticked;
    const char *parking;
    int picture;
};

const StadiumCase kStadiums[] = {
    {"a new stadium offers the first step of everything", kNew,
     {1, 2, 3, 4, 5, 6, 9, 10, 12, 15, 17, 20, 21, 22, 23, 25}, {4, 10, 20, 22}, "Estadio Sin Parkings Propios", 12},
    {"a stadium with everything has nothing left to build", std::string(kBuilt) + "19001", {}, {},
     "Estadio Con 4 Parkings", 12},
    {"below 3000 seats the screen keeps its own picture", std::string(kBuilt) + "2999", {1, 2, 3}, {},
     "Estadio Con 4 Parkings", 0},
};

QString box(int number) { return QStringLiteral("Option%1").arg(number); }

} // namespace

class StadiumScreens : public ScreenTest
{
protected:
    // The first week with one friendly planned (the rest declined): the presentation at home
    // against the first Spanish club, or the first away at the first German club, a club
    // outside the league whose match television buys.
    void reachFriendlyWeek(bool home)
    {
        startCareerFromMenu("IValencia");
        for (int slot = 0; slot < 5; ++slot) {
            if (slot == (home ? 4 : 0))
                chooseClub(home ? "cmdEspaña" : "cmdAlemania", 0);
            else
                click("cmdNoJugar");
        }
        go("cmdSeguir", kPanel);
        runWeekEvents();
    }

    QWidget *stadium() { return m_navigator->screen(kStadium); }
    void openStadium(const char *frame = nullptr)
    {
        ASSERT_EQ(at(), kPanel);
        go("cmdEstadio", kStadium);
        if (frame)
            click(frame);
    }
    void setStadium(const std::string &columns) { exec("update estadios set " + columns + " where idequipo = ?", club()); }

    QAbstractButton *option(int number) { return stadium()->findChild<QAbstractButton *>(box(number)); }
    QWidget *part(const char *name) { return stadium()->findChild<QWidget *>(name); }
    QLabel *label(const char *name) { return stadium()->findChild<QLabel *>(name); }
    std::set<int> ticked()
    {
        std::set<int> on;
        for (int number = 1; number <= 26; ++number) {
            if (option(number)->isChecked())
                on.insert(number);
        }
        return on;
    }

    // Of a level of frames, only the one named is on show.
    void expectOnlyShown(std::initializer_list<const char *> level, const char *shown, const QString &step)
    {
        for (const char *frame : level) {
            ASSERT_NE(part(frame), nullptr) << frame;
            EXPECT_EQ(part(frame)->isVisible(), std::string(frame) == shown) << step.toStdString() << ": " << frame;
        }
    }

    qint64 televisionIncome() { return value("select ingresos_TV from caja where semana = 1"); }
};

// Guards: a frame that stays on show beside another, a button that opens the wrong frame, a
// box missing or misspelt, or a frame that outgrows the window or is cut off.
TEST_F(StadiumScreens, eachFrameShowsAloneFromItsButtonAndFitsTheWindow)
{
    reachFirstLeagueWeek();
    openStadium();

    // Beside every frame: the stadium, its seats and parkings, and its picture.
    EXPECT_EQ(label("lblEstadio")->text(), m_store->text("select Nombre from estadios where idequipo = ?", club()));
    EXPECT_EQ(label("lblAforo")->text(),
              QStringLiteral("%1Asientos").arg(value("select min_gradas from estadios where idequipo = ?", club())));
    EXPECT_EQ(label("lblSIparking")->text(), "Estadio Con 4 Parkings");
    ASSERT_FALSE(label("img")->pixmap().isNull());

    // The works under way come first: none yet.
    expectOnlyShown(kTop, "Obras", "opening");
    EXPECT_TRUE(label("lblAsientos")->text().isEmpty() && entry("EPF", 0)->text().isEmpty());
    screenshot("stadium_obras");

    // Remodelar opens on the seats.
    click("cmdRemodelar");
    expectOnlyShown(kTop, "Remodelar", "REMODELAR");
    expectOnlyShown(kRemodel, "gradas", "REMODELAR");
    // The seats and the parking are choices of one; the rest are boxes.
    for (int number = 1; number <= 26; ++number) {
        ASSERT_NE(option(number), nullptr) << number;
        EXPECT_EQ(qobject_cast<QRadioButton *>(option(number)) != nullptr, number <= 5) << number;
    }
    expectTidy("gradas");
    screenshot("stadium_gradas");

    const std::pair<const char *, const char *> frames[] = {
        {"cmdGradas", "gradas"}, {"cmdParking", "Parking"}, {"cmdEquipamiento", "Equipamiento"}, {"cmdServicios", "Servicios"}};
    const char *shots[] = {nullptr, "stadium_parking", "stadium_equipamiento", "stadium_servicios"};
    for (int i = 0; i < 4; ++i) {
        click(frames[i].first);
        expectOnlyShown(kRemodel, frames[i].second, frames[i].first);
        EXPECT_TRUE(part("Remodelar")->isVisible());
        if (shots[i]) {
            expectTidy(frames[i].first);
            screenshot(shots[i]);
        }
    }
    // The inner frames of the equipment and the services, each from its button; the price and
    // the weeks of an item are told only in the works table.
    const std::pair<const char *, std::vector<std::pair<const char *, const char *>>> inner[] = {
        {"cmdEquipamiento", {{"cmdFocos", "focos"}, {"cmdMarcadores", "Marcadores"}, {"cmdCalefaccion", "cale"},
                             {"cmdAccesos", "Accesos"}}},
        {"cmdServicios", {{"cmdEnfermería", "Enfermeria"}, {"cmdTienda", "Tienda"}, {"cmdCafetería", "Cafeteria"},
                          {"cmdWc", "wc"}}}};
    for (const auto &[outer, buttons] : inner) {
        click(outer);
        for (const auto &[button, frame] : buttons) {
            click(button);
            for (const auto &[other, otherFrame] : buttons)
                EXPECT_EQ(part(otherFrame)->isVisible(), std::string(other) == button) << button << ": " << otherFrame;
            expectTidy(button);
        }
    }

    // The buttons outside the frames stay at hand whatever is shown.
    for (const char *always : {"cmdObras", "cmdRemodelar", "cmdPartido", "cmdYA", "cmdVOLVER"})
        EXPECT_TRUE(part(always)->isVisible()) << always;
    click("cmdObras");
    expectOnlyShown(kTop, "Obras", "OBRAS");
    go("cmdVOLVER", kPanel);
    EXPECT_EQ(m_navigator->screen(kStadium), nullptr);
}

// Guards: a box offered that skips a level or rebuilds what stands, a missing tick on the
// state a stadium starts from, or the wrong picture; prices that
// can be reached in a week played away, or the match-day frame shown in place of another;
// a Tele window in a week whose match television did not buy, or no loading message.
TEST_F(StadiumScreens, theBoxesOfferOnlyWhatTheStadiumCanTakeNextAndAnAwayWeekHasNoMatchDay)
{
    reachFirstLeagueWeek();
    EXPECT_EQ(m_dialogs.texts().count(kLoading), 1);
    EXPECT_FALSE(m_navigator->career().week().broadcast().has_value());
    EXPECT_EQ(m_navigator->screen("Tele"), nullptr);
    EXPECT_EQ(m_navigator->open("Tele"), nullptr);
    EXPECT_EQ(televisionIncome(), 0);

    for (const StadiumCase &stadium : kStadiums) {
        setStadium(stadium.columns);
        openStadium("cmdRemodelar");
        for (int number = 1; number <= 26; ++number) {
            EXPECT_EQ(option(number)->isEnabled(), stadium.enabled.count(number) == 1) << stadium.what << ": " << number;
            EXPECT_EQ(option(number)->isChecked(), stadium.ticked.count(number) == 1) << stadium.what << ": " << number;
        }
        EXPECT_EQ(label("lblSIparking")->text(), stadium.parking) << stadium.what;
        const QImage shown = label("img")->pixmap().toImage();
        EXPECT_EQ(shown, ui::stadiumPicture(stadium.picture, shown.size()).toImage()) << stadium.what;
        EXPECT_NE(shown, ui::stadiumPicture(stadium.picture == 0 ? 1 : 0, shown.size()).toImage()) << stadium.what;

        // With nothing left to build, the order button orders nothing and says nothing.
        if (stadium.enabled.empty()) {
            m_dialogs.clear();
            click("cmdYA");
            EXPECT_EQ(count("selects"), 0);
            EXPECT_TRUE(m_dialogs.texts().isEmpty());
        }
        click("cmdVOLVER");
    }
    setStadium(kNew);
    openStadium("cmdRemodelar");
    click("cmdEquipamiento");
    click("cmdMarcadores");
    screenshot("stadium_marcadores");

    // Away: "DÍA DE PARTIDO" leaves the frame on show as it is.
    ASSERT_FALSE(m_navigator->career().week().career().isUserClub(m_navigator->career().week().fixture()->homeName));
    click("cmdPartido");
    expectOnlyShown(kTop, "Remodelar", "away, from REMODELAR");
    click("cmdObras");
    click("cmdPartido");
    expectOnlyShown(kTop, "Obras", "away, from OBRAS");
    EXPECT_EQ(value("select precio_entrada from entradas where idPrecio = 1"), 10);
}

// Guards: two works of one group in one order, a tick of another group lost, radio buttons
// that cannot be cleared, or "REESTABLECER" that orders or leaves a tick behind; an order not
// written or written twice, no message, a screen that reloads after the order, or a work that
// does not show under way, with its weeks left, closing its group at the next visit.
TEST_F(StadiumScreens, ticksClearTheirChoiceAndOrderedWorksShowUnderWayAtTheNextVisit)
{
    reachFirstLeagueWeek();
    setStadium(kNew);
    openStadium("cmdRemodelar");
    ASSERT_EQ(ticked(), (std::set<int>{4, 10, 20, 22}));

    // Each step's clicks and the ticks after them. A tick among the equipment clears the rest
    // of the equipment, the heating's "without" too, even in a frame out of sight; the
    // services keep theirs, and the first service of all clears the others too; a second
    // click on a ticked box takes its tick away.
    const std::pair<std::vector<QString>, std::set<int>> steps[] = {
        {{box(1), box(2), "cmdParking", box(5)}, {2, 5, 10, 20, 22}},
        {{"cmdEquipamiento", box(6)}, {2, 5, 6, 20, 22}},
        {{"cmdServicios", "cmdTienda", box(21)}, {2, 5, 6, 21}},
        {{"cmdEnfermería", box(17)}, {2, 5, 6, 17}},
        {{"cmdTienda", box(21)}, {2, 5, 6, 21}},
        {{"cmdEquipamiento", "cmdCalefaccion", box(9)}, {2, 5, 9, 21}},
        {{box(9)}, {2, 5, 21}},
    };
    for (const auto &[clicks, after] : steps) {
        for (const QString &name : clicks)
            click(name);
        EXPECT_EQ(ticked(), after) << clicks.back().toStdString();
    }
    click(box(9));
    m_dialogs.clear();
    click("cmdReesTablecer");
    EXPECT_TRUE(ticked().empty());
    EXPECT_EQ(count("selects"), 0);
    EXPECT_TRUE(m_dialogs.texts().isEmpty());
    // Cleared radio groups take a tick again.
    click("cmdGradas");
    click(box(3));
    EXPECT_EQ(ticked(), (std::set<int>{3}));

    // The order: a thousand seats, the parking, the first lights and the shops.
    m_dialogs.clear();
    click("cmdReesTablecer");
    for (const QString &name : {box(1), QString("cmdParking"), box(5), QString("cmdEquipamiento"), box(6),
                                QString("cmdServicios"), QString("cmdTienda"), box(21), QString("cmdYA")})
        click(name);
    EXPECT_EQ(m_store->text("select group_concat(observaciones, '/') from selects"),
              "gradas 1000 1000000 12/parking 0 3500000 30/focos 1 120000 6/tienda 0 90000 7");
    ASSERT_EQ(m_dialogs.messages().size(), 1u);
    EXPECT_EQ(m_dialogs.messages()[0].text, kOrdered);
    EXPECT_EQ(m_dialogs.messages()[0].title, "Remodelación");
    // The screen stays as it was: the ticks, the open frame, an empty works table; so a second
    // press orders the same works once more.
    EXPECT_EQ(ticked(), (std::set<int>{1, 5, 6, 21}));
    EXPECT_TRUE(part("Remodelar")->isVisible());
    EXPECT_TRUE(option(1)->isEnabled());
    EXPECT_TRUE(label("lblAsientos")->text().isEmpty());
    click("cmdYA");
    EXPECT_EQ(count("selects"), 8);
    EXPECT_EQ(m_dialogs.texts(), QStringList({kOrdered, kOrdered}));
    exec("delete from selects where rowid > 4");

    // Three weeks later, as the table sees it.
    exec("update selects set jornada = jornada - 3");
    click("cmdVOLVER");
    openStadium();
    expectOnlyShown(kTop, "Obras", "again");
    const std::pair<std::vector<QLabel *>, const char *> rows[] = {
        {{label("lblAsientos"), label("gpagar"), label("gsemanas")}, "1000/1000000/9"},
        {{label("lblParking"), label("Ppagar"), label("psemanas")}, "4 Parkings/3500000/27"},
        {{entry("lblEquipamiento", 0), entry("EPF", 0), entry("EFS", 0)}, "  FOCOS/120000/3"},
        {{entry("lblServicios", 5), entry("SEP", 1), entry("SES", 1)}, "  TIENDA/90000/4"}};
    for (const auto &[labels, texts] : rows)
        EXPECT_EQ(labels[0]->text() + '/' + labels[1]->text() + '/' + labels[2]->text(), texts);
    // The rows of items not under way stay as they were.
    EXPECT_TRUE(entry("EPF", 1)->text().isEmpty());
    EXPECT_TRUE(entry("SES", 0)->text().isEmpty());
    expectTidy("works under way");
    screenshot("stadium_obras_en_curso");

    // Every group has a work under way, so all of them are closed, heating included.
    for (const char *frame : {"gradas", "Parking", "focos", "Marcadores", "Accesos", "cale", "Enfermeria", "Tienda",
                              "Cafeteria", "wc"})
        EXPECT_FALSE(part(frame)->isEnabled()) << frame;
    for (int number = 1; number <= 26; ++number)
        EXPECT_FALSE(option(number)->isEnabled()) << number;
    m_dialogs.clear();
    click("cmdYA");
    EXPECT_EQ(count("selects"), 4);
    EXPECT_TRUE(m_dialogs.texts().isEmpty());
}

// Guards: a price button tied to the wrong price, a press not written at once, or the frame
// showing another match.
TEST_F(StadiumScreens, matchDayPricesStepAndAreWrittenAtEachPress)
{
    reachFriendlyWeek(true);
    const game::Week &week = m_navigator->career().week();
    ASSERT_TRUE(week.career().isUserClub(week.fixture()->homeName));
    exec("update entradas set precio_entrada = 25 where idPrecio = 1");
    exec("update entradas set precio_entrada = 1700 where idPrecio = 2");
    openStadium("cmdRemodelar");
    click("cmdPartido");
    expectOnlyShown(kTop, "Entradas", "home");

    EXPECT_EQ(QStringList({label("lblEstadio2")->text(), label("lblEquipoLoc")->text(), label("lblEquipoVis")->text(),
                           label("lblTipo")->text()}),
              QStringList({m_store->text("select Nombre from estadios where idequipo = ?", club()),
                           week.career().clubName, week.fixture()->awayName, "AMISTOSO"}));
    auto *ticket = find<QLineEdit>("txtEntrada");
    auto *boards = find<QLineEdit>("txtVallas");
    EXPECT_TRUE(ticket->isReadOnly() && boards->isReadOnly());
    EXPECT_EQ(ticket->text(), "25");
    EXPECT_EQ(boards->text(), "1700");
    expectTidy("Entradas");
    screenshot("stadium_entradas");

    // Each button steps its own price, shown and written at once; the bounds are the game's.
    const std::tuple<const char *, int, int> presses[] = {
        {"cmdmas", 1, 30}, {"cmdmenos", 1, 25}, {"cmdmenos", 1, 20}, {"cmdAumentar", 2, 1800}, {"cmdReducir", 2, 1700}};
    for (const auto &[button, row, price] : presses) {
        click(button);
        EXPECT_EQ((row == 1 ? ticket : boards)->text(), QString::number(price)) << button;
        EXPECT_EQ(value("select precio_entrada from entradas where idPrecio = ?", row), price) << button;
    }
    // The codes of the tactics share the table and are not touched.
    EXPECT_EQ(value("select count(*) from entradas where idPrecio > 2 and precio_entrada = 1"), 2);
}

// Guards: a bought match with no window, the design's channel instead of a drawn one, a window
// that Esc or its frame closes and so loses the fee, or a fee booked twice; the match's crowd
// box at a club abroad, which has no stadium on file, showing percentages under blank lines.
TEST_F(StadiumScreens, aMatchBoughtAbroadOpensTeleWhichOnlyItsOkClosesAndShowsAWholeCrowdBox)
{
    reachFriendlyWeek(false);
    EXPECT_TRUE(m_dialogs.texts().contains(kLoading));
    auto *tele = m_navigator->screen<QDialog>("Tele");
    ASSERT_NE(tele, nullptr);
    EXPECT_TRUE(tele->isVisible());
    EXPECT_TRUE(tele->isModal() || tele->windowModality() != Qt::NonModal);
    EXPECT_EQ(at(), kPanel);

    const QString channel = tele->findChild<QLabel *>("lblTV")->text();
    EXPECT_EQ(value("select count(*) from televisiones where idTelevision between 1 and 7 and NombreTV = ?", channel), 1);
    EXPECT_EQ(channel, m_navigator->career().week().broadcast().value_or(QString()));
    EXPECT_EQ(tele->findChild<QLabel *>("Label1")->text(),
              "La Televisión ha comprado los derechos de retransmisión del partido que vas a disputar.");
    EXPECT_EQ(tele->findChild<QLabel *>("Label2")->text(), "Tus Ingresos Aumentarán: 450.000 €");
    EXPECT_FALSE(tele->findChild<QLabel *>("Image1")->pixmap().isNull());
    expectTidy("tele", tele);
    screenshot("tele", tele);

    // Esc and the frame's close are refused; nothing is booked.
    QTest::keyClick(tele, Qt::Key_Escape);
    settle();
    EXPECT_FALSE(tele->close());
    settle();
    ASSERT_EQ(m_navigator->screen("Tele"), tele);
    EXPECT_TRUE(tele->isVisible());
    EXPECT_EQ(televisionIncome(), 0);

    click("cmdOK");
    EXPECT_EQ(m_navigator->screen("Tele"), nullptr);
    EXPECT_EQ(televisionIncome(), 450000);
    EXPECT_FALSE(m_navigator->career().week().broadcast().has_value());

    // The week's events do not run twice, and the offer does not come back.
    runWeekEvents();
    EXPECT_EQ(m_navigator->screen("Tele"), nullptr);
    EXPECT_EQ(televisionIncome(), 450000);
    EXPECT_EQ(at(), kPanel);

    // The match: a club outside the league makes a full house of a stadium it does not have,
    // and pays the user nothing.
    ASSERT_EQ(value("select count(*) from estadios where idequipo = ?", m_navigator->career().week().fixture()->homeId), 0);
    const QString ledger = dump("caja");
    click("cmdSeguir");
    callUpFirstFourteen();
    click("cmdJugar");
    ASSERT_NE(match(), nullptr);
    QStringList box;
    for (const char *name : {"lblEstadio", "lblAforoEstadio", "lblEntrada", "lblPorcentaje1", "lblRecaudacion1",
                             "lblVallas", "lblPorcentaje2"})
        box << text(name);
    EXPECT_EQ(box, QStringList({"Pabellón del equipo local", "AFORO: —", "ENTRADA: —", "100%", "RECAUDACIÓN: 0 €",
                                "VALLAS CONTRATADAS:", "100%"}));
    EXPECT_EQ(dump("caja"), ledger);
    screenshot("match_away_abroad", match());
}
