// Turning a theme's font name into a Qt font.
#pragma once

#include <QFont>
#include <QString>

namespace TvlClasses {

// The font named fontName at fontSize points. Themes store PostScript names
// ("DejaVuSansMono-Bold"), which are matched to an installed family and style; plain
// family names work too. An unknown or empty name gives the system fixed-pitch font.
QFont menuFont(const QString& fontName, double fontSize);

// Whether fonts can be looked up at all: only a GUI application has a font database. The text
// view and the snapshot run without one, as they only print words.
bool fontsAvailable();

} // namespace TvlClasses
