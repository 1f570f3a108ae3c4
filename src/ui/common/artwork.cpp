#include "artwork.h"

#include "artwork_paint.h"

#include <QFont>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QPolygonF>
#include <QRadialGradient>
#include <QtMath>

#include <array>

// The crests of the sixteen league clubs. Each club gets its own shield outline, its own
// field pattern and its own way of carrying the initials, so that a player scanning the
// league table or a fixture list recognises a club by its crest before reading the name.
namespace artwork {

namespace {

enum class Shape {
    Heater,     // flat top, straight flanks, curved to a point
    Spanish,    // flat top, rounded bottom (the old Castilian shield)
    ConcaveTop, // upper edge dipping between two raised corners
    RoundTop,   // upper edge bulging upwards
    Badge,      // corners cut off, a sharp "V" below
    French,     // straight flanks, two curves meeting in a small point
};

enum class Field {
    Stripes,    // vertical stripes
    Hoops,      // horizontal stripes
    PerPale,    // split down the middle
    PerBend,    // split on the diagonal
    Quarterly,  // four quarters
    Chevron,    // an inverted "V"
    Saltire,    // a diagonal cross
    Cross,      // an upright cross
    Bendy,      // diagonal stripes
    Waves,      // wavy sea lines
    Bordure,    // a wide border around a plain field
    Bend,       // a single diagonal sash
    Checky,     // a chequerboard
};

enum class Plate {
    Band,          // a horizontal band across the middle carries the initials
    Roundel,       // a disc in the centre
    Chief,         // the top of the shield
    Ribbon,        // a scroll across the lower part
    Counterchange, // large initials that swap colours across a split field
    Plain,         // large initials straight on the field
};

struct Design {
    Shape shape;
    Field field;
    int count;         // stripes, hoops or waves
    QColor first;      // main colour of the field
    QColor second;     // the other colour of the field
    Plate plate;
    QColor plateFill;  // the band, disc, chief or ribbon
    QColor plateEdge;  // its trim
    QColor text;
    QString initials;
    int stars;         // small stars above the initials (tradition, titles)
};

const QColor kNeutral(0x8a, 0x8f, 0x96);

// Club colours: the pair screens use for accents, kept in step with the crests.
const std::array<ClubColours, 16> kColours{{
    {QColor(0x1b, 0x3f, 0x94), QColor(0xa3, 0x12, 0x3a)}, // F.C. Barcelona
    {QColor(0xf3, 0xc3, 0x1a), QColor(0x12, 0x3f, 0x8c)}, // BM Ciudad Real
    {QColor(0xc8, 0x10, 0x2e), QColor(0xf7, 0xf7, 0xf4)}, // Ademar de León
    {QColor(0x1d, 0x4e, 0xa8), QColor(0xd2, 0x1f, 0x2b)}, // Portland San Antonio
    {QColor(0x5b, 0x2a, 0x86), QColor(0xf7, 0xf7, 0xf4)}, // BM Valladolid
    {QColor(0x2b, 0x7f, 0xd0), QColor(0xf7, 0xf7, 0xf4)}, // BM Altea
    {QColor(0x0a, 0x7d, 0x3e), QColor(0xf7, 0xf7, 0xf4)}, // Caja Cantabria
    {QColor(0xf0, 0x78, 0x00), QColor(0x18, 0x18, 0x18)}, // BM Valencia
    {QColor(0x0b, 0x3f, 0x8f), QColor(0xf7, 0xf7, 0xf4)}, // BM Granollers
    {QColor(0xc4, 0x12, 0x1c), QColor(0x18, 0x18, 0x18)}, // S.D. Teucro
    {QColor(0x5c, 0xb3, 0xe6), QColor(0xf7, 0xf7, 0xf4)}, // Frg. Morrazo Cangas
    {QColor(0x0b, 0x8a, 0x3e), QColor(0x18, 0x18, 0x18)}, // C.D. Bidasoa
    {QColor(0xf6, 0xcf, 0x14), QColor(0x18, 0x18, 0x18)}, // Barakaldo UPV
    {QColor(0x14, 0x3f, 0x9e), QColor(0xf6, 0xcf, 0x14)}, // Octavio Pilotes Posada
    {QColor(0x1f, 0x5f, 0xc4), QColor(0xf7, 0xf7, 0xf4)}, // J.D. Arrate
    {QColor(0xd0, 0x14, 0x24), QColor(0xf7, 0xf7, 0xf4)}, // Almería 2005
}};

Design designOf(int clubId)
{
    const QColor white(0xf7, 0xf7, 0xf4);
    const QColor gold(0xf1, 0xc2, 0x32);
    const QColor navy(0x10, 0x24, 0x5c);
    const ClubColours c = kColours[static_cast<std::size_t>(clubId - 1)];

    switch (clubId) {
    case 1:
        return {Shape::ConcaveTop, Field::Stripes, 5, c.primary, c.secondary,
                Plate::Band, gold, QColor(0x7a, 0x55, 0x0a), navy, QStringLiteral("FCB"), 0};
    case 2:
        return {Shape::Heater, Field::PerBend, 0, c.primary, c.secondary,
                Plate::Roundel, c.secondary, c.primary, c.primary, QStringLiteral("CR"), 0};
    case 3:
        return {Shape::Spanish, Field::Quarterly, 0, c.primary, c.secondary,
                Plate::Band, QColor(0x9b, 0x0c, 0x22), white, white, QStringLiteral("ADL"), 0};
    case 4:
        return {Shape::RoundTop, Field::Chevron, 0, white, c.secondary,
                Plate::Chief, c.primary, white, white, QStringLiteral("SA"), 0};
    case 5:
        return {Shape::Badge, Field::Hoops, 7, c.primary, c.secondary,
                Plate::Roundel, white, c.primary, c.primary, QStringLiteral("BMV"), 0};
    case 6:
        return {Shape::French, Field::Bendy, 7, c.primary, c.secondary,
                Plate::Band, navy, white, white, QStringLiteral("ALT"), 0};
    case 7:
        return {Shape::Heater, Field::Cross, 0, c.primary, c.secondary,
                Plate::Roundel, white, c.primary, c.primary, QStringLiteral("CAN"), 0};
    case 8:
        return {Shape::Spanish, Field::PerPale, 0, c.secondary, c.primary,
                Plate::Counterchange, c.primary, c.secondary, c.primary, QStringLiteral("VAL"), 0};
    case 9:
        return {Shape::ConcaveTop, Field::Stripes, 7, c.secondary, c.primary,
                Plate::Chief, c.primary, white, white, QStringLiteral("GRA"), 0};
    case 10:
        return {Shape::Badge, Field::Saltire, 0, c.primary, c.secondary,
                Plate::Roundel, c.secondary, c.primary, white, QStringLiteral("SDT"), 0};
    case 11:
        return {Shape::French, Field::Waves, 4, c.primary, c.secondary,
                Plate::Chief, QColor(0x1c, 0x5f, 0x96), white, white, QStringLiteral("FMC"), 0};
    case 12:
        return {Shape::Heater, Field::Bend, 0, c.primary, c.secondary,
                Plate::Ribbon, white, c.secondary, c.secondary, QStringLiteral("CDB"), 0};
    case 13:
        return {Shape::Badge, Field::Hoops, 9, c.primary, c.secondary,
                Plate::Band, c.primary, c.secondary, c.secondary, QStringLiteral("BKU"), 0};
    case 14:
        return {Shape::RoundTop, Field::Bordure, 0, c.primary, c.secondary,
                Plate::Plain, c.primary, c.secondary, c.secondary, QStringLiteral("OPP"), 1};
    case 15:
        return {Shape::Spanish, Field::Checky, 4, c.primary, c.secondary,
                Plate::Roundel, c.primary, c.secondary, c.secondary, QStringLiteral("JDA"), 0};
    case 16:
    default:
        return {Shape::RoundTop, Field::Stripes, 5, c.primary, c.secondary,
                Plate::Ribbon, white, c.primary, c.primary, QStringLiteral("ALM"), 0};
    }
}

QPainterPath shieldPath(Shape shape, const QRectF &r)
{
    const qreal x0 = r.left(), x1 = r.right(), y0 = r.top(), y1 = r.bottom();
    const qreal w = r.width(), h = r.height(), cx = r.center().x();
    QPainterPath p;
    switch (shape) {
    case Shape::Heater:
        p.moveTo(x0, y0);
        p.lineTo(x1, y0);
        p.lineTo(x1, y0 + 0.42 * h);
        p.cubicTo(x1, y0 + 0.74 * h, cx + 0.22 * w, y0 + 0.90 * h, cx, y1);
        p.cubicTo(cx - 0.22 * w, y0 + 0.90 * h, x0, y0 + 0.74 * h, x0, y0 + 0.42 * h);
        break;
    case Shape::Spanish: {
        const qreal radius = w / 2;
        p.moveTo(x0, y0);
        p.lineTo(x1, y0);
        p.lineTo(x1, y1 - radius);
        p.arcTo(QRectF(x0, y1 - 2 * radius, w, 2 * radius), 0, -180);
        break;
    }
    case Shape::ConcaveTop:
        p.moveTo(x0, y0);
        p.quadTo(cx, y0 + 0.13 * h, x1, y0);
        p.lineTo(x1, y0 + 0.46 * h);
        p.cubicTo(x1, y0 + 0.76 * h, cx + 0.16 * w, y0 + 0.86 * h, cx, y1);
        p.cubicTo(cx - 0.16 * w, y0 + 0.86 * h, x0, y0 + 0.76 * h, x0, y0 + 0.46 * h);
        break;
    case Shape::RoundTop:
        p.moveTo(x0, y0 + 0.10 * h);
        p.quadTo(cx, y0 - 0.08 * h, x1, y0 + 0.10 * h);
        p.lineTo(x1, y0 + 0.50 * h);
        p.quadTo(x1, y0 + 0.84 * h, cx, y1);
        p.quadTo(x0, y0 + 0.84 * h, x0, y0 + 0.50 * h);
        break;
    case Shape::Badge:
        p.moveTo(x0 + 0.14 * w, y0);
        p.lineTo(x1 - 0.14 * w, y0);
        p.lineTo(x1, y0 + 0.11 * h);
        p.lineTo(x1, y0 + 0.62 * h);
        p.lineTo(cx, y1);
        p.lineTo(x0, y0 + 0.62 * h);
        p.lineTo(x0, y0 + 0.11 * h);
        break;
    case Shape::French:
        p.moveTo(x0, y0);
        p.lineTo(x1, y0);
        p.lineTo(x1, y0 + 0.74 * h);
        p.quadTo(x1, y0 + 0.90 * h, cx + 0.26 * w, y0 + 0.91 * h);
        p.quadTo(cx + 0.04 * w, y0 + 0.92 * h, cx, y1);
        p.quadTo(cx - 0.04 * w, y0 + 0.92 * h, cx - 0.26 * w, y0 + 0.91 * h);
        p.quadTo(x0, y0 + 0.90 * h, x0, y0 + 0.74 * h);
        break;
    }
    p.closeSubpath();
    return p;
}

void paintField(QPainter &p, const Design &d, const QRectF &r)
{
    const qreal w = r.width(), h = r.height();
    const QRectF big = r.adjusted(-w, -h, w, h);
    p.fillRect(big, d.first);
    p.setPen(Qt::NoPen);
    p.setBrush(d.second);

    switch (d.field) {
    case Field::Stripes: {
        const qreal sw = w / d.count;
        for (int i = 1; i < d.count; i += 2)
            p.drawRect(QRectF(r.left() + i * sw, big.top(), sw, big.height()));
        break;
    }
    case Field::Hoops: {
        const qreal sh = h / d.count;
        for (int i = 1; i < d.count; i += 2)
            p.drawRect(QRectF(big.left(), r.top() + i * sh, big.width(), sh));
        break;
    }
    case Field::PerPale:
        p.drawRect(QRectF(r.center().x(), big.top(), big.width(), big.height()));
        break;
    case Field::PerBend:
        p.drawPolygon(QPolygonF({r.topRight() + QPointF(w, -w), r.bottomLeft() + QPointF(-w, w),
                                 big.bottomRight()}));
        break;
    case Field::Quarterly:
        p.drawRect(QRectF(r.center().x(), big.top(), big.width(), r.center().y() - big.top()));
        p.drawRect(QRectF(big.left(), r.center().y(), r.center().x() - big.left(), big.height()));
        break;
    case Field::Chevron: {
        const qreal t = 0.17 * w;
        const QPointF apex(r.center().x(), r.top() + 0.30 * h);
        QPainterPath v;
        v.moveTo(apex);
        v.lineTo(r.right() + w, apex.y() + 1.2 * (w + w / 2));
        v.lineTo(r.right() + w, apex.y() + 1.2 * (w + w / 2) + t * 1.6);
        v.lineTo(apex.x(), apex.y() + t * 1.6);
        v.lineTo(r.left() - w, apex.y() + 1.2 * (w + w / 2) + t * 1.6);
        v.lineTo(r.left() - w, apex.y() + 1.2 * (w + w / 2));
        v.closeSubpath();
        // A thin edging in the chief's colour keeps the chevron crisp on a pale field.
        p.strokePath(v, QPen(d.plateFill, 0.07 * w, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
        p.drawPath(v);
        break;
    }
    case Field::Saltire:
    case Field::Cross: {
        p.setPen(QPen(d.second, 0.2 * w, Qt::SolidLine, Qt::FlatCap));
        p.setBrush(Qt::NoBrush);
        const QPointF c(r.center().x(), r.top() + 0.44 * h);
        if (d.field == Field::Cross) {
            p.drawLine(QPointF(c.x(), big.top()), QPointF(c.x(), big.bottom()));
            p.drawLine(QPointF(big.left(), c.y()), QPointF(big.right(), c.y()));
        } else {
            p.drawLine(c + QPointF(-2 * w, -2 * w * 1.15), c + QPointF(2 * w, 2 * w * 1.15));
            p.drawLine(c + QPointF(2 * w, -2 * w * 1.15), c + QPointF(-2 * w, 2 * w * 1.15));
        }
        p.setPen(Qt::NoPen);
        break;
    }
    case Field::Bendy: {
        const qreal sw = h / d.count;
        p.save();
        p.translate(r.center());
        p.rotate(35);
        for (int i = -d.count; i <= d.count; i += 2)
            p.drawRect(QRectF(-2 * w, i * sw - sw / 2, 4 * w, sw));
        p.restore();
        break;
    }
    case Field::Waves: {
        const qreal top = r.top() + 0.30 * h;
        const qreal step = (r.bottom() - top) / d.count;
        const qreal amp = 0.05 * h;
        for (int i = 0; i < d.count; ++i) {
            const qreal y = top + (i + 0.5) * step;
            QPainterPath wave;
            wave.moveTo(r.left() - w, y);
            const qreal seg = w / 3;
            for (qreal x = r.left() - w; x < r.right() + w; x += seg)
                wave.cubicTo(x + seg / 3, y - amp, x + 2 * seg / 3, y + amp, x + seg, y);
            p.strokePath(wave, QPen(d.second, step * 0.38, Qt::SolidLine, Qt::FlatCap));
        }
        break;
    }
    case Field::Bordure:
        break; // drawn after the plate-independent shading, as a wide rim
    case Field::Bend: {
        p.save();
        p.translate(r.center());
        p.rotate(qRadiansToDegrees(qAtan2(h, w)));
        const qreal t = 0.26 * w;
        p.fillRect(QRectF(-2 * w, -t / 2 - 0.035 * w, 4 * w, t + 0.07 * w), QColor(0xf7, 0xf7, 0xf4));
        p.fillRect(QRectF(-2 * w, -t / 2, 4 * w, t), d.second);
        p.restore();
        break;
    }
    case Field::Checky: {
        const qreal side = w / d.count;
        for (int row = 0; row * side < h; ++row)
            for (int col = 0; col < d.count; ++col)
                if ((row + col) % 2 == 1)
                    p.drawRect(QRectF(r.left() + col * side, r.top() + row * side, side, side));
        break;
    }
    }
}

// The initials as an outline, scaled to fill a box while keeping their proportions.
QPainterPath fittedText(const QString &text, const QRectF &box)
{
    QFont font;
    font.setFamilies({QStringLiteral("DejaVu Sans"), QStringLiteral("Liberation Sans"),
                      QStringLiteral("Arial"), QStringLiteral("Helvetica")});
    font.setStyleHint(QFont::SansSerif);
    font.setStretch(QFont::SemiCondensed);
    font.setWeight(QFont::Black);
    font.setPixelSize(100);
    QPainterPath path;
    path.addText(0, 0, font, text);
    const QRectF b = path.boundingRect();
    if (b.isEmpty())
        return path;
    const qreal scale = qMin(box.width() / b.width(), box.height() / b.height());
    QTransform t;
    t.translate(box.center().x(), box.center().y());
    t.scale(scale, scale);
    t.translate(-b.center().x(), -b.center().y());
    return t.map(path);
}

void paintInitials(QPainter &p, const QString &initials, const QRectF &box, const QColor &fill,
                   const QColor &edge, qreal unit)
{
    const QPainterPath text = fittedText(initials, box);
    p.setBrush(Qt::NoBrush);
    p.strokePath(text.translated(unit * 0.5, unit * 0.7),
                 QPen(QColor(0, 0, 0, 60), unit * 1.4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.strokePath(text, QPen(edge, unit * 1.4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.fillPath(text, fill);
}

QPainterPath starPath(const QPointF &c, qreal radius)
{
    QPainterPath star;
    for (int i = 0; i < 10; ++i) {
        const qreal a = qDegreesToRadians(-90.0 + i * 36.0);
        const qreal rr = (i % 2 == 0) ? radius : radius * 0.42;
        const QPointF pt(c.x() + rr * qCos(a), c.y() + rr * qSin(a));
        if (i == 0)
            star.moveTo(pt);
        else
            star.lineTo(pt);
    }
    star.closeSubpath();
    return star;
}

void paintPlate(QPainter &p, const Design &d, const QRectF &r)
{
    const qreal w = r.width(), h = r.height();
    const qreal unit = w / 48.0; // one "stitch" of the crest, for outlines and trims
    const QColor textEdge = d.text.lightness() > 128 ? QColor(0, 0, 0, 150) : QColor(255, 255, 255, 170);

    switch (d.plate) {
    case Plate::Band: {
        const QRectF band(r.left() - w, r.top() + 0.34 * h, 3 * w, 0.25 * h);
        p.fillRect(band, d.plateFill);
        p.setPen(QPen(d.plateEdge, unit * 1.6));
        p.drawLine(QPointF(band.left(), band.top()), QPointF(band.right(), band.top()));
        p.drawLine(QPointF(band.left(), band.bottom()), QPointF(band.right(), band.bottom()));
        const QRectF textBox(r.left() + 0.14 * w, band.top() + 0.04 * h, 0.72 * w, band.height() - 0.08 * h);
        paintInitials(p, d.initials, textBox, d.text, textEdge, unit);
        break;
    }
    case Plate::Roundel: {
        const QPointF c(r.center().x(), r.top() + 0.44 * h);
        const qreal radius = 0.30 * w;
        p.setPen(QPen(d.plateEdge, unit * 2.2));
        p.setBrush(d.plateFill);
        p.drawEllipse(c, radius, radius);
        p.setPen(QPen(QColor(0, 0, 0, 60), unit * 0.8));
        p.setBrush(Qt::NoBrush);
        p.drawEllipse(c, radius + unit * 1.5, radius + unit * 1.5);
        const qreal span = d.initials.size() > 2 ? 1.45 : 1.15;
        const QRectF textBox(c.x() - radius * span / 2 * 1.0, c.y() - radius * 0.42, radius * span, radius * 0.84);
        paintInitials(p, d.initials, textBox, d.text, textEdge, unit * 0.8);
        break;
    }
    case Plate::Chief: {
        const QRectF chief(r.left() - w, r.top() - h, 3 * w, h + 0.27 * h);
        p.fillRect(chief, d.plateFill);
        p.setPen(QPen(d.plateEdge, unit * 1.6));
        p.drawLine(QPointF(chief.left(), chief.bottom()), QPointF(chief.right(), chief.bottom()));
        const qreal top = r.top() + (d.shape == Shape::ConcaveTop || d.shape == Shape::RoundTop ? 0.09 : 0.05) * h;
        const QRectF textBox(r.left() + 0.18 * w, top, 0.64 * w, chief.bottom() - top - 0.045 * h);
        paintInitials(p, d.initials, textBox, d.text, textEdge, unit);
        break;
    }
    case Plate::Ribbon: {
        // A scroll laid across the lower half, its tails folding behind the shield.
        const qreal y = r.top() + 0.56 * h;
        const qreal bh = 0.20 * h;
        const qreal bend = 0.05 * h;
        QPainterPath ribbon;
        ribbon.moveTo(r.left() - 0.04 * w, y);
        ribbon.quadTo(r.center().x(), y + bend * 2, r.right() + 0.04 * w, y);
        ribbon.lineTo(r.right() + 0.04 * w, y + bh);
        ribbon.quadTo(r.center().x(), y + bh + bend * 2, r.left() - 0.04 * w, y + bh);
        ribbon.closeSubpath();
        p.setPen(QPen(d.plateEdge, unit * 1.6));
        p.setBrush(d.plateFill);
        p.drawPath(ribbon);
        const QRectF textBox(r.left() + 0.15 * w, y + 0.035 * h + bend * 0.5, 0.70 * w, bh - 0.07 * h);
        paintInitials(p, d.initials, textBox, d.text, QColor(255, 255, 255, 200), unit);
        break;
    }
    case Plate::Counterchange: {
        const QRectF textBox(r.left() + 0.10 * w, r.top() + 0.30 * h, 0.80 * w, 0.26 * h);
        const QPainterPath text = fittedText(d.initials, textBox);
        // Each half of the initials takes the colour of the other half of the field.
        p.save();
        p.setClipRect(QRectF(r.left() - w, r.top() - h, w * 1.5, 3 * h), Qt::IntersectClip);
        p.fillPath(text, d.second);
        p.restore();
        p.save();
        p.setClipRect(QRectF(r.center().x(), r.top() - h, 2 * w, 3 * h), Qt::IntersectClip);
        p.fillPath(text, d.first);
        p.restore();
        p.strokePath(text, QPen(QColor(255, 255, 255, 90), unit * 0.5));
        break;
    }
    case Plate::Plain: {
        const QRectF textBox(r.left() + 0.17 * w, r.top() + 0.38 * h, 0.66 * w, 0.22 * h);
        paintInitials(p, d.initials, textBox, d.text, QColor(0, 0, 0, 160), unit);
        break;
    }
    }

    if (d.stars > 0) {
        const QPointF c(r.center().x(), r.top() + 0.22 * h);
        p.fillPath(starPath(c, 0.10 * w), d.plateEdge);
    }
}

void paintShading(QPainter &p, const QRectF &r, const QPainterPath &shield)
{
    const qreal w = r.width();
    // Light from the upper left: a soft sheen and a darker lower flank give the
    // shield a slight curvature.
    QLinearGradient sheen(r.topLeft(), r.bottomRight());
    sheen.setColorAt(0.0, QColor(255, 255, 255, 60));
    sheen.setColorAt(0.45, QColor(255, 255, 255, 10));
    sheen.setColorAt(0.55, QColor(0, 0, 0, 0));
    sheen.setColorAt(1.0, QColor(0, 0, 0, 70));
    p.fillPath(shield, sheen);

    // A glossy highlight on the upper left.
    QRadialGradient gloss(r.left() + 0.28 * w, r.top() + 0.12 * r.height(), 0.55 * w);
    gloss.setColorAt(0.0, QColor(255, 255, 255, 45));
    gloss.setColorAt(1.0, QColor(255, 255, 255, 0));
    p.fillPath(shield, gloss);
}

} // namespace

ClubColours clubColours(int clubId)
{
    if (clubId < 1 || clubId > 16)
        return {kNeutral, kNeutral.lighter(150)};
    return kColours[static_cast<std::size_t>(clubId - 1)];
}

namespace {

QPixmap drawCrest(int clubId, QSize size)
{
    QPixmap pixmap(size.expandedTo(QSize(1, 1)));
    pixmap.fill(Qt::transparent);

    QPainter p(&pixmap);
    p.setRenderHint(QPainter::Antialiasing);

    // The shield is a little taller than wide and keeps that shape in any box.
    const qreal aspect = 0.84;
    const qreal outline = qMax<qreal>(1.0, qMin(size.width(), size.height()) / 64.0);
    qreal h = size.height() - 2 * outline;
    qreal w = h * aspect;
    if (w > size.width() - 2 * outline) {
        w = size.width() - 2 * outline;
        h = w / aspect;
    }
    const QRectF r((size.width() - w) / 2, (size.height() - h) / 2, w, h);

    if (clubId < 1 || clubId > 16) {
        const QPainterPath shield = shieldPath(Shape::Heater, r);
        p.fillPath(shield, kNeutral);
        paintShading(p, r, shield);
        p.strokePath(shield, QPen(QColor(0x20, 0x20, 0x24), outline));
        return pixmap;
    }

    const Design d = designOf(clubId);
    const QPainterPath shield = shieldPath(d.shape, r);

    p.save();
    p.setClipPath(shield);
    paintField(p, d, r);
    if (d.field == Field::Bordure) {
        p.strokePath(shield, QPen(d.second, w * 0.16));
        p.strokePath(shield, QPen(QColor(0, 0, 0, 70), w * 0.005 + outline * 0.6));
    }
    paintPlate(p, d, r);
    paintShading(p, r, shield);
    // An inner rim in a light metal tone, as on an enamel badge.
    p.strokePath(shield, QPen(QColor(255, 255, 255, 150), outline * 2.6));
    p.strokePath(shield, QPen(QColor(0xd9, 0xb2, 0x4c, 200), outline * 1.6));
    p.restore();

    p.strokePath(shield, QPen(QColor(0x1c, 0x1c, 0x22), outline, Qt::SolidLine, Qt::SquareCap,
                              Qt::RoundJoin));
    return pixmap;
}

} // namespace

QPixmap crest(int clubId, QSize size)
{
    return detail::cached("crest", clubId, size, drawCrest);
}

} // namespace artwork
