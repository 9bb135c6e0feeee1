// Round meters and lamps, drawn anti-aliased.
#include "toolkit/circle_meter.h"

#include <QPainterPath>
#include <QPen>

#include <cmath>

namespace TvlClasses {

namespace {

// Angles are in degrees counter-clockwise from three o'clock on the y-up canvas. Qt counts
// them on a y-down device, so on the flipped canvas both signs turn round.
void appendArc(QPainterPath& path, const QPointF& centre, double radius, double from, double sweep)
{
    const QRectF bounds(centre.x() - radius, centre.y() - radius, 2 * radius, 2 * radius);
    path.arcTo(bounds, -from, -sweep);
}

void fillWedge(QPainter& painter, const QPointF& centre, double radius, double from, double sweep, const QColor& color)
{
    QPainterPath wedge(centre);
    appendArc(wedge, centre, radius, from, sweep);
    wedge.closeSubpath();
    painter.fillPath(wedge, color);
}

void drawLamp(QPainter& painter, const QRectF& outer, const QRectF& inner, const QColor& frameColor,
              const QColor& fillColor)
{
    QPainterPath lamp;
    lamp.setFillRule(Qt::WindingFill); // both ovals run the same way: the whole outer one fills
    lamp.addEllipse(outer);
    painter.strokePath(lamp, QPen(frameColor, 0.5));
    lamp.addEllipse(inner);
    painter.fillPath(lamp, fillColor);
}

} // namespace

void tvlDrawCicleBar(QPainter& painter, const ColorList& colors, const QRectF& frame, bool isHighLighted,
                     bool drawInWhite)
{
    if (colors.empty())
        return;
    const QRectF ring(frame.x(), frame.y() + 0.5, frame.width() - 0.5, frame.height() - 0.5);
    const QPointF centre = ring.center();
    const double radius = ring.width() / 2 - 0.5;

    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, true);
    double angle = 90;
    double transparentShare = 0;
    for (auto entry = colors.rbegin(); entry != colors.rend(); ++entry) {
        const QColor color = drawingColor(entry->color, drawInWhite);
        if (!entry->fraction) {
            painter.setPen(QPen(color, 1));
            painter.setBrush(Qt::NoBrush);
            painter.drawEllipse(ring);
        } else if (*entry->fraction > 0) {
            if (!isHighLighted) {
                const double sweep = std::ceil(*entry->fraction * 360);
                fillWedge(painter, centre, radius, angle, sweep, color);
                angle += sweep;
            } else if (color.alphaF() <= 0.25F) {
                transparentShare += *entry->fraction;
            }
        }
    }
    if (isHighLighted && transparentShare > 0) {
        const double empty = std::ceil(transparentShare * 360);
        if (empty < 360)
            fillWedge(painter, centre, radius, 90 + empty, 360 - empty,
                      drawInWhite ? QColor(Qt::white) : QColor::fromRgbF(0.5F, 0.5F, 0.5F));
    }
    painter.restore();
}

void tvlDrawTwoCircle(QPainter& painter, bool upOn, bool dwOn, const QColor& frameColor, const QColor& baseBgColor,
                      const QColor& upColor, const QColor& dwColor, double baseX, double baseHeight, double myRadius,
                      double spacer, bool drawInWhite)
{
    const double d = myRadius;
    const double middle = baseHeight / 2;
    const QColor frame = drawingColor(frameColor, drawInWhite);
    const QColor background = drawingColor(baseBgColor, drawInWhite);

    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, true);
    const double upY = middle + spacer;
    drawLamp(painter, QRectF(baseX, upY, d, d), QRectF(baseX + 1, upY + 1, d - 2, d - 2), frame,
             upOn ? drawingColor(upColor, drawInWhite) : background);
    // The lower lamp's inner oval is one point larger than the upper one's; the look relies on it.
    const double downY = middle - d - spacer;
    drawLamp(painter, QRectF(baseX, downY, d, d), QRectF(baseX + 1, downY + 1, d - 1, d - 1), frame,
             dwOn ? drawingColor(dwColor, drawInWhite) : background);
    painter.restore();
}

} // namespace TvlClasses
