// The squad as the player meets it from the panel's "PLANTILLA": the four grids of his
// players, the contract of one of them (renewed, listed, dismissed), the youth search and the
// offer for a young player, with the step buttons of its money boxes.

#include "screenfixture.h"
#include "transfers/contractscreen.h"
#include "transfers/offerscreen.h"

#include <QPointer>

namespace {

const QString kPanel = QStringLiteral("Panel_Control_Manager");
const QString kSquad = QStringLiteral("Plantilla");
const QString kContract = QStringLiteral("Renovar");
const QString kYouth = QStringLiteral("Juveniles");
const QString kOffer = QStringLiteral("Fichar_Jugadores");
const QString kListed = QStringLiteral("JUGADOR EN CONDICIÓN DE TRANSFERIBLE");

// The squad's grids and the positions each of them lists; pivots have none.
struct SquadGrid
{
    const char *name;
    const char *positions; // a list for "Posicion in (...)"
};
const SquadGrid kSquadGrids[] = {
    {"DGPorteros", "'Portero'"},
    {"DGExtremos", "'Extremo Izquierdo', 'Extremo Derecho'"},
    {"DGLaterales", "'Lateral Izquierdo', 'Lateral Derecho'"},
    {"DataGrid4", "'Central'"},
};

const QStringList kPositions{QStringLiteral("Portero"),         QStringLiteral("Extremo Izquierdo"),
                             QStringLiteral("Extremo Derecho"), QStringLiteral("Lateral Izquierdo"),
                             QStringLiteral("Lateral Derecho"), QStringLiteral("Pivote"),
                             QStringLiteral("Central")};

} // namespace

class ContractScreens : public ScreenTest
{
protected:
    void openSquad()
    {
        ASSERT_EQ(m_navigator->current()->objectName(), kPanel);
        click(QStringLiteral("cmdPlantilla"));
        ASSERT_EQ(m_navigator->current()->objectName(), kSquad);
    }

    // The squad's goalkeeper of the lowest number, and his contract opened from the grid.
    int openFirstGoalkeeper()
    {
        auto *grid = find<QTableView>(QStringLiteral("DGPorteros"));
        if (!grid || grid->model()->rowCount() == 0)
            return 0;
        const int player = grid->model()->index(0, 0).data().toInt();
        pickRow(grid, 0);
        EXPECT_EQ(m_navigator->current()->objectName(), kContract);
        return player;
    }

    int week() { return int(m_store->integer("select jornada from datos_jugador")); }

    // The player's contract opened afresh from a squad made afresh, once his terms are these.
    void reopenContract(int player, int wage, int clause, int years)
    {
        setTerms(player, wage, clause, years);
        click(QStringLiteral("cmdVOLVER"));
        openSquad();
        ASSERT_EQ(openFirstGoalkeeper(), player);
    }

    QString fact(int index)
    {
        QLabel *label = indexed::find(m_navigator->current(), QStringLiteral("lblEdad"), index);
        return label ? label->text() : QStringLiteral("<no lblEdad %1>").arg(index);
    }

    // The card beside the terms shows the player as the store has him, his club by name,
    // each fact beside its caption.
    void expectCard(int player)
    {
        EXPECT_EQ(text(QStringLiteral("lblNombre")),
                  m_store->text("select Nombre || ' ' || Apellidos from jugadores where idjugador = ?", player));
        EXPECT_EQ(QStringList({fact(0), fact(1), fact(2), fact(3), fact(4), text(QStringLiteral("lblEquipo"))})
                      .join(QLatin1Char('/')),
                  m_store->text("select Edad || '/' || Nacionalidad || '/' || Posicion || '/' || nombre_lesion || '/' ||"
                                " Media || '/' || NombreEquipo from jugadores join lesiones on idlesion = Lesiones"
                                " join equipos using (idequipo) where idjugador = ?",
                                player));
        for (const char *caption : {"EDAD:", "NACIONALIDAD:", "POSICIÓN:", "LESIONADO:", "MEDIA:", "EQUIPO:",
                                    "CLAUSULA DE RESCISIÓN", "FICHA ANUAL", "AÑOS"})
            EXPECT_TRUE(shows(QString::fromUtf8(caption))) << caption;
        EXPECT_EQ(find<QCheckBox>(QStringLiteral("Check1"))->text(), QStringLiteral("Libertad por Descenso"));
        EXPECT_EQ(find<QCheckBox>(QStringLiteral("Check2"))->text(), QStringLiteral("Casa y Coche"));
    }

