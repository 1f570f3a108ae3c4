#include "artwork_paint.h"

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

} // namespace artwork::detail
