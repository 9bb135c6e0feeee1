// The support folder's theme files: installing the references and saving named copies.
#include "theme_test_folder.h"

#include <QDir>
#include <QFileInfo>

using TvlClasses::checkNowThemeFile;
using TvlClasses::saveThemeFile;

namespace {

QVariantMap bundled(const char* name)
{
    return PlistIo::readDictionary(TvlClasses::retBundleThemePath(QLatin1String(name))).value_or(QVariantMap());
}

} // namespace

TEST_F(ThemeFolderTest, FirstStartInstallsTheReferencesAndTheLightThemeAsCurrent)
{
    ASSERT_FALSE(QFileInfo::exists(TvlClasses::retApplicationSupportDir()));

    const QVariantMap current = checkNowThemeFile();

    const QVariantMap light = bundled("_light_theme");
    ASSERT_FALSE(light.isEmpty());
    EXPECT_EQ(current, light);
    EXPECT_EQ(readFolderTheme(QStringLiteral("_light_theme.plist")), light);
    EXPECT_EQ(readFolderTheme(QStringLiteral("_dark_theme.plist")), bundled("_dark_theme"));
    // The copies come from read-only resources but must stay replaceable by an atomic save.
    EXPECT_TRUE(PlistIo::writeDictionaryAtomically(folderFile(QStringLiteral("_now_theme.plist")), {}));
}

TEST_F(ThemeFolderTest, ReferencesAreRefreshedWhileTheCurrentThemeIsKept)
{
    const QVariantMap mine{{QStringLiteral("_Name"), QStringLiteral("Mine")}};
    writeNowTheme(mine);
    writeFolderTheme(QStringLiteral("_dark_theme.plist"), {{QStringLiteral("_Name"), QStringLiteral("Edited")}});

    EXPECT_EQ(checkNowThemeFile(), mine);
    EXPECT_EQ(readFolderTheme(QStringLiteral("_dark_theme.plist")), bundled("_dark_theme"));
}

TEST_F(ThemeFolderTest, SavedThemeIsNamedAfterItsFile)
{
    const QVariantMap theme{{QStringLiteral("_Name"), QStringLiteral("Old")}, {QStringLiteral("A01"), QVariantList{}}};
    const QString named = QDir(TvlClasses::retApplicationSupportDir()).filePath(QStringLiteral("My Theme.plist"));
    const QString bare = QDir(TvlClasses::retApplicationSupportDir()).filePath(QStringLiteral(".plist"));
    TvlClasses::checkMyApplicationSupportDir();

    ASSERT_TRUE(saveThemeFile(named, theme));
    ASSERT_TRUE(saveThemeFile(bare, theme));

    EXPECT_EQ(readFolderTheme(QStringLiteral("My Theme.plist")).value(QStringLiteral("_Name")).toString(),
              QStringLiteral("My Theme"));
    EXPECT_EQ(readFolderTheme(QStringLiteral(".plist")).value(QStringLiteral("_Name")).toString(),
              QStringLiteral("_Untitled_"));
    EXPECT_TRUE(readFolderTheme(QStringLiteral("My Theme.plist")).contains(QStringLiteral("A01")));
}

TEST_F(ThemeFolderTest, SavePicksUpPictureOverridesButNotEmptyOnes)
{
    const QVariantMap theme{{QStringLiteral("L01"), QByteArray("theme L01")},
                            {QStringLiteral("O42"), QByteArray("theme O42")}};
    writeFolderBytes(QStringLiteral("L01.png"), "dropped-in L01");
    writeFolderBytes(QStringLiteral("O42.png"), QByteArray());
    writeFolderBytes(QStringLiteral("Z01.png"), "not a picture key");
    const QString path = folderFile(QStringLiteral("Saved.plist"));

    ASSERT_TRUE(saveThemeFile(path, theme));

    const QVariantMap saved = readFolderTheme(QStringLiteral("Saved.plist"));
    EXPECT_EQ(saved.value(QStringLiteral("L01")).toByteArray(), QByteArray("dropped-in L01"));
    EXPECT_EQ(saved.value(QStringLiteral("O42")).toByteArray(), QByteArray("theme O42"));
    EXPECT_FALSE(saved.contains(QStringLiteral("Z01")));
}
