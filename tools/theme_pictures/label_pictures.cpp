// Module label pictures: one-colour glyphs that read at menu-bar size and work as templates.
#include "theme_pictures.h"

#include <QPainterPath>

namespace {

constexpr QSizeF kLabelSize(12, 22);
constexpr QSizeF kItemSize(22, 22);

QColor faded(QColor color, float alpha)
{
    color.setAlphaF(alpha);
    return color;
}

void drawCpu(QPainter& p, const QColor& ink)
{
    p.setPen(outlinePen(ink));
    p.setBrush(Qt::NoBrush);
    p.drawRoundedRect(QRectF(2.5, 7.5, 7, 7), 1, 1);
    for (qreal at : {4.5, 6.0, 7.5}) {
        p.drawLine(QPointF(at, 5.5), QPointF(at, 7.5));
        p.drawLine(QPointF(at, 14.5), QPointF(at, 16.5));
    }
    for (qreal at : {9.0, 11.0, 13.0}) {
        p.drawLine(QPointF(0.5, at), QPointF(2.5, at));
        p.drawLine(QPointF(9.5, at), QPointF(11.5, at));
    }
    p.setPen(Qt::NoPen);
    p.setBrush(ink);
    p.drawRect(QRectF(4.5, 9.5, 3, 3));
}

void drawMemory(QPainter& p, const QColor& ink)
{
    p.setPen(outlinePen(ink));
    p.setBrush(faded(ink, 0.2f));
    p.drawRoundedRect(QRectF(3, 3.5, 6, 13.5), 0.75, 0.75);
    p.setPen(Qt::NoPen);
    p.setBrush(ink);
    for (qreal top : {5.0, 8.5, 12.0})
        p.drawRect(QRectF(4.5, top, 3, 2.5));
    p.setPen(outlinePen(ink, 0.75));
    for (qreal at : {4.25, 6.0, 7.75})
        p.drawLine(QPointF(at, 17.5), QPointF(at, 19));
}

void drawNetwork(QPainter& p, const QColor& ink)
{
    p.setPen(outlinePen(ink, 1.5));
    p.setBrush(Qt::NoBrush);
    p.drawLine(QPointF(3.5, 17), QPointF(3.5, 5));
    p.drawPolyline(QPolygonF({QPointF(1.25, 7.5), QPointF(3.5, 5), QPointF(5.75, 7.5)}));
    p.drawLine(QPointF(8.5, 5), QPointF(8.5, 17));
    p.drawPolyline(QPolygonF({QPointF(6.25, 14.5), QPointF(8.5, 17), QPointF(10.75, 14.5)}));
}

void drawDisk(QPainter& p, const QColor& ink)
{
    QPainterPath body;
    body.moveTo(1.5, 6.5);
    body.lineTo(1.5, 15.5);
    body.arcTo(QRectF(1.5, 14, 9, 3), 180, 180);
    body.lineTo(10.5, 6.5);
    p.setPen(outlinePen(ink));
    p.setBrush(faded(ink, 0.25f));
    p.drawPath(body);
    p.setBrush(Qt::NoBrush);
    p.drawArc(QRectF(1.5, 9.5, 9, 3), 180 * 16, 180 * 16);
    p.setBrush(ink);
    p.drawEllipse(QRectF(1.5, 5, 9, 3));
}

void drawVolume(QPainter& p, const QColor& ink)
{
    const QRectF circle(1.5, 6.5, 9, 9);
    p.setPen(outlinePen(ink));
    p.setBrush(faded(ink, 0.2f));
    p.drawEllipse(circle);
    p.setBrush(ink);
    p.drawPie(circle, 90 * 16, -250 * 16);
}

void drawTemp(QPainter& p, const QColor& ink)
{
    p.setPen(outlinePen(ink));
    p.setBrush(Qt::NoBrush);
    p.drawRoundedRect(QRectF(3.5, 3.5, 3.5, 11.5), 1.75, 1.75);
    p.setBrush(ink);
    p.drawEllipse(QPointF(5.25, 16.25), 2.75, 2.75);
    p.setPen(Qt::NoPen);
    p.drawRect(QRectF(4.5, 8, 1.5, 7));
    p.setPen(outlinePen(ink, 0.75));
    for (qreal at : {5.5, 8.0, 10.5})
        p.drawLine(QPointF(8.5, at), QPointF(10.5, at));
}

void drawFan(QPainter& p, const QColor& ink)
{
    p.setPen(outlinePen(ink));
    p.setBrush(Qt::NoBrush);
    p.drawEllipse(QPointF(6, 11), 5.25, 5.25);
    p.save();
    p.translate(6, 11);
    p.setPen(Qt::NoPen);
    p.setBrush(ink);
    for (int blade = 0; blade < 3; ++blade) {
        QPainterPath path;
        path.moveTo(0, 0);
        path.quadTo(-3.5, -1.5, -1.0, -4.25);
        path.quadTo(1.5, -3.0, 0, 0);
        p.drawPath(path);
        p.rotate(120);
    }
    p.drawEllipse(QPointF(0, 0), 1.1, 1.1);
    p.restore();
}

void drawMonitor(QPainter& p, const QColor& ink, const QRectF& screen, qreal standHeight, qreal width)
{
    p.setPen(outlinePen(ink, width));
    p.setBrush(faded(ink, 0.2f));
    p.drawRoundedRect(screen, 1, 1);
    const qreal middle = screen.center().x();
    const qreal foot = screen.bottom() + standHeight;
    p.drawLine(QPointF(middle, screen.bottom()), QPointF(middle, foot));
    p.drawLine(QPointF(middle - screen.width() / 4, foot), QPointF(middle + screen.width() / 4, foot));
}

void drawVnc(QPainter& p, const QColor& ink)
{
    drawMonitor(p, ink, QRectF(1, 6.5, 10, 7), 2.5, 1.0);
}

// The application's own item: a gauge whose scale runs from calm to critical.
void drawGeneral(QPainter& p, const PictureInks& inks)
{
    const QRectF dial(3, 4.5, 16, 16);
    QPen scale(Qt::black, 2.5);
    scale.setCapStyle(Qt::FlatCap);
    p.setBrush(Qt::NoBrush);
    const char* keys[] = {"B08", "B09", "B10"};
    for (int i = 0; i < 3; ++i) {
        scale.setColor(inks.accent(keys[i]));
        p.setPen(scale);
        p.drawArc(dial, (210 - 80 * i) * 16, -78 * 16);
    }
    p.setPen(outlinePen(inks.ink, 1.75));
    p.drawLine(QPointF(11, 12.5), QPointF(15, 7.5));
    p.setPen(Qt::NoPen);
    p.setBrush(inks.ink);
    p.drawEllipse(QPointF(11, 12.5), 2, 2);
}

// The screen-sharing item: a display with a pointer on it.
void drawVncItem(QPainter& p, const QColor& ink)
{
    drawMonitor(p, ink, QRectF(2.5, 4, 17, 11.5), 3, 1.25);
    p.setPen(Qt::NoPen);
    p.setBrush(ink);
    p.drawPolygon(QPolygonF({QPointF(9.5, 6.5), QPointF(9.5, 13), QPointF(11, 11.6), QPointF(12.2, 14),
                             QPointF(13.4, 13.4), QPointF(12.2, 11), QPointF(14.2, 11)}));
}

} // namespace

void addLabelPictures(QVariantMap& theme, const PictureInks& inks)
{
    const QColor ink = inks.ink;
    using Glyph = void (*)(QPainter&, const QColor&);
    const std::pair<const char*, Glyph> labels[] = {
        {"L01", drawCpu},    {"L02", drawMemory}, {"L03", drawNetwork}, {"L04", drawDisk},
        {"L05", drawVolume}, {"L06", drawTemp},   {"L07", drawFan},     {"L08", drawVnc},
    };
    // By value: clang 14 cannot capture a structured binding.
    for (const auto& [key, glyph] : labels)
        theme.insert(QLatin1String(key), drawPicture(kLabelSize, [&, draw = glyph](QPainter& p) { draw(p, ink); }));
    theme.insert(QStringLiteral("N01"), drawPicture(kItemSize, [&](QPainter& p) { drawGeneral(p, inks); }));
    theme.insert(QStringLiteral("N03"), drawPicture(kItemSize, [&](QPainter& p) { drawVncItem(p, ink); }));
}
