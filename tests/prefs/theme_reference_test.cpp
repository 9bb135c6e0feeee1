// The bundled reference themes: complete key sets, valid colours and pictures of the drawn sizes.
#include "prefs/plist_io.h"
#include "prefs/theme_files.h"
#include "prefs/theme_font.h"
#include "prefs/theme_keys.h"
#include "prefs/theme_repair.h"
#include "theme_test_folder.h"

#include <QImage>

namespace {

struct Reference {
    const char* name;
    bool dark;
    const char* alternative;
};

const Reference kReferences[] = {
    {"_light_theme", false, "_dark_theme.plist"},
    {"_dark_theme", true, "_light_theme.plist"},
};

QVariantMap bundled(const char* name)
{
    return PlistIo::readDictionary(TvlClasses::retBundleThemePath(QLatin1String(name))).value_or(QVariantMap());
}

// Pixel sizes: the loaders draw labels, status items and volume kinds at half their pixels and
// the menu pictures at 18 x 18 points, so all are drawn at twice their point size. Volume kinds
// are 36 points: the Volume menu shows them at that size.
QSize pixelSizeOf(const QString& key)
{
    if (key.startsWith(u'L'))
        return {24, 44};
    if (key.startsWith(u'N'))
        return {44, 44};
    if (key.startsWith(u'M') && key < QStringLiteral("M11"))
        return {72, 72};
    return {36, 36};
}

} // namespace

TEST(ThemeReference, HoldsExactlyTheThemeKeys)
{
    QStringList expected = TvlClasses::themeStringKeys() + TvlClasses::themeNumberKeys() +
                           TvlClasses::themeColorKeys() + TvlClasses::themePictureKeys();
    expected << QStringLiteral("_ForDarkAppearance");
    expected.sort();
    for (const Reference& reference : kReferences) {
        const QVariantMap theme = bundled(reference.name);
        EXPECT_EQ(theme.keys(), expected) << reference.name;
        EXPECT_EQ(theme.value(QStringLiteral("_ForDarkAppearance")).typeId(), QMetaType::Bool);
        EXPECT_EQ(theme.value(QStringLiteral("_ForDarkAppearance")).toBool(), reference.dark);
        EXPECT_EQ(theme.value(QStringLiteral("_AlternativeTheme")).toString(), QLatin1String(reference.alternative));
        for (const QString& key : TvlClasses::themeStringKeys())
            EXPECT_FALSE(theme.value(key).toString().isEmpty()) << reference.name << " " << key.toStdString();
    }
}

TEST(ThemeReference, ColoursAreFourNumbersFromZeroToOne)
{
    for (const Reference& reference : kReferences) {
        const QVariantMap theme = bundled(reference.name);
        for (const QString& key : TvlClasses::themeColorKeys()) {
            const QVariantList parts = theme.value(key).toList();
            ASSERT_EQ(parts.size(), 4) << reference.name << " " << key.toStdString();
            for (const QVariant& part : parts) {
                EXPECT_EQ(part.typeId(), QMetaType::Double);
                EXPECT_GE(part.toDouble(), 0.0);
                EXPECT_LE(part.toDouble(), 1.0);
            }
        }
        // The highlighted cycle meter treats shares this faint as empty.
        EXPECT_LE(theme.value(QStringLiteral("A04")).toList().value(3).toDouble(), 0.25);
    }
}

TEST(ThemeReference, PicturesAreDecodablePngsOfTheirDrawnSize)
{
    for (const Reference& reference : kReferences) {
        const QVariantMap theme = bundled(reference.name);
        for (const QString& key : TvlClasses::themePictureKeys()) {
            const QByteArray png = theme.value(key).toByteArray();
            ASSERT_TRUE(png.startsWith("\x89PNG")) << reference.name << " " << key.toStdString();
            const QImage image = QImage::fromData(png, "PNG");
            ASSERT_FALSE(image.isNull()) << reference.name << " " << key.toStdString();
            EXPECT_EQ(image.size(), pixelSizeOf(key)) << reference.name << " " << key.toStdString();
            EXPECT_TRUE(image.hasAlphaChannel());
        }
    }
}

TEST_F(ThemeFolderTest, ReferenceThemesNeedNoRepair)
{
    TvlClasses::checkNowThemeFile();
    for (const Reference& reference : kReferences) {
        const QVariantMap theme = bundled(reference.name);
        const TvlClasses::ThemeFont font{theme.value(QStringLiteral("_FontName")).toString(),
                                         theme.value(QStringLiteral("_FontPostScriptName")).toString(),
                                         theme.value(QStringLiteral("_FontStyle")).toString()};
        if (!TvlClasses::isInstalledThemeFont(font))
            FAIL() << font.family.toStdString() << " is not installed: install fonts-dejavu-core (tools/setup.sh does)";
        EXPECT_EQ(TvlClasses::checkThemeValues(theme), theme) << reference.name;
    }
}