    // Holds a step button down for so many ticks of its timer, then lets go.
    void hold(const QString &button, int ticks)
    {
        auto *pressed = find<QPushButton>(button);
        ASSERT_NE(pressed, nullptr) << button.toStdString();
        QWidget *screen = m_navigator->current();
        auto *timer = screen->findChild<QTimer *>(QStringLiteral("Timer1"));
        ASSERT_NE(timer, nullptr);
        QTest::mousePress(pressed, Qt::LeftButton);
        EXPECT_TRUE(timer->isActive()) << button.toStdString();
        EXPECT_EQ(timer->interval(), 50);
        for (int tick = 0; tick < ticks; ++tick) {
            if (auto *offer = qobject_cast<ui::OfferScreen *>(screen))
                offer->step();
            else if (auto *contract = qobject_cast<ui::ContractScreen *>(screen))
                contract->step();
        }
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
        ASSERT_TRUE(m_store->run([&] {
            m_store->execute("update jugadores set Ficha = ?, Clausula_Recision = ?, \"Años_Contrato\" = ?"
                             " where idjugador = ?",
                             wage, clause, years, player);
        }).ok());
    }
};

// Guards: a grid bound to the wrong group or to another club, a pivot listed, raw column
// names or a visible id over the grids, years that are not the contract's, a pick that opens
// the wrong player, a contract screen that starts from other terms, and "CANCELAR" that
// writes anything or leaves the screen behind.
TEST_F(ContractScreens, squadListsTheClubByGroupAndOpensThePickedPlayersContract)
{
    reachFirstLeagueWeek();
    const int user = club();
    EXPECT_TRUE(find<QPushButton>(QStringLiteral("cmdPlantilla"))->isEnabled());
    openSquad();
    for (const char *caption : {"Porteros", "Extremos", "Laterales", "Centrales"})
        EXPECT_TRUE(shows(QString::fromUtf8(caption))) << caption;
    EXPECT_EQ(find<QPushButton>(QStringLiteral("cmdJuveniles"))->text(), QStringLiteral("JUVENILES"));

    std::vector<int> listed;
    for (const SquadGrid &group : kSquadGrids) {
        auto *grid = find<QTableView>(QString::fromLatin1(group.name));
        ASSERT_NE(grid, nullptr) << group.name;
        const std::vector<int> ids = gridIds(grid);
        EXPECT_FALSE(ids.empty()) << group.name;
        EXPECT_EQ(ids, storeIds("select idjugador from jugadores where idequipo = " + std::to_string(user)
                                + " and Posicion in (" + group.positions + ")"))
            << group.name;
        listed.insert(listed.end(), ids.begin(), ids.end());
        EXPECT_TRUE(grid->isColumnHidden(0)) << group.name;
        EXPECT_EQ(shownHeaders(grid),
                  (QStringList{QStringLiteral("Nombre"), QStringLiteral("Apellidos"), QStringLiteral("Edad"),
                               QStringLiteral("Posición"), QStringLiteral("Media"), QStringLiteral("Años de\ncontrato")}))
            << group.name;
        for (int row = 0; row < grid->model()->rowCount(); ++row) {
            const int player = cell(grid, row, 0).toInt();
            EXPECT_EQ(QStringList({cell(grid, row, 1), cell(grid, row, 2), cell(grid, row, 3), cell(grid, row, 4),
                                   cell(grid, row, 5), cell(grid, row, 6)})
                          .join(QLatin1Char('/')),
                      m_store->text("select Nombre || '/' || Apellidos || '/' || Edad || '/' || Posicion || '/' ||"
                                    " Media || '/' || \"Años_Contrato\" from jugadores where idjugador = ?",
                                    player))
                << group.name << " row " << row;
        }
    }
    EXPECT_EQ(qint64(listed.size()),
              m_store->integer("select count(*) from jugadores where idequipo = ? and Posicion <> 'Pivote'", user));
    screenshot(QStringLiteral("squad_plantilla"));

    // A centre picked: his contract, his card, and the new contract starting from the old one.
    auto *centres = find<QTableView>(QStringLiteral("DataGrid4"));
    const int row = centres->model()->rowCount() - 1;
    const int player = cell(centres, row, 0).toInt();
    const QString before = dump("jugadores");
    pickRow(centres, row);
    ASSERT_EQ(m_navigator->current()->objectName(), kContract);
    expectCard(player);
    EXPECT_EQ(text(QStringLiteral("txtclausula")),
              m_store->text("select Clausula_Recision || '€' from jugadores where idjugador = ?", player));
    EXPECT_EQ(text(QStringLiteral("txtficha")),
              m_store->text("select Ficha || '€' from jugadores where idjugador = ?", player));
    EXPECT_EQ(text(QStringLiteral("txtaños")), QStringLiteral("5"));
    EXPECT_EQ(find<QScrollBar>(QStringLiteral("HScroll4"))->value(), 5);
    EXPECT_EQ(text(QStringLiteral("lbltr")), QString());
    // Beside the new contract, the one he has now.
    EXPECT_EQ(QStringList({text(QStringLiteral("lblFichaActual")), text(QStringLiteral("lblClausulaActual")),
                           text(QStringLiteral("lblAñosActual"))})
                  .join(QLatin1Char('/')),
              m_store->text("select Ficha || ' €/' || Clausula_Recision || ' €/' || \"Años_Contrato\" from jugadores"
                            " where idjugador = ?",
                            player));
    EXPECT_EQ(m_navigator->current()->findChild<QLineEdit *>(QStringLiteral("txtOferta")), nullptr);
    EXPECT_EQ(m_navigator->current()->findChild<QLabel *>(QStringLiteral("lblNotas")), nullptr);
    for (const auto &[name, caption] : {std::pair{"cmdfichar", "RENOVAR"}, {"cmdDespedir", "DESPEDIR"},
                                        {"cmdTransferir", "TRASPASAR"}})
        EXPECT_EQ(find<QPushButton>(QString::fromLatin1(name))->text(), QString::fromUtf8(caption)) << name;
    screenshot(QStringLiteral("contract_renovar"));

    // "CANCELAR" with the boxes changed and a box ticked: nothing is written.
    fill(QStringLiteral("txtficha"), QStringLiteral("999999"));
    click(QStringLiteral("Check2"));
    m_dialogs.clear();
    click(QStringLiteral("cmdCancelar"));
    EXPECT_EQ(m_navigator->current()->objectName(), kSquad);
    EXPECT_EQ(m_navigator->screen(kContract), nullptr);
    EXPECT_EQ(dump("jugadores"), before);
    EXPECT_TRUE(m_dialogs.texts().isEmpty());

    click(QStringLiteral("cmdVOLVER"));
    EXPECT_EQ(m_navigator->current()->objectName(), kPanel);
    EXPECT_EQ(m_navigator->screen(kSquad), nullptr);
}

