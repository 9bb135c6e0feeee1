// Off-screen pictures laid out in points, with the origin at the bottom left and y growing upwards.
#pragma once

#include <QFontMetricsF>
#include <QImage>
#include <QPainter>
#include <QSizeF>

namespace TvlClasses {

// One painter on one transparent picture. Pictures are composed in points and rendered at
// the screen's ratio (2 on HiDPI screens), so the same layout code serves every screen.
class PointCanvas {
public:
    // size is in points; the picture holds size × devicePixelRatio pixels, rounded up.
    // An empty size gives a null picture and an inactive painter: draw nothing then.
    PointCanvas(QSizeF size, qreal devicePixelRatio);
    PointCanvas(const PointCanvas&) = delete;
    PointCanvas& operator=(const PointCanvas&) = delete;

    [[nodiscard]] bool isActive() const { return painter_.isActive(); }
    QPainter& painter() { return painter_; }
    // Ends the drawing; the canvas is spent afterwards.
    QImage takeImage();

    // Turns a painter on a device heightInPoints high from y-down into y-up, once, at the start.
    static void flipToPoints(QPainter& painter, double heightInPoints);

private:
    QImage image_;
    QPainter painter_;
};

// Font metrics in points: on a 72-dpi device, where one point is one unit, as the pictures
// and the widths derived from settings both measure text.
QFontMetricsF pointFontMetrics(const QFont& font);

// Draws image into frame (points, y up) the right way up on a y-up painter.
void drawImageUpright(QPainter& painter, const QImage& image, const QRectF& frame);

} // namespace TvlClasses
