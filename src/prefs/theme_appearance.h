// Following the desktop's light or dark appearance with the current theme's alternative.
#pragma once

#include <QString>
#include <QVariantList>
#include <QVariantMap>

#include <optional>

namespace TvlClasses {

// The file name of the theme to select when the desktop's appearance no longer matches the
// current theme: its _AlternativeTheme, when that is set and listed. Empty when nothing changes.
std::optional<QString> retAppearanceSwitchTheme(const QVariantMap& nowTheme, bool desktopIsDark,
                                                const QVariantList& themeList);

// The theme the current one switches to when the appearance changes, read from the support
// folder; empty when it names none, or when the file cannot be read.
QVariantMap retAlternativeTheme(const QVariantMap& nowTheme);

// Whether a theme is made for a dark panel.
bool isDarkTheme(const QVariantMap& theme);

} // namespace TvlClasses
