#include "artwork.h"
#include "artwork_paint.h"

#include <QFont>
#include <QFontMetricsF>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QPolygonF>
#include <QRadialGradient>
#include <QtMath>

#include <algorithm>
#include <cmath>
#include <vector>

// The diagrams of the tactics screen. Each one shows the half of the court in front of
// one goal, seen from above with the goal at the top, and the seven players of a system
// as discs: the defending side in red in front of its own goal with the goalkeeper in
// it, the attacking side in blue facing that goal with its own goalkeeper left back near
// the centre line. The name of the system sits in a plaque in the lower left corner.
//
// Everything is placed in metres on the real court (20 m wide, goal area of 6 m, dashed
// free-throw line at 9 m, 7 m penalty mark), so the formations stand where players of
// the system really stand. x runs across the court from the left side line (-10) to the
// right one (+10); y is the distance from the goal line toward the centre line (20).
namespace artwork {

namespace {

constexpr qreal kLogicalWidth = 200.0;  // the natural size of a diagram
constexpr qreal kLogicalHeight = 199.0;
constexpr qreal kPixelsPerMetre = 9.0;  // within the natural size
constexpr qreal kGoalLineY = 14.0;      // logical pixels from the top to the goal line
constexpr qreal kHalfWidth = 10.0;      // metres from the middle of the court to a side line
constexpr qreal kHalfLength = 20.0;     // metres from the goal line to the centre line
constexpr qreal kPost = 1.5;            // half the width of a goal
constexpr qreal kMarker = 0.95;         // radius of a player's disc, in metres

const QColor kFreeZone(0x1a, 0x4a, 0x88);
const QColor kGoalArea(0x22, 0x66, 0xc0);
const QColor kLine(0xf6, 0xf6, 0xf2);
const QColor kDefence(0xd8, 0x1e, 0x28);
const QColor kAttack(0x1f, 0x4f, 0xd8);

// A line round the goal at the given distance: a quarter circle round each post joined
// by a straight piece in front of the goal, cut off at the side lines.
QPolygonF areaLine(qreal radius)
{
    QPolygonF line;
    const int steps = 48;
    for (int half = -1; half <= 1; half += 2) {
        for (int i = 0; i <= steps; ++i) {
            const qreal t = half < 0 ? qreal(i) / steps : 1.0 - qreal(i) / steps;
            const qreal a = t * M_PI / 2;
            const qreal x = half * (kPost + radius * std::cos(a));
            const qreal y = radius * std::sin(a);
            if (std::abs(x) <= kHalfWidth)
                line << QPointF(x, y);
        }
    }
    if (radius + kPost > kHalfWidth) {
        // The 9 m line meets the side lines before its quarter circles end: close it there.
        const qreal dx = kHalfWidth - kPost;
        const qreal y = std::sqrt(std::max<qreal>(0.0, radius * radius - dx * dx));
        line.prepend(QPointF(-kHalfWidth, y));
        line.append(QPointF(kHalfWidth, y));
    }
    return line;
}


// A point at the given distance from the goal, `along` metres from the middle of the
// court measured on that line itself (negative toward the left side line). Players of
// one defensive line are spaced evenly this way, however far round the corner they stand.
QPointF onLine(qreal distance, qreal along)
{
    const qreal side = along < 0 ? -1.0 : 1.0;
    const qreal a = std::abs(along);
    if (a <= kPost)
        return QPointF(along, distance);
    const qreal angle = std::min<qreal>((a - kPost) / distance, M_PI / 2);
    return QPointF(side * (kPost + distance * std::sin(angle)), distance * std::cos(angle));
}

// A point at the given distance from the goal, straight out from the goal at `x` across
// the court (used for the outer line of a system, which is set by its width).
QPointF atWidth(qreal distance, qreal x)
{
    const qreal dx = std::max<qreal>(0.0, std::abs(x) - kPost);
    return QPointF(x, std::sqrt(std::max<qreal>(0.0, distance * distance - dx * dx)));
}

struct Formation {
    bool attack = false;
    QString name;
    std::vector<QPointF> court;  // the six court players
    QPointF goalkeeper;
    bool ball = false;           // the ball with the player in the middle of the back line
    QPointF ballAt;
};

// Defending systems are named by how many players stand on the 6 m line and how many
// step out in front of it; attacking ones by how the six court players are spread.
Formation formation(int entry)
{
    Formation f;
    constexpr qreal line = 6.75;   // a defender's place just outside the goal-area line
    switch (entry) {
    case 1: // Attack 2-2-2: two wings, two backs and two pivots at the 6 m line.
        f.attack = true;
        f.name = QStringLiteral("2-2-2");
        f.court = {QPointF(-8.8, 2.0), QPointF(8.8, 2.0),              // the wings, in the corners
                   atWidth(10.0, -4.3), atWidth(10.0, 4.3),            // the backs
                   onLine(line + 0.1, -2.6), onLine(line + 0.1, 2.6)}; // the pivots
        break;
    case 2: // Defence 3-2-1: three on the line, two a little out, one far out in the middle.
        f.name = QStringLiteral("3-2-1");
        f.court = {onLine(line, 0.0), onLine(line, -6.2), onLine(line, 6.2),
                   atWidth(8.4, -3.7), atWidth(8.4, 3.7),
                   QPointF(0.0, 10.9)};
        break;
    case 3: // Attack 3-3: three backs at 9-10 m, the two wings and the pivot at 6 m.
        f.attack = true;
        f.name = QStringLiteral("3-3");
        f.court = {QPointF(-8.8, 2.0), QPointF(8.8, 2.0),
                   atWidth(9.9, -5.6), QPointF(0.0, 10.6), atWidth(9.9, 5.6),
                   onLine(line + 0.1, 0.9)};
        break;
    case 4: // Defence 3-3: three on the line and three out at the free-throw line.
        f.name = QStringLiteral("3-3");
        f.court = {onLine(line, 0.0), onLine(line, -5.0), onLine(line, 5.0),
                   atWidth(10.0, -5.6), QPointF(0.0, 10.0), atWidth(10.0, 5.6)};
        break;
    case 5: // Defence 4-2: four on the line, two out against the backs.
        f.name = QStringLiteral("4-2");
        f.court = {onLine(line, -2.4), onLine(line, 2.4), onLine(line, -8.6), onLine(line, 8.6),
                   atWidth(9.4, -4.0), atWidth(9.4, 4.0)};
        break;
    case 6: // Defence 5-1: five on the line, one out in the middle.
        f.name = QStringLiteral("5-1");
        f.court = {onLine(line, 0.0), onLine(line, -4.4), onLine(line, 4.4), onLine(line, -9.3),
                   onLine(line, 9.3), QPointF(0.0, 9.6)};
        break;
    case 7: // Defence 6-0: all six in one wall along the 6 m line.
        f.name = QStringLiteral("6-0");
        f.court = {onLine(line, -1.9), onLine(line, 1.9), onLine(line, -5.75), onLine(line, 5.75),
                   onLine(line, -9.6), onLine(line, 9.6)};
        break;
    case 8: // Attack 6-0: wings and backs spread in one wide arc, the pivot at 6 m.
        f.attack = true;
        f.name = QStringLiteral("6-0");
        f.court = {atWidth(9.6, -9.0), atWidth(9.6, 9.0),
                   atWidth(9.9, -5.4), QPointF(0.0, 10.3), atWidth(9.9, 5.4),
                   onLine(line + 0.1, -0.9)};
        break;
    default:
        return f;
    }
    if (f.attack) {
        f.goalkeeper = QPointF(0.0, kHalfLength - 1.4);
        // The ball with the centre back, who organises the attack.
        for (const QPointF &pt : f.court)
            if (std::abs(pt.x()) < 0.5 && pt.y() > 8.0) {
                f.ball = true;
                f.ballAt = pt + QPointF(0.95, -0.85);
            }
    } else {
        f.goalkeeper = QPointF(0.0, 1.2);
    }
    return f;
}

QFont captionFont(qreal pixelSize)
{
    QFont font;
    font.setFamilies({QStringLiteral("DejaVu Sans"), QStringLiteral("Liberation Sans"),
                      QStringLiteral("Arial"), QStringLiteral("Helvetica")});
    font.setStyleHint(QFont::SansSerif);
    font.setWeight(QFont::Bold);
    font.setPixelSize(qMax(1, qRound(pixelSize)));
    return font;
}

// The floor: wood boards running the length of the court, the blue goal area and the
// painted lines, all in metres.
void paintCourt(QPainter &p)
{
    const QRectF field(-kHalfWidth, 0.0, 2 * kHalfWidth, kHalfLength);
    QLinearGradient wood(field.topLeft(), field.bottomLeft());
    wood.setColorAt(0.0, QColor(0xec, 0x86, 0x38));
    wood.setColorAt(1.0, QColor(0xd6, 0x6a, 0x22));
    p.fillRect(field, wood);
    p.setPen(QPen(QColor(0x60, 0x28, 0x00, 26), 0.05));
    for (qreal x = -kHalfWidth + 0.8; x < kHalfWidth; x += 0.8)
        p.drawLine(QPointF(x, 0.0), QPointF(x, kHalfLength));

    QPainterPath area;
    area.addPolygon(areaLine(6.0));
    area.closeSubpath();
    p.fillPath(area, kGoalArea);

    // A soft light over the middle of the half, as from the roof lamps.
    QRadialGradient lamp(QPointF(0.0, 8.0), 13.0);
    lamp.setColorAt(0.0, QColor(255, 240, 220, 40));
    lamp.setColorAt(1.0, QColor(255, 240, 220, 0));
    p.fillRect(field, lamp);

    QPainterPath lines;
    lines.addRect(field);
    lines.addPolygon(areaLine(6.0));
    lines.addPath(detail::dashed(areaLine(9.0), 0.62, 0.42));
    lines.moveTo(-0.5, 7.0); // the 7 m mark
    lines.lineTo(0.5, 7.0);
    lines.moveTo(-0.1, 4.0); // the goalkeeper's 4 m mark
    lines.lineTo(0.1, 4.0);
    p.strokePath(lines, QPen(kLine, 0.16, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
}

// The goal seen from above: the net behind the goal line and the posts and crossbar in
// the red and white bands the rules ask for.
void paintGoal(QPainter &p)
{
    const QRectF net(-kPost, -1.0, 2 * kPost, 1.0);
    p.fillRect(net, QColor(255, 255, 255, 45));
    p.setPen(QPen(QColor(0xf0, 0xf0, 0xf0, 150), 0.04));
    for (qreal x = -kPost + 0.25; x < kPost - 0.01; x += 0.25)
        p.drawLine(QPointF(x, net.top()), QPointF(x, net.bottom()));
    for (qreal y = net.top() + 0.25; y < net.bottom() - 0.01; y += 0.25)
        p.drawLine(QPointF(net.left(), y), QPointF(net.right(), y));
    p.setPen(QPen(QColor(0xf0, 0xf0, 0xf0, 210), 0.08));
    p.setBrush(Qt::NoBrush);
    p.drawRect(net);
    const int bands = 10;
    const qreal band = (2 * kPost + 0.16) / bands;
    for (int i = 0; i < bands; ++i)
        p.fillRect(QRectF(-kPost - 0.08 + i * band, -0.16, band, 0.24),
                   i % 2 == 0 ? QColor(0xd8, 0x1e, 0x28) : QColor(0xf8, 0xf8, 0xf8));
}

// A player: a disc in the team's colour with a white rim and a shadow on the floor.
void paintPlayer(QPainter &p, const QPointF &at, const QColor &colour, qreal radius)
{
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(0x20, 0x0c, 0x00, 80));
    p.drawEllipse(at + QPointF(0.22, 0.28), radius * 1.04, radius * 1.04);

    QRadialGradient body(at + QPointF(-0.35 * radius, -0.4 * radius), radius * 1.5);
    body.setColorAt(0.0, colour.lighter(150));
    body.setColorAt(0.55, colour);
    body.setColorAt(1.0, colour.darker(150));
    p.setBrush(body);
    p.setPen(QPen(QColor(0xff, 0xff, 0xff), radius * 0.24));
    p.drawEllipse(at, radius * 0.86, radius * 0.86);
    p.setBrush(Qt::NoBrush);
    p.setPen(QPen(QColor(0x10, 0x10, 0x20, 150), radius * 0.07));
    p.drawEllipse(at, radius, radius);
}

// The ball, small and bright so it reads even in the smaller diagrams.
void paintBall(QPainter &p, const QPointF &at)
{
    const qreal r = 0.42;
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(0x20, 0x0c, 0x00, 80));
    p.drawEllipse(at + QPointF(0.12, 0.15), r, r);
    QRadialGradient leather(at + QPointF(-0.15, -0.15), r * 1.4);
    leather.setColorAt(0.0, QColor(0xff, 0xff, 0xff));
    leather.setColorAt(0.6, QColor(0xf4, 0xe6, 0x4a));
    leather.setColorAt(1.0, QColor(0xc8, 0x98, 0x10));
    p.setBrush(leather);
    p.setPen(QPen(QColor(0x30, 0x20, 0x00), 0.07));
    p.drawEllipse(at, r, r);
}

// The system's name in a dark plaque with a stripe in the side's colour; in the larger
// diagrams also the word for attack or defence under it.
void paintCaption(QPainter &p, const Formation &f, bool withWord)
{
    const QColor side = f.attack ? kAttack : kDefence;
    const QFont numberFont = captionFont(17);
    const QFontMetricsF numberMetrics(numberFont);
    const qreal textWidth = numberMetrics.horizontalAdvance(f.name);
    const QString word = f.attack ? QStringLiteral("ATAQUE") : QStringLiteral("DEFENSA");
    QFont wordFont = captionFont(7);
    wordFont.setLetterSpacing(QFont::AbsoluteSpacing, 0.6);
    const qreal wordWidth = QFontMetricsF(wordFont).horizontalAdvance(word);

    const qreal stripe = 4.0;
    const qreal width = stripe + 6.0 + std::max(textWidth, withWord ? wordWidth : 0.0) + 6.0;
    const qreal height = withWord ? 30.0 : 22.0;
    const QRectF plaque(15.0, kLogicalHeight - 11.0 - height, width, height);

    QPainterPath shape;
    shape.addRoundedRect(plaque, 3.5, 3.5);
    p.fillPath(shape.translated(1.0, 1.3), QColor(0, 0, 0, 70));
    QLinearGradient shade(plaque.topLeft(), plaque.bottomLeft());
    shade.setColorAt(0.0, QColor(0x1b, 0x2f, 0x57, 235));
    shade.setColorAt(1.0, QColor(0x0f, 0x1e, 0x3c, 235));
    p.fillPath(shape, shade);
    p.save();
    p.setClipPath(shape);
    p.fillRect(QRectF(plaque.left(), plaque.top(), stripe, plaque.height()), side);
    p.restore();
    p.strokePath(shape, QPen(QColor(255, 255, 255, 90), 0.8));

    const qreal textLeft = plaque.left() + stripe + 6.0;
    const qreal textRight = plaque.right() - 6.0;
    p.setFont(numberFont);
    p.setPen(QColor(0xff, 0xff, 0xff));
    const QRectF numberBox(textLeft, plaque.top() + 2.0, textRight - textLeft, 20.0);
    p.drawText(numberBox, Qt::AlignHCenter | Qt::AlignVCenter, f.name);
    if (withWord) {
        p.setFont(wordFont);
        p.setPen(QColor(0xe8, 0xa3, 0x3d));
        p.drawText(QRectF(textLeft, plaque.top() + 19.5, textRight - textLeft, 8.5), Qt::AlignCenter, word);
    }
}

QPixmap drawTacticsDiagram(int entry, QSize size)
{
    QPixmap picture(size.expandedTo(QSize(8, 8)));
    picture.fill(kFreeZone);
    QPainter p(&picture);
    p.setRenderHint(QPainter::Antialiasing);
    p.setRenderHint(QPainter::TextAntialiasing);
    p.setRenderHint(QPainter::SmoothPixmapTransform);

    // Draw in the natural 200 x 199 frame, scaled evenly and centred in the box.
    const qreal scale = std::min(picture.width() / kLogicalWidth, picture.height() / kLogicalHeight);
    p.translate((picture.width() - kLogicalWidth * scale) / 2, (picture.height() - kLogicalHeight * scale) / 2);
    p.scale(scale, scale);

    const Formation f = formation(entry);

    p.save();
    p.translate(kLogicalWidth / 2, kGoalLineY);
    p.scale(kPixelsPerMetre, kPixelsPerMetre);
    paintCourt(p);
    paintGoal(p);
    if (!f.court.empty()) {
        const QColor colour = f.attack ? kAttack : kDefence;
        // The goalkeeper: in the goal when defending, back near the centre line (and a
        // little smaller, being far from the play) when attacking.
        paintPlayer(p, f.goalkeeper, colour, f.attack ? kMarker * 0.72 : kMarker);
        for (const QPointF &pt : f.court)
            paintPlayer(p, pt, colour, kMarker);
        if (f.ball)
            paintBall(p, f.ballAt);
    }
    p.restore();

    if (!f.court.empty())
        paintCaption(p, f, scale >= 0.7);
    return picture;
}

} // namespace

QPixmap tacticsDiagram(int entry, QSize size)
{
    return detail::cached("tactics", entry, size, drawTacticsDiagram);
}

} // namespace artwork
