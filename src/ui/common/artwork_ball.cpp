#include "artwork.h"
#include "artwork_paint.h"

#include <QPainter>
#include <QPainterPath>
#include <QPolygonF>
#include <QRadialGradient>
#include <QtMath>

#include <algorithm>
#include <array>
#include <vector>

// The handball is a real little 3D model: the stitched panels of a classic ball (twelve
// pentagons, twenty hexagons) are laid on a sphere, turned a little so the ball looks
// as if in flight, and projected; light and shade then give it its roundness.
namespace artwork {

namespace {

struct Vec3 {
    double x = 0, y = 0, z = 0;
};

Vec3 operator+(const Vec3 &a, const Vec3 &b) { return {a.x + b.x, a.y + b.y, a.z + b.z}; }
Vec3 operator-(const Vec3 &a, const Vec3 &b) { return {a.x - b.x, a.y - b.y, a.z - b.z}; }
Vec3 operator*(const Vec3 &a, double k) { return {a.x * k, a.y * k, a.z * k}; }
double dot(const Vec3 &a, const Vec3 &b) { return a.x * b.x + a.y * b.y + a.z * b.z; }
Vec3 cross(const Vec3 &a, const Vec3 &b)
{
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}
Vec3 unit(const Vec3 &a)
{
    const double len = std::sqrt(dot(a, a));
    return len > 0 ? a * (1.0 / len) : a;
}

struct Panel {
    std::vector<Vec3> outline; // points on the unit sphere, in order around the panel
    bool pentagon = false;
};

// Orders points around their common centre, seen from outside the sphere.
std::vector<Vec3> ordered(std::vector<Vec3> pts)
{
    Vec3 c;
    for (const Vec3 &p : pts)
        c = c + p;
    c = unit(c);
    const Vec3 ref = unit(pts.front() - c * dot(pts.front(), c));
    const Vec3 side = cross(c, ref);
    std::sort(pts.begin(), pts.end(), [&](const Vec3 &a, const Vec3 &b) {
        return std::atan2(dot(a, side), dot(a, ref)) < std::atan2(dot(b, side), dot(b, ref));
    });
    return pts;
}

// Each panel edge is split into short steps pushed onto the sphere, so the seams
// curve with the ball.
std::vector<Vec3> onSphere(const std::vector<Vec3> &corners)
{
    const int steps = 6;
    std::vector<Vec3> out;
    for (std::size_t i = 0; i < corners.size(); ++i) {
        const Vec3 &a = corners[i];
        const Vec3 &b = corners[(i + 1) % corners.size()];
        for (int s = 0; s < steps; ++s)
            out.push_back(unit(a + (b - a) * (double(s) / steps)));
    }
    return out;
}

const std::vector<Panel> &panels()
{
    static const std::vector<Panel> cache = [] {
        const double phi = (1.0 + std::sqrt(5.0)) / 2.0;
        std::vector<Vec3> v;
        for (int a : {-1, 1})
            for (int b : {-1, 1}) {
                v.push_back({0, double(a), b * phi});
                v.push_back({double(a), b * phi, 0});
                v.push_back({a * phi, 0, double(b)});
            }
        const std::size_t n = v.size();
        auto adjacent = [&](std::size_t i, std::size_t j) {
            const Vec3 d = v[i] - v[j];
            return std::abs(dot(d, d) - 4.0) < 1e-6;
        };
        std::vector<Panel> out;
        // A pentagon where each corner of the icosahedron was cut off...
        for (std::size_t i = 0; i < n; ++i) {
            std::vector<Vec3> corners;
            for (std::size_t j = 0; j < n; ++j)
                if (adjacent(i, j))
                    corners.push_back(v[i] + (v[j] - v[i]) * (1.0 / 3.0));
            out.push_back({onSphere(ordered(corners)), true});
        }
        // ...and a hexagon on each of its faces.
        for (std::size_t i = 0; i < n; ++i)
            for (std::size_t j = i + 1; j < n; ++j)
                for (std::size_t k = j + 1; k < n; ++k)
                    if (adjacent(i, j) && adjacent(j, k) && adjacent(i, k)) {
                        const std::array<Vec3, 3> t{v[i], v[j], v[k]};
                        std::vector<Vec3> corners;
                        for (int e = 0; e < 3; ++e) {
                            const Vec3 &a = t[e];
                            const Vec3 &b = t[(e + 1) % 3];
                            corners.push_back(a + (b - a) * (1.0 / 3.0));
                            corners.push_back(a + (b - a) * (2.0 / 3.0));
                        }
                        out.push_back({onSphere(ordered(corners)), false});
                    }
        return out;
    }();
    return cache;
}

Vec3 turned(const Vec3 &p, double yaw, double pitch, double roll)
{
    const double cy = std::cos(yaw), sy = std::sin(yaw);
    const double cp = std::cos(pitch), sp = std::sin(pitch);
    const double cr = std::cos(roll), sr = std::sin(roll);
    Vec3 a{cy * p.x + sy * p.z, p.y, -sy * p.x + cy * p.z};
    Vec3 b{a.x, cp * a.y - sp * a.z, sp * a.y + cp * a.z};
    return {cr * b.x - sr * b.y, sr * b.x + cr * b.y, b.z};
}

QPixmap drawHandball(int, QSize size)
{
    QPixmap pixmap(size.expandedTo(QSize(1, 1)));
    pixmap.fill(Qt::transparent);
    QPainter p(&pixmap);
    p.setRenderHint(QPainter::Antialiasing);

    const qreal radius = qMin(pixmap.width(), pixmap.height()) / 2.0 - 1.0;
    const QPointF c(pixmap.width() / 2.0, pixmap.height() / 2.0);
    QPainterPath disc;
    disc.addEllipse(c, radius, radius);

    // The panels, back to front; those behind the ball are flattened onto its rim.
    struct Projected {
        QPolygonF polygon;
        double depth;
        bool pentagon;
    };
    std::vector<Projected> faces;
    for (const Panel &panel : panels()) {
        QPolygonF poly;
        double depth = 0;
        for (const Vec3 &q : panel.outline) {
            const Vec3 t = turned(q, 0.35, 0.55, 0.2);
            depth += t.z;
            double x = t.x, y = t.y;
            if (t.z < 0) {
                const double len = std::sqrt(x * x + y * y);
                if (len > 0) {
                    x /= len;
                    y /= len;
                }
            }
            poly << QPointF(c.x() + x * radius, c.y() - y * radius);
        }
        depth /= panel.outline.size();
        if (depth > -0.25)
            faces.push_back({poly, depth, panel.pentagon});
    }
    std::sort(faces.begin(), faces.end(), [](const Projected &a, const Projected &b) { return a.depth < b.depth; });

    p.save();
    p.setClipPath(disc);
    p.fillPath(disc, QColor(0xf4, 0xf1, 0xea));
    const QColor leather(0xf4, 0xf1, 0xea), panelColour(0xf0, 0x6a, 0x1a);
    for (const Projected &f : faces) {
        p.setPen(Qt::NoPen);
        p.setBrush(f.pentagon ? panelColour : leather);
        p.drawPolygon(f.polygon);
    }
    // Seams: fainter toward the rim, where they fold away from the eye.
    for (const Projected &f : faces) {
        const int alpha = int(qBound(0.0, 60 + 150 * f.depth, 200.0));
        p.setPen(QPen(QColor(0x2a, 0x2a, 0x35, alpha), qMax<qreal>(0.8, radius * 0.022), Qt::SolidLine,
                      Qt::RoundCap, Qt::RoundJoin));
        p.setBrush(Qt::NoBrush);
        p.drawPolygon(f.polygon);
    }

    // Shade: lit from the upper left, darker toward the lower right rim.
    const QPointF light(c.x() - 0.38 * radius, c.y() - 0.42 * radius);
    QRadialGradient shade(light, radius * 1.75);
    shade.setColorAt(0.0, QColor(255, 255, 255, 0));
    shade.setColorAt(0.4, QColor(10, 15, 40, 25));
    shade.setColorAt(0.8, QColor(10, 15, 40, 150));
    shade.setColorAt(1.0, QColor(5, 8, 25, 225));
    p.fillPath(disc, shade);
    QRadialGradient gloss(light, radius * 0.55);
    gloss.setColorAt(0.0, QColor(255, 255, 255, 150));
    gloss.setColorAt(1.0, QColor(255, 255, 255, 0));
    p.fillPath(disc, gloss);
    p.restore();

    // A thin cool rim light on the lower right lifts the ball off a dark background.
    QRadialGradient rim(c - QPointF(0.2 * radius, 0.2 * radius), radius * 1.2);
    rim.setColorAt(0.88, QColor(140, 180, 255, 0));
    rim.setColorAt(1.0, QColor(140, 180, 255, 90));
    p.fillPath(disc, rim);
    return pixmap;
}

} // namespace

QPixmap handball(QSize size)
{
    return detail::cached("handball", 0, size, drawHandball);
}

} // namespace artwork
