#include "stadiumscreen.h"

#include "common/indexedlabel.h"
#include "common/plainlabel.h"
#include "common/theme.h"
#include "stadium/prices.h"
#include "stadium/stadiumpicture.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include <span>

namespace ui {

namespace {

const QSize kPictureSize(360, 236);

using Choice = game::Works::Choice;
using Item = game::Works::Item;

// Equipment boxes 6 to 16 are one choice, service boxes 17 to 26 another: a click on one
// clears the rest of its choice, also in the frames out of sight, so one press of
// "APLICAR REMODELACIÓN" orders at most one work of each group.
constexpr int kFirstEquipment = 6;
constexpr int kFirstService = 17;
constexpr int kBoxes = 26;

// The choice of the stadium that each box, Option1 to Option26, stands for.
constexpr std::array<Choice, kBoxes> kChoiceOfBox{
    Choice::Seats1000,        Choice::Seats2000,      Choice::Seats4000,            Choice::NoParking,
    Choice::Parking,          Choice::Lights170kW,    Choice::Lights300kW,          Choice::Lights500kW,
    Choice::Heating,          Choice::NoHeating,      Choice::VideoScoreboard,      Choice::ElectronicScoreboard,
    Choice::ManualScoreboard, Choice::WideAccess,     Choice::FunctionalAccess,     Choice::BasicAccess,
    Choice::BasicInfirmary,   Choice::FullInfirmary,  Choice::IntensiveCare,        Choice::NoShop,
    Choice::Shop,             Choice::NoCafeterias,   Choice::Cafeterias,           Choice::OneToilet,
    Choice::FifteenToilets,   Choice::FortyToilets};

// An inner frame of the equipment or the services: its button, its frame and its boxes in the
// order they are shown (the lowest step first).
struct ItemFrame
{
    Item item;
    const char *button;
    const char *buttonCaption;
    const char *frame;
    const char *frameCaption;
    std::array<int, 3> boxes; // 0: no box
};

const ItemFrame kEquipment[] = {{Item::Lights, "cmdFocos", "Focos", "focos", "Focos", {6, 7, 8}},
                                {Item::Scoreboards, "cmdMarcadores", "Marcadores", "Marcadores", "Marcadores", {13, 12, 11}},
                                {Item::Heating, "cmdCalefaccion", "Calefacción", "cale", "Calefacción", {10, 9, 0}},
                                {Item::Access, "cmdAccesos", "Accesos al Estadio", "Accesos", "Accesos", {16, 15, 14}}};
const ItemFrame kServices[] = {{Item::Infirmary, "cmdEnfermería", "Enfermería", "Enfermeria", "Enfermería", {17, 18, 19}},
                               {Item::Shop, "cmdTienda", "Tienda del Club", "Tienda", "Tienda del Club", {20, 21, 0}},
                               {Item::Cafeterias, "cmdCafetería", "Cafetería", "Cafeteria", "Cafetería", {22, 23, 0}},
                               {Item::Toilets, "cmdWc", "W.C.", "wc", "W. C.", {24, 25, 26}}};

// The frame that holds an item's boxes: the seats and the parking have frames of their own.
QString frameOf(Item item)
{
    if (item == Item::Seats)
        return QStringLiteral("gradas");
    if (item == Item::Parking)
        return QStringLiteral("Parking");
    for (const auto &frames : {std::span<const ItemFrame>(kEquipment), std::span<const ItemFrame>(kServices)}) {
        for (const ItemFrame &frame : frames) {
            if (frame.item == item)
                return QString::fromUtf8(frame.frame);
        }
    }
    return {};
}

// The rows of "Estado de las Obras", by the item of a work: its name cell (with the index
// of the repeated name labels), its price and weeks cells, and the name the row carries.
struct WorksRow
{
    Item item;
    const char *nameCell;
    int nameIndex; // -1: a single label
    const char *priceCell;
    const char *weeksCell;
    int index;     // of the price and weeks cells; -1: single labels
    const char *name;
};

const WorksRow kWorksRows[] = {
    {Item::Seats, "lblAsientos", -1, "gpagar", "gsemanas", -1, ""},
    {Item::Parking, "lblParking", -1, "Ppagar", "psemanas", -1, ""},
    {Item::Lights, "lblEquipamiento", 0, "EPF", "EFS", 0, "  FOCOS"},
    {Item::Heating, "lblEquipamiento", 1, "EPF", "EFS", 1, "  CALEFACCIÓN"},
    {Item::Scoreboards, "lblEquipamiento", 2, "EPF", "EFS", 2, "  MARCADORES"},
    {Item::Access, "lblEquipamiento", 3, "EPF", "EFS", 3, "  ACCESOS"},
    {Item::Infirmary, "lblServicios", 4, "SEP", "SES", 0, "  ENFERMERIA"},
    {Item::Shop, "lblServicios", 5, "SEP", "SES", 1, "  TIENDA"},
    {Item::Toilets, "lblServicios", 6, "SEP", "SES", 2, "  LAVABOS"},
    {Item::Cafeterias, "lblServicios", 7, "SEP", "SES", 3, "  CAFETERÍA"},
};

QString boxName(int number)
{
    return QStringLiteral("Option%1").arg(number);
}

QLabel *value(const char *name)
{
    QLabel *label = theme::label("value");
    label->setObjectName(QString::fromLatin1(name));
    return label;
}

QPushButton *button(const QString &name, const QString &caption, bool secondary = true)
{
    auto *widget = new QPushButton(caption);
    widget->setObjectName(name);
    if (secondary)
        widget->setProperty("role", QStringLiteral("secondary"));
    return widget;
}

QGroupBox *frame(const QString &name, const QString &caption, QWidget *parent)
{
    auto *box = new QGroupBox(caption, parent);
    box->setObjectName(name);
    return box;
}

// One level of frames: each button shows its own frame and hides the others, and is marked
// while its frame is on show.
using Level = std::vector<std::pair<QPushButton *, QWidget *>>;

void showOnly(const Level &level, QWidget *shown)
{
    // Hide first, or for a moment two frames ask for room and the window grows.
    for (const auto &[button, frame] : level) {
        if (frame != shown)
            frame->setVisible(false);
    }
    // A frame never hidden needs no showing: showing it before the screen is on show would
    // style it twice, there and again on the screen.
    for (const auto &[button, frame] : level) {
        if (frame == shown && frame->isHidden() && frame->testAttribute(Qt::WA_WState_ExplicitShowHide))
            frame->setVisible(true);
        theme::restyle(button, "open", frame == shown);
    }
}

void linkLevel(const Level &level)
{
    for (const auto &[button, frame] : level)
        QObject::connect(button, &QPushButton::clicked, frame, [level, frame] { showOnly(level, frame); });
    showOnly(level, level.front().second);
}

// The equipment or the services: a button for each item beside the item's frame, one frame
// on show at a time.
QGroupBox *itemsFrame(const char *name, const QString &caption, std::span<const ItemFrame> items,
                      const std::array<QAbstractButton *, kBoxes> &boxes, QWidget *parent)
{
    QGroupBox *group = frame(QString::fromLatin1(name), caption, parent);
    Level level;
    for (const ItemFrame &item : items) {
        QGroupBox *inner = frame(QString::fromUtf8(item.frame), QString::fromUtf8(item.frameCaption), group);
        auto *layout = new QVBoxLayout(inner);
        layout->setContentsMargins(16, 14, 16, 10);
        layout->setSpacing(8);
        for (int number : item.boxes) {
            if (number)
                layout->addWidget(boxes[std::size_t(number - 1)]);
        }
        // The price and the weeks of these works are told only once they are under way.
        auto *terms = new QGridLayout;
        terms->setHorizontalSpacing(10);
        terms->addWidget(theme::fieldCaption(StadiumScreen::tr("Precio:")), 0, 0);
        terms->addWidget(plainLabel(), 0, 1);
        terms->addWidget(theme::fieldCaption(StadiumScreen::tr("Semanas:")), 1, 0);
        terms->addWidget(plainLabel(), 1, 1);
        terms->setColumnStretch(1, 1);
        layout->addSpacing(4);
        layout->addLayout(terms);
        level.push_back({button(QString::fromUtf8(item.button), QString::fromUtf8(item.buttonCaption)), inner});
    }

    auto *buttons = new QVBoxLayout;
    buttons->setSpacing(8);
    auto *frames = new QVBoxLayout;
    for (const auto &[widget, shown] : level) {
        widget->setFixedWidth(190);
        buttons->addWidget(widget);
        frames->addWidget(shown);
    }
    buttons->addStretch();
    frames->addStretch();
    linkLevel(level);

    auto *layout = new QHBoxLayout(group);
    layout->setContentsMargins(14, 14, 14, 10);
    layout->setSpacing(14);
    layout->addLayout(buttons);
    layout->addLayout(frames, 1);
    return group;
}

} // namespace

StadiumScreen::StadiumScreen(game::Context context, game::Week &week, QWidget *parent)
    : Page("estadios", tr("Remodelar Estadio"), tr("REMODELAR ESTADIO"), parent), m_context(context),
      m_week(week), m_seats(new QButtonGroup(this)), m_parking(new QButtonGroup(this))
{
    setFrame(24, 12, 8);
    for (int number = 1; number <= kBoxes; ++number)
        m_boxes[std::size_t(number - 1)] = makeBox(number);

    m_works = buildWorks();
    m_remodel = buildRemodel();
    m_matchDay = buildMatchDay();

    // What stands beside every frame: the stadium, its picture, and the way between frames.
    m_picture = plainLabel();
    m_picture->setObjectName(QStringLiteral("img"));
    m_picture->setFixedSize(kPictureSize);
    QLabel *name = value("lblEstadio");
    name->setWordWrap(true);
    auto *facts = new QGridLayout;
    facts->setHorizontalSpacing(10);
    facts->addWidget(theme::fieldCaption(tr("AFORO:")), 0, 0);
    facts->addWidget(value("lblAforo"), 0, 1);
    facts->addWidget(theme::fieldCaption(tr("PARKING:")), 1, 0);
    facts->addWidget(value("lblSIparking"), 1, 1);
    facts->setColumnStretch(1, 1);

    auto *works = button(QStringLiteral("cmdObras"), tr("OBRAS"));
    auto *remodel = button(QStringLiteral("cmdRemodelar"), tr("REMODELAR"));
    auto *matchDay = button(QStringLiteral("cmdPartido"), tr("DÍA DE PARTIDO"));
    matchDay->setToolTip(tr("Precios de las entradas y de la publicidad, en las semanas en que juegas en casa"));
    auto *apply = button(QStringLiteral("cmdYA"), tr("APLICAR REMODELACIÓN"), false);
    apply->setToolTip(tr("Encarga las obras marcadas"));

    const Level mainLevel = {{works, m_works}, {remodel, m_remodel}, {matchDay, m_matchDay}};
    connect(works, &QPushButton::clicked, this, [mainLevel, this] { showOnly(mainLevel, m_works); });
    connect(remodel, &QPushButton::clicked, this, [mainLevel, this] { showOnly(mainLevel, m_remodel); });
    // Prices are set only in a week when the club plays at home; otherwise the button does
    // nothing.
    connect(matchDay, &QPushButton::clicked, this, [mainLevel, this] {
        if (game::Prices::homeWeek(m_week.fixture(), m_week.career()))
            showOnly(mainLevel, m_matchDay);
    });
    showOnly(mainLevel, m_works);
    connect(apply, &QPushButton::clicked, this, &StadiumScreen::orderWorks);

    auto *side = new QVBoxLayout;
    side->setSpacing(8);
    side->addWidget(m_picture);
    side->addWidget(name);
    side->addLayout(facts);
    side->addSpacing(10);
    for (QPushButton *widget : {works, remodel, matchDay})
        side->addWidget(widget);
    side->addStretch();
    side->addWidget(apply);

    auto *frames = new QVBoxLayout;
    frames->addWidget(m_works);
    frames->addWidget(m_remodel);
    frames->addWidget(m_matchDay);

    auto *body = new QHBoxLayout;
    body->setSpacing(22);
    body->addLayout(side);
    body->addLayout(frames, 1);

    addLayout(body, 1);
    load();
}

QAbstractButton *StadiumScreen::makeBox(int number)
{
    const QString caption = game::Works::caption(kChoiceOfBox[std::size_t(number - 1)]);
    QAbstractButton *box = nullptr;
    if (number <= 5) {
        box = new QRadioButton(caption);
        (number <= 3 ? m_seats : m_parking)->addButton(box);
    } else {
        box = new QCheckBox(caption);
        const int first = number < kFirstService ? kFirstEquipment : kFirstService;
        const int last = number < kFirstService ? kFirstService - 1 : kBoxes;
        connect(box, &QAbstractButton::clicked, this, [this, number, first, last] {
            for (int other = first; other <= last; ++other) {
                if (other != number)
                    m_boxes[std::size_t(other - 1)]->setChecked(false);
            }
        });
    }
    box->setObjectName(boxName(number));
    return box;
}

QGroupBox *StadiumScreen::buildWorks()
{
    QGroupBox *table = frame(QStringLiteral("Obras"), tr("Estado de las Obras"), this);
    auto *grid = new QGridLayout(table);
    grid->setContentsMargins(16, 14, 16, 10);
    grid->setHorizontalSpacing(8);
    grid->setVerticalSpacing(5);
    grid->addWidget(theme::label("caption", tr("PRECIO")), 0, 1, Qt::AlignCenter);
    grid->addWidget(theme::label("caption", tr("SEM")), 0, 2, Qt::AlignCenter);
    grid->setColumnStretch(0, 1);
    grid->setColumnMinimumWidth(1, 170);
    grid->setColumnMinimumWidth(2, 80);

    auto cell = [](const char *name, int index) {
        QLabel *label = index < 0 ? plainLabel() : indexed::label(name, index);
        if (index < 0)
            label->setObjectName(QString::fromLatin1(name));
        label->setProperty("role", QStringLiteral("work"));
        return label;
    };
    const std::pair<int, const char *> blocks[] = {
        {0, "GRADAS"}, {1, "PARKING"}, {2, "EQUIPAMIENTO"}, {6, "SERVICIOS"}};
    int row = 1;
    for (std::size_t i = 0; i < std::size(kWorksRows); ++i) {
        for (const auto &[first, heading] : blocks) {
            if (std::size_t(first) == i)
                grid->addWidget(theme::label("caption", QString::fromUtf8(heading)), row++, 0);
        }
        const WorksRow &line = kWorksRows[i];
        QLabel *nameCell = cell(line.nameCell, line.nameIndex);
        nameCell->setText(QString::fromUtf8(line.name));
        QLabel *price = cell(line.priceCell, line.index);
        price->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        QLabel *weeks = cell(line.weeksCell, line.index);
        weeks->setAlignment(Qt::AlignCenter);
        grid->addWidget(nameCell, row, 0);
        grid->addWidget(price, row, 1);
        grid->addWidget(weeks, row++, 2);
    }
    grid->setRowStretch(row, 1);
    return table;
}

QGroupBox *StadiumScreen::buildRemodel()
{
    QGroupBox *remodel = frame(QStringLiteral("Remodelar"), tr("Remodelar"), this);
    QGroupBox *seats = buildSeats(remodel);
    QGroupBox *parking = buildParking(remodel);
    QGroupBox *equipment = itemsFrame("Equipamiento", tr("Equipamiento"), kEquipment, m_boxes, remodel);
    QGroupBox *services = itemsFrame("Servicios", tr("Extras"), kServices, m_boxes, remodel);

    auto *reset = button(QStringLiteral("cmdReesTablecer"), tr("REESTABLECER"));
    reset->setToolTip(tr("Quita todas las marcas"));
    connect(reset, &QPushButton::clicked, this, &StadiumScreen::clearBoxes);

    const Level level = {{button(QStringLiteral("cmdGradas"), tr("GRADAS")), seats},
                         {button(QStringLiteral("cmdParking"), tr("PARKING")), parking},
                         {button(QStringLiteral("cmdEquipamiento"), tr("EQUIPAMIENTO")), equipment},
                         {button(QStringLiteral("cmdServicios"), tr("SERVICIOS")), services}};
    auto *buttons = new QVBoxLayout;
    buttons->setSpacing(8);
    for (const auto &[widget, shown] : level) {
        widget->setFixedWidth(170);
        buttons->addWidget(widget);
    }
    buttons->addStretch();
    reset->setFixedWidth(170);
    buttons->addWidget(reset);

    auto *frames = new QVBoxLayout;
    for (const auto &[widget, shown] : level)
        frames->addWidget(shown);
    frames->addStretch();
    QLabel *hint = theme::label("hint", tr("Marca una mejora de cada grupo y pulsa «APLICAR REMODELACIÓN». "
                                           "Cada obra se paga cuando termina."));
    hint->setWordWrap(true);
    frames->addWidget(hint);
    linkLevel(level);

    auto *layout = new QHBoxLayout(remodel);
    layout->setContentsMargins(14, 14, 14, 12);
    layout->setSpacing(16);
    layout->addLayout(buttons);
    layout->addLayout(frames, 1);
    return remodel;
}

QGroupBox *StadiumScreen::buildSeats(QWidget *parent)
{
    QGroupBox *seats = frame(QStringLiteral("gradas"), tr("Gradas"), parent);
    // What the screen promises for each extension; the works themselves take two weeks more.
    const char *promises[] = {"       1 Millón de €                       10 Semanas",
                              "       5 Millones de €                   15 Semanas",
                              "       10 Millones de €                 20 Semanas"};
    auto *grid = new QGridLayout(seats);
    grid->setContentsMargins(16, 16, 16, 12);
    grid->setHorizontalSpacing(20);
    grid->setVerticalSpacing(12);
    for (int i = 0; i < 3; ++i) {
        grid->addWidget(m_boxes[std::size_t(i)], i, 0);
        grid->addWidget(theme::label("muted", QString::fromUtf8(promises[i])), i, 1);
    }
    grid->setColumnStretch(1, 1);
    return seats;
}

QGroupBox *StadiumScreen::buildParking(QWidget *parent)
{
    QGroupBox *parking = frame(QStringLiteral("Parking"), tr("Parking"), parent);
    auto *layout = new QVBoxLayout(parking);
    layout->setContentsMargins(16, 16, 16, 12);
    layout->setSpacing(12);
    layout->addWidget(m_boxes[3]);
    layout->addWidget(m_boxes[4]);
    return parking;
}

QGroupBox *StadiumScreen::buildMatchDay()
{
    QGroupBox *matchDay = frame(QStringLiteral("Entradas"), tr("Entradas"), this);
    QLabel *title = theme::label("title", tr("DÍA DE PARTIDO"));
    title->setAlignment(Qt::AlignCenter);
    QLabel *stadium = value("lblEstadio2");
    stadium->setAlignment(Qt::AlignCenter);
    QLabel *home = value("lblEquipoLoc");
    home->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    QLabel *away = value("lblEquipoVis");
    QLabel *type = theme::label("section");
    type->setObjectName(QStringLiteral("lblTipo"));
    type->setAlignment(Qt::AlignCenter);
    auto *fixture = new QHBoxLayout;
    fixture->addWidget(home, 1);
    fixture->addWidget(theme::label("versus", QStringLiteral("vs")));
    fixture->addWidget(away, 1);

    // A price is stepped by its buttons and written at each press; the field only shows it.
    auto priceField = [](const char *name) {
        auto *field = new QLineEdit;
        field->setObjectName(QString::fromLatin1(name));
        field->setReadOnly(true);
        field->setFocusPolicy(Qt::NoFocus);
        field->setAlignment(Qt::AlignCenter);
        field->setFixedWidth(90);
        return field;
    };
    m_ticket = priceField("txtEntrada");
    m_boards = priceField("txtVallas");
    auto *cheaper = button(QStringLiteral("cmdmenos"), QStringLiteral("-"), false);
    auto *dearer = button(QStringLiteral("cmdmas"), QStringLiteral("+"), false);
    auto *fewer = button(QStringLiteral("cmdReducir"), QStringLiteral("-"), false);
    auto *more = button(QStringLiteral("cmdAumentar"), QStringLiteral("+"), false);
    cheaper->setToolTip(tr("Bajar 5 € la entrada"));
    dearer->setToolTip(tr("Subir 5 € la entrada"));
    fewer->setToolTip(tr("Bajar 100 € la valla"));
    more->setToolTip(tr("Subir 100 € la valla"));
    connect(cheaper, &QPushButton::clicked, this,
            [this] { m_ticket->setText(QString::number(game::Prices(m_context).lowerTicket())); });
    connect(dearer, &QPushButton::clicked, this,
            [this] { m_ticket->setText(QString::number(game::Prices(m_context).raiseTicket())); });
    connect(fewer, &QPushButton::clicked, this,
            [this] { m_boards->setText(QString::number(game::Prices(m_context).lowerBoards())); });
    connect(more, &QPushButton::clicked, this,
            [this] { m_boards->setText(QString::number(game::Prices(m_context).raiseBoards())); });

    auto *prices = new QGridLayout;
    prices->setHorizontalSpacing(10);
    prices->setVerticalSpacing(10);
    auto addPrice = [prices](int row, const QString &heading, const QString &caption, QPushButton *down,
                             QLineEdit *field, QPushButton *up) {
        prices->addWidget(theme::label("section", heading), row, 0, 1, 6);
        prices->addWidget(theme::fieldCaption(caption), row + 1, 0);
        prices->addWidget(down, row + 1, 1);
        prices->addWidget(field, row + 1, 2);
        prices->addWidget(plainLabel(QStringLiteral("€")), row + 1, 3);
        prices->addWidget(up, row + 1, 4);
    };
    addPrice(0, tr("PRECIO DE LAS ENTRADAS"), tr("PRECIO:"), cheaper, m_ticket, dearer);
    prices->setRowMinimumHeight(2, 18);
    addPrice(3, tr("PRECIO PUBLICIDAD"), tr("PRECIO PUBLICIDAD:"), fewer, m_boards, more);
    prices->setColumnStretch(5, 1);

    auto *layout = new QVBoxLayout(matchDay);
    layout->setContentsMargins(30, 18, 30, 14);
    layout->setSpacing(10);
    layout->addWidget(title);
    layout->addWidget(stadium);
    layout->addLayout(fixture);
    layout->addWidget(type);
    layout->addSpacing(20);
    layout->addLayout(prices);
    layout->addStretch();
    return matchDay;
}

void StadiumScreen::load()
{
    const game::Works::Screen screen = game::Works(m_context).screen();
    const QString name = screen.stadium.name;
    findChild<QLabel *>(QStringLiteral("lblEstadio"))->setText(name);
    findChild<QLabel *>(QStringLiteral("lblEstadio2"))->setText(name);
    findChild<QLabel *>(QStringLiteral("lblAforo"))->setText(QString::number(screen.stadium.capacity) + tr("Asientos"));
    findChild<QLabel *>(QStringLiteral("lblSIparking"))->setText(screen.parkingText);
    m_picture->setPixmap(stadiumPicture(screen.picture, kPictureSize));

    for (std::size_t box = 0; box < m_boxes.size(); ++box) {
        m_boxes[box]->setEnabled(screen.offers(kChoiceOfBox[box]));
        if (screen.isTicked(kChoiceOfBox[box]))
            m_boxes[box]->setChecked(true);
    }
    for (const Item closed : screen.closed) {
        if (auto *group = findChild<QGroupBox *>(frameOf(closed)))
            group->setEnabled(false);
    }
    for (const game::Works::UnderWay &work : screen.underWay)
        showUnderWay(work);

    // The match of the week, for the prices' frame.
    const std::optional<game::Fixture> &fixture = m_week.fixture();
    findChild<QLabel *>(QStringLiteral("lblEquipoLoc"))->setText(m_week.career().clubName);
    findChild<QLabel *>(QStringLiteral("lblEquipoVis"))->setText(fixture ? fixture->awayName : QString());
    findChild<QLabel *>(QStringLiteral("lblTipo"))->setText(fixture ? fixture->typeText() : QString());
    game::Prices prices(m_context);
    m_ticket->setText(QString::number(prices.ticket()));
    m_boards->setText(QString::number(prices.boards()));
}

void StadiumScreen::showUnderWay(const game::Works::UnderWay &work)
{
    for (const WorksRow &line : kWorksRows) {
        if (work.item != line.item)
            continue;
        auto cellOf = [this](const char *name, int index) {
            return index < 0 ? findChild<QLabel *>(QString::fromLatin1(name))
                             : indexed::find(this, QString::fromLatin1(name), index);
        };
        QLabel *nameCell = cellOf(line.nameCell, line.nameIndex);
        QLabel *price = cellOf(line.priceCell, line.index);
        QLabel *weeks = cellOf(line.weeksCell, line.index);
        // The seats' row names the seats being added; the parking's row the four parkings.
        if (work.item == Item::Seats)
            nameCell->setText(work.level);
        else if (work.item == Item::Parking)
            nameCell->setText(tr("4 Parkings"));
        price->setText(QString::number(work.cost));
        weeks->setText(QString::number(work.weeksLeft));
        nameCell->setProperty("underway", QStringLiteral("name"));
        price->setProperty("underway", QStringLiteral("price"));
        weeks->setProperty("underway", QStringLiteral("weeks"));
        return;
    }
}

void StadiumScreen::clearBoxes()
{
    // A radio group keeps one of its buttons on; it lets go only while it is not exclusive.
    for (QButtonGroup *group : {m_seats, m_parking})
        group->setExclusive(false);
    for (QAbstractButton *box : m_boxes)
        box->setChecked(false);
    for (QButtonGroup *group : {m_seats, m_parking})
        group->setExclusive(true);
}

void StadiumScreen::orderWorks()
{
    // The boxes stay as they are and the screen is not read again: a work ordered now shows
    // under way, and closes its group, the next time the screen opens.
    std::vector<game::Works::Choice> ticked;
    for (std::size_t box = 0; box < m_boxes.size(); ++box) {
        if (m_boxes[box]->isChecked())
            ticked.push_back(kChoiceOfBox[box]);
    }
    game::Works(m_context).order(ticked);
}

} // namespace ui
