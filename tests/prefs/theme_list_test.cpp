// The theme menu: which files are listed, in what order, with what detail, and selecting one.
#include "prefs/theme_list.h"
#include "theme_test_folder.h"

#include <QDir>

using TvlClasses::retThemeList;
using TvlClasses::selectThemeFile;

namespace {

QStringList fileNames(const QVariantList& list)
{
    QStringList names;
    for (const QVariant& entry : list)
        names << entry.toMap().value(QStringLiteral("_FileName")).toString();
    return names;
}

QVariantMap themeNamed(const char* name)
{
    return {{QStringLiteral("_Name"), QLatin1String(name)}};
}

} // namespace

TEST_F(ThemeFolderTest, ListHasTheCurrentThemeFirstAndOnlyPlistFilesWithAName)
{
    writeFolderTheme(QStringLiteral("b.plist"), themeNamed("B"));
    writeFolderTheme(QStringLiteral("a.txt"), themeNamed("text"));
    writeFolderTheme(QStringLiteral(".hidden.plist"), themeNamed("hidden"));
    writeFolderTheme(QStringLiteral(".plist"), themeNamed("bare"));
    writeFolderTheme(QStringLiteral("plist"), themeNamed("no extension"));
    writeFolderBytes(QStringLiteral("broken.plist"), "garbage");
    writeNowTheme(themeNamed("Now"));
    QDir(TvlClasses::retApplicationSupportDir()).mkdir(QStringLiteral("folder.plist"));

    const QVariantList list = retThemeList();

    EXPECT_EQ(fileNames(list), (QStringList{"_now_theme.plist", "b.plist", "broken.plist"}));
    EXPECT_EQ(list[0].toMap().value(QStringLiteral("_Name")).toString(), QStringLiteral("Now"));
    EXPECT_EQ(list[2].toMap().value(QStringLiteral("_Name")).toString(), QStringLiteral("_Untitled_"));
}

TEST_F(ThemeFolderTest, ListHoldsTheReferenceCopiesLikeAnyTheme)
{
    TvlClasses::checkNowThemeFile();

    EXPECT_EQ(fileNames(retThemeList()), (QStringList{"_now_theme.plist", "_dark_theme.plist", "_light_theme.plist"}));
}

TEST_F(ThemeFolderTest, DetailTextShowsNameAuthorCreditAndAppearance)
{
    writeNowTheme({{QStringLiteral("_Name"), QStringLiteral("Night")},
                   {QStringLiteral("_Author"), QStringLiteral("Ann")},
                   {QStringLiteral("_Credit"), QStringLiteral("After the sky")},
                   {QStringLiteral("_ForDarkAppearance"), true}});
    writeFolderTheme(QStringLiteral("day.plist"), {});

    const QVariantList list = retThemeList();
    ASSERT_EQ(list.size(), 2);

    EXPECT_EQ(TvlClasses::retThemeDetailText(list[0].toMap()),
              QStringLiteral("Night by Ann\nAfter the sky\n● for Dark Appearance"));
    EXPECT_EQ(TvlClasses::retThemeDetailText(list[1].toMap()), QStringLiteral("_Untitled_ by \n\n○ for Light Appearance"));
}

TEST_F(ThemeFolderTest, SelectingCopiesTheFileToTheCurrentTheme)
{
    writeNowTheme(themeNamed("Now"));
    writeFolderTheme(QStringLiteral("b.plist"), themeNamed("B"));

    EXPECT_TRUE(selectThemeFile(QStringLiteral("b.plist")));
    EXPECT_EQ(nowTheme(), themeNamed("B"));
    EXPECT_EQ(readFolderTheme(QStringLiteral("b.plist")), themeNamed("B"));
}

TEST_F(ThemeFolderTest, SelectingTheCurrentOrAMissingThemeKeepsTheCurrentOne)
{
    writeNowTheme(themeNamed("Now"));

    EXPECT_TRUE(selectThemeFile(QStringLiteral("_now_theme.plist")));
    EXPECT_FALSE(selectThemeFile(QStringLiteral("gone.plist")));
    EXPECT_FALSE(selectThemeFile(QStringLiteral("../elsewhere.plist")));
    EXPECT_EQ(nowTheme(), themeNamed("Now"));
}
