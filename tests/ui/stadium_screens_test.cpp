// The stadium as the player meets it from the panel's "ESTADIO": its frames, the works it
// offers and those under way, the match-day prices, and the television's offer of a match.

#include "screenfixture.h"
#include "stadium/stadiumpicture.h"

#include <QGroupBox>
#include <QRadioButton>

#include <set>

namespace {

const QString kPanel = QStringLiteral("Panel_Control_Manager");
const QString kStadium = QStringLiteral("estadios");
const QString kOrdered = QStringLiteral("Las Obras Empezarán en la Jornada Actual");
const QString kLoading = QStringLiteral("Cargando... Pulse Aceptar para continuar");

// The four frames of "Remodelar" and the inner frames of two of them, each with its button.
const std::pair<const char *, const char *> kRemodelFrames[] = {
    {"cmdGradas", "gradas"}, {"cmdParking", "Parking"}, {"cmdEquipamiento", "Equipamiento"}, {"cmdServicios", "Servicios"}};
const std::pair<const char *, const char *> kEquipmentFrames[] = {
    {"cmdFocos", "focos"}, {"cmdMarcadores", "Marcadores"}, {"cmdCalefaccion", "cale"}, {"cmdAccesos", "Accesos"}};
const std::pair<const char *, const char *> kServiceFrames[] = {
    {"cmdEnfermería", "Enfermeria"}, {"cmdTienda", "Tienda"}, {"cmdCafetería", "Cafeteria"}, {"cmdWc", "wc"}};

// A stadium as the store holds it, and what the screen must offer for it.
struct StadiumCase
{
    const char *what;
    const char *columns; // an assignment list for estadios
    std::set<int> enabled;
    std::set<int> ticked;
    const char *parking;
    int picture;
};

const StadiumCase kStadiums[] = {
    {"a new stadium offers the first step of everything",
     "min_gradas=16000, parking=0, focos=0, marcadores=1, calefaccion=0, accesos=1, enfermeria=0, tienda=0,"
     " lavabos=1, cafeteria=0",
     {1, 2, 3, 4, 5, 6, 9, 10, 12, 15, 17, 20, 21, 22, 23, 25}, {4, 10, 20, 22}, "Estadio Sin Parkings Propios", 12},
    {"one seat above 16000 the 4000 seats go; built items offer nothing",
     "min_gradas=16001, parking=1, focos=1, marcadores=2, calefaccion=1, accesos=2, enfermeria=1, tienda=1,"
     " lavabos=2, cafeteria=1",
     {1, 2, 7, 11, 14, 18, 26}, {}, "Estadio Con 4 Parkings", 12},
    {"above 18000 seats only the thousand seats are left",
     "min_gradas=18001, parking=1, focos=2, marcadores=3, calefaccion=1, accesos=3, enfermeria=2, tienda=1,"
     " lavabos=3, cafeteria=1",
     {1, 8, 19}, {}, "Estadio Con 4 Parkings", 12},
    {"a stadium with everything has nothing left to build",
     "min_gradas=19001, parking=1, focos=3, marcadores=3, calefaccion=1, accesos=3, enfermeria=3, tienda=1,"
     " lavabos=3, cafeteria=1",
     {}, {}, "Estadio Con 4 Parkings", 12},
    {"3000 seats show the first of the twelve pictures",
     "min_gradas=3000, parking=1, focos=3, marcadores=3, calefaccion=1, accesos=3, enfermeria=3, tienda=1,"
     " lavabos=3, cafeteria=1",
     {1, 2, 3}, {}, "Estadio Con 4 Parkings", 1},
    {"below 3000 seats the screen keeps its own picture",
     "min_gradas=2999, parking=1, focos=3, marcadores=3, calefaccion=1, accesos=3, enfermeria=3, tienda=1,"
     " lavabos=3, cafeteria=1",
     {1, 2, 3}, {}, "Estadio Con 4 Parkings", 0},
};

QString box(int number)
{
    return QStringLiteral("Option%1").arg(number);
}

QColor textColour(QLabel *label)
{
    label->ensurePolished();
    return label->palette().color(QPalette::WindowText);
}

} // namespace

