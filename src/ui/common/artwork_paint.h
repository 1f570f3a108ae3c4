#pragma once

#include <QPainterPath>
#include <QPixmap>
#include <QPolygonF>
#include <QSize>

// Drawing helpers shared by the artwork files; not part of the artwork's interface.
namespace artwork::detail {

// The same line broken into dashes, as the free-throw line of a court is painted.
QPainterPath dashed(const QPolygonF &line, qreal dash, qreal gap);

// A picture drawn once for each size and kept, so that a screen opened again shows it at once:
// `which` tells pictures of one kind apart (a club, a country), and `draw` paints one.
QPixmap cached(const char *kind, int which, QSize size, QPixmap (*draw)(int which, QSize size));

} // namespace artwork::detail
