// Measuring menu-bar text in the theme's font.
#pragma once

#include <QSizeF>
#include <QString>

namespace TvlClasses {

// Size in points of text drawn in the font named fontName (a PostScript or family name)
// at fontSize points. Measured as on a 72-dpi device, where one point is one drawing unit,
// so text painted with menuFont() on a 72-dpi image takes exactly this room.
// Without a font database (fontsAvailable()) nothing is measured and the size is empty.
QSizeF calcMenuLabelSize(const QString& text, double fontSize, const QString& fontName);

} // namespace TvlClasses