class StadiumScreens : public ScreenTest
{
protected:
    // Four friendlies declined and the presentation, at home, against the first Spanish club:
    // week 1 is played at home.
    void reachHomeFriendlyWeek()
    {
        startCareerFromMenu(QStringLiteral("IValencia"));
        for (int slot = 0; slot < 4; ++slot)
            click(QStringLiteral("cmdNoJugar"));
        chooseClub("cmdEspaña", 0);
        beginFirstWeek();
    }

    // The first friendly away at the first German club, the rest declined: a club outside the
    // league, so television buys the match.
    void reachForeignFriendlyWeek(bool runEvents = true)
    {
        startCareerFromMenu(QStringLiteral("IValencia"));
        chooseClub("cmdAlemania", 0);
        for (int slot = 1; slot < 5; ++slot)
            click(QStringLiteral("cmdNoJugar"));
        beginFirstWeek(runEvents);
    }

    // The panel of week 1, its events run as its timer would run them.
    void beginFirstWeek(bool runEvents = true)
    {
        click(QStringLiteral("cmdSeguir"));
        ASSERT_EQ(m_navigator->current()->objectName(), kPanel);
        if (runEvents)
            runWeekEvents();
    }

    ui::WeekPanel *panel() { return m_navigator->screen<ui::WeekPanel>(kPanel); }
    QWidget *stadium() { return m_navigator->screen(kStadium); }
    void openStadium()
    {
        ASSERT_EQ(m_navigator->current()->objectName(), kPanel);
        click(QStringLiteral("cmdEstadio"));
        ASSERT_EQ(m_navigator->current()->objectName(), kStadium);
    }

    void reopenStadium()
    {
        click(QStringLiteral("cmdVOLVER"));
        openStadium();
    }

    void setStadium(const char *columns)
    {
        const std::string sql = std::string("update estadios set ") + columns + " where idequipo = ?";
        ASSERT_TRUE(m_store->run([&] { m_store->execute(sql, club()); }).ok());
    }

    void setPrice(int row, int price)
    {
        ASSERT_TRUE(m_store->run([&] {
            m_store->execute("update entradas set precio_entrada = ? where idPrecio = ?", price, row);
        }).ok());
    }

    QAbstractButton *option(int number) { return stadium()->findChild<QAbstractButton *>(box(number)); }
    QWidget *part(const char *name) { return stadium()->findChild<QWidget *>(QString::fromUtf8(name)); }
    QLabel *label(const char *name) { return stadium()->findChild<QLabel *>(QString::fromUtf8(name)); }
    QLabel *cell(const char *name, int index) { return indexed::find(stadium(), QString::fromLatin1(name), index); }

    // Of a level of frames, only the one named is on show.
    void expectOnlyShown(std::initializer_list<const char *> level, const char *shown, const QString &step)
    {
        for (const char *frame : level) {
            ASSERT_NE(part(frame), nullptr) << frame;
            EXPECT_EQ(part(frame)->isVisible(), std::string(frame) == shown) << step.toStdString() << ": " << frame;
        }
    }

    qint64 televisionIncome() { return m_store->integer("select ingresos_TV from caja where semana = 1"); }
};