// Guards: a refusal that still writes, a test of the three run in the wrong order or off by
// one at its limit, the screen left open after an answer, a renewal that sets the years
// instead of adding them, and a squad shown again with its old years.
TEST_F(ContractScreens, renewalIsAnsweredAtOnceAndTheSquadIsReadAfresh)
{
    reachFirstLeagueWeek();
    openSquad();
    const int player = int(m_store->integer(
        "select min(idjugador) from jugadores where idequipo = ? and Posicion = 'Portero'", club()));
    const QString nombre = m_store->text("select Nombre from jugadores where idjugador = ?", player);

    // Each refusal with its terms: the store's wage, clause and years, then the boxes.
    struct Refusal
    {
        const char *what;
        int years;           // in the store
        const char *clausula; // typed
        const char *ficha;
        const char *anos;
        const char *reason;
    };
    const Refusal refusals[] = {
        {"eleven years in all", 6, "400000", "51000", "5", " Ha rechazado su Oferta porque No Quiere Ligarse más al Club"},
        {"one euro above one and a half times the clause", 5, "600001", "51000", "5",
         " Ha rechazado su Oferta porque no está de Acuedo con su Clausula de Rescisión"},
        {"a euro short of a thousand more", 5, "600000", "50999", "5",
         " Ha rechazado su Oferta porque no está de Acuedo con su Ficha"},
        {"the starting boxes ask for no more wage", 3, nullptr, nullptr, "5",
         " Ha rechazado su Oferta porque no está de Acuedo con su Ficha"},
        {"all three wrong: the years are told", 9, "999999", "1", "2",
         " Ha rechazado su Oferta porque No Quiere Ligarse más al Club"},
    };
    for (const Refusal &refusal : refusals) {
        reopenContract(player, 50000, 400000, refusal.years);
        QWidget *squad = m_navigator->screen(kSquad);
        if (refusal.clausula)
            fill(QStringLiteral("txtclausula"), QString::fromLatin1(refusal.clausula));
        if (refusal.ficha)
            fill(QStringLiteral("txtficha"), QString::fromLatin1(refusal.ficha));
        fill(QStringLiteral("txtaños"), QString::fromLatin1(refusal.anos));
        const QString before = dump("jugadores");
        m_dialogs.clear();
        click(QStringLiteral("cmdfichar"));
        EXPECT_EQ(m_dialogs.texts(), QStringList{nombre + QString::fromUtf8(refusal.reason)}) << refusal.what;
        EXPECT_EQ(dump("jugadores"), before) << refusal.what;
        EXPECT_EQ(m_navigator->screen(kContract), nullptr) << refusal.what;
        EXPECT_EQ(m_navigator->current(), squad) << refusal.what;
    }

    // Every test met at its limit: five and five years, exactly one and a half times the
    // clause, exactly a thousand more; the years from the bar are added to those left.
    reopenContract(player, 50000, 400000, 5);
    QPointer<QWidget> oldSquad = m_navigator->screen(kSquad);
    fill(QStringLiteral("txtclausula"), QStringLiteral("600000"));
    EXPECT_EQ(text(QStringLiteral("txtclausula")), QStringLiteral("600000 €"));
    fill(QStringLiteral("txtficha"), QStringLiteral("51000"));
    find<QScrollBar>(QStringLiteral("HScroll4"))->setValue(4);
    EXPECT_EQ(text(QStringLiteral("txtaños")), QStringLiteral("4"));
    find<QScrollBar>(QStringLiteral("HScroll4"))->setValue(5);
    EXPECT_EQ(text(QStringLiteral("txtaños")), QStringLiteral("5"));
    m_dialogs.clear();
    click(QStringLiteral("cmdfichar"));
    EXPECT_EQ(m_dialogs.texts(), (QStringList{nombre + QStringLiteral(" Ha Renovado su Contrato"),
                                              QStringLiteral("El Jugador Cobrará Lo Acordado al Finalizar Esta Temporada")}));
    EXPECT_EQ(terms(player), QStringLiteral("%1/51000/600000/10/0").arg(club()));
    EXPECT_EQ(m_navigator->screen(kContract), nullptr);
    ASSERT_EQ(m_navigator->current()->objectName(), kSquad);
    EXPECT_TRUE(oldSquad.isNull() || oldSquad.data() != m_navigator->current());
    auto *goalkeepers = find<QTableView>(QStringLiteral("DGPorteros"));
    const int row = rowOf(goalkeepers, player);
    ASSERT_GE(row, 0);
    EXPECT_EQ(cell(goalkeepers, row, 6), QStringLiteral("10"));

    // The step buttons move the new contract's boxes: nineteen ticks add 1026 to the wage,
    // enough for him, and one tick takes 54 off the clause; what they show is what he signs.
    reopenContract(player, 51000, 600000, 3);
    hold(QStringLiteral("subeficha"), 19);
    EXPECT_EQ(text(QStringLiteral("txtficha")), QStringLiteral("52026 €"));
    hold(QStringLiteral("bajaclausula"), 1);
    EXPECT_EQ(text(QStringLiteral("txtclausula")), QStringLiteral("599946 €"));
    fill(QStringLiteral("txtaños"), QStringLiteral("1"));
    m_dialogs.clear();
    click(QStringLiteral("cmdfichar"));
    EXPECT_EQ(m_dialogs.texts().value(0), nombre + QStringLiteral(" Ha Renovado su Contrato"));
    EXPECT_EQ(terms(player), QStringLiteral("%1/52026/599946/4/0").arg(club()));
}

