#include "matchscreen.h"

#include "common/clickablelabel.h"
#include "common/indexedlabel.h"
#include "common/plainlabel.h"
#include "common/theme.h"
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
#include <QResizeEvent>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>

namespace ui {

// The commentary, newest line first. A line longer than the list is wide wraps onto the next,
// so the player reads every line whole without scrolling sideways. The list lays its lines out
// again from the top whenever one comes; each line is measured once, as it comes, at the
// list's width (and all again only when that width changes), so that this costs little however
// long the match has run.
class Commentary : public QListWidget
{
public:
    explicit Commentary(QWidget *parent) : QListWidget(parent)
    {
        setObjectName(QStringLiteral("list2"));
        setProperty("role", QStringLiteral("commentary"));
        setWordWrap(true);
        setTextElideMode(Qt::ElideNone);
        setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        // The bar stays, so the width the lines were measured at does not change when it comes.
        setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    }

    void addLine(const QString &text, const QColor &colour)
    {
        auto *item = new QListWidgetItem(text);
        item->setForeground(colour);
        insertItem(0, item);
        // A line that comes before the list wears the sheet is measured when it first shows.
        if (testAttribute(Qt::WA_WState_Polished))
            measure(item);
    }

protected:
    void showEvent(QShowEvent *event) override
    {
        for (int row = 0; row < count(); ++row) {
            if (!item(row)->sizeHint().isValid())
                measure(item(row));
        }
        QListWidget::showEvent(event);
    }

    void resizeEvent(QResizeEvent *event) override
    {
        QListWidget::resizeEvent(event);
        if (event->size().width() != event->oldSize().width() && testAttribute(Qt::WA_WState_Polished)) {
            for (int row = 0; row < count(); ++row)
                measure(item(row));
        }
    }

private:
    static constexpr int kSlack = 6;