// Guards: a frame that stays on show beside another, a button that opens the wrong frame, a
// caption or box missing or misspelt, or a frame that outgrows the window or is cut off.
TEST_F(StadiumScreens, eachFrameShowsAloneFromItsButtonAndFitsTheWindow)
{
    reachFirstLeagueWeek();
    openStadium();

    // Beside every frame: the stadium, its seats and parkings, and its picture.
    const int club = this->club();
    EXPECT_EQ(label("lblEstadio")->text(), m_store->text("select Nombre from estadios where idequipo = ?", club));
    EXPECT_EQ(label("lblAforo")->text(),
              QStringLiteral("%1Asientos").arg(m_store->integer("select min_gradas from estadios where idequipo = ?", club)));
    EXPECT_EQ(label("lblSIparking")->text(), QStringLiteral("Estadio Con 4 Parkings"));
    for (const char *caption : {"AFORO:", "PARKING:"})
        EXPECT_TRUE(shows(QString::fromUtf8(caption))) << caption;
    ASSERT_FALSE(label("img")->pixmap().isNull());

    // The works under way: none, so only the names of the items' rows are written.
    expectOnlyShown({"Obras", "Remodelar", "Entradas"}, "Obras", QStringLiteral("opening"));
    for (const char *caption : {"PRECIO", "SEM", "GRADAS", "PARKING", "EQUIPAMIENTO", "SERVICIOS"})
        EXPECT_TRUE(shows(QString::fromUtf8(caption))) << caption;
    const char *equipment[] = {"  FOCOS", "  CALEFACCIÓN", "  MARCADORES", "  ACCESOS"};
    const char *services[] = {"  ENFERMERIA", "  TIENDA", "  LAVABOS", "  CAFETERÍA"};
    for (int row = 0; row < 4; ++row) {
        EXPECT_EQ(cell("lblEquipamiento", row)->text(), QString::fromUtf8(equipment[row]));
        EXPECT_EQ(cell("lblServicios", row + 4)->text(), QString::fromUtf8(services[row]));
        for (const char *empty : {"EPF", "EFS", "SEP", "SES"})
            EXPECT_TRUE(cell(empty, row)->text().isEmpty()) << empty << row;
    }
    for (const char *empty : {"lblAsientos", "gpagar", "gsemanas", "lblParking", "Ppagar", "psemanas"})
        EXPECT_TRUE(label(empty)->text().isEmpty()) << empty;
    screenshot(QStringLiteral("stadium_obras"));

    // Remodelar opens on the seats.
    click(QStringLiteral("cmdRemodelar"));
    expectOnlyShown({"Obras", "Remodelar", "Entradas"}, "Remodelar", QStringLiteral("REMODELAR"));
    expectOnlyShown({"gradas", "Parking", "Equipamiento", "Servicios"}, "gradas", QStringLiteral("REMODELAR"));
    for (const char *caption : {"       1 Millón de €                       10 Semanas",
                                "       5 Millones de €                   15 Semanas",
                                "       10 Millones de €                 20 Semanas"})
        EXPECT_TRUE(shows(QString::fromUtf8(caption))) << caption;
    const std::pair<int, const char *> captions[] = {
        {1, "1000 asientos"},  {2, "2000 asientos"},   {3, "4000 asientos"},    {4, "Sin Parking"},
        {5, "Con Parking"},    {6, "170000 K.W."},     {7, "300000 K.W."},      {8, "500000 K.W."},
        {9, "Con Calefacción"}, {10, "Sin Calefacción"}, {11, "VÍDEO-MARCADOR"},  {12, "ELECTRÓNICO"},
        {13, "MANUAL"},        {14, "AMPLIOS"},        {15, "FUNCIONALES"},     {16, "BÁSICOS"},
        {17, "BÁSICA"},        {18, "COMPLETA"},       {19, "U.C.I."},          {20, "Sin Tiendas"},
        {21, "15 Tiendas"},    {22, "Sin Cafeterías"}, {23, "20 Cafeterías"},   {24, "1 Lavabo"},
        {25, "15 Lavabos"},    {26, "40 Lavabos"}};
    for (const auto &[number, caption] : captions) {
        ASSERT_NE(option(number), nullptr) << number;
        EXPECT_EQ(option(number)->text(), QString::fromUtf8(caption)) << number;
        EXPECT_EQ(qobject_cast<QRadioButton *>(option(number)) != nullptr, number <= 5) << number;
    }
    expectTidy(QStringLiteral("gradas"));
    screenshot(QStringLiteral("stadium_gradas"));

    const char *shots[] = {nullptr, "stadium_parking", "stadium_equipamiento", "stadium_servicios"};
    int i = 0;
    for (const auto &[button, frame] : kRemodelFrames) {
        click(QString::fromUtf8(button));
        expectOnlyShown({"gradas", "Parking", "Equipamiento", "Servicios"}, frame, QString::fromUtf8(button));
        EXPECT_TRUE(part("Remodelar")->isVisible());
        if (shots[i]) {
            expectTidy(QString::fromUtf8(button));
            screenshot(QString::fromLatin1(shots[i]));
        }
        ++i;
    }
    auto walkInner = [this](const char *outer, const std::pair<const char *, const char *>(&inner)[4],
                            std::initializer_list<const char *> level) {
        click(QString::fromUtf8(outer));
        for (const auto &[button, frame] : inner) {
            const QString step = QString::fromUtf8(button);
            click(step);
            expectOnlyShown(level, frame, step);
            // The price and the weeks of an item are told only in the works table.
            QStringList texts;
            for (QLabel *text : part(frame)->findChildren<QLabel *>())
                texts << text->text();
            EXPECT_EQ(texts, (QStringList{QStringLiteral("Precio:"), QString(), QStringLiteral("Semanas:"), QString()}))
                << frame;
            expectTidy(step);
        }
    };
    walkInner("cmdEquipamiento", kEquipmentFrames, {"focos", "Marcadores", "cale", "Accesos"});
    walkInner("cmdServicios", kServiceFrames, {"Enfermeria", "Tienda", "Cafeteria", "wc"});
    EXPECT_EQ(qobject_cast<QGroupBox *>(part("Servicios"))->title(), QStringLiteral("Extras"));
    EXPECT_EQ(qobject_cast<QGroupBox *>(part("wc"))->title(), QStringLiteral("W. C."));
    EXPECT_EQ(qobject_cast<QGroupBox *>(part("Obras"))->title(), QStringLiteral("Estado de las Obras"));

    // The buttons outside the frames stay at hand whatever is shown.
    for (const char *always : {"cmdObras", "cmdRemodelar", "cmdPartido", "cmdYA", "cmdVOLVER"})
        EXPECT_TRUE(part(always)->isVisible()) << always;
    EXPECT_EQ(find<QPushButton>(QStringLiteral("cmdYA"))->text(), QStringLiteral("APLICAR REMODELACIÓN"));
    click(QStringLiteral("cmdObras"));
    expectOnlyShown({"Obras", "Remodelar", "Entradas"}, "Obras", QStringLiteral("OBRAS"));
    click(QStringLiteral("cmdVOLVER"));
    EXPECT_EQ(m_navigator->current()->objectName(), kPanel);
    EXPECT_EQ(m_navigator->screen(kStadium), nullptr);
}

