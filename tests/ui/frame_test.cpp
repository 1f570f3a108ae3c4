// What every screen shares: the page's frame (its title, heading and way back, Escape too),
// the look the style sheet gives by role, the pictures kept once drawn, and the grids.

#include "common/artwork.h"
#include "common/grid.h"
#include "common/rowsmodel.h"
#include "common/theme.h"
#include "screenfixture.h"
#include "stadium/stadiumpicture.h"

#include <QVBoxLayout>

namespace {

struct Frame
{
    const char *name;
    const char *title;
    const char *heading;
    const char *back;
    const char *backCaption;
};

// Every page of the week's screens, opened over the panel as its buttons and lists open them.
const Frame kFrames[] = {
    {"Alinear", "Preparando Partido", "PREPARANDO PARTIDO", "cmdVOLVER", "<- VOLVER"},
    {"Tactica", "Táctica", "TÁCTICA", "cmdVOLVER", "<- VOLVER"},
    {"Plantilla", "LA PLANTILLA", "LA PLANTILLA", "cmdVOLVER", "<- VOLVER"},
    {"Renovar", "Situación en el Club", "SITUACIÓN EN EL CLUB", "cmdCancelar", "CANCELAR"},
    {"Juveniles", "Búsqueda de Jóvenes Promesas", "BÚSQUEDA DE JÓVENES PROMESAS", "cmdVOLVER", "<- VOLVER"},
    {"Calendario", "El Calendario", "EL CALENDARIO", "cmdVOLVER", "<- VOLVER"},
    {"Clasificacion", "La Clasificación", "LA CLASIFICACIÓN", "cmdVOLVER", "<- VOLVER"},
    {"Resultados", "Resultados", "RESULTADOS ASOBAL", "cmdVOLVER", "<- VOLVER"},
    {"Caja", "LA CAJA", "LA CAJA", "cmdVOLVER", "<- VOLVER"},
    {"estadios", "Remodelar Estadio", "REMODELAR ESTADIO", "cmdVOLVER", "<- VOLVER"},
    {"Fichar_EnVenta", "JUGADORES A LA VENTA", "JUGADORES A LA VENTA", "cmdVOLVER", "<- VOLVER"},
    {"Fichar", "Fichajes", "OFERTAS", "cmdVOLVER", "<- VOLVER"},
    {"Secretario", "SECRETARIO TÉCNICO", "SECRETARIO TÉCNICO", "cmdVOLVER", "<- VOLVER"},
    {"Fichar_Jugadores", "Fichar Jugador", "FICHAR JUGADOR", "cmdCancelar", "CANCELAR"},
};

QColor textColour(QWidget *widget)
{
    widget->ensurePolished();
    return widget->palette().color(QPalette::WindowText);
}

} // namespace

class Frames : public ScreenTest
{};

// Guards: a page without its heading or title, a way back with another name or caption or in
// the amber of a screen's own act, Escape that does nothing or something else, and a page that
// spills out of the window or overlaps itself.
TEST_F(Frames, everyPageHasItsTitleHeadingAndWayBackAndEscapeLeavesIt)
{
    reachFirstLeagueWeek();
    const QString panel = QStringLiteral("Panel_Control_Manager");
    const int player = int(m_store->integer("select min(idjugador) from jugadores where idequipo = ?", club()));
    for (const Frame &frame : kFrames) {
        const QString name = QString::fromLatin1(frame.name);
        const bool aboutAPlayer = name == QStringLiteral("Renovar") || name == QStringLiteral("Fichar_Jugadores");
        ASSERT_NE(m_navigator->open(name, aboutAPlayer ? QVariant(player) : QVariant()), nullptr) << frame.name;
        settle();
        QWidget *page = m_navigator->current();
        ASSERT_EQ(page->objectName(), name);
        EXPECT_EQ(m_window->windowTitle(), QString::fromUtf8(frame.title)) << frame.name;
        QStringList headings;
        for (QLabel *label : page->findChildren<QLabel *>()) {
            if (label->property("role") == QStringLiteral("heading"))
                headings << label->text();
        }
        EXPECT_EQ(headings, QStringList{QString::fromUtf8(frame.heading)}) << frame.name;
        auto *back = page->findChild<QPushButton *>(QString::fromLatin1(frame.back));
        ASSERT_NE(back, nullptr) << frame.name;
        EXPECT_EQ(back->text(), QString::fromUtf8(frame.backCaption)) << frame.name;
        EXPECT_EQ(back->property("role"), QStringLiteral("secondary")) << frame.name;
        expectTidy(name);

        QTest::keyClick(page, Qt::Key_Escape);
        settle();
        EXPECT_EQ(m_navigator->current()->objectName(), panel) << frame.name;
    }
    // The planner's way back leads to the menu, Escape too.
    m_navigator->open(QStringLiteral("Pretemporada"));
    settle();
    ASSERT_EQ(m_navigator->current()->objectName(), QStringLiteral("Pretemporada"));
    EXPECT_EQ(find<QPushButton>(QStringLiteral("cmdVOLVER"))->text(), QStringLiteral("VOLVER"));
    chooseClub("cmdFrancia", 0);
    expectTidy(QStringLiteral("Pretemporada"));
    QTest::keyClick(m_navigator->current(), Qt::Key_Escape);
    settle();
    EXPECT_EQ(m_navigator->current()->objectName(), QStringLiteral("Form1"));
}