// Guards: "TRASPASAR" that only sets or only clears, a label that does not follow, the screen
// closing on it, and a listed player's contract opened without the label.
TEST_F(ContractScreens, traspasarTogglesTheListingAndTheScreenStays)
{
    reachFirstLeagueWeek();
    openSquad();
    const int player = openFirstGoalkeeper();
    ASSERT_GT(player, 0);
    const QString start = terms(player);
    ASSERT_TRUE(start.endsWith(QStringLiteral("/0")));

    click(QStringLiteral("cmdTransferir"));
    EXPECT_EQ(m_store->integer("select venta from jugadores where idjugador = ?", player), 1);
    EXPECT_EQ(text(QStringLiteral("lbltr")), kListed);
    EXPECT_EQ(m_navigator->current()->objectName(), kContract);
    expectTidy(QStringLiteral("listed"));
    screenshot(QStringLiteral("contract_listed"));

    // Opened again, a listed player shows it at once.
    click(QStringLiteral("cmdCancelar"));
    ASSERT_EQ(openFirstGoalkeeper(), player);
    EXPECT_EQ(text(QStringLiteral("lbltr")), kListed);

    click(QStringLiteral("cmdTransferir"));
    EXPECT_EQ(m_store->integer("select venta from jugadores where idjugador = ?", player), 0);
    EXPECT_EQ(text(QStringLiteral("lbltr")), QString());
    EXPECT_EQ(m_navigator->current()->objectName(), kContract);
    EXPECT_EQ(terms(player), start);
    EXPECT_TRUE(m_dialogs.questions().isEmpty());
}