// Guards: a box offered that skips a level or rebuilds what stands, a missing tick on the
// state a stadium starts from, the seat limits off by one, or the wrong picture.
TEST_F(StadiumScreens, theBoxesOfferOnlyWhatTheStadiumCanTakeNext)
{
    reachFirstLeagueWeek();
    for (const StadiumCase &stadium : kStadiums) {
        setStadium(stadium.columns);
        openStadium();
        click(QStringLiteral("cmdRemodelar"));
        for (int number = 1; number <= 26; ++number) {
            EXPECT_EQ(option(number)->isEnabled(), stadium.enabled.count(number) == 1) << stadium.what << ": " << number;
            EXPECT_EQ(option(number)->isChecked(), stadium.ticked.count(number) == 1) << stadium.what << ": " << number;
        }
        EXPECT_EQ(label("lblSIparking")->text(), QString::fromLatin1(stadium.parking)) << stadium.what;
        const QPixmap shown = label("img")->pixmap();
        EXPECT_EQ(shown.toImage(), ui::stadiumPicture(stadium.picture, shown.size()).toImage()) << stadium.what;
        EXPECT_NE(shown.toImage(), ui::stadiumPicture(stadium.picture == 0 ? 1 : 0, shown.size()).toImage())
            << stadium.what;

        // With nothing left to build, the order button orders nothing and says nothing.
        if (stadium.enabled.empty()) {
            m_dialogs.clear();
            click(QStringLiteral("cmdYA"));
            EXPECT_EQ(count("selects"), 0);
            EXPECT_TRUE(m_dialogs.texts().isEmpty());
        }
        click(QStringLiteral("cmdVOLVER"));
    }
    setStadium(kStadiums[0].columns);
    openStadium();
    click(QStringLiteral("cmdRemodelar"));
    click(QStringLiteral("cmdEquipamiento"));
    click(QStringLiteral("cmdMarcadores"));
    screenshot(QStringLiteral("stadium_marcadores"));
}

