#include "weekpanel.h"

#include "common/theme.h"

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
    return new QGroupBox(caption);
}

// A figure of the scoreboard; the sheet gives each its size by its name.
QLabel *infoLabel(const char *name)
{
    QLabel *label = theme::label("board");
    label->setObjectName(QString::fromLatin1(name));
    label->setAlignment(Qt::AlignCenter);
    return label;
}

} // namespace

WeekPanel::WeekPanel(game::Career &career, const ScreenExists &exists, QWidget *parent)
    : QWidget(parent), m_career(career), m_exists(exists), m_timer(new QTimer(this))
{
    setObjectName(QStringLiteral("Panel_Control_Manager"));
    setWindowTitle(QStringLiteral("Menu Manager"));
    m_timer->setObjectName(QStringLiteral("Timer1"));
    m_timer->setSingleShot(true);
    m_timer->setInterval(100);
    connect(m_timer, &QTimer::timeout, this, &WeekPanel::runWeekEvents);

    m_weekLabel = infoLabel("lblJornada");
    auto *weekCaption = infoLabel("lblSemanaTitulo");
    weekCaption->setText(tr("SEMANA"));
    m_home = infoLabel("lblEquipoLocal");
    m_away = infoLabel("lblEquipoVis");
    m_type = infoLabel("Tipo");
    m_match = infoLabel("partido");
    m_match->setVisible(false); // carries the league fixture's id for the match screens
    m_date = infoLabel("lblFecha");
    auto *versus = infoLabel("lblContra");
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
    fill(entrenador, {addButton("cmdAlineacion", tr("ALINEACIÓN"), QStringLiteral("Alinear")),
                      addButton("Command3", tr("TÁCTICA"), QStringLiteral("Tactica")),
                      addButton("cmdPlantilla", tr("PLANTILLA"), QStringLiteral("Plantilla"))});
    fill(seguimiento, {addButton("c", tr("CALENDARIO"), QStringLiteral("Calendario")),
                       addButton("cmdClasificacion", tr("CLASIFICACIÓN"), QStringLiteral("Clasificacion")),
                       addButton("cmdResultados", tr("RESULTADOS"), QStringLiteral("Resultados")),
                       addButton("cmdHistorial", tr("HISTORIAL"), QStringLiteral("Historial"))});
    fill(finanzas, {addButton("cmdCaja", tr("CAJA"), QStringLiteral("Caja")),
                    addButton("cmdEstadio", tr("ESTADIO"), QStringLiteral("estadios"))});
    fill(mercado, {addButton("cmdfichar", tr("FICHAR"), QStringLiteral("Fichar_EnVenta"))});

    auto *play = new QPushButton(tr("SEGUIR"));
    play->setObjectName(QStringLiteral("cmdSeguir"));
    play->setProperty("screen", QStringLiteral("Alinear"));
    play->setEnabled(m_exists(QStringLiteral("Alinear")));
    connect(play, &QPushButton::clicked, this, &WeekPanel::seguir);
    play->setMinimumHeight(44);
    play->setToolTip(tr("Convoca a tus catorce jugadores y juega el partido de la semana"));
    auto *leave = new QPushButton(tr("SALIR"));
    leave->setObjectName(QStringLiteral("Command4"));
    leave->setProperty("role", QStringLiteral("secondary"));
    leave->setToolTip(tr("Abandona la carrera y vuelve al menú principal"));
    connect(leave, &QPushButton::clicked, this, &WeekPanel::leaveRequested);

    // The panel is a scoreboard: the four groups stand in the corners, the week at the top,
    // the two clubs on the band across the middle and the way to the match below.
    m_groups = {entrenador, seguimiento, finanzas, mercado};
    for (QWidget *widget : std::initializer_list<QWidget *>{entrenador, seguimiento, finanzas, mercado, weekCaption,
                                                            m_weekLabel, m_type, m_home, versus, m_away, m_date,
                                                            play, leave})
        widget->setParent(this);
    m_weekCaption = weekCaption;
    m_versus = versus;
    m_play = play;
    m_leave = leave;
    m_home->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_away->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    m_match->setParent(this);
}

