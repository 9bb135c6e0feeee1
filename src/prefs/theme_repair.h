// Repair of the current theme against the reference theme of its appearance.
#pragma once

#include <QVariantMap>

namespace TvlClasses {

// A repaired copy of the theme: every reference key present and of a usable form, keys the
// reference lacks dropped, and an installed font. Writes "_now_theme.plist" when the font is
// valid or something was filled in.
QVariantMap checkThemeValues(const QVariantMap& theme);

} // namespace TvlClasses