// Guards: two works of one group in one order, a tick of another group lost, radio buttons
// that cannot be cleared, or "REESTABLECER" that orders or leaves a tick behind.
TEST_F(StadiumScreens, aTickClearsTheRestOfItsChoiceAndReestablecerClearsEverything)
{
    reachFirstLeagueWeek();
    setStadium(kStadiums[0].columns);
    openStadium();
    click(QStringLiteral("cmdRemodelar"));
    auto ticked = [this] {
        std::set<int> on;
        for (int number = 1; number <= 26; ++number) {
            if (option(number)->isChecked())
                on.insert(number);
        }
        return on;
    };
    ASSERT_EQ(ticked(), (std::set<int>{4, 10, 20, 22}));

    click(box(1));
    click(box(2));
    click(QStringLiteral("cmdParking"));
    click(box(5));
    EXPECT_EQ(ticked(), (std::set<int>{2, 5, 10, 20, 22}));

    // A tick among the equipment clears the rest of the equipment, the heating's "without"
    // too, even in a frame out of sight; the services keep theirs.
    click(QStringLiteral("cmdEquipamiento"));
    click(box(6));
    EXPECT_EQ(ticked(), (std::set<int>{2, 5, 6, 20, 22}));
    click(QStringLiteral("cmdServicios"));
    click(QStringLiteral("cmdTienda"));
    click(box(21));
    EXPECT_EQ(ticked(), (std::set<int>{2, 5, 6, 21}));
    // The first service of all clears the others too.
    click(QStringLiteral("cmdEnfermería"));
    click(box(17));
    EXPECT_EQ(ticked(), (std::set<int>{2, 5, 6, 17}));
    click(QStringLiteral("cmdTienda"));
    click(box(21));
    EXPECT_EQ(ticked(), (std::set<int>{2, 5, 6, 21}));
    click(QStringLiteral("cmdEquipamiento"));
    click(QStringLiteral("cmdCalefaccion"));
    click(box(9));
    EXPECT_EQ(ticked(), (std::set<int>{2, 5, 9, 21}));
    // A second click on a ticked box takes its tick away.
    click(box(9));
    EXPECT_EQ(ticked(), (std::set<int>{2, 5, 21}));
    click(box(9));

    m_dialogs.clear();
    click(QStringLiteral("cmdReesTablecer"));
    EXPECT_TRUE(ticked().empty());
    EXPECT_EQ(count("selects"), 0);
    EXPECT_TRUE(m_dialogs.texts().isEmpty());
    // Cleared radio groups take a tick again.
    click(QStringLiteral("cmdGradas"));
    click(box(3));
    EXPECT_EQ(ticked(), (std::set<int>{3}));
}

