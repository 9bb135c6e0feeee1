// The theme font check: installed members are kept, anything else gives way to the stand-in.
#include "prefs/theme_font.h"
#include "prefs/theme_repair.h"
#include "theme_test_folder.h"

#include <QFontDatabase>

using TvlClasses::ThemeFont;

namespace {

const ThemeFont kDejaVuBold{QStringLiteral("DejaVu Sans Mono"), QStringLiteral("DejaVuSansMono-Bold"),
                            QStringLiteral("Bold")};

QVariantMap withFont(QVariantMap theme, const ThemeFont& font)
{
    theme[QStringLiteral("_FontName")] = font.family;
    theme[QStringLiteral("_FontPostScriptName")] = font.postScriptName;
    theme[QStringLiteral("_FontStyle")] = font.style;
    return theme;
}

ThemeFont fontOf(const QVariantMap& theme)
{
    return {theme.value(QStringLiteral("_FontName")).toString(),
            theme.value(QStringLiteral("_FontPostScriptName")).toString(),
            theme.value(QStringLiteral("_FontStyle")).toString()};
}

class ThemeFontTest : public ThemeFolderTest {
protected:
    void SetUp() override
    {
        ThemeFolderTest::SetUp();
        if (IsSkipped())
            return;
        reference_ = TvlClasses::checkNowThemeFile();
        // A key the reference lacks shows whether the repair wrote the file: writing drops it.
        stale_ = reference_;
        stale_[QStringLiteral("Stale")] = true;
    }

    QVariantMap reference_;
    QVariantMap stale_;
};

} // namespace

TEST(ThemeFontNames, PostScriptNameJoinsFamilyAndStyleWithoutSpaces)
{
    EXPECT_EQ(TvlClasses::retPostScriptName(QStringLiteral("DejaVu Sans Mono"), QStringLiteral("Bold Oblique")),
              QStringLiteral("DejaVuSansMono-BoldOblique"));
}

TEST(ThemeFontNames, MemberMustMatchFamilyStyleAndPostScriptName)
{
    if (!QFontDatabase::families().contains(kDejaVuBold.family))
        FAIL() << "DejaVu Sans Mono is not installed: install fonts-dejavu-core (tools/setup.sh does)";
    EXPECT_TRUE(TvlClasses::isInstalledThemeFont(kDejaVuBold));
    EXPECT_FALSE(TvlClasses::isInstalledThemeFont({kDejaVuBold.family, kDejaVuBold.postScriptName, "Book"}));
    EXPECT_FALSE(TvlClasses::isInstalledThemeFont({kDejaVuBold.family, "DejaVuSansMono-Book", "Bold"}));
    EXPECT_FALSE(TvlClasses::isInstalledThemeFont({"No Such Family", kDejaVuBold.postScriptName, "Bold"}));
}

TEST(ThemeFontNames, StandInIsAnInstalledBoldMember)
{
    const ThemeFont fallback = TvlClasses::fallbackThemeFont();
    EXPECT_TRUE(TvlClasses::isInstalledThemeFont(fallback))
        << fallback.family.toStdString() << " / " << fallback.postScriptName.toStdString();
    if (QFontDatabase::families().contains(QStringLiteral("Menlo")))
        EXPECT_EQ(fallback, (ThemeFont{"Menlo", "Menlo-Bold", "Bold"}));
    else
        EXPECT_NE(fallback.family, QStringLiteral("Menlo"));
}

TEST_F(ThemeFontTest, InstalledFontIsKeptAndAlwaysRewritesTheFile)
{
    if (!TvlClasses::isInstalledThemeFont(kDejaVuBold))
        GTEST_SKIP() << "DejaVu Sans Mono Bold is not installed";
    const QVariantMap repaired = TvlClasses::checkThemeValues(withFont(stale_, kDejaVuBold));

    EXPECT_EQ(fontOf(repaired), kDejaVuBold);
    EXPECT_FALSE(nowTheme().contains(QStringLiteral("Stale")));
}

TEST_F(ThemeFontTest, UnknownFontFallsBackWithoutRewritingAnOtherwiseSoundFile)
{
    const ThemeFont missing{QStringLiteral("No Such Family"), QStringLiteral("NoSuchFamily-Bold"),
                            QStringLiteral("Bold")};
    writeNowTheme(withFont(stale_, missing));

    const QVariantMap repaired = TvlClasses::checkThemeValues(withFont(stale_, missing));

    EXPECT_EQ(fontOf(repaired), TvlClasses::fallbackThemeFont());
    EXPECT_TRUE(nowTheme().contains(QStringLiteral("Stale")));
    EXPECT_EQ(fontOf(nowTheme()), missing);
}

TEST_F(ThemeFontTest, UnknownFontIsWrittenAsTheStandInWhenSomethingElseChanged)
{
    QVariantMap theme = withFont(stale_, {"No Such Family", "NoSuchFamily-Bold", "Bold"});
    theme.remove(QStringLiteral("_Credit"));

    const QVariantMap repaired = TvlClasses::checkThemeValues(theme);

    EXPECT_EQ(fontOf(nowTheme()), TvlClasses::fallbackThemeFont());
    EXPECT_EQ(nowTheme(), repaired);
}
