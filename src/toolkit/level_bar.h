// The stacked level bar and the underline that marks the empty part of a graph.
#pragma once

#include "toolkit/color_list.h"

#include <QPainter>
#include <QRectF>

namespace TvlClasses {

// Stacks the shares of colors from the bottom of frame upwards, inset one point on the left
// and bottom only, and strokes the frame for each entry without a fraction. Shares that add
// up to more than 1 run over the top: the bar is not clipped.
void tvlDrawLevelBar(QPainter& painter, const ColorList& colors, const QRectF& frame, bool drawInWhite);

// A half-point line from (x, y) over width.
void tvlDrawEmptyUnderLine(QPainter& painter, const QColor& color, double x, double y, double width);

} // namespace TvlClasses
