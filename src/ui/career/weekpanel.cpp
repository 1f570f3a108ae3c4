#include "weekpanel.h"

#include "career/weekopening.h"
#include "common/artwork.h"
#include "store/gamestore.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

namespace ui {

namespace {

QGroupBox *group(const QString &caption)
{
    auto *box = new QGroupBox(caption);
    box->setStyleSheet(QStringLiteral("QGroupBox { background: rgba(10, 20, 45, 200); }"));
    return box;
}

QLabel *infoLabel(const char *name, int pointSize)
{
    auto *label = new QLabel;
    label->setObjectName(QString::fromLatin1(name));
    label->setAlignment(Qt::AlignCenter);
    label->setStyleSheet(QStringLiteral("color: #ffffff; font-weight: bold; font-size: %1px; background: transparent;")
                             .arg(pointSize));
    return label;
}

} // namespace

WeekPanel::WeekPanel(game::Context context, const game::WeekEvents &events, QWidget *parent)
    : QWidget(parent), m_context(context), m_events(events), m_timer(new QTimer(this))
{
    setObjectName(QStringLiteral("Panel_Control_Manager"));
    // The window's title is a fixed text that nothing fills in.
    setWindowTitle(QStringLiteral("Menu Manager ~ nombre_jugador -> equipo <-> Fecha <-partido <-> Tipo_partido/jornada"));
    m_timer->setObjectName(QStringLiteral("Timer1"));
    m_timer->setSingleShot(true);
    m_timer->setInterval(100);
    connect(m_timer, &QTimer::timeout, this, &WeekPanel::runWeekEvents);

    m_weekLabel = infoLabel("lblJornada", 40);
    auto *weekCaption = infoLabel("lblSemanaTitulo", 14);
    weekCaption->setText(tr("SEMANA"));
    m_home = infoLabel("lblEquipoLocal", 22);
    m_away = infoLabel("lblEquipoVis", 22);
    m_type = infoLabel("Tipo", 16);
    m_type->setStyleSheet(m_type->styleSheet() + QStringLiteral("color: #e8a33d;"));
    m_match = infoLabel("partido", 11);
    m_match->setVisible(false); // carries the league fixture's id for the match screens
    m_date = infoLabel("lblFecha", 14);
    auto *versus = infoLabel("lblContra", 18);
    versus->setText(QStringLiteral("vs"));

    auto *entrenador = group(tr("ENTRENADOR"));
    auto *seguimiento = group(tr("SEGUIMIENTO"));
    auto *finanzas = group(tr("FINANZAS"));
    auto *mercado = group(tr("MERCADO"));
    auto fill = [](QGroupBox *box, std::initializer_list<QPushButton *> buttons) {
        auto *layout = new QVBoxLayout(box);
        layout->setSpacing(8);
        for (QPushButton *button : buttons)
            layout->addWidget(button);
        layout->addStretch();
    };
    fill(entrenador, {addButton("cmdAlineacion", tr("ALINEACIÓN"), Destination::CallUp),
                      addButton("Command3", tr("TÁCTICA"), Destination::Tactics),
                      addButton("cmdPlantilla", tr("PLANTILLA"), Destination::Squad)});
    fill(seguimiento, {addButton("c", tr("CALENDARIO"), Destination::Calendar),
                       addButton("cmdClasificacion", tr("CLASIFICACIÓN"), Destination::Standings),
                       addButton("cmdResultados", tr("RESULTADOS"), Destination::Results)});
    fill(finanzas, {addButton("cmdCaja", tr("CAJA"), Destination::Ledger),
                    addButton("cmdEstadio", tr("ESTADIO"), Destination::Stadium)});
    fill(mercado, {addButton("cmdfichar", tr("FICHAR"), Destination::Market)});

    QPushButton *play = addButton("cmdSeguir", tr("SEGUIR"), Destination::CallUp);
    play->setMinimumHeight(44);
    play->setToolTip(tr("Convoca a tus catorce jugadores y juega el partido de la semana"));
    auto *leave = new QPushButton(tr("SALIR"));
    leave->setObjectName(QStringLiteral("Command4"));
    leave->setProperty("role", QStringLiteral("secondary"));
    leave->setToolTip(tr("Abandona la carrera y vuelve al menú principal"));
    connect(leave, &QPushButton::clicked, this, &WeekPanel::leaveRequested);

    auto *match = new QVBoxLayout;
    match->setSpacing(2);
    match->addWidget(weekCaption);
    match->addWidget(m_weekLabel);
    match->addSpacing(8);
    match->addWidget(m_type);
    match->addWidget(m_home);
    match->addWidget(versus);
    match->addWidget(m_away);
    match->addWidget(m_date);
    match->addWidget(m_match);
    match->addSpacing(10);
    match->addWidget(play);
    match->addWidget(leave);

    auto *grid = new QGridLayout(this);
    grid->setContentsMargins(36, 30, 36, 30);
    grid->setHorizontalSpacing(40);
    grid->setVerticalSpacing(40);
    grid->addWidget(entrenador, 0, 0);
    grid->addWidget(finanzas, 1, 0);
    grid->addLayout(match, 0, 1, 2, 1);
    grid->addWidget(seguimiento, 0, 2);
    grid->addWidget(mercado, 1, 2);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(2, 1);
}

QPushButton *WeekPanel::addButton(const char *name, const QString &caption, Destination destination)
{
    auto *button = new QPushButton(caption);
    button->setObjectName(QString::fromLatin1(name));
    connect(button, &QPushButton::clicked, this, [this, destination] { emit destinationRequested(destination); });
    m_buttons[destination].append(button);
    return button;
}

void WeekPanel::setAvailable(Destination destination, bool available)
{
    for (QPushButton *button : m_buttons[destination])
        button->setEnabled(available);
}

bool WeekPanel::openWeek()
{
    game::WeekOpening opening(m_context);
    const std::optional<game::WeekOpening::Opened> opened = opening.open();
    if (!opened)
        return false;
    m_week = opened->week;
    m_seasonOver = opened->seasonOver;
    m_weekLabel->setText(QString::number(m_week));
    refreshFixture();
    m_eventsDone = false;
    m_timer->start();
    return true;
}

void WeekPanel::retire()
{
    m_timer->stop();
    m_eventsDone = true;
}

void WeekPanel::runWeekEvents()
{
    m_timer->stop();
    if (m_eventsDone)
        return;
    m_eventsDone = true;
    refreshFixture();
    m_events.run(m_fixture);
}

void WeekPanel::refreshFixture()
{
    const int club = game::WeekOpening::userClub(m_context.store);
    m_context.store.attempt([&] { m_fixture = game::fixtureOfWeek(m_context.store, m_week, club); });
    m_home->setText(m_fixture ? m_fixture->homeName : QString());
    m_away->setText(m_fixture ? m_fixture->awayName : QString());
    m_type->setText(m_fixture ? m_fixture->typeText() : QString());
    m_date->setText(m_fixture ? game::shownDate(m_fixture->date) : QString());
    if (m_fixture && m_fixture->isLeague())
        m_match->setText(QString::number(m_fixture->idpartido));
}

void WeekPanel::paintEvent(QPaintEvent *)
{
    // A scoreboard behind the panel: two coloured bars on each side of the centre, a grey band
    // across, thin cross lines and a black disc in the middle. Drawn again at every size.
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(rect(), QColor(15, 30, 60));
    const int cx = width() / 2;
    const int cy = height() / 2;
    const int barHeight = height() / 10;
    const int halfWidth = width() / 2;
    const int topBar = cy - 90;
    const int bottomBar = cy + 17;
    painter.fillRect(0, topBar, halfWidth, barHeight, QColor(26, 122, 62));
    painter.fillRect(0, bottomBar, halfWidth, barHeight, QColor(110, 22, 38));
    painter.fillRect(halfWidth, topBar, width() - halfWidth, barHeight, QColor(222, 186, 40));
    painter.fillRect(halfWidth, bottomBar, width() - halfWidth, barHeight, QColor(190, 36, 36));
    painter.fillRect(0, cy - 33, width(), 50, QColor(120, 128, 140));
    painter.setPen(QPen(QColor(230, 230, 230, 160), 1));
    painter.drawLine(0, cy, width(), cy);
    painter.drawLine(cx, 0, cx, height());
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::black);
    const int radius = qMin(width(), height()) / 7;
    painter.drawEllipse(QPoint(cx, cy), radius, radius);
}

} // namespace ui
