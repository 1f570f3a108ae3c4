#include "artwork_paint.h"

#include <QPixmapCache>

#include <algorithm>
#include <cmath>

namespace artwork::detail {

QPainterPath dashed(const QPolygonF &line, qreal dash, qreal gap)
{
    QPainterPath out;
    qreal carried = 0;
    bool drawing = true;
    for (int i = 1; i < line.size(); ++i) {
        QPointF a = line[i - 1];
        const QPointF b = line[i];
        const qreal length = std::hypot(b.x() - a.x(), b.y() - a.y());
        if (length < 1e-9)
            continue;
        const QPointF dir = (b - a) / length;
        qreal segment = length;
        if (drawing && carried == 0)
            out.moveTo(a);
        while (segment > 1e-9) {
            const qreal room = (drawing ? dash : gap) - carried;
            const qreal step = std::min(room, segment);
            const QPointF next = a + dir * step;
            if (drawing)
                out.lineTo(next);
            a = next;
            segment -= step;
            carried += step;
            if (carried >= (drawing ? dash : gap) - 1e-9) {
                carried = 0;
                drawing = !drawing;
                if (drawing)
                    out.moveTo(a);
            }
        }
    }
    return out;
}

QPixmap cached(const char *kind, int which, QSize size, QPixmap (*draw)(int which, QSize size))
{
    // The title and the menu alone are a few megabytes each, more than Qt keeps by default.
    constexpr int kKilobytes = 64 * 1024;
    if (QPixmapCache::cacheLimit() < kKilobytes)
        QPixmapCache::setCacheLimit(kKilobytes);
    const QString key = QStringLiteral("artwork/%1/%2/%3x%4")
                            .arg(QLatin1String(kind))
                            .arg(which)
                            .arg(size.width())
                            .arg(size.height());
    QPixmap picture;
    if (!QPixmapCache::find(key, &picture)) {
        picture = draw(which, size);
        QPixmapCache::insert(key, picture);
    }
    return picture;
}

} // namespace artwork::detail