// Guards: an order not written or written twice, no message, a screen that reloads after the
// order, or a work that does not show under way, with its weeks left, closing its group at
// the next visit.
TEST_F(StadiumScreens, orderedWorksAreWrittenAndShowUnderWayAtTheNextVisit)
{
    reachFirstLeagueWeek();
    setStadium(kStadiums[0].columns);
    openStadium();
    m_dialogs.clear();
    click(QStringLiteral("cmdRemodelar"));
    click(box(1));
    click(QStringLiteral("cmdParking"));
    click(box(5));
    click(QStringLiteral("cmdEquipamiento"));
    click(box(6));
    click(QStringLiteral("cmdServicios"));
    click(QStringLiteral("cmdTienda"));
    click(box(21));
    click(QStringLiteral("cmdYA"));

    EXPECT_EQ(dump("selects"),
              QStringLiteral("update estadios set min_gradas=17000 where idequipo=%1|1|0|0|0|0|gradas 1000 1000000 12|"
                             "update infoteams set presupuesto=presupuesto - 1000000 where idequipo=%1|\n"
                             "update estadios set parking=1 where idequipo=%1|1|0|0|0|0|parking 0 3500000 30|"
                             "update infoteams set presupuesto=presupuesto - 3500000 where idequipo=%1|\n"
                             "update estadios set focos=1 where idequipo=%1|1|0|0|0|0|focos 1 120000 6|"
                             "update infoteams set presupuesto=presupuesto - 120000 where idequipo=%1|\n"
                             "update estadios set tienda=1 where idequipo=%1|1|0|0|0|0|tienda 0 90000 7|"
                             "update infoteams set presupuesto=presupuesto - 90000 where idequipo=%1|\n")
                  .arg(club()));
    ASSERT_EQ(m_dialogs.messages().size(), 1u);
    EXPECT_EQ(m_dialogs.messages()[0].text, kOrdered);
    EXPECT_EQ(m_dialogs.messages()[0].title, QStringLiteral("Remodelación"));
    // The screen stays as it was: the ticks, the open frame, an empty works table.
    for (int number : {1, 5, 6, 21})
        EXPECT_TRUE(option(number)->isChecked()) << number;
    EXPECT_TRUE(part("Remodelar")->isVisible());
    EXPECT_TRUE(option(1)->isEnabled());
    EXPECT_TRUE(label("lblAsientos")->text().isEmpty());
    // So a second press orders the same works once more.
    click(QStringLiteral("cmdYA"));
    EXPECT_EQ(count("selects"), 8);
    EXPECT_EQ(m_dialogs.texts(), (QStringList{kOrdered, kOrdered}));
    ASSERT_TRUE(m_store->run([&] { m_store->execute("delete from selects where rowid > 4"); }).ok());

    // Three weeks later, as the table sees it.
    ASSERT_TRUE(m_store->run([&] { m_store->execute("update selects set jornada = jornada - 3"); }).ok());
    reopenStadium();
    expectOnlyShown({"Obras", "Remodelar", "Entradas"}, "Obras", QStringLiteral("again"));
    struct Row
    {
        QLabel *name, *price, *weeks;
        const char *nameText, *priceText, *weeksText;
    };
    const Row rows[] = {{label("lblAsientos"), label("gpagar"), label("gsemanas"), "1000", "1000000", "9"},
                        {label("lblParking"), label("Ppagar"), label("psemanas"), "4 Parkings", "3500000", "27"},
                        {cell("lblEquipamiento", 0), cell("EPF", 0), cell("EFS", 0), "  FOCOS", "120000", "3"},
                        {cell("lblServicios", 5), cell("SEP", 1), cell("SES", 1), "  TIENDA", "90000", "4"}};
    for (const Row &row : rows) {
        EXPECT_EQ(row.name->text(), QString::fromUtf8(row.nameText));
        EXPECT_EQ(row.price->text(), QString::fromLatin1(row.priceText)) << row.nameText;
        EXPECT_EQ(row.weeks->text(), QString::fromLatin1(row.weeksText)) << row.nameText;
        EXPECT_EQ(textColour(row.name), QColor(200, 30, 30)) << row.nameText;
        EXPECT_EQ(textColour(row.price), QColor(Qt::black)) << row.nameText;
        EXPECT_EQ(textColour(row.weeks), QColor(224, 123, 0)) << row.nameText;
    }
    // The rows of items not under way stay as they were.
    EXPECT_TRUE(cell("EPF", 1)->text().isEmpty());
    EXPECT_TRUE(cell("SES", 0)->text().isEmpty());
    EXPECT_NE(textColour(cell("lblEquipamiento", 1)), QColor(200, 30, 30));
    expectTidy(QStringLiteral("works under way"));
    screenshot(QStringLiteral("stadium_obras_en_curso"));

    // Every group has a work under way, so all of them are closed, heating included.
    for (const char *frame : {"gradas", "Parking", "focos", "Marcadores", "Accesos", "cale", "Enfermeria", "Tienda",
                              "Cafeteria", "wc"})
        EXPECT_FALSE(part(frame)->isEnabled()) << frame;
    for (int number = 1; number <= 26; ++number)
        EXPECT_FALSE(option(number)->isEnabled()) << number;
    m_dialogs.clear();
    click(QStringLiteral("cmdYA"));
    EXPECT_EQ(count("selects"), 4);
    EXPECT_TRUE(m_dialogs.texts().isEmpty());
}

// Guards: prices that can be reached in a week played away, or the match-day frame shown in
// place of another when nothing is due.
TEST_F(StadiumScreens, matchDayDoesNothingInAWeekPlayedAway)
{
    reachFirstLeagueWeek();
    ASSERT_FALSE(m_navigator->career().week().career().isUserClub(m_navigator->career().week().fixture()->homeName));
    openStadium();
    click(QStringLiteral("cmdPartido"));
    expectOnlyShown({"Obras", "Remodelar", "Entradas"}, "Obras", QStringLiteral("away, from OBRAS"));
    click(QStringLiteral("cmdRemodelar"));
    click(QStringLiteral("cmdPartido"));
    expectOnlyShown({"Obras", "Remodelar", "Entradas"}, "Remodelar", QStringLiteral("away, from REMODELAR"));
    EXPECT_EQ(m_store->integer("select precio_entrada from entradas where idPrecio = 1"), 10);
}

