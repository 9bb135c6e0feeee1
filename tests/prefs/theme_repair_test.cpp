// Repair of the current theme: wrong forms and missing keys come from the reference theme.
#include "prefs/theme_font.h"
#include "prefs/theme_keys.h"
#include "prefs/theme_repair.h"
#include "theme_test_folder.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <limits>

using TvlClasses::checkNowThemeFile;
using TvlClasses::checkThemeValues;

namespace {

QVariantMap bundled(const char* name)
{
    return PlistIo::readDictionary(TvlClasses::retBundleThemePath(QLatin1String(name))).value_or(QVariantMap());
}

class ThemeRepairTest : public ThemeFolderTest {
protected:
    void SetUp() override
    {
        ThemeFolderTest::SetUp();
        if (IsSkipped())
            return;
        checkNowThemeFile();
        light_ = bundled("_light_theme");
        dark_ = bundled("_dark_theme");
        ASSERT_FALSE(light_.isEmpty());
        ASSERT_FALSE(dark_.isEmpty());
    }

    QVariantMap light_;
    QVariantMap dark_;
};

} // namespace

TEST_F(ThemeRepairTest, ColourArraysMustBeFourNumbersFromZeroToOne)
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    QVariantMap theme = light_;
    theme[QStringLiteral("A01")] = QVariantList{1.0, 0.0, 0.0};
    theme[QStringLiteral("A02")] = QVariantList{0.5, 1.2, 0.0, 1.0};
    theme[QStringLiteral("A03")] = QVariantList{nan, 0.0, 0.0, 1.0};
    theme[QStringLiteral("A05")] = QVariantList{0.5, 0.5, 0.5, -0.01};
    theme[QStringLiteral("A06")] = QVariantList{QStringLiteral("0.5"), 0.0, 0.0, 1.0};
    theme[QStringLiteral("A04")] = QVariantList{0.0, 0.0, 0.0, 0.0};
    theme[QStringLiteral("A07")] = QVariantList{qint64(1), qint64(0), 0.5, 1.0};

    const QVariantMap repaired = checkThemeValues(theme);

    for (const char* key : {"A01", "A02", "A03", "A05", "A06"})
        EXPECT_EQ(repaired.value(QLatin1String(key)), light_.value(QLatin1String(key))) << key;
    EXPECT_EQ(repaired.value(QStringLiteral("A04")), (QVariantList{0.0, 0.0, 0.0, 0.0}));
    EXPECT_EQ(repaired.value(QStringLiteral("A07")), theme.value(QStringLiteral("A07")));
}

TEST_F(ThemeRepairTest, EmptyPicturesAreReplacedAndOthersKept)
{
    QVariantMap theme = light_;
    theme[QStringLiteral("L01")] = QByteArray();
    theme[QStringLiteral("L02")] = QByteArray("user picture");

    const QVariantMap repaired = checkThemeValues(theme);

    EXPECT_EQ(repaired.value(QStringLiteral("L01")), light_.value(QStringLiteral("L01")));
    EXPECT_EQ(repaired.value(QStringLiteral("L02")).toByteArray(), QByteArray("user picture"));
}

TEST_F(ThemeRepairTest, OtherValuesAreKeptAndUnknownKeysDropped)
{
    QVariantMap theme = light_;
    theme[QStringLiteral("_FontSizeDiff")] = qint64(2);
    theme[QStringLiteral("_Name")] = QStringLiteral("Mine");
    theme[QStringLiteral("X99")] = QVariantList{0.0, 0.0, 0.0, 1.0};

    const QVariantMap repaired = checkThemeValues(theme);

    EXPECT_EQ(repaired.value(QStringLiteral("_FontSizeDiff")).toLongLong(), 2);
    EXPECT_EQ(repaired.value(QStringLiteral("_Name")).toString(), QStringLiteral("Mine"));
    EXPECT_FALSE(repaired.contains(QStringLiteral("X99")));
    EXPECT_EQ(repaired.keys(), light_.keys());
}

TEST_F(ThemeRepairTest, MissingAuthorBecomesUntitledAndTheFileIsRewritten)
{
    QVariantMap theme = light_;
    theme.remove(QStringLiteral("_Author"));
    theme.remove(QStringLiteral("C01"));
    writeNowTheme(theme);

    const QVariantMap repaired = checkThemeValues(checkNowThemeFile());

    EXPECT_EQ(repaired.value(QStringLiteral("_Author")).toString(), QStringLiteral("_Untitled_"));
    EXPECT_EQ(repaired.value(QStringLiteral("C01")), light_.value(QStringLiteral("C01")));
    EXPECT_EQ(nowTheme().value(QStringLiteral("_Author")).toString(), QStringLiteral("_Untitled_"));
    EXPECT_EQ(nowTheme().value(QStringLiteral("C01")), light_.value(QStringLiteral("C01")));
}

TEST_F(ThemeRepairTest, DarkThemeIsFilledFromTheDarkReference)
{
    const QVariantMap repaired = checkThemeValues({{QStringLiteral("_ForDarkAppearance"), true}});

    EXPECT_TRUE(repaired.value(QStringLiteral("_ForDarkAppearance")).toBool());
    for (const QString& key : TvlClasses::themeColorKeys())
        EXPECT_EQ(repaired.value(key), dark_.value(key)) << key.toStdString();
    EXPECT_EQ(repaired.value(QStringLiteral("_AlternativeTheme")).toString(), QStringLiteral("_Untitled_"));
}

TEST_F(ThemeRepairTest, DamagedCurrentThemeIsSetAsideAndTheLightThemeTakesItsPlace)
{
    const QByteArray damaged("this is not a property list");
    writeFolderBytes(QStringLiteral("_now_theme.plist"), damaged);

    QString problem;
    EXPECT_EQ(checkNowThemeFile(&problem), light_);
    EXPECT_TRUE(problem.contains(QStringLiteral("moved to")));
    const QDir folder(TvlClasses::retApplicationSupportDir());
    const QStringList aside = folder.entryList({QStringLiteral("_now_theme.plist.unreadable-*")});
    ASSERT_EQ(aside.size(), 1);
    QFile kept(folder.filePath(aside.front()));
    ASSERT_TRUE(kept.open(QIODevice::ReadOnly));
    EXPECT_EQ(kept.readAll(), damaged);
    EXPECT_EQ(nowTheme(), light_);
}

TEST_F(ThemeRepairTest, ACurrentThemeThatIsNoFileIsLeftAloneAndTheLightThemeIsUsed)
{
    ASSERT_TRUE(QFile::remove(folderFile(QStringLiteral("_now_theme.plist"))));
    ASSERT_TRUE(QDir().mkpath(folderFile(QStringLiteral("_now_theme.plist"))));

    QString problem;
    EXPECT_EQ(checkThemeValues(checkNowThemeFile(&problem)).keys(), light_.keys());
    EXPECT_FALSE(problem.isEmpty());
    EXPECT_TRUE(QFileInfo(folderFile(QStringLiteral("_now_theme.plist"))).isDir());
}
