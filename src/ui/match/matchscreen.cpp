#include "matchscreen.h"

#include "common/clickablelabel.h"
#include "common/indexedlabel.h"
#include "common/plainlabel.h"
#include "dialogs.h"
#include "match/matchday.h"
#include "match/tactics.h"

#include <QCloseEvent>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

namespace ui {

namespace {

const QString kRestingRow = QStringLiteral("background: rgb(192, 192, 192); color: #10203f; padding: 2px 6px;");
const QString kPickedRow = QStringLiteral("background: rgb(255, 0, 0); color: #ffffff; padding: 2px 6px;");

QLabel *heading(const QString &text)
{
    QLabel *label = plainLabel(text);
    label->setStyleSheet(QStringLiteral("color: #e8a33d; font-weight: bold;"));
    return label;
}

// A name from the store (a club, a player) is cut with "…" where the layout has no room for
// it (see ElidedLabel); the whole name is in its tooltip.
void setNamed(QLabel *label, const QString &text)
{
    label->setText(text);
    label->setToolTip(text);
}

// Two-entry widgets: entry 0 the home club's, entry 1 the away club's.
QLabel *sideLabel(const char *name, int side, const QString &style)
{
    QLabel *label = new ElidedLabel;
    label->setObjectName(QString::fromLatin1(name));
    label->setProperty("index", side);
    label->setAlignment(Qt::AlignCenter);
    label->setStyleSheet(style);
    return label;
}

QColor lineColour(game::MatchEngine::Line::Kind kind)
{
    using Kind = game::MatchEngine::Line::Kind;
    switch (kind) {
    case Kind::User:
        return QColor(200, 0, 0);
    case Kind::Rival:
        return QColor(0, 0, 200);
    case Kind::Period:
        return QColor(0, 140, 0);
    case Kind::Announcement:
        break;
    }
    return Qt::black;
}

} // namespace

MatchScreen::MatchScreen(game::Context context, game::MatchEngine &engine, const game::Fixture &fixture,
                         const game::Gate::Report &gate, QWidget *parent)
    : QDialog(parent), m_context(context), m_fixture(fixture), m_engine(&engine), m_timer(new QTimer(this))
{
    setObjectName(QStringLiteral("partido"));
    setWindowTitle(tr("Partido"));
    setModal(true);
    m_timer->setObjectName(QStringLiteral("Timer1"));
    m_timer->setInterval(kTickMilliseconds);
    connect(m_timer, &QTimer::timeout, this, &MatchScreen::tick);

    auto *body = new QHBoxLayout;
    body->setSpacing(16);
    body->addWidget(buildRows(), 3);
    body->addWidget(buildSide(), 2);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(16, 10, 16, 10);
    layout->setSpacing(8);
    layout->addWidget(buildScoreboard());
    layout->addLayout(body, 1);

    // The list shows the system the match opened with; the engine has announced it.
    m_system->addItems(game::Tactics::defences());
    m_system->setCurrentIndex(m_system->findText(m_engine->setup().system));
    connect(m_system, &QComboBox::activated, this, [this] { m_engine->announceSystem(m_system->currentText()); refresh(); });
    findChild<QComboBox *>(QStringLiteral("DataCombo1"))->addItems(game::MatchDay(context).squadSurnames());

    // The crowd was settled before a ball is thrown; at home it is in the ledger already.
    showGate(gate);
    refresh();
    setMaximumSize(1280, 720);
    resize(1240, 700);
}

MatchScreen::~MatchScreen() = default;

QWidget *MatchScreen::buildScoreboard()
{
    auto *board = new QWidget;
    board->setStyleSheet(QStringLiteral("background: #07122a; border-radius: 8px;"));
    const QString nameStyle = QStringLiteral("color: #ffffff; font-size: 20px; font-weight: bold; background: transparent;");
    const QString scoreStyle = QStringLiteral("color: #e8a33d; font-size: 34px; font-weight: bold; background: #000000;"
                                              " border-radius: 6px; padding: 2px 14px; font-family: monospace;");
    QLabel *home = sideLabel("lblEquipoLoc", 0, nameStyle);
    setNamed(home, m_fixture.homeName);
    home->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    QLabel *away = sideLabel("lblEquipoVis", 0, nameStyle);
    setNamed(away, m_fixture.awayName);
    away->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    for (int side = 0; side < 2; ++side) {
        m_score[std::size_t(side)] = sideLabel("lblMarcador", side, scoreStyle);
        m_score[std::size_t(side)]->setText(QStringLiteral("0"));
    }
    QLabel *minuteCaption = plainLabel(tr("Minuto:"));
    minuteCaption->setStyleSheet(QStringLiteral("color: #b9c3d8; background: transparent;"));
    m_minute = plainLabel(QStringLiteral("0"));
    m_minute->setObjectName(QStringLiteral("lblmin"));
    m_minute->setStyleSheet(QStringLiteral("color: #ffffff; font-size: 22px; font-weight: bold; background: transparent;"));

    auto *row = new QHBoxLayout(board);
    row->setContentsMargins(16, 8, 16, 8);
    row->addWidget(home, 1);
    row->addSpacing(12);
    row->addWidget(m_score[0]);
    QLabel *dash = plainLabel(QStringLiteral("-"));
    dash->setStyleSheet(QStringLiteral("color: #ffffff; font-size: 28px; background: transparent;"));
    row->addWidget(dash);
    row->addWidget(m_score[1]);
    row->addSpacing(12);
    row->addWidget(away, 1);
    row->addSpacing(20);
    row->addWidget(minuteCaption);
    row->addWidget(m_minute);
    return board;
}

QWidget *MatchScreen::buildRows()
{
    auto *box = new QWidget;
    auto *grid = new QGridLayout(box);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(3);
    grid->setVerticalSpacing(3);
    const char *headers[] = {"POSICIÓN CAMPO:", "NOMBRE JUGADOR:", "POS JUGADOR:", "MEDIA:", "GOLES:"};
    for (int column = 0; column < 5; ++column)
        grid->addWidget(heading(tr(headers[column])), 0, column);
    int gridRow = 1;
    for (int row = 0; row < game::MatchEngine::kRows; ++row) {
        if (row == 0 || row == game::MatchEngine::kStarters) {
            QLabel *section = plainLabel(row == 0 ? tr("TITULARES") : tr("SUPLENTES"));
            section->setStyleSheet(QStringLiteral("color: #ffffff; font-weight: bold; padding-top: 4px;"));
            grid->addWidget(section, gridRow++, 0, 1, 5);
        }
        auto *place = new ClickableLabel(game::MatchEngine::placeCaption(row));
        place->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred); // the captions always fit
        place->setObjectName(QStringLiteral("lblPosicion"));
        place->setProperty("index", row);
        connect(place, &ClickableLabel::pressed, this, [this, row] { pickRow(row); });
        m_places[std::size_t(row)] = place;
        grid->addWidget(place, gridRow, 0);
        for (int entry = 0; entry < 4; ++entry) {
            auto *label = new ClickableLabel;
            label->setObjectName(QString::fromLatin1(game::MatchEngine::rowNames()[std::size_t(row)]));
            label->setProperty("index", entry);
            label->setCursor(Qt::PointingHandCursor);
            connect(label, &ClickableLabel::pressed, this, [this, row] { pickRow(row); });
            m_entries[std::size_t(row)][std::size_t(entry)] = label;
            grid->addWidget(label, gridRow, entry + 1);
        }
        ++gridRow;
    }
    grid->setColumnStretch(1, 3);
    grid->setColumnStretch(2, 2);
    grid->setRowStretch(gridRow, 1);
    paintRows();
    return box;
}