// Guards: a dismissal without the question, a No that dismisses, the wrong pool or the wrong
// compensation, the squad shown with the dismissed player still in it, and the board's limit
// off by one.
TEST_F(ContractScreens, despedirAsksThenReleasesThePlayerAndPaysHisContract)
{
    reachFirstLeagueWeek();
    const int user = club();
    openSquad();
    const int player = openFirstGoalkeeper();
    ASSERT_GT(player, 0);
    setTerms(player, 1000, 40000, 5);
    const QString caja = QStringLiteral("select caja || '/' || gastos || '/' || Gastos_Despido from caja where semana = ?");
    const QString ledger = m_store->text(caja.toStdString(), week());
    ASSERT_FALSE(ledger.isEmpty());

    // No keeps him.
    m_dialogs.answer({false});
    click(QStringLiteral("cmdDespedir"));
    EXPECT_EQ(m_dialogs.questions(),
              QStringList{QStringLiteral("Despedir|¿Está Seguro de Despedir a Éste Jugador? Tendrá que Pagarle Una "
                                         "Indemnización")});
    EXPECT_EQ(terms(player), QStringLiteral("%1/1000/40000/5/0").arg(user));
    EXPECT_EQ(m_store->text(caja.toStdString(), week()), ledger);
    EXPECT_EQ(m_navigator->current()->objectName(), kContract);

    // Yes: to the released players, and every year of his wage paid: 1000 times 5.
    const qint64 balance = m_store->integer("select caja from caja where semana = ?", week());
    const qint64 expenses = m_store->integer("select gastos from caja where semana = ?", week());
    const qint64 dismissals = m_store->integer("select Gastos_Despido from caja where semana = ?", week());
    m_dialogs.clear();
    m_dialogs.answer({true});
    click(QStringLiteral("cmdDespedir"));
    EXPECT_EQ(terms(player), QStringLiteral("85/1000/40000/5/0"));
    EXPECT_EQ(m_store->text(caja.toStdString(), week()),
              QStringLiteral("%1/%2/%3").arg(balance - 5000).arg(expenses + 5000).arg(dismissals + 5000));
    EXPECT_EQ(m_navigator->screen(kContract), nullptr);
    ASSERT_EQ(m_navigator->current()->objectName(), kSquad);
    EXPECT_EQ(rowOf(find<QTableView>(QStringLiteral("DGPorteros")), player), -1);

    // A squad of eleven: the board refuses, with its words.
    ASSERT_TRUE(m_store->run([&] {
        m_store->execute("update jugadores set idequipo = 85 where idequipo = ? and idjugador not in"
                         " (select idjugador from jugadores where idequipo = ? and Posicion <> 'Pivote'"
                         " order by idjugador limit 11)",
                         user, user);
    }).ok());
    ASSERT_EQ(m_store->integer("select count(*) from jugadores where idequipo = ?", user), 11);
    click(QStringLiteral("cmdVOLVER"));
    openSquad();
    const int kept = openFirstGoalkeeper();
    ASSERT_GT(kept, 0);
    const QString before = dump("jugadores");
    m_dialogs.clear();
    m_dialogs.answer({true});
    click(QStringLiteral("cmdDespedir"));
    EXPECT_EQ(m_dialogs.questions().size(), 1);
    EXPECT_TRUE(m_dialogs.texts().contains(QStringLiteral(
        "La Directiva No Acepta Más Despidos de Jugadores, ya que el Equipo Solo Cuenta con 14 Jugadores.")));
    EXPECT_EQ(dump("jugadores"), before);
    EXPECT_EQ(m_navigator->current()->objectName(), kContract);
}

