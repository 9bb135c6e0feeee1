// The menu-bar font a theme names: whether it is installed, and what stands in when it is not.
#pragma once

#include <QString>

namespace TvlClasses {

struct ThemeFont {
    QString family;
    QString postScriptName;
    QString style;

    friend bool operator==(const ThemeFont&, const ThemeFont&) = default;
};

// The PostScript-style name of a family member: family and style without spaces, joined by "-".
QString retPostScriptName(const QString& family, const QString& style);

// True when the family is installed and has a member with exactly that PostScript name and style.
bool isInstalledThemeFont(const ThemeFont& font);

// Menlo Bold where Menlo is installed; elsewhere the system's fixed-pitch family in its bold style.
ThemeFont fallbackThemeFont();

} // namespace TvlClasses
