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

} // namespace TvlClasses
