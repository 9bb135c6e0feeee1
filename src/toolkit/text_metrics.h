// Measuring menu-bar text in the theme's font.
#pragma once

#include <QSizeF>
#include <QString>

namespace TvlClasses {

// Size in points of text drawn in the font named fontName (a PostScript or family name)
// at fontSize points.
QSizeF calcMenuLabelSize(const QString& text, double fontSize, const QString& fontName);

} // namespace TvlClasses
