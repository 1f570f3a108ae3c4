#include "artwork.h"
#include "artwork_paint.h"

#include <QPainter>
#include <QPainterPath>
#include <QPolygonF>
#include <QtMath>

// The pictures on the main menu's buttons. The buttons carry no caption, so each picture
// has to say what it does on its own: a ball and a star to start a career, a player with
// a plus for a youngster, a book for the club's history, and so on. They are light line
// drawings with one warm accent, drawn on a 100 x 100 grid and scaled to the button.
namespace artwork {

namespace {

struct Ink {
    QColor line;
    QColor accent;
    QColor onAccent; // marks drawn on top of the accent colour
    QColor fill;     // soft fills inside outlines
};

constexpr qreal kStroke = 6.0;

QPen pen(const QColor &c, qreal width = kStroke)
{
    return QPen(c, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
}

QPainterPath starShape(const QPointF &c, qreal radius)
{
    QPainterPath star;
    for (int i = 0; i < 10; ++i) {
        const qreal a = qDegreesToRadians(-90.0 + i * 36.0);
        const qreal rr = (i % 2 == 0) ? radius : radius * 0.45;
        const QPointF pt(c.x() + rr * qCos(a), c.y() + rr * qSin(a));
        if (i == 0)
            star.moveTo(pt);
        else
            star.lineTo(pt);
    }
    star.closeSubpath();
    return star;
}

// A ball and a star: a new career, a first season ahead.
void newCareer(QPainter &p, const Ink &ink)
{
    const QPointF c(44, 58);
    const qreal r = 32;
    p.setPen(pen(ink.line));
    p.setBrush(ink.line);
    p.drawEllipse(c, r, r);
    // The stitched panels: a pentagon in the middle, seams running out to the rim and
    // the edges of the next panels showing at the rim.
    QPolygonF penta;
    for (int i = 0; i < 5; ++i) {
        const qreal a = qDegreesToRadians(-90.0 + i * 72.0 + 12.0);
        penta << c + QPointF(qCos(a), qSin(a)) * (r * 0.34);
    }
    p.setBrush(ink.onAccent);
    p.setPen(pen(ink.onAccent, 3.0));
    p.drawPolygon(penta);
    QPainterPath disc;
    disc.addEllipse(c, r, r);
    p.save();
    p.setClipPath(disc);
    for (int i = 0; i < 5; ++i) {
        // Each seam runs from a corner of the middle panel to the tip of the next one.
        const qreal a = qDegreesToRadians(-90.0 + i * 72.0 + 12.0);
        const QPointF dir(qCos(a), qSin(a));
        const QPointF patch = c + dir * (r * 0.97);
        p.drawLine(penta[i], patch - dir * (r * 0.26));
        QPolygonF outer;
        for (int k = 0; k < 5; ++k) {
            const qreal t = a + M_PI + qDegreesToRadians(k * 72.0);
            outer << patch + QPointF(qCos(t), qSin(t)) * (r * 0.26);
        }
        p.drawPolygon(outer);
    }
    p.restore();
    // The star, cut free of the ball by a thin gap.
    const QPainterPath star = starShape(QPointF(76, 24), 19);
    if (ink.onAccent.alpha() > 0) {
        p.save();
        p.setCompositionMode(QPainter::CompositionMode_Clear);
        p.strokePath(star, pen(Qt::black, 9));
        p.restore();
    }
    p.fillPath(star, ink.accent);
    p.strokePath(star, pen(ink.accent, 2.5));
}

// A young player, and a plus: bring a youngster up from the youth team.
void addYouth(QPainter &p, const Ink &ink)
{
    p.setPen(Qt::NoPen);
    p.setBrush(ink.line);
    p.drawEllipse(QPointF(42, 28), 15, 15);
    QPainterPath body;
    body.moveTo(12, 90);
    body.cubicTo(12, 62, 24, 50, 42, 50);
    body.cubicTo(60, 50, 72, 62, 72, 90);
    body.closeSubpath();
    p.drawPath(body);
    // The badge with the plus sign, ringed in the ink's shadow so it reads on the body.
    const QPointF b(74, 72);
    p.setPen(pen(ink.onAccent, 4));
    p.setBrush(ink.accent);
    p.drawEllipse(b, 19, 19);
    p.setPen(pen(ink.onAccent, 6.5));
    p.drawLine(b + QPointF(-9, 0), b + QPointF(9, 0));
    p.drawLine(b + QPointF(0, -9), b + QPointF(0, 9));
}

// An open book: the history of the club and the league.
void history(QPainter &p, const Ink &ink)
{
    QPainterPath left, right;
    left.moveTo(50, 30);
    left.cubicTo(40, 22, 24, 20, 8, 24);
    left.lineTo(8, 80);
    left.cubicTo(24, 76, 40, 78, 50, 86);
    left.closeSubpath();
    right.moveTo(50, 30);
    right.cubicTo(60, 22, 76, 20, 92, 24);
    right.lineTo(92, 80);
    right.cubicTo(76, 76, 60, 78, 50, 86);
    right.closeSubpath();
    p.setPen(pen(ink.line));
    p.setBrush(ink.fill);
    p.drawPath(left);
    p.drawPath(right);
    // Lines of text on the pages.
    p.setPen(pen(ink.line, 3.5));
    for (int i = 0; i < 4; ++i) {
        const qreal y = 38 + i * 10;
        p.drawLine(QPointF(17, y - 1.5), QPointF(40, y + 1.5));
        p.drawLine(QPointF(60, y + 1.5), QPointF(83, y - 1.5));
    }
    // A ribbon marking a page.
    p.setPen(Qt::NoPen);
    p.setBrush(ink.accent);
    QPolygonF mark({QPointF(66, 24), QPointF(66, 6), QPointF(76, 6), QPointF(76, 22), QPointF(71, 18)});
    p.drawPolygon(mark);
}

// An "i" in a circle: information about the game.
void information(QPainter &p, const Ink &ink)
{
    const QPointF c(50, 50);
    p.setPen(pen(ink.line));
    p.setBrush(ink.fill);
    p.drawEllipse(c, 40, 40);
    p.setPen(Qt::NoPen);
    p.setBrush(ink.accent);
    p.drawEllipse(QPointF(50, 29), 6.5, 6.5);
    p.setPen(pen(ink.accent, 11));
    p.drawLine(QPointF(50, 46), QPointF(50, 72));
}

// A clipboard with a question mark: how to play.
void instructions(QPainter &p, const Ink &ink)
{
    p.setPen(pen(ink.line));
    p.setBrush(ink.fill);
    p.drawRoundedRect(QRectF(18, 14, 64, 78), 8, 8);
    // The clip.
    p.setBrush(ink.line);
    p.setPen(pen(ink.line, 3));
    p.drawRoundedRect(QRectF(36, 7, 28, 14), 4, 4);
    // The question mark, drawn as a stroke so it matches the other lines.
    QPainterPath q;
    q.moveTo(38, 44);
    q.cubicTo(38, 30, 62, 30, 62, 44);
    q.cubicTo(62, 54, 50, 54, 50, 64);
    p.setBrush(Qt::NoBrush);
    p.setPen(pen(ink.accent, 9));
    p.drawPath(q);
    p.setPen(Qt::NoPen);
    p.setBrush(ink.accent);
    p.drawEllipse(QPointF(50, 78), 5.5, 5.5);
}

// An open door with an arrow going out: leave the game.
void quit(QPainter &p, const Ink &ink)
{
    // The frame.
    p.setPen(pen(ink.line));
    p.setBrush(Qt::NoBrush);
    QPainterPath frame;
    frame.moveTo(14, 92);
    frame.lineTo(14, 8);
    frame.lineTo(60, 8);
    frame.lineTo(60, 30);
    frame.moveTo(60, 70);
    frame.lineTo(60, 92);
    p.drawPath(frame);
    p.drawLine(QPointF(6, 92), QPointF(34, 92));
    // The door swung open toward us.
    QPolygonF leaf({QPointF(14, 8), QPointF(40, 18), QPointF(40, 98), QPointF(14, 92)});
    p.setBrush(ink.fill);
    p.drawPolygon(leaf);
    p.setPen(Qt::NoPen);
    p.setBrush(ink.line);
    p.drawEllipse(QPointF(34, 56), 3.5, 3.5);
    // The way out.
    p.setPen(pen(ink.accent, 8));
    p.drawLine(QPointF(50, 50), QPointF(88, 50));
    p.setBrush(ink.accent);
    p.setPen(pen(ink.accent, 4));
    p.drawPolygon(QPolygonF({QPointF(94, 50), QPointF(78, 38), QPointF(78, 62)}));
}

// A round "play" mark running on, with the lines of its way behind it: the career goes on.
void continueCareer(QPainter &p, const Ink &ink)
{
    p.setPen(pen(ink.line));
    for (const qreal y : {36.0, 52.0, 68.0})
        p.drawLine(QPointF(4, y), QPointF(y == 52.0 ? 26 : 18, y));
    p.setBrush(ink.fill);
    p.drawEllipse(QPointF(64, 52), 32, 32);
    p.setPen(pen(ink.accent, 4));
    p.setBrush(ink.accent);
    p.drawPolygon(QPolygonF({QPointF(54, 34), QPointF(84, 52), QPointF(54, 70)}));
}

// A stack of cards with the top one pulled up: one of the careers kept.
void load(QPainter &p, const Ink &ink)
{
    p.setPen(pen(ink.line));
    p.setBrush(ink.fill);
    for (int card = 2; card >= 0; --card)
        p.drawRoundedRect(QRectF(14 + card * 6, 34 + card * 10, 62, 42), 5, 5);
    p.setBrush(Qt::NoBrush);
    p.drawLine(QPointF(22, 48), QPointF(60, 48));
    p.drawLine(QPointF(22, 60), QPointF(48, 60));
    // The card comes up out of the stack.
    p.setPen(pen(ink.accent, 8));
    p.drawLine(QPointF(84, 70), QPointF(84, 26));
    p.setBrush(ink.accent);
    p.setPen(pen(ink.accent, 4));
    p.drawPolygon(QPolygonF({QPointF(84, 12), QPointF(72, 28), QPointF(96, 28)}));
}

void paintIcon(QPainter &p, MenuIcon icon, const Ink &ink)
{
    switch (icon) {
    case MenuIcon::NewCareer: newCareer(p, ink); break;
    case MenuIcon::AddYouth: addYouth(p, ink); break;
    case MenuIcon::History: history(p, ink); break;
    case MenuIcon::Information: information(p, ink); break;
    case MenuIcon::Instructions: instructions(p, ink); break;
    case MenuIcon::Quit: quit(p, ink); break;
    case MenuIcon::Continue: continueCareer(p, ink); break;
    case MenuIcon::Load: load(p, ink); break;
    }
}

QPixmap drawMenuIcon(int which, QSize size)
{
    const auto icon = static_cast<MenuIcon>(which);
    QPixmap pixmap(size.expandedTo(QSize(1, 1)));
    pixmap.fill(Qt::transparent);
    QPainter p(&pixmap);
    p.setRenderHint(QPainter::Antialiasing);

    // The drawing sits in a square in the middle of the box, with a little margin.
    const qreal side = qMin(pixmap.width(), pixmap.height());
    const qreal scale = side / 108.0;
    p.translate((pixmap.width() - side) / 2.0 + 4 * scale, (pixmap.height() - side) / 2.0 + 3 * scale);
    p.scale(scale, scale);

    // A soft dark copy beneath keeps the lines readable on light or busy backgrounds.
    const QColor shade(0, 0, 0, 110);
    p.save();
    p.translate(1.2, 2.0);
    paintIcon(p, icon, {shade, shade, QColor(0, 0, 0, 0), QColor(0, 0, 0, 0)});
    p.restore();
    paintIcon(p, icon,
              {QColor(0xee, 0xf2, 0xf8), QColor(0xf2, 0xa0, 0x38), QColor(0x1a, 0x1e, 0x2a),
               QColor(0xee, 0xf2, 0xf8, 40)});
    return pixmap;
}

} // namespace

QPixmap menuIcon(MenuIcon icon, QSize size)
{
    return detail::cached("menu-icon", int(icon), size, drawMenuIcon);
}

} // namespace artwork
