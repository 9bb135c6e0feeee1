// The round share meter and the two-lamp activity indicator.
#pragma once

#include "toolkit/color_list.h"

#include <QPainter>
#include <QRectF>

namespace TvlClasses {

// Pie slices of the shares in a square frame, from the top counter-clockwise, the LAST
// entry first, each rounded up to a whole degree; entries without a fraction stroke the ring.
// Highlighted, only the part not taken by almost transparent shares (alpha 0.25 or less, such
// as idle) is filled, in one wedge ending at the top.
void tvlDrawCicleBar(QPainter& painter, const ColorList& colors, const QRectF& frame, bool isHighLighted,
                     bool drawInWhite);

// Two lamps of diameter myRadius stacked around the middle of baseHeight, spacer apart from it,
// each filled in its colour when on, else in the background colour.
void tvlDrawTwoCircle(QPainter& painter, bool upOn, bool dwOn, const QColor& frameColor, const QColor& baseBgColor,
                      const QColor& upColor, const QColor& dwColor, double baseX, double baseHeight, double myRadius,
                      double spacer, bool drawInWhite);

} // namespace TvlClasses
