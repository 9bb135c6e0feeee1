// Following the desktop's light or dark appearance with the current theme's alternative.
#include "prefs/theme_appearance.h"

#include "prefs/plist_io.h"
#include "prefs/pref_keys.h"
#include "prefs/theme_files.h"
#include "prefs/theme_keys.h"

namespace TvlClasses {

std::optional<QString> retAppearanceSwitchTheme(const QVariantMap& nowTheme, bool desktopIsDark,
                                                const QVariantList& themeList)
{
    if (nowTheme.value(QLatin1String(PrefKey::_ForDarkAppearance)).toBool() == desktopIsDark)
        return std::nullopt;
    const QString alternative = nowTheme.value(QLatin1String(PrefKey::_AlternativeTheme)).toString();
    if (alternative.isEmpty() || alternative == QLatin1String(kUntitled))
        return std::nullopt;
    for (const QVariant& entry : themeList) {
        if (entry.toMap().value(QLatin1String(PrefKey::_FileName)).toString() == alternative)
            return alternative;
    }
    return std::nullopt;
}

QVariantMap retAlternativeTheme(const QVariantMap& nowTheme)
{
    const QString alternative = nowTheme.value(QLatin1String(PrefKey::_AlternativeTheme)).toString();
    if (alternative.isEmpty() || alternative == QLatin1String(kUntitled))
        return {};
    return PlistIo::readDictionary(retThemeFilePath(alternative)).value_or(QVariantMap());
}

bool isDarkTheme(const QVariantMap& theme)
{
    return theme.value(QLatin1String(PrefKey::_ForDarkAppearance)).toBool();
}

} // namespace TvlClasses