// Guards: the positions missing or out of order, a grid that starts full, a search of the
// wrong position or outside the pool, and a youth offered for as a free player or with other
// starting sums than the ones he asks; an offer that writes more or less than one order, or
// "CANCELAR" that writes one.
TEST_F(ContractScreens, youthSearchLeadsToAnOfferFromTheTermsTheYouthAsks)
{
    reachFirstLeagueWeek();
    openSquad();
    click(QStringLiteral("cmdJuveniles"));
    ASSERT_EQ(m_navigator->current()->objectName(), kYouth);
    auto *positions = find<QListWidget>(QStringLiteral("list1"));
    auto *youths = find<QTableView>(QStringLiteral("DGJugadores"));
    ASSERT_TRUE(positions && youths);
    QStringList items;
    for (int row = 0; row < positions->count(); ++row)
        items << positions->item(row)->text();
    EXPECT_EQ(items, kPositions);
    EXPECT_EQ(positions->currentRow(), 0);
    EXPECT_EQ(youths->model()->rowCount(), 0);
    EXPECT_EQ(shownHeaders(youths),
              (QStringList{QStringLiteral("Nombre"), QStringLiteral("Apellidos"), QStringLiteral("Edad"),
                           QStringLiteral("Posición"), QStringLiteral("Media"), QStringLiteral("Dorsal"),
                           QStringLiteral("Nacionalidad")}));
    EXPECT_EQ(find<QPushButton>(QStringLiteral("Command1"))->text(), QStringLiteral("BUSCAR PROMESA"));

    for (const QString &position : kPositions) {
        positions->setCurrentRow(int(kPositions.indexOf(position)));
        click(QStringLiteral("Command1"));
        const std::vector<int> found = gridIds(youths);
        EXPECT_FALSE(found.empty()) << position.toStdString();
        EXPECT_EQ(found, storeIds("select idjugador from jugadores where idequipo = 84 and Posicion = '"
                                  + position.toStdString() + "'"))
            << position.toStdString();
    }
    positions->setCurrentRow(0);
    click(QStringLiteral("Command1"));
    expectTidy(QStringLiteral("youth search"));
    screenshot(QStringLiteral("youth_search"));

    // A youth picked: the offer as for a listed player.
    const int row = youths->model()->rowCount() - 1;
    const int youth = cell(youths, row, 0).toInt();
    const qint64 clause = m_store->integer("select Clausula_Recision from jugadores where idjugador = ?", youth);
    const qint64 wage = m_store->integer("select Ficha from jugadores where idjugador = ?", youth);
    pickRow(youths, row);
    ASSERT_EQ(m_navigator->current()->objectName(), kOffer);
    EXPECT_EQ(text(QStringLiteral("lblNotas")),
              QStringLiteral("El Jugador desea Cobrar como Mínimo %1€. El Club, por lo contrario quiere recibir como "
                             "mínimo %2€.")
                  .arg(wage)
                  .arg(clause));
    EXPECT_EQ(text(QStringLiteral("txtOferta")), QStringLiteral("%1€").arg(clause));
    EXPECT_EQ(text(QStringLiteral("txtclausula")), QStringLiteral("%1€").arg(clause));
    EXPECT_EQ(text(QStringLiteral("txtficha")), QStringLiteral("%1€").arg(wage));
    EXPECT_EQ(text(QStringLiteral("txtaños")), QStringLiteral("5"));
    expectCard(youth);
    EXPECT_TRUE(shows(QStringLiteral("OFERTA AL EQUIPO")));
    EXPECT_EQ(find<QPushButton>(QStringLiteral("cmdfichar"))->text(), QStringLiteral("HACER OFERTA"));
    expectTidy(QStringLiteral("offer"));
    screenshot(QStringLiteral("offer_listed"));

    // "CANCELAR" writes nothing and the search is back as it was.
    click(QStringLiteral("cmdCancelar"));
    EXPECT_EQ(count("selects"), 0);
    ASSERT_EQ(m_navigator->current()->objectName(), kYouth);
    EXPECT_EQ(gridIds(youths), storeIds("select idjugador from jugadores where idequipo = 84 and Posicion = 'Portero'"));

    // "HACER OFERTA" unchanged, with both boxes ticked: one order, as asked, and no word.
    pickRow(youths, row);
    ASSERT_EQ(m_navigator->current()->objectName(), kOffer);
    click(QStringLiteral("Check1"));
    click(QStringLiteral("Check2"));
    m_dialogs.clear();
    click(QStringLiteral("cmdfichar"));
    EXPECT_TRUE(m_dialogs.texts().isEmpty());
    ASSERT_EQ(count("selects"), 1);
    EXPECT_EQ(m_store->text("select jornada || '/' || oferta || '/' || clausula || '/' || ficha || '/' || jugador"
                            " from selects"),
              QStringLiteral("%1/%2/%2/%3/%4").arg(week()).arg(clause).arg(wage).arg(youth));
    EXPECT_TRUE(m_store->text("select \"select\" from selects")
                    .endsWith(QStringLiteral(" años_contrato=5 where idjugador=%1").arg(youth)));
    EXPECT_EQ(m_navigator->screen(kOffer), nullptr);
    EXPECT_EQ(m_navigator->current()->objectName(), kYouth);
    EXPECT_EQ(m_store->integer("select idequipo from jugadores where idjugador = ?", youth), 84);

    click(QStringLiteral("cmdVOLVER"));
    EXPECT_EQ(m_navigator->current()->objectName(), kSquad);
}

