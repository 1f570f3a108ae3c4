#include "stadiumpicture.h"

#include "common/artwork_paint.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>
#include <QRandomGenerator>

#include <array>

namespace ui {

namespace {

constexpr int kPictures = 12;

QPainterPath rounded(const QRectF &rect)
{
    QPainterPath path;
    const qreal radius = qMin(rect.width(), rect.height()) * 0.38;
    path.addRoundedRect(rect, radius, radius);
    return path;
}

// A rectangle between two others, t = 0 the first and 1 the second.
QRectF between(const QRectF &a, const QRectF &b, qreal t)
{
    return {a.left() + (b.left() - a.left()) * t, a.top() + (b.top() - a.top()) * t,
            a.width() + (b.width() - a.width()) * t, a.height() + (b.height() - a.height()) * t};
}

void drawSkyAndGround(QPainter &p, qreal w, qreal h, qreal horizon)
{
    QLinearGradient sky(0, 0, 0, horizon);
    sky.setColorAt(0, QColor(52, 98, 168));
    sky.setColorAt(1, QColor(170, 202, 232));
    p.fillRect(QRectF(0, 0, w, horizon), sky);
    // A few soft clouds.
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(255, 255, 255, 150));
    for (const QPointF &c : {QPointF(0.18, 0.10), QPointF(0.70, 0.07), QPointF(0.86, 0.16)}) {
        const QPointF at(c.x() * w, c.y() * h);
        p.drawEllipse(at, w * 0.06, h * 0.035);
        p.drawEllipse(at + QPointF(w * 0.045, h * 0.01), w * 0.05, h * 0.03);
        p.drawEllipse(at - QPointF(w * 0.04, -h * 0.012), w * 0.04, h * 0.025);
    }
    QLinearGradient ground(0, horizon, 0, h);
    ground.setColorAt(0, QColor(96, 132, 70));
    ground.setColorAt(1, QColor(62, 96, 48));
    p.fillRect(QRectF(0, horizon, w, h - horizon), ground);
}

void drawTree(QPainter &p, const QPointF &foot, qreal size)
{
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(40, 60, 30, 90));
    p.drawEllipse(foot + QPointF(size * 0.35, 0), size * 0.7, size * 0.22);
    p.setBrush(QColor(92, 64, 40));
    p.drawRect(QRectF(foot.x() - size * 0.08, foot.y() - size * 0.5, size * 0.16, size * 0.5));
    p.setBrush(QColor(38, 98, 46));
    p.drawEllipse(foot - QPointF(0, size * 0.85), size * 0.5, size * 0.5);
    p.setBrush(QColor(60, 128, 62));
    p.drawEllipse(foot - QPointF(size * 0.12, size * 0.98), size * 0.28, size * 0.26);
}

// The handball court seen from above: the pitch, its lines, the two six-metre areas and
// their goals.
void drawCourt(QPainter &p, const QRectF &court)
{
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(201, 140, 78));
    p.drawRect(court.adjusted(-court.width() * 0.08, -court.height() * 0.14, court.width() * 0.08,
                              court.height() * 0.14));
    p.setBrush(QColor(40, 104, 176));
    p.drawRect(court);
    const qreal line = qMax(1.0, court.height() / 40);
    p.setPen(QPen(Qt::white, line));
    p.setBrush(Qt::NoBrush);
    p.drawRect(court);
    p.drawLine(QPointF(court.center().x(), court.top()), QPointF(court.center().x(), court.bottom()));
    const qreal area = court.width() * 0.15;
    const qreal reach = court.height() * 0.34;
    p.setBrush(QColor(232, 163, 61));
    for (int side = 0; side < 2; ++side) {
        const qreal x = side == 0 ? court.left() : court.right();
        const QRectF box(x - area, court.center().y() - reach, 2 * area, 2 * reach);
        p.drawChord(box, side == 0 ? -90 * 16 : 90 * 16, 180 * 16);
        p.setPen(QPen(Qt::white, line * 1.8));
        const qreal goal = court.height() * 0.09;
        p.drawLine(QPointF(x, court.center().y() - goal), QPointF(x, court.center().y() + goal));
        p.setPen(QPen(Qt::white, line));
    }
    p.setBrush(Qt::NoBrush);
    p.drawEllipse(court.center(), line * 2, line * 2);
}

