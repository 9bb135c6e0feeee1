// The key set, special values and file names that every colour theme shares.
#pragma once

#include <QString>
#include <QStringList>

namespace TvlClasses {

// Marks a name, author or alternative theme that is not known.
inline constexpr char kUntitled[] = "_Untitled_";

inline constexpr char kThemeFolderName[] = "Tarvel6";
inline constexpr char kNowThemeFileName[] = "_now_theme.plist";
inline constexpr char kLightThemeName[] = "_light_theme";
inline constexpr char kDarkThemeName[] = "_dark_theme";
inline constexpr char kThemeExtension[] = "plist";

// Every colour key: Z (shared), A CPU, B Memory, C Network, D Disk, E Volume, F Temp, G Fan.
QStringList themeColorKeys();

// Every picture key, in the order a save applies the PNG overrides of the support folder.
QStringList themePictureKeys();

// The text entries of a theme: names, author, credit and font.
QStringList themeStringKeys();

// The number entries of a theme (the dark flag is a boolean and not among them).
QStringList themeNumberKeys();

} // namespace TvlClasses