QWidget *MatchScreen::buildSide()
{
    auto *side = new QWidget;
    auto *layout = new QVBoxLayout(side);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(8);

    auto *stats = new QGridLayout;
    const QString nameStyle = QStringLiteral("color: #ffffff; font-weight: bold;");
    const QString valueStyle = QStringLiteral("color: #ffffff; font-size: 16px;");
    QLabel *home = sideLabel("lblEquipoLoc", 1, nameStyle);
    setNamed(home, m_fixture.homeName);
    QLabel *away = sideLabel("lblEquipoVis", 1, nameStyle);
    setNamed(away, m_fixture.awayName);
    stats->addWidget(home, 0, 1);
    stats->addWidget(away, 0, 2);
    stats->addWidget(heading(tr("GOLES/LANZAMIENTOS")), 1, 0);
    stats->addWidget(heading(tr("POSESIÓN")), 2, 0);
    for (int s = 0; s < 2; ++s) {
        m_goals[std::size_t(s)] = sideLabel("lblGoles", s, valueStyle);
        m_possession[std::size_t(s)] = sideLabel("lblPosesion", s, valueStyle);
        stats->addWidget(m_goals[std::size_t(s)], 1, s + 1);
        stats->addWidget(m_possession[std::size_t(s)], 2, s + 1);
    }
    layout->addLayout(stats);

    auto *gate = new QGroupBox(tr("Aforo"));
    gate->setObjectName(QStringLiteral("Aforo"));
    auto *gateGrid = new QGridLayout(gate);
    gateGrid->setVerticalSpacing(2);
    const char *gateLabels[] = {"lblEstadio", "lblAforoEstadio", "lblEntrada", "lblPorcentaje1",
                                "lblRecaudacion1", "lblVallas", "lblPorcentaje2", "lblRecaudacion2"};
    const int places[][2] = {{0, 0}, {0, 1}, {1, 0}, {1, 1}, {2, 0}, {3, 0}, {3, 1}, {4, 0}};
    // The stadium's lines keep these captions when the home club has no stadium on file (a
    // club abroad), so the box never shows its percentages under blank lines.
    const QString designCaptions[] = {tr("Pabellón del equipo local"), tr("AFORO: —"), tr("ENTRADA: —")};
    for (int i = 0; i < 8; ++i) {
        QLabel *label = new ElidedLabel(i < 3 ? designCaptions[i] : QString());
        label->setObjectName(QString::fromLatin1(gateLabels[i]));
        label->setStyleSheet(QStringLiteral("color: #f1f3f8;"));
        gateGrid->addWidget(label, places[i][0], places[i][1]);
    }
    layout->addWidget(gate);

    m_system = new QComboBox;
    m_system->setObjectName(QStringLiteral("Combo1"));
    auto *thrower = new QComboBox;
    thrower->setObjectName(QStringLiteral("DataCombo1"));
    // A long surname must not widen the list, nor the screen with it.
    thrower->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    thrower->setMinimumContentsLength(10);
    auto *choices = new QGridLayout;
    choices->addWidget(heading(tr("Táctica Defensiva:")), 0, 0);
    choices->addWidget(m_system, 1, 0);
    choices->addWidget(heading(tr("Lanzador de 7m:")), 0, 1);
    choices->addWidget(thrower, 1, 1);
    layout->addLayout(choices);

    m_commentary = new QListWidget;
    m_commentary->setObjectName(QStringLiteral("list2"));
    m_commentary->setStyleSheet(QStringLiteral("QListWidget { background: #ffffff; border: 1px solid #3a5486; }"
                                               "QListWidget::item { padding: 1px; }"));
    layout->addWidget(m_commentary, 1);

    m_start = new QPushButton(tr("JUGAR"));
    m_start->setObjectName(QStringLiteral("cmdStart"));
    connect(m_start, &QPushButton::clicked, this, &MatchScreen::startHalf);
    auto *change = new QPushButton(tr("CAMBIAR"));
    change->setObjectName(QStringLiteral("cmdCambiar"));
    change->setProperty("role", QStringLiteral("secondary"));
    change->setToolTip(tr("Cambia el titular elegido por el suplente elegido"));
    connect(change, &QPushButton::clicked, this, &MatchScreen::exchange);
    m_leave = new QPushButton(tr("SALIR"));
    m_leave->setObjectName(QStringLiteral("cmdSalir"));
    connect(m_leave, &QPushButton::clicked, this, &MatchScreen::leave);
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(m_start);
    buttons->addWidget(change);
    buttons->addStretch();
    buttons->addWidget(m_leave);
    layout->addLayout(buttons);
    return side;
}

