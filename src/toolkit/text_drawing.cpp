// Text placed by alignment codes, drawn upright on the flipped canvas.
#include "toolkit/text_drawing.h"

#include <QFontMetricsF>

namespace TvlClasses {

namespace {

// bottomLeft is the corner of the text's box on the y-up canvas; the box is undone from
// the flip locally so the glyphs stand the right way up.
void drawUpright(QPainter& painter, const QString& text, const QPointF& bottomLeft, const QFontMetricsF& metrics,
                 const QColor& color)
{
    painter.save();
    painter.translate(bottomLeft.x(), bottomLeft.y() + metrics.height());
    painter.scale(1, -1);
    painter.setPen(color);
    painter.drawText(QPointF(0, metrics.ascent()), text);
    painter.restore();
}

} // namespace

void tvlDrawString(QPainter& painter, const QString& text, int vAlign, int hAlign, const QColor& textColor,
                   TextAttributes& attributes, const QRectF& frame, int ajustY, bool drawInWhite)
{
    if (drawInWhite) {
        attributes.color = Qt::white;
        attributes.shadow.reset();
    } else {
        attributes.color = textColor;
    }
    if (text.isEmpty())
        return;

    // Measured on the device drawn to, which for pictures is in points.
    const QFontMetricsF metrics(attributes.font, painter.device());
    const double textWidth = metrics.horizontalAdvance(text);
    const double textHeight = metrics.height();

    double x = frame.x();
    if (hAlign == 1)
        x += (frame.width() - textWidth) / 2;
    else if (hAlign == 2)
        x += frame.width() - textWidth;

    const double half = frame.height() / 2;
    double y = frame.y();
    if (vAlign == 0)
        y += half + (half - textHeight) / 2;
    else if (vAlign == 1)
        y += (frame.height() - textHeight) / 2;
    else if (vAlign == 2)
        y += (half - textHeight) / 2;
    y -= ajustY;

    painter.save();
    painter.setFont(attributes.font);
    if (attributes.shadow && attributes.shadow->color.alpha() > 0)
        drawUpright(painter, text, QPointF(x, y) + attributes.shadow->offset, metrics, attributes.shadow->color);
    drawUpright(painter, text, QPointF(x, y), metrics, attributes.color);
    painter.restore();
}

} // namespace TvlClasses