// The stands from the floor out to the rim, tier by tier, each tier in rows of seats and full
// of people. The same random seed for a picture keeps the crowd where it was at every size.
void drawStands(QPainter &p, const QRectF &floor, const QRectF &outer, int tiers, int picture)
{
    static const std::array<QColor, 2> seats = {QColor(168, 44, 52), QColor(196, 152, 58)};
    for (int tier = tiers - 1; tier >= 0; --tier) {
        const QRectF from = between(floor, outer, qreal(tier) / tiers);
        const QRectF to = between(floor, outer, qreal(tier + 1) / tiers);
        QPainterPath ring = rounded(to).subtracted(rounded(from));
        p.setPen(Qt::NoPen);
        p.setBrush(seats[std::size_t(tier % 2)]);
        p.drawPath(ring);
        // Rows of seats.
        const qreal depth = (to.width() - from.width()) / 2;
        const int rows = qMax(2, int(depth / 4));
        p.setPen(QPen(QColor(0, 0, 0, 60), 0.8));
        p.setBrush(Qt::NoBrush);
        for (int row = 1; row < rows; ++row)
            p.drawPath(rounded(between(from, to, qreal(row) / rows)));
        // The walkway between two tiers.
        p.setPen(QPen(QColor(150, 154, 162), qMax(1.5, depth / 9)));
        p.drawPath(rounded(to));
    }

    // The crowd: a dot of colour for each person the picture can show.
    static const std::array<QColor, 7> shirts = {QColor(245, 245, 245), QColor(250, 220, 60), QColor(220, 60, 50),
                                                 QColor(40, 80, 170),   QColor(30, 30, 36),   QColor(240, 160, 60),
                                                 QColor(90, 170, 90)};
    QRandomGenerator random(quint32(picture) * 7919u + 13u);
    const QPainterPath stands = rounded(outer).subtracted(rounded(floor));
    const int people = int((outer.width() * outer.height() - floor.width() * floor.height()) / 22);
    const qreal dot = qMax(0.9, outer.height() / 150);
    p.setPen(Qt::NoPen);
    for (int i = 0; i < people; ++i) {
        const QPointF at(outer.left() + random.generateDouble() * outer.width(),
                         outer.top() + random.generateDouble() * outer.height());
        if (!stands.contains(at))
            continue;
        p.setBrush(shirts[std::size_t(random.bounded(int(shirts.size())))]);
        p.drawEllipse(at, dot, dot);
    }
}

// A scoreboard cube hanging over the centre of the court.
void drawScoreboard(QPainter &p, const QPointF &centre, qreal size)
{
    p.setPen(QPen(QColor(20, 20, 24), 1));
    p.setBrush(QColor(36, 38, 46));
    const QRectF cube(centre.x() - size, centre.y() - size * 0.7, 2 * size, 1.4 * size);
    p.drawRect(cube);
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(232, 163, 61));
    p.drawRect(cube.adjusted(size * 0.25, size * 0.25, -size * 1.1, -size * 0.25));
    p.drawRect(cube.adjusted(size * 1.1, size * 0.25, -size * 0.25, -size * 0.25));
}

void drawFloodlight(QPainter &p, const QPointF &at, qreal size)
{
    QRadialGradient glow(at, size * 2.2);
    glow.setColorAt(0, QColor(255, 250, 210, 220));
    glow.setColorAt(1, QColor(255, 250, 210, 0));
    p.setPen(Qt::NoPen);
    p.setBrush(glow);
    p.drawEllipse(at, size * 2.2, size * 2.2);
    p.setBrush(QColor(255, 255, 235));
    p.setPen(QPen(QColor(70, 70, 76), 1));
    p.drawRect(QRectF(at.x() - size * 0.7, at.y() - size * 0.45, size * 1.4, size * 0.9));
}

