// Following the desktop appearance: only a mismatch with a listed alternative selects a theme.
#include "prefs/theme_appearance.h"

#include <gtest/gtest.h>

using TvlClasses::retAppearanceSwitchTheme;

namespace {

QVariantMap theme(bool dark, const QVariant& alternative)
{
    QVariantMap map{{QStringLiteral("_ForDarkAppearance"), dark}};
    if (alternative.isValid())
        map.insert(QStringLiteral("_AlternativeTheme"), alternative);
    return map;
}

QVariantList listOf(std::initializer_list<const char*> fileNames)
{
    QVariantList list;
    for (const char* name : fileNames)
        list << QVariantMap{{QStringLiteral("_FileName"), QLatin1String(name)}};
    return list;
}

const QVariantList kListed = listOf({"_now_theme.plist", "_dark_theme.plist", "_light_theme.plist"});

} // namespace

TEST(ThemeAppearance, MismatchSelectsTheListedAlternative)
{
    EXPECT_EQ(retAppearanceSwitchTheme(theme(false, QStringLiteral("_dark_theme.plist")), true, kListed),
              QStringLiteral("_dark_theme.plist"));
    EXPECT_EQ(retAppearanceSwitchTheme(theme(true, QStringLiteral("_light_theme.plist")), false, kListed),
              QStringLiteral("_light_theme.plist"));
    // A theme without the flag counts as a light one.
    EXPECT_EQ(retAppearanceSwitchTheme({{QStringLiteral("_AlternativeTheme"), QStringLiteral("_dark_theme.plist")}},
                                       true, kListed),
              QStringLiteral("_dark_theme.plist"));
}

TEST(ThemeAppearance, NothingChangesWithoutAMismatchOrAUsableAlternative)
{
    EXPECT_FALSE(retAppearanceSwitchTheme(theme(true, QStringLiteral("_light_theme.plist")), true, kListed));
    EXPECT_FALSE(retAppearanceSwitchTheme(theme(false, QStringLiteral("_Untitled_")), true, kListed));
    EXPECT_FALSE(retAppearanceSwitchTheme(theme(false, QString()), true, kListed));
    EXPECT_FALSE(retAppearanceSwitchTheme(theme(false, QVariant()), true, kListed));
    EXPECT_FALSE(retAppearanceSwitchTheme(theme(false, QStringLiteral("Night.plist")), true, kListed));
    EXPECT_FALSE(retAppearanceSwitchTheme(theme(false, QStringLiteral("_dark_theme.plist")), true, {}));
}