// Guards: a sheet handed to Qt with a colour left unnamed (Qt drops the whole declaration), or
// a role painted in another colour than the game's.
TEST_F(Frames, theSheetGivesEachRoleItsColour)
{
    const QString sheet = theme::styleSheet();
    ASSERT_FALSE(sheet.isEmpty());
    EXPECT_FALSE(sheet.contains(QLatin1Char('@')));
    EXPECT_EQ(qApp->styleSheet(), sheet);

    const std::pair<const char *, QColor> roles[] = {
        {"heading", theme::kAmber},         {"caption", theme::kAmber},      {"section", theme::kAmber},
        {"field", QColor(0xb9, 0xc3, 0xd8)}, {"hint", QColor(0xb9, 0xc3, 0xd8)}, {"muted", QColor(0xb9, 0xc3, 0xd8)},
        {"value", Qt::white},               {"cell", Qt::white},             {"", QColor(0xf1, 0xf3, 0xf8)},
    };
    QWidget screen;
    for (const auto &[role, colour] : roles) {
        QLabel *label = theme::label(role, QStringLiteral("Texto"), &screen);
        EXPECT_EQ(textColour(label), colour) << role;
        EXPECT_EQ(label->textFormat(), Qt::PlainText) << role;
    }

    // A property changed on a widget on show is painted at once: the user's match in the rounds.
    QWidget rounds;
    rounds.setObjectName(QStringLiteral("Resultados"));
    QLabel *name = theme::label("cell", QStringLiteral("BM VALENCIA"), &rounds);
    name->resize(200, 30);
    rounds.resize(220, 40);
    rounds.show();
    settle();
    EXPECT_EQ(name->grab().toImage().pixelColor(2, 2), QColor(0x16, 0x2a, 0x50));
    theme::restyle(name, "users", true);
    EXPECT_EQ(name->grab().toImage().pixelColor(2, 2), QColor(192, 192, 0));
    EXPECT_EQ(textColour(name), QColor(0x10, 0x20, 0x3f));
}

// Guards: a picture drawn again at every opening, or one kept for another club or size.
TEST_F(Frames, picturesAreDrawnOnceForEachSize)
{
    const QSize small(22, 22), large(150, 150);
    EXPECT_EQ(artwork::crest(3, small).cacheKey(), artwork::crest(3, small).cacheKey());
    EXPECT_NE(artwork::crest(3, small).cacheKey(), artwork::crest(4, small).cacheKey());
    EXPECT_EQ(artwork::crest(3, large).size(), large);
    EXPECT_NE(artwork::crest(3, large).toImage(), artwork::crest(4, large).toImage());
    EXPECT_EQ(artwork::flag(5, QSize(96, 64)).cacheKey(), artwork::flag(5, QSize(96, 64)).cacheKey());
    EXPECT_EQ(ui::stadiumPicture(7, QSize(360, 236)).cacheKey(), ui::stadiumPicture(7, QSize(360, 236)).cacheKey());
    EXPECT_NE(ui::stadiumPicture(7, QSize(360, 236)).toImage(), ui::stadiumPicture(8, QSize(360, 236)).toImage());
    EXPECT_EQ(artwork::title(QSize(640, 360)).size(), QSize(640, 360));
    EXPECT_EQ(artwork::title(QSize(640, 360)).cacheKey(), artwork::title(QSize(640, 360)).cacheKey());
}

// Guards: a grid filled before its screen is shown that keeps the widths it had unstyled, or
// whose last column no longer takes up the room left; a row that does not give back its own
// struct.
TEST_F(Frames, aGridFilledBeforeItShowsFitsItsColumnsAndFillsItsWidth)
{
    struct Row
    {
        int id;
        QString name;
    };
    auto *rows = new RowsModel<Row>({{QStringLiteral("Nº"), [](const Row &r) { return QString::number(r.id); }},
                                     {QStringLiteral("Nombre"), [](const Row &r) { return r.name; }},
                                     {QStringLiteral("Equipo"), [](const Row &) { return QStringLiteral("-"); }}});
    QWidget screen;
    auto *grid = new ui::Grid("DataGrid1", &screen);
    rows->setParent(grid);
    grid->setModel(rows);
    rows->setRows({{1300, QStringLiteral("Maximiliano Fernández de la Santísima Trinidad")}, {7, QStringLiteral("Ana")}});
    grid->fitColumns();
    (new QVBoxLayout(&screen))->addWidget(grid);
    screen.resize(900, 300);
    screen.show();
    settle();
    EXPECT_EQ(rows->row(0).id, 1300);
    EXPECT_EQ(rows->data(rows->index(1, 1), Qt::ToolTipRole), QStringLiteral("Ana"));
    EXPECT_EQ(rows->headerData(2, Qt::Horizontal, Qt::DisplayRole), QStringLiteral("Equipo"));
    int widths = 0;
    for (int column = 0; column < 3; ++column) {
        EXPECT_GE(grid->columnWidth(column), static_cast<QAbstractItemView *>(grid)->sizeHintForColumn(column)) << column;
        widths += grid->columnWidth(column);
    }
    EXPECT_EQ(widths, grid->viewport()->width());
    EXPECT_GT(grid->columnWidth(2), static_cast<QAbstractItemView *>(grid)->sizeHintForColumn(2));
}