void drawArena(QPainter &p, qreal w, qreal h, int picture)
{
    const qreal grow = qreal(picture - 1) / (kPictures - 1);
    const QPointF centre(w / 2, h * (0.63 - 0.06 * grow));
    QRectF court(0, 0, w * 0.27, h * 0.17);
    court.moveCenter(centre);
    QRectF floor = court.adjusted(-w * 0.05, -h * 0.05, w * 0.05, h * 0.05);
    QRectF outer(0, 0, w * (0.52 + 0.42 * grow), h * (0.38 + 0.28 * grow));
    outer.moveCenter(centre);
    const qreal wall = h * (0.035 + 0.035 * grow);

    // Trees around the building; the bigger stadiums stand over some of them.
    for (const QPointF &tree : {QPointF(0.08, 0.62), QPointF(0.16, 0.88), QPointF(0.90, 0.60), QPointF(0.84, 0.90),
                                QPointF(0.04, 0.94), QPointF(0.96, 0.84)})
        drawTree(p, QPointF(tree.x() * w, tree.y() * h), h * 0.09);

    // The outer wall, lit from the left, and its shadow on the ground.
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(30, 40, 30, 90));
    p.drawPath(rounded(outer.translated(w * 0.02, wall + h * 0.015)));
    QLinearGradient concrete(outer.left(), 0, outer.right(), 0);
    concrete.setColorAt(0, QColor(214, 214, 208));
    concrete.setColorAt(1, QColor(132, 134, 138));
    p.setBrush(concrete);
    p.drawPath(rounded(outer.translated(0, wall)).united(rounded(outer)));
    // Entrances along the wall.
    p.setBrush(QColor(60, 66, 80));
    const int doors = 3 + picture / 3;
    for (int i = 0; i < doors; ++i) {
        const qreal x = outer.left() + outer.width() * (0.2 + 0.6 * i / qMax(1, doors - 1));
        p.drawRect(QRectF(x - w * 0.008, outer.bottom() + wall * 0.25, w * 0.016, wall * 0.7));
    }

    const int tiers = 1 + picture / 3;
    drawStands(p, floor, outer, tiers, picture);
    // The rim: a roof edge from 7000 seats on.
    if (picture >= 5) {
        p.setBrush(Qt::NoBrush);
        p.setPen(QPen(QColor(70, 76, 88), h * 0.014));
        p.drawPath(rounded(outer));
    }
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(120, 112, 100));
    p.drawPath(rounded(floor));
    drawCourt(p, court);
    if (picture >= 4)
        drawScoreboard(p, QPointF(centre.x(), centre.y() - court.height() * 0.05), h * 0.028);
    if (picture >= 8) {
        const int lights = picture >= 11 ? 6 : 4;
        for (int i = 0; i < lights; ++i) {
            const qreal x = outer.left() + outer.width() * (0.12 + 0.76 * (i % (lights / 2)) / qMax(1, lights / 2 - 1));
            const qreal y = i < lights / 2 ? outer.top() + h * 0.012 : outer.bottom() - h * 0.012;
            drawFloodlight(p, QPointF(x, y), h * 0.016);
        }
    }
    // Flags on the rim of the biggest.
    if (picture >= 10) {
        static const std::array<QColor, 3> flags = {QColor(220, 40, 40), QColor(250, 210, 40), QColor(240, 240, 240)};
        for (int i = 0; i < 5; ++i) {
            const QPointF pole(outer.left() + outer.width() * (0.3 + 0.1 * i), outer.top() - h * 0.005);
            p.setPen(QPen(QColor(60, 60, 60), 1));
            p.drawLine(pole, pole - QPointF(0, h * 0.05));
            p.setPen(Qt::NoPen);
            p.setBrush(flags[std::size_t(i % 3)]);
            p.drawRect(QRectF(pole.x(), pole.y() - h * 0.05, w * 0.022, h * 0.022));
        }
    }
}

