// Volume pictures: the kinds of mounted volume, and the Volume menu's eject and open pictures.
#include "theme_pictures.h"

#include <QPainterPath>

namespace {

// The kinds are designed on a 14-point grid and drawn at 36 points, the size the Volume menu
// shows them at; the menu bar draws them at 14 points, a sharp reduction.
constexpr double kKindGrid = 14;
constexpr QSizeF kKindSize(36, 36);
constexpr QSizeF kMenuSize(18, 18);

void drawDriveBox(QPainter& p, const PictureInks& inks, const QRectF& box, const char* ledKey)
{
    p.setPen(outlinePen(inks.ink, 0.9));
    p.setBrush(inks.paper);
    p.drawRoundedRect(box, 1.5, 1.5);
    p.setPen(outlinePen(inks.muted, 0.75));
    p.drawLine(QPointF(box.left() + 2, box.center().y()), QPointF(box.right() - 4, box.center().y()));
    p.setPen(Qt::NoPen);
    p.setBrush(inks.accent(ledKey));
    p.drawEllipse(QPointF(box.right() - 2, box.center().y()), 0.9, 0.9);
}

void drawInternal(QPainter& p, const PictureInks& inks)
{
    drawDriveBox(p, inks, QRectF(1, 4, 12, 6), "E01");
}

void drawExternal(QPainter& p, const PictureInks& inks)
{
    QPainterPath cable;
    cable.moveTo(5.5, 8.5);
    cable.cubicTo(5.5, 13, 11, 10, 12.5, 13);
    p.setPen(outlinePen(inks.ink, 0.9));
    p.setBrush(Qt::NoBrush);
    p.drawPath(cable);
    drawDriveBox(p, inks, QRectF(1, 2.5, 10, 6), "E01");
}

void drawRemovable(QPainter& p, const PictureInks& inks)
{
    p.setPen(outlinePen(inks.ink, 0.9));
    p.setBrush(inks.paper);
    p.drawRect(QRectF(5, 9, 4, 4));
    p.setBrush(inks.accent("E01"));
    p.drawRoundedRect(QRectF(3.5, 1, 7, 8.5), 1.25, 1.25);
    p.setPen(Qt::NoPen);
    p.setBrush(inks.ink);
    p.drawRect(QRectF(5.75, 10.25, 0.9, 0.9));
    p.drawRect(QRectF(7.35, 10.25, 0.9, 0.9));
}

void drawNetworkVolume(QPainter& p, const PictureInks& inks)
{
    const QRectF globe(1.5, 1.5, 11, 11);
    p.setPen(outlinePen(inks.ink, 0.9));
    p.setBrush(inks.accent("C02"));
    p.drawEllipse(globe);
    p.setPen(outlinePen(inks.paper, 0.75));
    p.setBrush(Qt::NoBrush);
    p.drawEllipse(QRectF(4.5, 1.75, 5, 10.5));
    p.drawLine(QPointF(7, 1.75), QPointF(7, 12.25));
    p.drawLine(QPointF(1.75, 7), QPointF(12.25, 7));
}

void drawOptical(QPainter& p, const PictureInks& inks)
{
    QPainterPath disc;
    disc.setFillRule(Qt::OddEvenFill);
    disc.addEllipse(QPointF(7, 7), 6, 6);
    disc.addEllipse(QPointF(7, 7), 1.5, 1.5);
    p.setPen(outlinePen(inks.ink, 0.9));
    p.setBrush(inks.muted);
    p.drawPath(disc);
    p.setPen(outlinePen(inks.paper, 0.75));
    p.setBrush(Qt::NoBrush);
    p.drawArc(QRectF(3, 3, 8, 8), 100 * 16, 70 * 16);
}

void drawDiskImage(QPainter& p, const PictureInks& inks)
{
    QPainterPath page;
    page.moveTo(2.5, 1);
    page.lineTo(8.5, 1);
    page.lineTo(11.5, 4);
    page.lineTo(11.5, 13);
    page.lineTo(2.5, 13);
    page.closeSubpath();
    p.setPen(outlinePen(inks.ink, 0.9));
    p.setBrush(inks.paper);
    p.drawPath(page);
    p.drawPolyline(QPolygonF({QPointF(8.5, 1), QPointF(8.5, 4), QPointF(11.5, 4)}));
    p.setBrush(inks.accent("E01"));
    p.drawEllipse(QPointF(7, 8.5), 2.75, 2.75);
    p.setBrush(inks.paper);
    p.drawEllipse(QPointF(7, 8.5), 0.6, 0.6);
}

void drawEject(QPainter& p, const PictureInks& inks)
{
    p.setPen(Qt::NoPen);
    p.setBrush(inks.ink);
    p.drawPolygon(QPolygonF({QPointF(3, 10.5), QPointF(9, 3.5), QPointF(15, 10.5)}));
    p.drawRoundedRect(QRectF(3, 12.5, 12, 2.5), 0.5, 0.5);
}

void drawOpenFolder(QPainter& p, const PictureInks& inks)
{
    QPainterPath folder;
    folder.moveTo(1.5, 4);
    folder.lineTo(6.5, 4);
    folder.lineTo(8, 5.5);
    folder.lineTo(16.5, 5.5);
    folder.lineTo(16.5, 15);
    folder.lineTo(1.5, 15);
    folder.closeSubpath();
    p.setPen(outlinePen(inks.ink, 0.9));
    p.setBrush(inks.accent("E01"));
    p.drawPath(folder);
    p.setBrush(inks.paper);
    p.drawRect(QRectF(1.5, 7.5, 15, 7.5));
}

} // namespace

void addVolumePictures(QVariantMap& theme, const PictureInks& inks)
{
    using Picture = void (*)(QPainter&, const PictureInks&);
    const std::pair<const char*, Picture> kinds[] = {
        {"M01", drawInternal},      {"M02", drawExternal}, {"M03", drawRemovable},
        {"M04", drawNetworkVolume}, {"M05", drawOptical},  {"M06", drawDiskImage},
    };
    for (const auto& [key, picture] : kinds)
        theme.insert(QLatin1String(key), drawPicture(kKindSize, [&, draw = picture](QPainter& p) {
                         p.scale(kKindSize.width() / kKindGrid, kKindSize.height() / kKindGrid);
                         draw(p, inks);
                     }));
    theme.insert(QStringLiteral("M11"), drawPicture(kMenuSize, [&](QPainter& p) { drawEject(p, inks); }));
    theme.insert(QStringLiteral("M12"), drawPicture(kMenuSize, [&](QPainter& p) { drawOpenFolder(p, inks); }));
}