    void measure(QListWidgetItem *item)
    {
        QStyleOptionViewItem option;
        initViewItemOption(&option);
        // The height a line takes wrapped a little short of the list's width, so that the
        // line's own padding never pushes its last word out of sight.
        const int width = viewport()->width();
        option.rect = QRect(0, 0, std::max(1, width - kSlack), 1);
        const QModelIndex index = indexFromItem(item);
        item->setSizeHint(QSize(width, itemDelegateForIndex(index)->sizeHint(option, index).height()));
    }
};

namespace {

// A name from the store (a club, a player) is cut with "…" where the layout has no room for
// it (see ElidedLabel); the whole name is in its tooltip.
void setNamed(QLabel *label, const QString &text)
{
    if (label->text() == text)
        return;
    label->setText(text);
    label->setToolTip(text);
}

void setShown(QLabel *label, const QString &text)
{
    if (label->text() != text)
        label->setText(text);
}

// Two-entry widgets: entry 0 the home club's, entry 1 the away club's.
QLabel *sideLabel(const char *name, int side, const char *role = nullptr)
{
    QLabel *label = new ElidedLabel;
    label->setObjectName(QString::fromLatin1(name));
    label->setProperty("index", side);
    if (role)
        label->setProperty("role", QString::fromLatin1(role));
    label->setAlignment(Qt::AlignCenter);
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
    resize(1280, 720);
    if (parent)
        parent->installEventFilter(this);
}

MatchScreen::~MatchScreen() = default;

QWidget *MatchScreen::buildScoreboard()
{
    auto *board = new QWidget(this);
    board->setObjectName(QStringLiteral("marcador"));
    QLabel *home = sideLabel("lblEquipoLoc", 0);
    setNamed(home, m_fixture.homeName);
    home->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    QLabel *away = sideLabel("lblEquipoVis", 0);
    setNamed(away, m_fixture.awayName);
    away->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    // The score is figures, never cut short: each side's label is as wide as its goals.
    for (int side = 0; side < 2; ++side) {
        QLabel *score = plainLabel(QStringLiteral("0"));
        score->setObjectName(QStringLiteral("lblMarcador"));
        score->setProperty("index", side);
        score->setAlignment(Qt::AlignCenter);
        m_score[std::size_t(side)] = score;
    }
    QLabel *minuteCaption = theme::label("muted", tr("Minuto:"));
    m_minute = plainLabel(QStringLiteral("0"));
    m_minute->setObjectName(QStringLiteral("lblmin"));

    auto *row = new QHBoxLayout(board);
    row->setContentsMargins(16, 8, 16, 8);
    row->addWidget(home, 1);
    row->addSpacing(12);
    row->addWidget(m_score[0]);
    row->addWidget(theme::label("dash", QStringLiteral("-")));
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
    auto *box = new QWidget(this);
    auto *grid = new QGridLayout(box);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(3);
    grid->setVerticalSpacing(3);
    const char *headers[] = {"POSICIÓN CAMPO:", "NOMBRE JUGADOR:", "POS JUGADOR:", "MEDIA:", "GOLES:"};
    for (int column = 0; column < 5; ++column)
        grid->addWidget(theme::label("caption", tr(headers[column])), 0, column);
    int gridRow = 1;
    for (int row = 0; row < game::MatchEngine::kRows; ++row) {
        if (row == 0 || row == game::MatchEngine::kStarters) {
            grid->addWidget(theme::label("group", row == 0 ? tr("TITULARES") : tr("SUPLENTES")), gridRow++, 0, 1, 5);
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
    auto *side = new QWidget(this);
    auto *layout = new QVBoxLayout(side);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(8);

    auto *stats = new QGridLayout;
    QLabel *home = sideLabel("lblEquipoLoc", 1, "value");
    setNamed(home, m_fixture.homeName);
    QLabel *away = sideLabel("lblEquipoVis", 1, "value");
    setNamed(away, m_fixture.awayName);
    stats->addWidget(home, 0, 1);
    stats->addWidget(away, 0, 2);
    stats->addWidget(theme::label("caption", tr("GOLES/LANZAMIENTOS")), 1, 0);
    stats->addWidget(theme::label("caption", tr("POSESIÓN")), 2, 0);
    for (int s = 0; s < 2; ++s) {
        m_goals[std::size_t(s)] = sideLabel("lblGoles", s);
        m_possession[std::size_t(s)] = sideLabel("lblPosesion", s);
        stats->addWidget(m_goals[std::size_t(s)], 1, s + 1);
        stats->addWidget(m_possession[std::size_t(s)], 2, s + 1);
    }
    layout->addLayout(stats);

    auto *gate = new QGroupBox(tr("Aforo"), side);
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
    choices->addWidget(theme::label("caption", tr("Táctica Defensiva:")), 0, 0);
    choices->addWidget(m_system, 1, 0);
    choices->addWidget(theme::label("caption", tr("Lanzador de 7m:")), 0, 1);
    choices->addWidget(thrower, 1, 1);
    layout->addLayout(choices);

    m_commentary = new Commentary(side);
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
        setShown(m_score[std::size_t(side)], QString::number(m_engine->score(side)));
        setShown(m_goals[std::size_t(side)], m_engine->goalsText(side));
        setShown(m_possession[std::size_t(side)], QString::number(m_engine->possession(side)));
    }
    setShown(m_minute, QString::number(m_engine->minuteShown()));
    // The engine keeps its lines newest first, as the list shows them: the lines new since the
    // last refresh are the first ones, and go on top, the newest last.
    const auto &lines = m_engine->commentary();
    for (std::size_t i = lines.size() - m_linesShown; i > 0; --i)
        m_commentary->addLine(lines[i - 1].text, lineColour(lines[i - 1].kind));
    m_linesShown = lines.size();
    paintRows();
}

void MatchScreen::paintRows()
{
    // The picked starter and substitute stand out; only a row whose pick or whose figures
    // changed is painted again.
    for (int row = 0; row < game::MatchEngine::kRows; ++row) {
        const bool picked = row == m_engine->pickedStarter() || row == m_engine->pickedSubstitute();
        theme::restyle(m_places[std::size_t(row)], "picked", picked);
        for (int entry = 0; entry < 4; ++entry) {
            ClickableLabel *label = m_entries[std::size_t(row)][std::size_t(entry)];
            setNamed(label, m_engine->row(row).entry(entry));
            theme::restyle(label, "picked", picked);
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

void MatchScreen::showEvent(QShowEvent *event)
{
    coverWindow();
    QDialog::showEvent(event);
}

bool MatchScreen::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == parentWidget() && isVisible() && (event->type() == QEvent::Resize || event->type() == QEvent::Move))
        coverWindow();
    return QDialog::eventFilter(watched, event);
}

void MatchScreen::coverWindow()
{
    // The match takes the whole window it is played over: nothing of the panel shows round it.
    if (QWidget *behind = parentWidget())
        setGeometry(QRect(behind->mapToGlobal(QPoint(0, 0)), behind->size()));
}

void MatchScreen::closeEvent(QCloseEvent *event)
{
    if (mayClose())
        event->accept();
    else
        event->ignore();
}

} // namespace ui
