// Drawing a theme picture at twice its point size and packing it as PNG bytes.
#pragma once

#include <QByteArray>
#include <QColor>
#include <QPainter>
#include <QSizeF>
#include <QVariantMap>

#include <functional>

// The colours a theme's pictures are drawn with, taken from the theme itself.
struct PictureInks {
    QColor ink;     // outlines and label glyphs
    QColor paper;   // the inside of outlined shapes
    QColor muted;   // secondary details
    QVariantMap theme;

    // The theme's colour for key, made opaque so small shapes stay visible.
    QColor accent(const char* key) const;
};

PictureInks inksForTheme(const QVariantMap& theme);

// Renders draw (working in points, origin top left) at 2x pixel density; PNG bytes.
QByteArray drawPicture(QSizeF points, const std::function<void(QPainter&)>& draw);

// A pen for outlines of the given width in points, with round joins.
QPen outlinePen(const QColor& color, qreal width = 1.0);