// Guards: a step on the press itself, a timer left running after the release, a step of the
// wrong size or on the wrong box, a lowering below the floor, a minus sign kept, letters
// typed into a box, an emptied box left empty, a years box that takes any number, and a sum
// too large for the game written as a wrapped number.
TEST_F(ContractScreens, offerBoxesStepTakeDigitsAndRefuseSumsTooLarge)
{
    reachFirstLeagueWeek();
    const int player = int(m_store->integer("select min(idjugador) from jugadores where idequipo = 21"));
    m_navigator->open(kOffer, QVariantMap{{QStringLiteral("player"), player}, {QStringLiteral("listed"), false}});
    settle();
    ASSERT_EQ(m_navigator->current()->objectName(), kOffer);
    // A player not on the market: one euro each, one year, and no demands.
    for (const char *box : {"txtOferta", "txtclausula", "txtficha"})
        EXPECT_EQ(text(QString::fromLatin1(box)), QStringLiteral("1 €")) << box;
    EXPECT_EQ(text(QStringLiteral("txtaños")), QStringLiteral("1"));
    EXPECT_EQ(text(QStringLiteral("lblNotas")), QString());

    // Each button steps its own box only, at the ticks and not at the press.
    struct Step
    {
        const char *button;
        const char *box;
        int ticks;
        const char *shows;
    };
    const Step steps[] = {
        {"bajaficha", "txtficha", 1, "1 €"},      {"bajaficha", "txtficha", 3, "1 €"},
        {"subeficha", "txtficha", 0, "1 €"},      {"subeoferta", "txtOferta", 1, "55 €"},
        {"subeoferta", "txtOferta", 2, "163 €"},  {"bajaoferta", "txtOferta", 1, "109 €"},
        {"subleclausula", "txtclausula", 2, "109 €"}, {"bajaclausula", "txtclausula", 2, "1 €"},
        {"subeficha", "txtficha", 1, "55 €"},
    };
    for (const Step &step : steps) {
        QStringList others;
        for (const char *box : {"txtOferta", "txtclausula", "txtficha"}) {
            if (std::string(box) != step.box)
                others << text(QString::fromLatin1(box));
        }
        hold(QString::fromLatin1(step.button), step.ticks);
        EXPECT_EQ(text(QString::fromLatin1(step.box)), QString::fromUtf8(step.shows)) << step.button << " x" << step.ticks;
        QStringList after;
        for (const char *box : {"txtOferta", "txtclausula", "txtficha"}) {
            if (std::string(box) != step.box)
                after << text(QString::fromLatin1(box));
        }
        EXPECT_EQ(after, others) << step.button;
    }
    // From 10 a step down loses its minus sign.
    fill(QStringLiteral("txtficha"), QStringLiteral("10"));
    EXPECT_EQ(text(QStringLiteral("txtficha")), QStringLiteral("10 €"));
    hold(QStringLiteral("bajaficha"), 1);
    EXPECT_EQ(text(QStringLiteral("txtficha")), QStringLiteral("44 €"));

    // Only digits go in; an emptied box holds one euro; a box left shows the sign.
    fill(QStringLiteral("txtclausula"), QStringLiteral("12a.3-4 x"));
    EXPECT_EQ(text(QStringLiteral("txtclausula")), QStringLiteral("1234 €"));
    auto *oferta = find<QLineEdit>(QStringLiteral("txtOferta"));
    oferta->setFocus();
    oferta->selectAll();
    QTest::keyClick(oferta, Qt::Key_Backspace);
    EXPECT_EQ(oferta->text(), QStringLiteral("1 €"));

    // The years: the bar gives 1 to 5, a typed 6 stays, anything else is one year.
    auto *bar = find<QScrollBar>(QStringLiteral("HScroll4"));
    EXPECT_EQ(bar->minimum(), 1);
    EXPECT_EQ(bar->maximum(), 5);
    bar->setValue(3);
    EXPECT_EQ(text(QStringLiteral("txtaños")), QStringLiteral("3"));
    const std::pair<const char *, const char *> years[] = {{"6", "6"}, {"7", "1"}, {"0", "1"}, {"4", "4"}, {"x", "4"}};
    for (const auto &[typed, shows] : years) {
        fill(QStringLiteral("txtaños"), QString::fromLatin1(typed));
        EXPECT_EQ(text(QStringLiteral("txtaños")), QString::fromLatin1(shows)) << typed;
    }
    EXPECT_EQ(bar->value(), 4);

    // A sum one above the largest is refused with a message and the offer stays open.
    fill(QStringLiteral("txtOferta"), QStringLiteral("2147483648"));
    m_dialogs.clear();
    click(QStringLiteral("cmdfichar"));
    EXPECT_EQ(m_dialogs.texts().size(), 1);
    EXPECT_EQ(count("selects"), 0);
    EXPECT_EQ(m_navigator->current()->objectName(), kOffer);
    fill(QStringLiteral("txtOferta"), QStringLiteral("99999999999999999999999"));
    hold(QStringLiteral("subeoferta"), 1);
    click(QStringLiteral("cmdfichar"));
    EXPECT_EQ(count("selects"), 0);

    // The largest itself is an offer like any other.
    fill(QStringLiteral("txtOferta"), QStringLiteral("2147483647"));
    m_dialogs.clear();
    click(QStringLiteral("cmdfichar"));
    EXPECT_TRUE(m_dialogs.texts().isEmpty());
    ASSERT_EQ(count("selects"), 1);
    EXPECT_EQ(m_store->text("select oferta || '/' || clausula || '/' || ficha || '/' || jugador from selects"),
              QStringLiteral("2147483647/1234/44/%1").arg(player));
    EXPECT_TRUE(m_store->text("select \"select\" from selects").contains(QStringLiteral(" años_contrato=4 ")));
    EXPECT_EQ(m_navigator->screen(kOffer), nullptr);
    EXPECT_EQ(m_navigator->current()->objectName(), kPanel);
}