void MatchScreen::showGate(const game::Gate::Report &gate)
{
    auto set = [this](const char *name, const QString &text) {
        findChild<QLabel *>(QString::fromLatin1(name))->setText(text);
    };
    if (gate.hasStadium) {
        set("lblEstadio", gate.stadium);
        set("lblAforoEstadio", gate.capacityText());
        set("lblEntrada", gate.attendanceText());
    }
    set("lblPorcentaje1", gate.attendancePercentText());
    set("lblRecaudacion1", gate.gateTakingsText());
    set("lblVallas", game::Gate::Report::hoardingsCaption());
    set("lblPorcentaje2", gate.hoardingsPercentText());
    set("lblRecaudacion2", gate.hoardingsTakingsText());
}

void MatchScreen::startHalf()
{
    m_engine->start();
    if (m_engine->running())
        m_timer->start();
    refresh();
}

void MatchScreen::tick()
{
    m_engine->tick();
    refresh();
}

void MatchScreen::pickRow(int row)
{
    m_engine->pick(row);
    paintRows();
}

void MatchScreen::exchange()
{
    m_engine->exchange();
    refresh();
}

void MatchScreen::refresh()
{
    if (!m_engine->running())
        m_timer->stop();
    m_start->setEnabled(m_engine->canStart());
    m_leave->setEnabled(m_engine->finished());
    for (int side = 0; side < 2; ++side) {
        m_score[std::size_t(side)]->setText(QString::number(m_engine->score(side)));
        m_goals[std::size_t(side)]->setText(m_engine->goalsText(side));
        m_possession[std::size_t(side)]->setText(QString::number(m_engine->possession(side)));
    }
    m_minute->setText(QString::number(m_engine->minuteShown()));
    // New lines go on top: the newest stands first.
    const auto &lines = m_engine->commentary();
    for (std::size_t i = lines.size() - m_linesShown; i > 0; --i) {
        const auto &line = lines[i - 1];
        auto *item = new QListWidgetItem(line.text);
        item->setForeground(lineColour(line.kind));
        m_commentary->insertItem(0, item);
    }
    m_linesShown = lines.size();
    paintRows();
}