// The screen's own picture: a small sports hall of a town, with its barrel roof, its glass
// doors and a few trees.
void drawTownHall(QPainter &p, qreal w, qreal h)
{
    drawTree(p, QPointF(w * 0.10, h * 0.86), h * 0.16);
    drawTree(p, QPointF(w * 0.90, h * 0.84), h * 0.14);
    const QRectF body(w * 0.2, h * 0.44, w * 0.6, h * 0.38);
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(30, 40, 30, 90));
    p.drawRect(body.translated(w * 0.02, h * 0.03));
    QLinearGradient brick(body.topLeft(), body.bottomLeft());
    brick.setColorAt(0, QColor(196, 120, 86));
    brick.setColorAt(1, QColor(160, 92, 66));
    p.setBrush(brick);
    p.drawRect(body);
    // Courses of bricks.
    p.setPen(QPen(QColor(120, 70, 50, 120), 0.8));
    for (qreal y = body.top() + h * 0.03; y < body.bottom(); y += h * 0.03)
        p.drawLine(QPointF(body.left(), y), QPointF(body.right(), y));
    // The barrel roof.
    QPainterPath roof;
    roof.moveTo(body.left() - w * 0.03, body.top());
    roof.cubicTo(body.left() + w * 0.1, body.top() - h * 0.22, body.right() - w * 0.1, body.top() - h * 0.22,
                 body.right() + w * 0.03, body.top());
    roof.closeSubpath();
    QLinearGradient metal(0, body.top() - h * 0.2, 0, body.top());
    metal.setColorAt(0, QColor(200, 206, 214));
    metal.setColorAt(1, QColor(120, 128, 140));
    p.setPen(QPen(QColor(90, 96, 108), 1.2));
    p.setBrush(metal);
    p.drawPath(roof);
    // A band of windows and the glass doors.
    p.setPen(QPen(QColor(40, 50, 70), 1));
    p.setBrush(QColor(150, 196, 226));
    for (int i = 0; i < 6; ++i)
        p.drawRect(QRectF(body.left() + body.width() * (0.05 + 0.16 * i), body.top() + body.height() * 0.12,
                          body.width() * 0.11, body.height() * 0.2));
    p.drawRect(QRectF(body.center().x() - body.width() * 0.12, body.bottom() - body.height() * 0.42,
                      body.width() * 0.24, body.height() * 0.42));
    p.drawLine(QPointF(body.center().x(), body.bottom() - body.height() * 0.42), QPointF(body.center().x(), body.bottom()));
    // The sign over the doors.
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(15, 30, 60));
    const QRectF sign(body.center().x() - body.width() * 0.2, body.top() + body.height() * 0.38, body.width() * 0.4,
                      body.height() * 0.13);
    p.drawRect(sign);
    p.setPen(QColor(232, 163, 61));
    QFont font = p.font();
    font.setBold(true);
    font.setPixelSize(qMax(6, int(sign.height() * 0.7)));
    p.setFont(font);
    p.drawText(sign, Qt::AlignCenter, QStringLiteral("PABELLÓN"));
    // The path to the doors.
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(190, 182, 160));
    QPolygonF path;
    path << QPointF(body.center().x() - body.width() * 0.1, body.bottom())
         << QPointF(body.center().x() + body.width() * 0.1, body.bottom()) << QPointF(w * 0.62, h)
         << QPointF(w * 0.38, h);
    p.drawPolygon(path);
}

QPixmap drawStadium(int picture, QSize size)
{
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter p(&pixmap);
    p.setRenderHint(QPainter::Antialiasing);
    const qreal w = size.width();
    const qreal h = size.height();
    const bool arena = picture >= 1 && picture <= kPictures;
    drawSkyAndGround(p, w, h, h * (arena ? 0.3 : 0.62));
    if (arena)
        drawArena(p, w, h, picture);
    else
        drawTownHall(p, w, h);
    // A thin frame, as a photograph on the wall.
    p.setPen(QPen(QColor(232, 163, 61), 2));
    p.setBrush(Qt::NoBrush);
    p.drawRect(QRectF(1, 1, w - 2, h - 2));
    return pixmap;
}

} // namespace

QPixmap stadiumPicture(int picture, QSize size)
{
    return artwork::detail::cached("stadium", picture, size, drawStadium);
}

} // namespace ui
