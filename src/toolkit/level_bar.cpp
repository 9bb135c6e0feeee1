// Level bars and empty-graph underlines, drawn without anti-aliasing to stay crisp.
#include "toolkit/level_bar.h"

#include <QPen>

namespace TvlClasses {

void tvlDrawLevelBar(QPainter& painter, const ColorList& colors, const QRectF& frame, bool drawInWhite)
{
    if (colors.empty())
        return;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, false);

    // The right edge is deliberately not inset: the frame's stroke covers it.
    const double left = frame.x() + 1;
    const double width = frame.width() - 1;
    const double usable = frame.height() - 1;
    double y = frame.y() + 1;
    for (const ColorShare& entry : colors) {
        const QColor color = drawingColor(entry.color, drawInWhite);
        if (!entry.fraction) {
            painter.setPen(QPen(color, 1, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
            painter.setBrush(Qt::NoBrush);
            painter.drawRect(frame);
        } else if (*entry.fraction > 0) {
            const double height = *entry.fraction * usable;
            painter.fillRect(QRectF(left, y, width, height), color);
            y += height;
        }
    }

    painter.restore();
}

void tvlDrawEmptyUnderLine(QPainter& painter, const QColor& color, double x, double y, double width)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.fillRect(QRectF(x, y, width, 0.5), color);
    painter.restore();
}

} // namespace TvlClasses
