#pragma once

#include <QPainterPath>
#include <QPolygonF>

// Drawing helpers shared by the artwork files; not part of the artwork's interface.
namespace artwork::detail {

// The same line broken into dashes, as the free-throw line of a court is painted.
QPainterPath dashed(const QPolygonF &line, qreal dash, qreal gap);

} // namespace artwork::detail
