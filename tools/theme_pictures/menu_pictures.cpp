// Drop-down menu pictures: the standard items, network links, drives and screen-sharing hosts.
#include "theme_pictures.h"

#include <QPainterPath>
#include <QtMath>

namespace {

constexpr QSizeF kMenuSize(18, 18);

void drawPreferences(QPainter& p, const PictureInks& inks)
{
    QPainterPath gear;
    gear.setFillRule(Qt::OddEvenFill);
    constexpr int kTeeth = 8;
    QPolygonF rim;
    for (int i = 0; i < kTeeth * 4; ++i) {
        // Each tooth is four corners: two on the outer radius, two on the inner one.
        const bool outer = (i % 4) == 1 || (i % 4) == 2;
        const qreal radius = outer ? 7.5 : 5.75;
        const qreal angle = qDegreesToRadians((i + 0.5) * 360.0 / (kTeeth * 4));
        rim << QPointF(9 + radius * qCos(angle), 9 + radius * qSin(angle));
    }
    gear.addPolygon(rim);
    gear.closeSubpath();
    gear.addEllipse(QPointF(9, 9), 2.25, 2.25);
    p.setPen(outlinePen(inks.ink, 0.75));
    p.setBrush(inks.muted);
    p.drawPath(gear);
}

void drawQuit(QPainter& p, const PictureInks& inks)
{
    p.setPen(outlinePen(inks.accent("B10"), 1.75));
    p.setBrush(Qt::NoBrush);
    p.drawArc(QRectF(3, 3.5, 12, 12), 120 * 16, 300 * 16);
    p.drawLine(QPointF(9, 2), QPointF(9, 9));
}

void drawWindow(QPainter& p, const PictureInks& inks, const QRectF& frame)
{
    p.setPen(outlinePen(inks.ink, 0.9));
    p.setBrush(inks.paper);
    p.drawRoundedRect(frame, 1.5, 1.5);
    p.drawLine(QPointF(frame.left(), frame.top() + 3), QPointF(frame.right(), frame.top() + 3));
}

void drawActivityMonitor(QPainter& p, const PictureInks& inks)
{
    drawWindow(p, inks, QRectF(1.5, 2.5, 15, 13));
    p.setPen(outlinePen(inks.accent("A01"), 1.1));
    p.setBrush(Qt::NoBrush);
    p.drawPolyline(QPolygonF({QPointF(3, 11), QPointF(5.5, 11), QPointF(7, 7.5), QPointF(9, 14), QPointF(10.75, 9),
                              QPointF(12, 11), QPointF(15, 11)}));
}

void drawConsole(QPainter& p, const PictureInks& inks)
{
    QPainterPath page;
    page.moveTo(3.5, 1.5);
    page.lineTo(11, 1.5);
    page.lineTo(14.5, 5);
    page.lineTo(14.5, 16.5);
    page.lineTo(3.5, 16.5);
    page.closeSubpath();
    p.setPen(outlinePen(inks.ink, 0.9));
    p.setBrush(inks.paper);
    p.drawPath(page);
    p.drawPolyline(QPolygonF({QPointF(11, 1.5), QPointF(11, 5), QPointF(14.5, 5)}));
    const qreal rows[] = {7, 9, 11, 13};
    const qreal ends[] = {12.5, 10.5, 12.5, 9.5};
    for (int i = 0; i < 4; ++i) {
        p.setPen(outlinePen(i == 2 ? inks.accent("F02") : inks.muted, 0.9));
        p.drawLine(QPointF(5.5, rows[i]), QPointF(ends[i], rows[i]));
    }
}

void drawTerminal(QPainter& p, const PictureInks& inks)
{
    // A terminal is dark in either appearance; its outline still follows the theme.
    p.setPen(outlinePen(inks.ink, 0.9));
    p.setBrush(QColor::fromRgbF(0.13f, 0.14f, 0.16f));
    p.drawRoundedRect(QRectF(1.5, 2.5, 15, 13), 1.75, 1.75);
    const QColor glyph = QColor::fromRgbF(0.92f, 0.93f, 0.94f);
    p.setPen(outlinePen(glyph, 1.2));
    p.setBrush(Qt::NoBrush);
    p.drawPolyline(QPolygonF({QPointF(4.5, 6), QPointF(7.5, 8.75), QPointF(4.5, 11.5)}));
    p.drawLine(QPointF(9, 12), QPointF(13, 12));
}

void drawWired(QPainter& p, const PictureInks& inks)
{
    p.setPen(outlinePen(inks.ink, 0.9));
    p.setBrush(inks.accent("C02"));
    p.drawRoundedRect(QRectF(3.5, 3, 11, 8.5), 1, 1);
    p.setBrush(inks.paper);
    p.drawRect(QRectF(6.5, 11.5, 5, 2.5));
    p.setPen(outlinePen(inks.paper, 0.7));
    for (qreal at : {5.5, 7.25, 9.0, 10.75, 12.5})
        p.drawLine(QPointF(at, 4.5), QPointF(at, 6.5));
    p.setPen(outlinePen(inks.ink, 1.5));
    p.drawLine(QPointF(9, 14), QPointF(9, 17));
}

void drawWireless(QPainter& p, const PictureInks& inks)
{
    const QPointF centre(9, 14.5);
    p.setPen(outlinePen(inks.accent("C02"), 1.6));
    p.setBrush(Qt::NoBrush);
    for (qreal radius : {3.75, 7.25, 10.75})
        p.drawArc(QRectF(centre.x() - radius, centre.y() - radius, 2 * radius, 2 * radius), 45 * 16, 90 * 16);
    p.setPen(Qt::NoPen);
    p.setBrush(inks.accent("C02"));
    p.drawEllipse(centre, 1.4, 1.4);
}

void drawDrive(QPainter& p, const PictureInks& inks, const QRectF& box, const char* ledKey)
{
    p.setPen(outlinePen(inks.ink, 0.9));
    p.setBrush(inks.paper);
    p.drawRoundedRect(box, 2, 2);
    p.setPen(outlinePen(inks.muted, 0.9));
    for (qreal dx : {2.5, 4.0, 5.5})
        p.drawLine(QPointF(box.left() + dx, box.top() + 2), QPointF(box.left() + dx, box.bottom() - 2));
    p.setPen(Qt::NoPen);
    p.setBrush(inks.accent(ledKey));
    p.drawEllipse(QPointF(box.right() - 2.5, box.center().y()), 1.2, 1.2);
}

void drawInternalDrive(QPainter& p, const PictureInks& inks)
{
    drawDrive(p, inks, QRectF(1.5, 5, 15, 8), "D01");
}

void drawExternalDrive(QPainter& p, const PictureInks& inks)
{
    QPainterPath cable;
    cable.moveTo(7, 11.5);
    cable.cubicTo(7, 17, 13, 13, 14.5, 16);
    p.setPen(outlinePen(inks.ink, 1.1));
    p.setBrush(Qt::NoBrush);
    p.drawPath(cable);
    drawDrive(p, inks, QRectF(1.5, 3, 12.5, 8.5), "D02");
}

// Host pictures are shown as templates, so only their outline and shading carry meaning.
void drawHostScreen(QPainter& p, const QColor& ink, const QRectF& screen)
{
    p.setPen(outlinePen(ink, 1.1));
    QColor shade = ink;
    shade.setAlphaF(0.25f);
    p.setBrush(shade);
    p.drawRoundedRect(screen, 1, 1);
    const qreal middle = screen.center().x();
    p.drawLine(QPointF(middle, screen.bottom()), QPointF(middle, screen.bottom() + 2));
    p.drawLine(QPointF(middle - 2.5, screen.bottom() + 2), QPointF(middle + 2.5, screen.bottom() + 2));
}

void drawHost(QPainter& p, const PictureInks& inks)
{
    drawHostScreen(p, inks.ink, QRectF(1.5, 2.5, 15, 10.5));
}

void drawAllHosts(QPainter& p, const PictureInks& inks)
{
    drawHostScreen(p, inks.ink, QRectF(6, 1.5, 10.5, 7.5));
    // Clear behind the front screen so the back one does not show through its shading.
    const QRectF front(1.5, 6, 10.5, 7.5);
    p.setCompositionMode(QPainter::CompositionMode_Clear);
    p.fillRect(front.adjusted(-1, -1, 1, 1), Qt::transparent);
    p.setCompositionMode(QPainter::CompositionMode_SourceOver);
    drawHostScreen(p, inks.ink, front);
}

} // namespace

void addMenuPictures(QVariantMap& theme, const PictureInks& inks)
{
    using Picture = void (*)(QPainter&, const PictureInks&);
    const std::pair<const char*, Picture> pictures[] = {
        {"O01", drawPreferences},   {"O02", drawQuit},          {"O11", drawActivityMonitor},
        {"O12", drawConsole},       {"O13", drawTerminal},      {"O21", drawWired},
        {"O22", drawWireless},      {"O31", drawInternalDrive}, {"O32", drawExternalDrive},
        {"O41", drawHost},          {"O42", drawAllHosts},
    };
    for (const auto& [key, picture] : pictures)
        theme.insert(QLatin1String(key), drawPicture(kMenuSize, [&, draw = picture](QPainter& p) { draw(p, inks); }));
}