void MatchScreen::paintRows()
{
    for (int row = 0; row < game::MatchEngine::kRows; ++row) {
        const bool picked = row == m_engine->pickedStarter() || row == m_engine->pickedSubstitute();
        const QString &style = picked ? kPickedRow : kRestingRow;
        m_places[std::size_t(row)]->setStyleSheet(style + QStringLiteral("font-weight: bold;"));
        for (int entry = 0; entry < 4; ++entry) {
            ClickableLabel *label = m_entries[std::size_t(row)][std::size_t(entry)];
            setNamed(label, m_engine->row(row).entry(entry));
            label->setStyleSheet(style);
        }
    }
}

bool MatchScreen::mayClose()
{
    if (m_leaving)
        return true;
    if (!m_engine->finished()) {
        m_context.dialogs.tell(tr("Tienes Que Espera a Que el Partido Finalice"));
        return false;
    }
    // After full time, leaving by the frame is leaving by "SALIR".
    leave();
    return true;
}

void MatchScreen::leave()
{
    if (!m_engine->finished() || m_leaving)
        return;
    m_leaving = true;
    m_timer->stop();
    hide();
    emit left();
}

void MatchScreen::reject()
{
    if (mayClose() && !m_leaving)
        QDialog::reject();
}

void MatchScreen::closeEvent(QCloseEvent *event)
{
    if (mayClose())
        event->accept();
    else
        event->ignore();
}

} // namespace ui