// Guards: a price step past its bound, a press not written at once, the frame showing
// another match, or prices not read again at the next visit.
TEST_F(StadiumScreens, matchDayPricesStepWithinTheirBoundsAndAreWrittenAtEachPress)
{
    reachHomeFriendlyWeek();
    const game::Week &week = m_navigator->career().week();
    ASSERT_TRUE(week.career().isUserClub(week.fixture()->homeName));
    setPrice(1, 25);
    setPrice(2, 1700);
    openStadium();
    click(QStringLiteral("cmdRemodelar"));
    click(QStringLiteral("cmdPartido"));
    expectOnlyShown({"Obras", "Remodelar", "Entradas"}, "Entradas", QStringLiteral("home"));

    EXPECT_EQ(label("lblEstadio2")->text(), m_store->text("select Nombre from estadios where idequipo = ?", club()));
    EXPECT_EQ(label("lblEquipoLoc")->text(), week.career().clubName);
    EXPECT_EQ(label("lblEquipoVis")->text(), week.fixture()->awayName);
    EXPECT_EQ(label("lblTipo")->text(), QStringLiteral("AMISTOSO"));
    for (const char *caption : {"DÍA DE PARTIDO", "PRECIO DE LAS ENTRADAS", "PRECIO:", "PRECIO PUBLICIDAD",
                                "PRECIO PUBLICIDAD:"})
        EXPECT_TRUE(shows(QString::fromUtf8(caption))) << caption;
    auto *ticket = find<QLineEdit>(QStringLiteral("txtEntrada"));
    auto *boards = find<QLineEdit>(QStringLiteral("txtVallas"));
    EXPECT_TRUE(ticket->isReadOnly());
    EXPECT_TRUE(boards->isReadOnly());
    EXPECT_EQ(ticket->text(), QStringLiteral("25"));
    EXPECT_EQ(boards->text(), QStringLiteral("1700"));
    expectTidy(QStringLiteral("Entradas"));
    screenshot(QStringLiteral("stadium_entradas"));

    // Each press, what the field shows and what the store holds.
    struct Press
    {
        const char *button;
        int price;
    };
    const Press ticketPresses[] = {{"cmdmas", 30}, {"cmdmas", 30}, {"cmdmenos", 25}, {"cmdmenos", 20}, {"cmdmenos", 15},
                                   {"cmdmenos", 10}, {"cmdmenos", 5}, {"cmdmenos", 5}, {"cmdmas", 10}};
    for (const Press &press : ticketPresses) {
        click(QString::fromLatin1(press.button));
        EXPECT_EQ(ticket->text(), QString::number(press.price)) << press.button;
        EXPECT_EQ(m_store->integer("select precio_entrada from entradas where idPrecio = 1"), press.price) << press.button;
    }
    const Press boardPresses[] = {{"cmdAumentar", 1800}, {"cmdAumentar", 1800}, {"cmdReducir", 1700}};
    for (const Press &press : boardPresses) {
        click(QString::fromLatin1(press.button));
        EXPECT_EQ(boards->text(), QString::number(press.price)) << press.button;
        EXPECT_EQ(m_store->integer("select precio_entrada from entradas where idPrecio = 2"), press.price) << press.button;
    }
    for (int step = 0; step < 9; ++step)
        click(QStringLiteral("cmdReducir"));
    EXPECT_EQ(boards->text(), QStringLiteral("900"));
    EXPECT_EQ(m_store->integer("select precio_entrada from entradas where idPrecio = 2"), 900);
    // The codes of the tactics share the table and are not touched.
    EXPECT_EQ(m_store->integer("select count(*) from entradas where idPrecio > 2 and precio_entrada = 1"), 2);

    reopenStadium();
    EXPECT_EQ(find<QLineEdit>(QStringLiteral("txtEntrada"))->text(), QStringLiteral("10"));
    EXPECT_EQ(find<QLineEdit>(QStringLiteral("txtVallas"))->text(), QStringLiteral("900"));
}

