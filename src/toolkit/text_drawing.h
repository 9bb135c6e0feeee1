// Aligned text in a frame of a y-up picture.
#pragma once

#include "toolkit/text_attributes.h"

#include <QPainter>
#include <QRectF>
#include <QString>

namespace TvlClasses {

// hAlign 0 left, 1 centred, 2 right. vAlign 0 centred in the upper half, 1 centred, 2
// centred in the lower half. The text then moves down by ajustY points.
// Writes the colour into attributes; in the white look it writes white and REMOVES the
// shadow, so later texts drawn with the same attributes have none either.
void tvlDrawString(QPainter& painter, const QString& text, int vAlign, int hAlign, const QColor& textColor,
                   TextAttributes& attributes, const QRectF& frame, int ajustY, bool drawInWhite);

} // namespace TvlClasses
