#include "broadcastscreen.h"

#include "common/artwork_paint.h"
#include "common/plainlabel.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QPushButton>
#include <QVBoxLayout>

namespace ui {

namespace {

const QSize kPictureSize(210, 180);

// An old television set on its legs, its antennas up, the match live on its screen: a
// handball court with the two sides and a red "EN DIRECTO" mark.
QPixmap televisionSet(int, QSize size)
{
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter p(&pixmap);
    p.setRenderHint(QPainter::Antialiasing);
    const qreal w = size.width();
    const qreal h = size.height();

    // Antennas and legs.
    p.setPen(QPen(QColor(190, 196, 206), 3, Qt::SolidLine, Qt::RoundCap));
    const QPointF base(w * 0.48, h * 0.2);
    p.drawLine(base, QPointF(w * 0.3, h * 0.02));
    p.drawLine(base, QPointF(w * 0.7, h * 0.04));
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(232, 163, 61));
    p.drawEllipse(QPointF(w * 0.3, h * 0.02) + QPointF(0, 3), 4, 4);
    p.drawEllipse(QPointF(w * 0.7, h * 0.04) + QPointF(0, 3), 4, 4);
    p.setBrush(QColor(60, 44, 30));
    p.drawEllipse(base, w * 0.07, h * 0.04);
    p.setPen(QPen(QColor(60, 44, 30), 5, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(QPointF(w * 0.22, h * 0.86), QPointF(w * 0.16, h * 0.98));
    p.drawLine(QPointF(w * 0.78, h * 0.86), QPointF(w * 0.84, h * 0.98));

    // The wooden cabinet.
    const QRectF cabinet(w * 0.04, h * 0.2, w * 0.92, h * 0.68);
    QLinearGradient wood(cabinet.topLeft(), cabinet.bottomLeft());
    wood.setColorAt(0, QColor(150, 98, 58));
    wood.setColorAt(1, QColor(104, 66, 38));
    p.setPen(QPen(QColor(56, 36, 22), 2));
    p.setBrush(wood);
    p.drawRoundedRect(cabinet, 12, 12);

    // The screen and the match on it.
    const QRectF screen(cabinet.left() + w * 0.05, cabinet.top() + h * 0.06, cabinet.width() * 0.7,
                        cabinet.height() - h * 0.12);
    QPainterPath glass;
    glass.addRoundedRect(screen, 14, 14);
    p.setPen(QPen(QColor(30, 30, 34), 3));
    p.setBrush(QColor(24, 28, 36));
    p.drawPath(glass);
    p.save();
    p.setClipPath(glass);
    const QRectF court = screen.adjusted(screen.width() * 0.1, screen.height() * 0.2, -screen.width() * 0.1,
                                         -screen.height() * 0.12);
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(40, 104, 176));
    p.drawRect(court);
    p.setPen(QPen(Qt::white, 1.5));
    p.setBrush(Qt::NoBrush);
    p.drawRect(court);
    p.drawLine(QPointF(court.center().x(), court.top()), QPointF(court.center().x(), court.bottom()));
    p.drawArc(QRectF(court.left() - court.width() * 0.14, court.center().y() - court.height() * 0.38,
                     court.width() * 0.28, court.height() * 0.76),
              -90 * 16, 180 * 16);
    p.drawArc(QRectF(court.right() - court.width() * 0.14, court.center().y() - court.height() * 0.38,
                     court.width() * 0.28, court.height() * 0.76),
              90 * 16, 180 * 16);
    p.setPen(Qt::NoPen);
    const QPointF players[] = {{0.3, 0.3}, {0.38, 0.65}, {0.22, 0.5}, {0.62, 0.35}, {0.7, 0.7}, {0.8, 0.45}};
    for (int i = 0; i < 6; ++i) {
        p.setBrush(i < 3 ? QColor(232, 163, 61) : QColor(240, 240, 240));
        p.drawEllipse(QPointF(court.left() + players[i].x() * court.width(), court.top() + players[i].y() * court.height()),
                      3.2, 3.2);
    }
    p.setBrush(QColor(255, 236, 120));
    p.drawEllipse(QPointF(court.left() + 0.45 * court.width(), court.top() + 0.5 * court.height()), 2, 2);
    // A sheen on the glass.
    QLinearGradient sheen(screen.topLeft(), screen.bottomRight());
    sheen.setColorAt(0, QColor(255, 255, 255, 60));
    sheen.setColorAt(0.4, QColor(255, 255, 255, 0));
    p.setBrush(sheen);
    p.drawRect(screen);
    // The live mark.
    const QRectF live(screen.left() + 8, screen.top() + 6, screen.width() * 0.46, screen.height() * 0.13);
    p.setBrush(QColor(200, 30, 30));
    p.drawRoundedRect(live, 3, 3);
    p.setPen(Qt::white);
    QFont font = p.font();
    font.setBold(true);
    font.setPixelSize(qMax(6, int(live.height() * 0.7)));
    p.setFont(font);
    p.drawText(live, Qt::AlignCenter, QStringLiteral("EN DIRECTO"));
    p.restore();

    // The knobs and the speaker.
    const qreal panel = screen.right() + (cabinet.right() - screen.right()) / 2;
    p.setPen(QPen(QColor(40, 30, 20), 1.5));
    p.setBrush(QColor(214, 200, 170));
    p.drawEllipse(QPointF(panel, cabinet.top() + cabinet.height() * 0.2), w * 0.04, w * 0.04);
    p.drawEllipse(QPointF(panel, cabinet.top() + cabinet.height() * 0.42), w * 0.04, w * 0.04);
    p.setPen(QPen(QColor(60, 40, 26), 2));
    for (int i = 0; i < 4; ++i) {
        const qreal y = cabinet.top() + cabinet.height() * (0.62 + 0.07 * i);
        p.drawLine(QPointF(panel - w * 0.05, y), QPointF(panel + w * 0.05, y));
    }
    return pixmap;
}

} // namespace

BroadcastScreen::BroadcastScreen(game::Week &week, QWidget *parent)
    : QDialog(parent, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint), m_week(week)
{
    setObjectName(QStringLiteral("Tele"));
    setWindowTitle(tr("Televisión"));

    auto *picture = plainLabel();
    picture->setObjectName(QStringLiteral("Image1"));
    picture->setFixedSize(kPictureSize);
    picture->setPixmap(artwork::detail::cached("television", 0, kPictureSize, televisionSet));

    QLabel *bought = plainLabel(tr("La Televisión ha comprado los derechos de retransmisión del partido que vas a disputar."));
    bought->setObjectName(QStringLiteral("Label1"));
    bought->setWordWrap(true);
    // The channel that bought it, drawn by the week's events.
    m_channel = plainLabel(week.broadcast().value_or(QString()));
    m_channel->setObjectName(QStringLiteral("lblTV"));
    QLabel *fee = plainLabel(tr("Tus Ingresos Aumentarán: 450.000 €"));
    fee->setObjectName(QStringLiteral("Label2"));

    auto *ok = new QPushButton(tr("OK"));
    ok->setObjectName(QStringLiteral("cmdOK"));
    ok->setDefault(true);
    connect(ok, &QPushButton::clicked, this, &BroadcastScreen::acknowledge);

    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(ok);
    auto *text = new QVBoxLayout;
    text->setSpacing(14);
    text->addWidget(bought);
    text->addWidget(m_channel);
    text->addWidget(fee);
    text->addStretch();
    text->addLayout(buttons);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(22, 20, 22, 18);
    layout->setSpacing(24);
    layout->addWidget(picture, 0, Qt::AlignTop);
    layout->addLayout(text, 1);
    setFixedSize(640, 240);
}

void BroadcastScreen::acknowledge()
{
    // A fee the store could not book leaves the broadcast waiting (the player has been told),
    // and the window stays for another try.
    if (m_week.acceptBroadcast() || !m_week.broadcast())
        accept();
}

void BroadcastScreen::reject()
{
}

void BroadcastScreen::closeEvent(QCloseEvent *event)
{
    event->ignore();
}

} // namespace ui