// Guards: a bought match with no window, the design's channel instead of a drawn one, a window
// that Esc or its frame closes and so loses the fee, or a fee booked twice.
TEST_F(StadiumScreens, aBoughtMatchOpensTeleWhichOnlyItsOkClosesAndPaysOnce)
{
    reachForeignFriendlyWeek();
    EXPECT_TRUE(m_dialogs.texts().contains(kLoading));
    auto *tele = m_navigator->screen<QDialog>(QStringLiteral("Tele"));
    ASSERT_NE(tele, nullptr);
    EXPECT_TRUE(tele->isVisible());
    EXPECT_TRUE(tele->isModal() || tele->windowModality() != Qt::NonModal);
    EXPECT_EQ(m_navigator->current()->objectName(), kPanel);

    QStringList channels;
    for (int id = 1; id <= 7; ++id)
        channels << m_store->text("select NombreTV from televisiones where idTelevision = ?", id);
    const QString channel = tele->findChild<QLabel *>(QStringLiteral("lblTV"))->text();
    EXPECT_TRUE(channels.contains(channel)) << channel.toStdString();
    EXPECT_EQ(channel, m_navigator->career().week().broadcast().value_or(QString()));
    EXPECT_EQ(tele->findChild<QLabel *>(QStringLiteral("Label1"))->text(),
              QStringLiteral("La Televisión ha comprado los derechos de retransmisión del partido que vas a disputar."));
    EXPECT_EQ(tele->findChild<QLabel *>(QStringLiteral("Label2"))->text(),
              QStringLiteral("Tus Ingresos Aumentarán: 450.000 €"));
    EXPECT_EQ(tele->findChild<QPushButton *>(QStringLiteral("cmdOK"))->text(), QStringLiteral("OK"));
    EXPECT_FALSE(tele->findChild<QLabel *>(QStringLiteral("Image1"))->pixmap().isNull());
    for (QLabel *text : tele->findChildren<QLabel *>())
        EXPECT_EQ(text->textFormat(), Qt::PlainText) << text->objectName().toStdString();
    for (QWidget *part : tele->findChildren<QWidget *>()) {
        if (part->isVisible()) {
            EXPECT_TRUE(tele->rect().contains(QRect(part->mapTo(tele, QPoint(0, 0)), part->size())))
                << part->objectName().toStdString();
        }
    }
    screenshot(QStringLiteral("tele"), tele);

    // Esc and the frame's close are refused; nothing is booked.
    const qint64 cash = m_store->integer("select caja from caja where semana = 1");
    const qint64 income = m_store->integer("select ingresos from caja where semana = 1");
    QTest::keyClick(tele, Qt::Key_Escape);
    settle();
    EXPECT_FALSE(tele->close());
    settle();
    ASSERT_EQ(m_navigator->screen(QStringLiteral("Tele")), tele);
    EXPECT_TRUE(tele->isVisible());
    EXPECT_EQ(televisionIncome(), 0);

    click(QStringLiteral("cmdOK"));
    EXPECT_EQ(m_navigator->screen(QStringLiteral("Tele")), nullptr);
    EXPECT_EQ(televisionIncome(), 450000);
    EXPECT_EQ(m_store->integer("select caja from caja where semana = 1"), cash + 450000);
    EXPECT_EQ(m_store->integer("select ingresos from caja where semana = 1"), income + 450000);
    EXPECT_FALSE(m_navigator->career().week().broadcast().has_value());

    // The week's events do not run twice, and the offer does not come back.
    panel()->runWeekEvents();
    settle();
    EXPECT_EQ(m_navigator->screen(QStringLiteral("Tele")), nullptr);
    EXPECT_EQ(televisionIncome(), 450000);
    EXPECT_EQ(m_navigator->current()->objectName(), kPanel);
}

// Guards: a Tele window in a week whose match television did not buy, or no loading message.
TEST_F(StadiumScreens, aMatchNotBoughtBringsOnlyTheLoadingMessage)
{
    reachFirstLeagueWeek();
    EXPECT_EQ(m_dialogs.texts().count(kLoading), 1);
    EXPECT_FALSE(m_navigator->career().week().broadcast().has_value());
    EXPECT_EQ(m_navigator->screen(QStringLiteral("Tele")), nullptr);
    EXPECT_EQ(m_navigator->open(QStringLiteral("Tele")), nullptr);
    EXPECT_EQ(televisionIncome(), 0);
}

// Guards: a bought match whose offer is lost because the week's events ran before the panel's
// timer (the match opened at once), so the fee could never be booked.
TEST_F(StadiumScreens, theOfferStillComesWhenTheWeeksEventsRanBeforeThePanelsTurn)
{
    reachForeignFriendlyWeek(false);
    m_navigator->career().week().runEvents();
    ASSERT_TRUE(m_navigator->career().week().broadcast().has_value());

    panel()->runWeekEvents();
    settle();
    ASSERT_NE(m_navigator->screen(QStringLiteral("Tele")), nullptr);
    click(QStringLiteral("cmdOK"));
    EXPECT_EQ(televisionIncome(), 450000);
    EXPECT_EQ(m_dialogs.texts().count(kLoading), 1);
}
