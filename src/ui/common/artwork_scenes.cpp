#include "artwork.h"
#include "artwork_paint.h"

#include <QFont>
#include <QFontMetricsF>
#include <QImage>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QPolygonF>
#include <QRadialGradient>
#include <QtMath>

#include <cmath>

// The two big pictures of the game: the title screen and the main menu. Both are built
// around a handball court drawn to the rules' measurements (40 x 20 m, goal areas of
// 6 m, the dashed free-throw line at 9 m, the 7 m penalty mark), so the lines look right
// to anyone who has played.
namespace artwork {

namespace {

constexpr qreal kHalfLength = 20.0; // metres from the centre line to a goal line
constexpr qreal kHalfWidth = 10.0;  // metres from the middle of the court to a side line
constexpr qreal kPost = 1.5;        // half the width of a goal

const QColor kOrange(0xf0, 0x7a, 0x1e);

// A line of the goal area around the goal on the given side (+1 right, -1 left): two
// quarter circles round the posts joined by a straight piece, cut off at the side lines.
QPolygonF areaLine(qreal radius, int side)
{
    QPolygonF line;
    const int steps = 48;
    for (int half = -1; half <= 1; half += 2) {
        for (int i = 0; i <= steps; ++i) {
            // From the side line toward the middle, then on the other half back out.
            const qreal t = half < 0 ? qreal(i) / steps : 1.0 - qreal(i) / steps;
            const qreal a = t * M_PI / 2;
            const qreal y = half * (kPost + radius * std::cos(a));
            const qreal x = side * (kHalfLength - radius * std::sin(a));
            if (std::abs(y) <= kHalfWidth)
                line << QPointF(x, y);
        }
    }
    if (!line.isEmpty() && radius + kPost > kHalfWidth) {
        // The 9 m line meets the side line before its quarter circle ends: close it there.
        const qreal dy = kHalfWidth - kPost;
        const qreal x = side * (kHalfLength - std::sqrt(std::max<qreal>(0.0, radius * radius - dy * dy)));
        line.prepend(QPointF(x, -kHalfWidth));
        line.append(QPointF(x, kHalfWidth));
    }
    return line;
}

QPainterPath polyPath(const QPolygonF &poly)
{
    QPainterPath path;
    path.addPolygon(poly);
    return path;
}

// The painted lines of the court, in metres.
QPainterPath courtLines(qreal fromX, qreal toX)
{
    QPainterPath lines;
    lines.addRect(QRectF(fromX, -kHalfWidth, toX - fromX, 2 * kHalfWidth));
    if (fromX < 0 && toX > 0) {
        lines.moveTo(0, -kHalfWidth);
        lines.lineTo(0, kHalfWidth);
        // The substitution lines, 4.5 m either side of the centre line.
        for (int s = -1; s <= 1; s += 2) {
            lines.moveTo(s * 4.5, kHalfWidth - 0.15);
            lines.lineTo(s * 4.5, kHalfWidth + 0.15);
        }
    }
    for (int side = -1; side <= 1; side += 2) {
        if (side * kHalfLength < fromX - 0.1 || side * kHalfLength > toX + 0.1)
            continue;
        lines.addPath(polyPath(areaLine(6.0, side)));
        lines.addPath(detail::dashed(areaLine(9.0, side), 0.45, 0.35));
        lines.moveTo(side * (kHalfLength - 7.0), -0.5); // the 7 m mark
        lines.lineTo(side * (kHalfLength - 7.0), 0.5);
        lines.moveTo(side * (kHalfLength - 4.0), -0.08); // the goalkeeper's 4 m mark
        lines.lineTo(side * (kHalfLength - 4.0), 0.08);
    }
    return lines;
}

QPainterPath goalArea(int side)
{
    QPolygonF area = areaLine(6.0, side);
    area << QPointF(side * kHalfLength, 6.0 + kPost) << QPointF(side * kHalfLength, -6.0 - kPost);
    return polyPath(area);
}

// A goal seen from above: the net behind the line and the crossbar painted in the
// red and white bands the rules ask for.
void paintGoal(QPainter &p, int side, const QColor &net, qreal alpha)
{
    const qreal x = side * kHalfLength;
    const QRectF netBox(side > 0 ? x : x - 1.0, -kPost, 1.0, 2 * kPost);
    QColor mesh = net;
    mesh.setAlphaF(mesh.alphaF() * alpha);
    p.fillRect(netBox, QColor(255, 255, 255, int(25 * alpha)));
    p.setPen(QPen(mesh, 0.03));
    for (qreal t = 0.2; t < 1.0; t += 0.2)
        p.drawLine(QPointF(netBox.left() + t * netBox.width(), netBox.top()),
                   QPointF(netBox.left() + t * netBox.width(), netBox.bottom()));
    for (qreal t = -kPost + 0.2; t < kPost; t += 0.2)
        p.drawLine(QPointF(netBox.left(), t), QPointF(netBox.right(), t));
    p.setPen(QPen(mesh, 0.06));
    p.setBrush(Qt::NoBrush);
    p.drawRect(netBox);
    for (int band = 0; band < 15; ++band) {
        const QColor c = band % 2 == 0 ? QColor(0xd8, 0x1e, 0x28, int(255 * alpha))
                                       : QColor(0xf8, 0xf8, 0xf8, int(255 * alpha));
        p.fillRect(QRectF(x - 0.08, -kPost + band * 0.2, 0.16, 0.2), c);
    }
}

QFont displayFont(qreal pixelSize, QFont::Weight weight = QFont::Bold)
{
    QFont font;
    font.setFamilies({QStringLiteral("DejaVu Sans"), QStringLiteral("Liberation Sans"),
                      QStringLiteral("Arial"), QStringLiteral("Helvetica")});
    font.setStyleHint(QFont::SansSerif);
    font.setWeight(weight);
    font.setPixelSize(qMax(1, qRound(pixelSize)));
    return font;
}

// The game's name as a sporty logo: slanted heavy letters with a deep shadow, a warm
// metallic face and a dark outline. The box is filled as far as the word's shape allows.
void paintLogo(QPainter &p, const QRectF &box)
{
    QFont font = displayFont(200, QFont::Black);
    font.setLetterSpacing(QFont::AbsoluteSpacing, 6);
    QPainterPath word;
    word.addText(0, 0, font, QStringLiteral("ZARPAZO"));
    QTransform slant;
    slant.shear(-0.18, 0);
    word = slant.map(word);
    const QRectF b = word.boundingRect();
    const qreal scale = qMin(box.width() / b.width(), box.height() / b.height());
    QTransform fit;
    fit.translate(box.center().x(), box.center().y());
    fit.scale(scale, scale);
    fit.translate(-b.center().x(), -b.center().y());
    word = fit.map(word);
    const QRectF wb = word.boundingRect();
    const qreal unit = wb.height() / 100.0;

    // A soft shadow cast down and to the right. It is soft enough to be drawn at half the size
    // and laid down enlarged, for a quarter of the work.
    {
        const QRect area = word.translated(5 * unit, 9 * unit).boundingRect().toAlignedRect().adjusted(
            -qCeil(8 * unit), -qCeil(8 * unit), qCeil(8 * unit), qCeil(8 * unit));
        QImage shadow((area.size() + QSize(1, 1)) / 2, QImage::Format_ARGB32_Premultiplied);
        shadow.fill(Qt::transparent);
        QPainter s(&shadow);
        s.setRenderHint(QPainter::Antialiasing);
        s.scale(0.5, 0.5);
        s.translate(-area.topLeft());
        for (int i = 4; i >= 1; --i)
            s.strokePath(word.translated(5 * unit, 9 * unit),
                         QPen(QColor(0, 0, 0, 35), i * 3.5 * unit, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        s.fillPath(word.translated(5 * unit, 9 * unit), QColor(0, 0, 0, 150));
        s.end();
        p.save();
        p.setRenderHint(QPainter::SmoothPixmapTransform);
        p.drawImage(QRectF(area.topLeft(), QSizeF(shadow.size() * 2)), shadow);
        p.restore();
    }
    // The depth of the letters: the word laid down again and again, a step further back and a
    // shade darker each time. Its shape is drawn once, as a mask, and each step tints it.
    const int steps = 24;
    const qreal depth = 7.0;
    const QRect shape = wb.toAlignedRect().adjusted(-1, -1, 1, 1);
    QImage mask(shape.size(), QImage::Format_ARGB32_Premultiplied);
    mask.fill(Qt::transparent);
    {
        QPainter m(&mask);
        m.setRenderHint(QPainter::Antialiasing);
        m.translate(-shape.topLeft());
        m.fillPath(word, Qt::white);
    }
    QImage step(mask.size(), QImage::Format_ARGB32_Premultiplied);
    for (int i = steps; i >= 1; --i) {
        const qreal t = qreal(i) / steps;
        step = mask;
        QPainter tint(&step);
        tint.setCompositionMode(QPainter::CompositionMode_SourceIn);
        tint.fillRect(step.rect(), QColor::fromRgbF(0.45 - 0.25 * t, 0.14 - 0.08 * t, 0.04, 1.0));
        tint.end();
        p.drawImage(shape.topLeft() + QPointF(0.7 * depth * t * unit, depth * t * unit).toPoint(), step);
    }
    p.strokePath(word.translated(0.7 * depth * unit, 1.0 * depth * unit),
                 QPen(QColor(0x12, 0x08, 0x04), 1.2 * unit, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));

    QLinearGradient face(wb.topLeft(), wb.bottomLeft());
    face.setColorAt(0.0, QColor(0xff, 0xff, 0xff));
    face.setColorAt(0.45, QColor(0xff, 0xe9, 0xc8));
    face.setColorAt(0.52, QColor(0xfb, 0xb0, 0x5a));
    face.setColorAt(1.0, QColor(0xe8, 0x6a, 0x12));
    p.strokePath(word, QPen(QColor(0x1a, 0x0c, 0x06), 2.4 * unit, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.fillPath(word, face);
    // A fine light edge along the top of the letters.
    p.save();
    p.setClipPath(word);
    p.strokePath(word.translated(0, 1.4 * unit), QPen(QColor(255, 255, 255, 110), 1.2 * unit));
    p.restore();
}

// A goal standing on the goal line of a court in perspective, seen from behind its net:
// the banded posts and crossbar, two metres high, and the mesh between us and them.
void paintStandingGoal(QPainter &p, const QTransform &floor)
{
    const QPointF post1 = floor.map(QPointF(kHalfLength, -kPost));
    const QPointF post2 = floor.map(QPointF(kHalfLength, kPost));
    const QPointF back1 = floor.map(QPointF(kHalfLength + 1.0, -kPost));
    const QPointF back2 = floor.map(QPointF(kHalfLength + 1.0, kPost));
    const qreal metre = std::hypot(post2.x() - post1.x(), post2.y() - post1.y()) / (2 * kPost);
    const qreal backMetre = std::hypot(back2.x() - back1.x(), back2.y() - back1.y()) / (2 * kPost);
    const QPointF up(0, -2.0 * metre);
    const qreal bar = 0.09 * metre;

    // The frame in its red and white bands, 20 cm each.
    auto banded = [&](const QPointF &from, const QPointF &to) {
        const int bands = qMax(1, qRound(std::hypot(to.x() - from.x(), to.y() - from.y()) / (0.2 * metre)));
        for (int i = 0; i < bands; ++i) {
            const QPointF a = from + (to - from) * (qreal(i) / bands);
            const QPointF b = from + (to - from) * (qreal(i + 1) / bands);
            p.setPen(QPen(i % 2 == 0 ? QColor(0xd8, 0x1e, 0x28) : QColor(0xf4, 0xf4, 0xf4), bar, Qt::SolidLine,
                          Qt::FlatCap));
            p.drawLine(a, b);
        }
    };
    p.fillRect(QRectF(post1 + up, post2), QColor(0x06, 0x0c, 0x20, 90));
    banded(post1, post1 + up);
    banded(post2, post2 + up);
    banded(post1 + up + QPointF(-bar / 2, 0), post2 + up + QPointF(bar / 2, 0));

    // The net: its back wall and sides, drawn as a fine mesh in front of the frame.
    const QPointF backUp(0, -1.7 * backMetre);
    const QPolygonF back({back1, back2, back2 + backUp, back1 + backUp});
    p.setPen(QPen(QColor(0xe8, 0xf0, 0xff, 70), qMax<qreal>(1.0, 0.02 * metre)));
    const int meshX = 15, meshY = 9;
    for (int i = 0; i <= meshX; ++i) {
        const qreal t = qreal(i) / meshX;
        p.drawLine(back1 + (back2 - back1) * t, back1 + backUp + (back2 - back1) * t);
    }
    for (int j = 0; j <= meshY; ++j) {
        const qreal t = qreal(j) / meshY;
        p.drawLine(back1 + backUp * t, back2 + backUp * t);
    }
    p.setPen(QPen(QColor(0xe8, 0xf0, 0xff, 110), qMax<qreal>(1.0, 0.03 * metre)));
    p.drawLine(post1 + up, back1 + backUp);
    p.drawLine(post2 + up, back2 + backUp);
    p.drawLine(post1, back1);
    p.drawLine(post2, back2);
    p.setBrush(Qt::NoBrush);
    p.drawPolygon(back);
}

// Text with a little air between the letters, centred on a point.
void paintSpaced(QPainter &p, const QString &text, const QPointF &centre, const QFont &font, const QColor &colour,
                 qreal shadow)
{
    const QFontMetricsF fm(font);
    const qreal width = fm.horizontalAdvance(text);
    p.setFont(font);
    p.setPen(QColor(0, 0, 0, 160));
    const QPointF origin(centre.x() - width / 2, centre.y() + (fm.ascent() - fm.descent()) / 2);
    p.drawText(origin + QPointF(0.75 * shadow, shadow), text);
    p.setPen(colour);
    p.drawText(origin, text);
}

qreal spacedWidth(const QString &text, const QFont &font)
{
    return QFontMetricsF(font).horizontalAdvance(text);
}

// Three claw marks torn across the picture: the "zarpazo", a swipe of a paw.
void paintClaw(QPainter &p, const QPointF &start, const QPointF &end, qreal width, const QColor &colour)
{
    const QPointF along = end - start;
    const qreal len = std::hypot(along.x(), along.y());
    const QPointF normal(-along.y() / len, along.x() / len);
    for (int i = -1; i <= 1; ++i) {
        const QPointF offset = normal * (i * width * 2.6) + along * (std::abs(i) * 0.06);
        const QPointF a = start + offset;
        const QPointF b = end + offset - along * (std::abs(i) * 0.1);
        const QPointF mid = (a + b) / 2 + normal * (width * 1.6);
        const qreal w = width * (i == 0 ? 1.0 : 0.8);
        QPainterPath mark;
        mark.moveTo(a);
        mark.quadTo(mid - normal * w, b);
        mark.quadTo(mid + normal * w, a);
        mark.closeSubpath();
        QLinearGradient g(a, b);
        QColor faint = colour;
        faint.setAlpha(0);
        g.setColorAt(0.0, faint);
        g.setColorAt(0.35, colour);
        g.setColorAt(0.7, colour);
        g.setColorAt(1.0, faint);
        p.fillPath(mark, g);
    }
}

QPixmap drawTitle(int, QSize size)
{
    QPixmap pixmap(size.expandedTo(QSize(16, 9)));
    const qreal W = pixmap.width(), H = pixmap.height();
    const qreal u = qMin(W / 1280.0, H / 720.0); // one pixel of the 1280 x 720 design
    QPainter p(&pixmap);
    p.setRenderHint(QPainter::Antialiasing);
    p.setRenderHint(QPainter::TextAntialiasing);

    // Night-blue sky of an arena, darker at the top.
    QLinearGradient sky(0, 0, 0, H);
    sky.setColorAt(0.0, QColor(0x02, 0x04, 0x0b));
    sky.setColorAt(0.55, QColor(0x0a, 0x1a, 0x3c));
    sky.setColorAt(1.0, QColor(0x04, 0x09, 0x18));
    p.fillRect(QRectF(0, 0, W, H), sky);
    QRadialGradient glow(W / 2, H * 0.38, W * 0.5);
    glow.setColorAt(0.0, QColor(0x2a, 0x55, 0xb0, 110));
    glow.setColorAt(1.0, QColor(0x2a, 0x55, 0xb0, 0));
    p.fillRect(QRectF(0, 0, W, H), glow);

    // The floor: one half of a court in perspective, its goal toward us. It is drawn on
    // a layer of its own that fades out toward the far end, into the dark of the hall.
    const qreal horizon = H * 0.47;
    QPolygonF floorQuad;
    floorQuad << QPointF(W * 0.5 - W * 0.34, horizon) << QPointF(W * 0.5 + W * 0.34, horizon)
              << QPointF(W * 0.5 + W * 0.66, H * 0.85) << QPointF(W * 0.5 - W * 0.66, H * 0.85);
    QPolygonF halfCourt;
    halfCourt << QPointF(-4.0, -kHalfWidth) << QPointF(-4.0, kHalfWidth) << QPointF(kHalfLength, kHalfWidth)
              << QPointF(kHalfLength, -kHalfWidth);
    QTransform floor;
    if (QTransform::quadToQuad(halfCourt, floorQuad, floor)) {
        // Nothing of the layer shows above the horizon, where it fades out entirely: it starts
        // there.
        const int top = int(horizon);
        const QTransform below = QTransform::fromTranslate(0, -top);
        QImage layer(QSize(pixmap.width(), pixmap.height() - top), QImage::Format_ARGB32_Premultiplied);
        layer.fill(Qt::transparent);
        QPainter lp(&layer);
        lp.setRenderHint(QPainter::Antialiasing);
        lp.setTransform(floor * below);
        const QRectF boards(-4.0, -kHalfWidth, kHalfLength + 4.0, 2 * kHalfWidth);
        lp.fillRect(boards, QColor(0x1a, 0x3a, 0x80, 70));
        lp.fillPath(goalArea(1), QColor(0x2a, 0x68, 0xd0, 70));
        const QPainterPath lines = courtLines(-4.0, kHalfLength);
        lp.strokePath(lines, QPen(QColor(0x8f, 0xb8, 0xff, 40), 0.40, Qt::SolidLine, Qt::FlatCap));
        lp.strokePath(lines, QPen(QColor(0xe8, 0xf0, 0xff, 150), 0.10, Qt::SolidLine, Qt::FlatCap));
        lp.setTransform(below);
        paintStandingGoal(lp, floor);
        lp.setCompositionMode(QPainter::CompositionMode_DestinationIn);
        QLinearGradient fade(0, horizon, 0, H);
        fade.setColorAt(0.0, QColor(0, 0, 0, 0));
        fade.setColorAt(0.45, QColor(0, 0, 0, 170));
        fade.setColorAt(1.0, QColor(0, 0, 0, 255));
        lp.fillRect(QRectF(0, 0, W, H), fade);
        lp.end();
        p.drawImage(QPointF(0, top), layer);
    }

    // Claw marks behind the name.
    paintClaw(p, QPointF(W * 0.5 - 250 * u, H * 0.5 - 290 * u), QPointF(W * 0.5 + 170 * u, H * 0.5 - 30 * u), 30 * u,
              QColor(0xff, 0x6a, 0x10, 28));
    paintClaw(p, QPointF(W * 0.5 - 250 * u, H * 0.5 - 290 * u), QPointF(W * 0.5 + 170 * u, H * 0.5 - 30 * u), 13 * u,
              QColor(0xff, 0x70, 0x1a, 190));

    // The ball, low on the right, with its shadow on the floor.
    const qreal ballR = 92 * u;
    const QPointF ballC(W * 0.5 + 415 * u, H * 0.5 + 150 * u);
    QRadialGradient shadow(ballC.x() + 10 * u, ballC.y() + ballR + 38 * u, ballR * 1.2);
    shadow.setColorAt(0.0, QColor(0, 0, 0, 170));
    shadow.setColorAt(1.0, QColor(0, 0, 0, 0));
    p.save();
    p.translate(ballC.x() + 10 * u, ballC.y() + ballR + 38 * u);
    p.scale(1.0, 0.25);
    p.translate(-(ballC.x() + 10 * u), -(ballC.y() + ballR + 38 * u));
    p.fillRect(QRectF(ballC.x() - 2 * ballR, ballC.y() + ballR + 38 * u - 2 * ballR, 4 * ballR, 4 * ballR), shadow);
    p.restore();
    const int ballSize = qRound(2 * ballR);
    p.drawPixmap(QPointF(ballC.x() - ballSize / 2.0, ballC.y() - ballSize / 2.0), handball(QSize(ballSize, ballSize)));

    // The name and what the game is.
    paintLogo(p, QRectF(W * 0.5 - 430 * u, H * 0.5 - 215 * u, 860 * u, 170 * u));
    const QString subtitle = QStringLiteral("Liga ASOBAL \u00B7 Manager de Balonmano");
    QFont sub = displayFont(30 * u, QFont::DemiBold);
    sub.setLetterSpacing(QFont::AbsoluteSpacing, 2.0 * u);
    const QPointF subCentre(W * 0.5, H * 0.5 + 10 * u);
    paintSpaced(p, subtitle, subCentre, sub, QColor(0xf2, 0xf5, 0xff), 2.5 * u);
    const qreal half = spacedWidth(subtitle, sub) / 2 + 24 * u;
    for (int s = -1; s <= 1; s += 2) {
        QLinearGradient rule(subCentre.x() + s * half, 0, subCentre.x() + s * (half + 120 * u), 0);
        rule.setColorAt(0.0, kOrange);
        rule.setColorAt(1.0, QColor(0xf0, 0x7a, 0x1e, 0));
        p.fillRect(QRectF(s < 0 ? subCentre.x() - half - 120 * u : subCentre.x() + half, subCentre.y() - 1.5 * u,
                          120 * u, 3 * u),
                   rule);
    }

    QFont season = displayFont(17 * u, QFont::Normal);
    season.setLetterSpacing(QFont::AbsoluteSpacing, 3.0 * u);
    paintSpaced(p, QStringLiteral("Temporada 2004-2005"), QPointF(W * 0.5, H - 34 * u), season,
                QColor(0xa8, 0xb8, 0xd8), 1.5 * u);

    // A gentle vignette keeps the eye in the middle.
    QRadialGradient vignette(W / 2, H / 2, std::hypot(W, H) / 2);
    vignette.setColorAt(0.6, QColor(0, 0, 0, 0));
    vignette.setColorAt(1.0, QColor(0, 0, 0, 150));
    p.fillRect(QRectF(0, 0, W, H), vignette);
    return pixmap;
}

QPixmap drawMenuBackground(int, QSize size)
{
    QPixmap pixmap(size.expandedTo(QSize(16, 9)));
    const qreal W = pixmap.width(), H = pixmap.height();
    const qreal u = qMin(W / 1280.0, H / 720.0);
    QPainter p(&pixmap);
    p.setRenderHint(QPainter::Antialiasing);
    p.setRenderHint(QPainter::TextAntialiasing);

    // The free zone around the court.
    p.fillRect(QRectF(0, 0, W, H), QColor(0x1a, 0x4a, 0x88));

    // The court from above, as large as the picture allows below the heading.
    const qreal top = 96 * u;
    const qreal scale = qMin((W - 70 * u) / (2 * kHalfLength + 3.0), (H - top - 24 * u) / (2 * kHalfWidth));
    const QPointF centre(W / 2, top + (H - top - 24 * u) / 2 + 6 * u);
    QTransform court;
    court.translate(centre.x(), centre.y());
    court.scale(scale, scale);

    p.save();
    p.setTransform(court);
    const QRectF field(-kHalfLength, -kHalfWidth, 2 * kHalfLength, 2 * kHalfWidth);
    QLinearGradient wood(field.topLeft(), field.bottomLeft());
    wood.setColorAt(0.0, QColor(0xec, 0x86, 0x38));
    wood.setColorAt(1.0, QColor(0xd6, 0x6a, 0x22));
    p.fillRect(field, wood);
    // The boards of the sports floor.
    p.setPen(QPen(QColor(0x60, 0x28, 0x00, 22), 0.04));
    for (qreal y = -kHalfWidth + 0.6; y < kHalfWidth; y += 0.6)
        p.drawLine(QPointF(-kHalfLength, y), QPointF(kHalfLength, y));
    for (int side = -1; side <= 1; side += 2)
        p.fillPath(goalArea(side), QColor(0x22, 0x66, 0xc0));
    // Light falling from the roof onto the middle of the court.
    QRadialGradient lamp(QPointF(0, 0), kHalfLength * 1.1);
    lamp.setColorAt(0.0, QColor(255, 240, 220, 45));
    lamp.setColorAt(1.0, QColor(255, 240, 220, 0));
    p.fillRect(field, lamp);
    // The varnish mirrors the roof lamps in soft spots along the court.
    for (int i = -2; i <= 2; ++i) {
        QRadialGradient spot(QPointF(i * 8.0, -3.0), 3.2);
        spot.setColorAt(0.0, QColor(255, 255, 255, 38));
        spot.setColorAt(1.0, QColor(255, 255, 255, 0));
        p.save();
        p.translate(i * 8.0, -3.0);
        p.scale(1.0, 0.55);
        p.translate(-i * 8.0, 3.0);
        p.fillRect(QRectF(i * 8.0 - 3.2, -6.2, 6.4, 6.4), spot);
        p.restore();
    }
    const QPainterPath lines = courtLines(-kHalfLength, kHalfLength);
    p.strokePath(lines, QPen(QColor(0xf6, 0xf6, 0xf2), 0.10, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
    paintGoal(p, 1, QColor(0xf0, 0xf0, 0xf0, 200), 1.0);
    paintGoal(p, -1, QColor(0xf0, 0xf0, 0xf0, 200), 1.0);
    p.restore();

    // Darken everything so the buttons stand out; darkest under the heading and along
    // the bottom where a row of buttons may sit.
    QLinearGradient dim(0, 0, 0, H);
    dim.setColorAt(0.0, QColor(0x02, 0x05, 0x10, 235));
    dim.setColorAt(0.16, QColor(0x02, 0x05, 0x10, 150));
    dim.setColorAt(0.42, QColor(0x02, 0x05, 0x10, 70));
    dim.setColorAt(0.68, QColor(0x02, 0x05, 0x10, 95));
    dim.setColorAt(1.0, QColor(0x02, 0x05, 0x10, 200));
    p.fillRect(QRectF(0, 0, W, H), dim);
    QRadialGradient vignette(W / 2, H / 2, std::hypot(W, H) / 2);
    vignette.setColorAt(0.55, QColor(0, 0, 0, 0));
    vignette.setColorAt(1.0, QColor(0, 0, 0, 120));
    p.fillRect(QRectF(0, 0, W, H), vignette);

    // The heading.
    paintLogo(p, QRectF(W / 2 - 230 * u, 16 * u, 460 * u, 70 * u));
    return pixmap;
}

} // namespace

QPixmap title(QSize size)
{
    return detail::cached("title", 0, size, drawTitle);
}

QPixmap menuBackground(QSize size)
{
    return detail::cached("menu", 0, size, drawMenuBackground);
}

} // namespace artwork
