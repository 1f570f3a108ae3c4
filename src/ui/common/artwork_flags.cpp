#include "artwork.h"
#include "artwork_paint.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QPolygonF>
#include <QtMath>

#include <initializer_list>

// National flags, shown next to a player's name in squads, scouting lists and the
// transfer market. They fill whatever box they are given; the crosses, crescents and
// triangles keep their own proportions so they stay recognisable even at list size.
namespace artwork {

namespace {

const QColor kWhite(0xff, 0xff, 0xff);

void horizontal(QPainter &p, const QRectF &r, std::initializer_list<QColor> colours,
                std::initializer_list<qreal> weights = {})
{
    qreal total = 0;
    for (qreal w : weights)
        total += w;
    qreal y = r.top();
    auto weight = weights.begin();
    for (const QColor &c : colours) {
        const qreal share = weights.size() > 0 ? *weight++ / total : 1.0 / colours.size();
        p.fillRect(QRectF(r.left(), y, r.width(), r.height() * share + 0.5), c);
        y += r.height() * share;
    }
}

void vertical(QPainter &p, const QRectF &r, std::initializer_list<QColor> colours)
{
    const qreal share = r.width() / colours.size();
    qreal x = r.left();
    for (const QColor &c : colours) {
        p.fillRect(QRectF(x, r.top(), share + 0.5, r.height()), c);
        x += share;
    }
}

// A Nordic cross: the upright stands toward the hoist. Positions are given in the
// flag's own units (length and height) and stretched to the box.
void nordic(QPainter &p, const QRectF &r, const QColor &colour, qreal len, qreal hgt, qreal x0, qreal x1,
            qreal y0, qreal y1)
{
    const qreal sx = r.width() / len, sy = r.height() / hgt;
    p.fillRect(QRectF(r.left() + x0 * sx, r.top(), (x1 - x0) * sx, r.height()), colour);
    p.fillRect(QRectF(r.left(), r.top() + y0 * sy, r.width(), (y1 - y0) * sy), colour);
}

QPainterPath star(const QPointF &c, qreal radius, qreal firstAngleDeg)
{
    QPainterPath path;
    for (int i = 0; i < 10; ++i) {
        const qreal a = qDegreesToRadians(firstAngleDeg + i * 36.0);
        const qreal rr = (i % 2 == 0) ? radius : radius * 0.382;
        const QPointF pt(c.x() + rr * qCos(a), c.y() + rr * qSin(a));
        if (i == 0)
            path.moveTo(pt);
        else
            path.lineTo(pt);
    }
    path.closeSubpath();
    return path;
}

// A small heater shield used by the simplified coats of arms.
QPainterPath smallShield(const QRectF &b)
{
    QPainterPath s;
    s.moveTo(b.topLeft());
    s.lineTo(b.topRight());
    s.lineTo(b.right(), b.top() + b.height() * 0.55);
    s.quadTo(b.right(), b.bottom(), b.center().x(), b.bottom());
    s.quadTo(b.left(), b.bottom(), b.left(), b.top() + b.height() * 0.55);
    s.closeSubpath();
    return s;
}

void spain(QPainter &p, const QRectF &r)
{
    const QColor red(0xaa, 0x15, 0x1b), yellow(0xf1, 0xbf, 0x00);
    horizontal(p, r, {red, yellow, red}, {1, 2, 1});
    // The royal arms, reduced to a crowned quartered shield between two pillars.
    const qreal u = r.height() / 64.0;
    const QPointF c(r.left() + r.height() * 0.5, r.center().y() + 1.5 * u);
    const QRectF sb(c.x() - 6.5 * u, c.y() - 7.5 * u, 13 * u, 15 * u);
    const QPainterPath shield = smallShield(sb);
    p.save();
    p.setClipPath(shield);
    p.fillRect(sb, QColor(0xc6, 0x0b, 0x1e));
    p.fillRect(QRectF(sb.center().x(), sb.top(), sb.width() / 2, sb.height() / 2), QColor(0xf0, 0xea, 0xd6));
    p.fillRect(QRectF(sb.left(), sb.center().y(), sb.width() / 2, sb.height() / 2), yellow);
    for (int i = 0; i < 2; ++i)
        p.fillRect(QRectF(sb.left() + (1.2 + 2.4 * i) * u, sb.center().y(), 1.2 * u, sb.height() / 2),
                   QColor(0xc6, 0x0b, 0x1e));
    p.restore();
    p.setPen(QPen(QColor(0x70, 0x4a, 0x10), qMax<qreal>(0.6, 0.6 * u)));
    p.setBrush(Qt::NoBrush);
    p.drawPath(shield);
    // The crown.
    QPainterPath crown;
    crown.moveTo(sb.left() + 1 * u, sb.top() - 0.6 * u);
    crown.lineTo(sb.left() + 0.2 * u, sb.top() - 4.2 * u);
    crown.lineTo(sb.left() + 3.5 * u, sb.top() - 2.6 * u);
    crown.lineTo(c.x(), sb.top() - 5.2 * u);
    crown.lineTo(sb.right() - 3.5 * u, sb.top() - 2.6 * u);
    crown.lineTo(sb.right() - 0.2 * u, sb.top() - 4.2 * u);
    crown.lineTo(sb.right() - 1 * u, sb.top() - 0.6 * u);
    crown.closeSubpath();
    p.fillPath(crown, QColor(0xd4, 0x9a, 0x12));
    p.strokePath(crown, QPen(QColor(0x8a, 0x5a, 0x08), qMax<qreal>(0.5, 0.5 * u)));
    // The pillars of Hercules.
    for (int side = -1; side <= 1; side += 2) {
        const qreal x = c.x() + side * 9.5 * u;
        p.fillRect(QRectF(x - 1.3 * u, sb.top() + 0.5 * u, 2.6 * u, sb.height() - 1 * u), QColor(0xe8, 0xe2, 0xd0));
        p.fillRect(QRectF(x - 2 * u, sb.top() - 0.5 * u, 4 * u, 1.5 * u), QColor(0xc8, 0x96, 0x14));
        p.fillRect(QRectF(x - 2 * u, sb.bottom() - 1.5 * u, 4 * u, 1.5 * u), QColor(0xc8, 0x96, 0x14));
    }
}

void iceland(QPainter &p, const QRectF &r)
{
    p.fillRect(r, QColor(0x02, 0x52, 0x9c));
    nordic(p, r, kWhite, 25, 18, 7, 11, 7, 11);
    nordic(p, r, QColor(0xdc, 0x1e, 0x35), 25, 18, 8, 10, 8, 10);
}

void slovenia(QPainter &p, const QRectF &r)
{
    const QColor blue(0x00, 0x5d, 0xa4), red(0xed, 0x1c, 0x24);
    horizontal(p, r, {kWhite, blue, red});
    // The arms: Triglav in white on blue, with the sea below and stars above,
    // set across the white and blue stripes near the hoist.
    const qreal u = r.height() / 64.0;
    const QRectF sb(r.left() + r.width() * 0.22 - 7 * u, r.top() + 12 * u, 14 * u, 17 * u);
    const QPainterPath shield = smallShield(sb);
    p.fillPath(shield, blue);
    p.save();
    p.setClipPath(shield);
    QPainterPath mountain;
    const qreal base = sb.top() + 11.5 * u;
    mountain.moveTo(sb.left(), base);
    mountain.lineTo(sb.left() + 3 * u, base - 4 * u);
    mountain.lineTo(sb.left() + 5 * u, base - 2.5 * u);
    mountain.lineTo(sb.center().x(), base - 7.5 * u);
    mountain.lineTo(sb.right() - 5 * u, base - 2.5 * u);
    mountain.lineTo(sb.right() - 3 * u, base - 4 * u);
    mountain.lineTo(sb.right(), base);
    mountain.lineTo(sb.right(), sb.bottom());
    mountain.lineTo(sb.left(), sb.bottom());
    mountain.closeSubpath();
    p.fillPath(mountain, kWhite);
    for (int i = 0; i < 2; ++i) {
        QPainterPath wave;
        const qreal y = base + (1.4 + 2.2 * i) * u;
        wave.moveTo(sb.left(), y);
        for (qreal x = sb.left(); x < sb.right(); x += 3.5 * u)
            wave.quadTo(x + 1.75 * u, y - 1.2 * u, x + 3.5 * u, y);
        p.strokePath(wave, QPen(blue, qMax<qreal>(0.6, 1.0 * u)));
    }
    const QColor gold(0xff, 0xd1, 0x00);
    p.fillPath(star(QPointF(sb.center().x(), sb.top() + 2.2 * u), 1.3 * u, -90), gold);
    p.fillPath(star(QPointF(sb.center().x() - 3 * u, sb.top() + 4.4 * u), 1.3 * u, -90), gold);
    p.fillPath(star(QPointF(sb.center().x() + 3 * u, sb.top() + 4.4 * u), 1.3 * u, -90), gold);
    p.restore();
    p.strokePath(shield, QPen(red, qMax<qreal>(0.7, 1.0 * u)));
}

void croatia(QPainter &p, const QRectF &r)
{
    const QColor red(0xff, 0x00, 0x00), blue(0x17, 0x17, 0x96);
    horizontal(p, r, {red, kWhite, blue});
    // The chequered shield in the middle, with its crown of small shields.
    const qreal u = r.height() / 64.0;
    const qreal side = 4.4 * u;
    const QRectF sb(r.center().x() - 2.5 * side, r.top() + 17 * u, 5 * side, 5 * side * 1.15);
    const QPainterPath shield = smallShield(sb);
    p.save();
    p.setClipPath(shield);
    p.fillRect(sb, kWhite);
    for (int row = 0; row < 6; ++row)
        for (int col = 0; col < 5; ++col)
            if ((row + col) % 2 == 0)
                p.fillRect(QRectF(sb.left() + col * side, sb.top() + row * side, side, side), red);
    p.restore();
    p.strokePath(shield, QPen(red, qMax<qreal>(0.6, 0.7 * u)));
    const qreal cw = sb.width() / 5;
    for (int i = 0; i < 5; ++i) {
        const qreal lift = (i == 0 || i == 4) ? 0.0 : (i == 2 ? 1.6 * u : 1.0 * u);
        const QRectF small(sb.left() + i * cw + 0.3 * u, sb.top() - 4.2 * u - lift, cw - 0.6 * u, 4.2 * u);
        p.fillPath(smallShield(small), i % 2 == 0 ? QColor(0x3c, 0x8a, 0xe0) : QColor(0x17, 0x2a, 0x8a));
        p.strokePath(smallShield(small), QPen(red, qMax<qreal>(0.4, 0.4 * u)));
    }
}

void greece(QPainter &p, const QRectF &r)
{
    const QColor blue(0x0d, 0x5e, 0xaf);
    const qreal stripe = r.height() / 9;
    for (int i = 0; i < 9; ++i)
        p.fillRect(QRectF(r.left(), r.top() + i * stripe, r.width(), stripe + 0.5), i % 2 == 0 ? blue : kWhite);
    // The canton: a square of five stripes with a white cross one stripe wide.
    const QRectF canton(r.left(), r.top(), 5 * stripe, 5 * stripe);
    p.fillRect(canton, blue);
    p.fillRect(QRectF(canton.left() + 2 * stripe, canton.top(), stripe, canton.height()), kWhite);
    p.fillRect(QRectF(canton.left(), canton.top() + 2 * stripe, canton.width(), stripe), kWhite);
}

void turkey(QPainter &p, const QRectF &r)
{
    p.fillRect(r, QColor(0xe3, 0x0a, 0x17));
    // The crescent and star in the legal proportions, measured from the hoist in
    // units of the flag's height (800 units high).
    const qreal s = r.height() / 800.0;
    const qreal cy = r.center().y();
    QPainterPath outer, inner;
    outer.addEllipse(QPointF(r.left() + 425 * s, cy), 200 * s, 200 * s);
    inner.addEllipse(QPointF(r.left() + 475 * s, cy), 160 * s, 160 * s);
    p.fillPath(outer.subtracted(inner), kWhite);
    // One point of the star faces the crescent.
    p.fillPath(star(QPointF(r.left() + 683.33 * s, cy), 100 * s, 180), kWhite);
}

void switzerland(QPainter &p, const QRectF &r)
{
    p.fillRect(r, QColor(0xda, 0x29, 0x1c));
    // The cross: arms one sixth longer than they are wide, the whole cross five
    // eighths of the flag's height.
    const qreal arm = r.height() * 6.0 / 32.0;
    const qreal span = r.height() * 20.0 / 32.0;
    const QPointF c = r.center();
    p.fillRect(QRectF(c.x() - arm / 2, c.y() - span / 2, arm, span), kWhite);
    p.fillRect(QRectF(c.x() - span / 2, c.y() - arm / 2, span, arm), kWhite);
}

void czechia(QPainter &p, const QRectF &r)
{
    horizontal(p, r, {kWhite, QColor(0xd7, 0x14, 0x1a)});
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(0x11, 0x45, 0x7e));
    p.drawPolygon(QPolygonF({r.topLeft(), QPointF(r.left() + r.width() / 2, r.center().y()), r.bottomLeft()}));
}

void portugal(QPainter &p, const QRectF &r)
{
    const QColor green(0x04, 0x6a, 0x38), red(0xda, 0x29, 0x1c), yellow(0xff, 0xe0, 0x00);
    const qreal split = r.width() * 0.4;
    p.fillRect(QRectF(r.left(), r.top(), split, r.height()), green);
    p.fillRect(QRectF(r.left() + split, r.top(), r.width() - split, r.height()), red);
    // The armillary sphere, and on it the shield with its five blue escutcheons.
    const qreal u = r.height() / 64.0;
    const QPointF c(r.left() + split, r.center().y());
    const qreal radius = 14 * u;
    const qreal pen = qMax<qreal>(0.8, 1.6 * u);
    p.setBrush(Qt::NoBrush);
    p.setPen(QPen(yellow, pen));
    p.drawEllipse(c, radius, radius);
    p.setPen(QPen(yellow, pen * 0.7));
    p.drawEllipse(c, radius, radius * 0.35);
    p.drawEllipse(c, radius * 0.35, radius);
    p.drawLine(QPointF(c.x() - radius, c.y() - radius * 0.45), QPointF(c.x() + radius, c.y() + radius * 0.45));
    const QRectF sb(c.x() - 6 * u, c.y() - 7 * u, 12 * u, 14 * u);
    const QPainterPath shield = smallShield(sb);
    p.fillPath(shield, red);
    const QRectF in = sb.adjusted(1.8 * u, 1.8 * u, -1.8 * u, -2.4 * u);
    const QPainterPath inner = smallShield(in);
    p.fillPath(inner, kWhite);
    const qreal d = 2.2 * u;
    const QColor blue(0x00, 0x33, 0x99);
    const QPointF ic(in.center().x(), in.center().y() - 0.3 * u);
    for (const QPointF &o : {QPointF(0, -1), QPointF(-1, 0), QPointF(0, 0), QPointF(1, 0), QPointF(0, 1)})
        p.fillRect(QRectF(ic.x() + o.x() * d * 1.25 - d / 2, ic.y() + o.y() * d * 1.25 - d / 2, d, d), blue);
    p.strokePath(shield, QPen(QColor(0xb0, 0x90, 0x00), qMax<qreal>(0.4, 0.5 * u)));
}

QPixmap drawFlag(int countryCode, QSize size)
{
    QPixmap pixmap(size.expandedTo(QSize(1, 1)));
    pixmap.fill(Qt::transparent);
    QPainter p(&pixmap);
    p.setRenderHint(QPainter::Antialiasing);
    const QRectF r(0, 0, pixmap.width(), pixmap.height());

    switch (countryCode) {
    case 1: spain(p, r); break;
    case 2: horizontal(p, r, {QColor(0x10, 0x10, 0x10), QColor(0xdd, 0x00, 0x00), QColor(0xff, 0xce, 0x00)}); break;
    case 3: vertical(p, r, {QColor(0x00, 0x55, 0xa4), kWhite, QColor(0xef, 0x41, 0x35)}); break;
    case 4: vertical(p, r, {QColor(0x00, 0x92, 0x46), kWhite, QColor(0xce, 0x2b, 0x37)}); break;
    case 5: horizontal(p, r, {QColor(0x00, 0x57, 0xb7), QColor(0xff, 0xd7, 0x00)}); break;
    case 6: iceland(p, r); break;
    case 7:
        p.fillRect(r, QColor(0xc8, 0x10, 0x2e));
        nordic(p, r, kWhite, 37, 28, 12, 16, 12, 16);
        break;
    case 8: slovenia(p, r); break;
    case 9:
        p.fillRect(r, QColor(0x00, 0x6a, 0xa7));
        nordic(p, r, QColor(0xfe, 0xcc, 0x00), 16, 10, 5, 7, 4, 6);
        break;
    case 10: croatia(p, r); break;
    case 11: horizontal(p, r, {kWhite, QColor(0x00, 0x39, 0xa6), QColor(0xd5, 0x2b, 0x1e)}); break;
    case 12: horizontal(p, r, {QColor(0xce, 0x29, 0x39), kWhite, QColor(0x47, 0x70, 0x50)}); break;
    case 13: czechia(p, r); break;
    case 14: switzerland(p, r); break;
    case 15: greece(p, r); break;
    case 16: turkey(p, r); break;
    case 17: portugal(p, r); break;
    case 18: horizontal(p, r, {QColor(0x00, 0x38, 0x93), kWhite, QColor(0xde, 0x00, 0x00)}); break;
    case kNorway:
        p.fillRect(r, QColor(0xba, 0x0c, 0x2f));
        nordic(p, r, kWhite, 22, 16, 6, 10, 6, 10);
        nordic(p, r, QColor(0x00, 0x20, 0x5b), 22, 16, 7, 9, 7, 9);
        break;
    default:
        // An unknown country: a plain grey field rather than a wrong flag.
        p.fillRect(r, QColor(0xc8, 0xc8, 0xc8));
        break;
    }

    // A faint sheen, as of cloth catching the light, and the thin grey border.
    QLinearGradient sheen(r.topLeft(), r.bottomLeft());
    sheen.setColorAt(0.0, QColor(255, 255, 255, 40));
    sheen.setColorAt(0.5, QColor(255, 255, 255, 0));
    sheen.setColorAt(1.0, QColor(0, 0, 0, 25));
    p.fillRect(r, sheen);
    const qreal border = qMax<qreal>(1.0, r.height() / 64.0);
    p.setBrush(Qt::NoBrush);
    p.setPen(QPen(QColor(0x80, 0x80, 0x80), border, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    p.drawRect(r.adjusted(border / 2, border / 2, -border / 2, -border / 2));
    return pixmap;
}

} // namespace

QPixmap flag(int countryCode, QSize size)
{
    return detail::cached("flag", countryCode, size, drawFlag);
}

} // namespace artwork
