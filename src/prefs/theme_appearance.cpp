// Following the desktop's light or dark appearance with the current theme's alternative.
#include "prefs/theme_appearance.h"

#include "prefs/theme_keys.h"

namespace TvlClasses {

std::optional<QString> retAppearanceSwitchTheme(const QVariantMap& nowTheme, bool desktopIsDark,
                                                const QVariantList& themeList)
{
    if (nowTheme.value(QStringLiteral("_ForDarkAppearance")).toBool() == desktopIsDark)
        return std::nullopt;
    const QString alternative = nowTheme.value(QStringLiteral("_AlternativeTheme")).toString();
    if (alternative.isEmpty() || alternative == QLatin1String(kUntitled))
        return std::nullopt;
    for (const QVariant& entry : themeList) {
        if (entry.toMap().value(QStringLiteral("_FileName")).toString() == alternative)
            return alternative;
    }
    return std::nullopt;
}

} // namespace TvlClasses