void WeekPanel::resizeEvent(QResizeEvent *)
{
    const int w = width();
    const int h = height();
    const int cx = w / 2;
    const int cy = h / 2;
    const int radius = qMin(w, h) / 7;
    const int barHeight = h / 10;
    const int margin = 36;
    const int groupWidth = int(w * 0.28);
    auto placeGroup = [&](QWidget *group, bool left, bool top) {
        const int height = group->sizeHint().height();
        const int x = left ? margin : w - margin - groupWidth;
        const int y = top ? cy - 90 - 16 - height : cy + 17 + barHeight + 16;
        group->setGeometry(x, y, groupWidth, height);
    };
    placeGroup(m_groups[0], true, true);
    placeGroup(m_groups[1], false, true);
    placeGroup(m_groups[2], true, false);
    placeGroup(m_groups[3], false, false);

    m_weekCaption->setGeometry(cx - 100, 20, 200, 24);
    m_weekLabel->setGeometry(cx - 100, 44, 200, 60);
    m_type->setGeometry(cx - 150, cy - radius - 34, 300, 28);
    m_home->setGeometry(margin, cy - 33, cx - radius - 16 - margin, 50);
    m_away->setGeometry(cx + radius + 16, cy - 33, w - margin - cx - radius - 16, 50);
    m_versus->setGeometry(cx - radius, cy - 20, 2 * radius, 30);
    m_date->setGeometry(cx - 150, cy + radius + 6, 300, 26);
    const int buttonWidth = qMin(360, groupWidth);
    m_play->setGeometry(cx - buttonWidth / 2, h - 110, buttonWidth, 44);
    m_leave->setGeometry(cx - buttonWidth / 2, h - 56, buttonWidth, 36);
}

QPushButton *WeekPanel::addButton(const char *name, const QString &caption, const QString &screen)
{
    auto *button = new QPushButton(caption);
    button->setObjectName(QString::fromLatin1(name));
    button->setProperty("screen", screen);
    button->setEnabled(m_exists(screen));
    connect(button, &QPushButton::clicked, this, [this, screen] { emit openRequested(screen); });
    return button;
}

void WeekPanel::showWeek()
{
    // A button leads to its screen when the game has it, also one that came after the panel.
    for (QPushButton *button : findChildren<QPushButton *>()) {
        const QString screen = button->property("screen").toString();
        if (!screen.isEmpty())
            button->setEnabled(m_exists(screen));
    }

    const game::Week &week = m_career.week();
    const std::optional<game::Fixture> &fixture = week.fixture();
    m_weekLabel->setText(week.isOpen() ? QString::number(week.number()) : QString());
    m_home->setText(fixture ? fixture->homeName : QString());
    m_away->setText(fixture ? fixture->awayName : QString());
    m_type->setText(fixture ? fixture->typeText() : QString());
    m_date->setText(fixture ? game::shownDate(fixture->date) : QString());
    m_match->setText(fixture && fixture->isLeague() ? QString::number(fixture->idpartido) : QString());

    // The window names the manager, his club and the week's match.
    const game::CareerRow &career = week.career();
    QString title = QStringLiteral("Menu Manager ~ %1 -> %2").arg(career.manager(), career.clubName);
    if (fixture) {
        const QString stage = fixture->isLeague() ? tr("Jornada %1").arg(fixture->round)
                                                  : tr("Semana %1").arg(week.number());
        title += QStringLiteral(" <-> %1 <- %2 - %3 <-> %4/%5")
                     .arg(game::shownDate(fixture->date), fixture->homeName, fixture->awayName,
                          fixture->typeText(), stage);
    } else if (week.isOpen()) {
        title += QStringLiteral(" <-> ") + tr("Semana %1").arg(week.number());
    }
    setWindowTitle(title);

    if (m_career.stage() == game::Career::Stage::Week && !week.eventsRun())
        m_timer->start();
}

void WeekPanel::runWeekEvents()
{
    m_timer->stop();
    // Television's offer, the last of the events, is brought up by the career's signal.
    m_career.runEvents();
}

void WeekPanel::seguir()
{
    // A career that stopped at a step that failed goes on from here; an open week goes to its
    // match.
    if (m_career.stage() != game::Career::Stage::Week)
        emit goOnRequested();
    else
        emit openRequested(QStringLiteral("Alinear"));
}

void WeekPanel::paintEvent(QPaintEvent *)
{
    // A scoreboard behind the panel: two coloured bars on each side of the centre, a grey band
    // across, thin cross lines and a black disc in the middle. Drawn again at every size.
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(rect(), theme::kNavy);
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
