// Text measuring and theme font lookup.
#include "toolkit/menu_font.h"
#include "toolkit/text_metrics.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QStringList>
#include <gtest/gtest.h>

using namespace TvlClasses;

TEST(CalcMenuLabelSize, GrowsWithTextAndSizeAndSurvivesUnknownFonts)
{
    const QString family = QFontDatabase::systemFont(QFontDatabase::GeneralFont).family();
    const QSizeF small = calcMenuLabelSize(QStringLiteral("188%"), 9, family);
    EXPECT_GT(small.width(), 0);
    EXPECT_GT(small.height(), 0);
    EXPECT_GT(calcMenuLabelSize(QStringLiteral("188%188%"), 9, family).width(), small.width());
    EXPECT_GT(calcMenuLabelSize(QStringLiteral("188%"), 14, family).width(), small.width());
    EXPECT_GT(calcMenuLabelSize(QStringLiteral("188%"), 9, QStringLiteral("NoSuchFont-Bold")).width(), 0);
    EXPECT_GT(calcMenuLabelSize(QStringLiteral("188%"), 9, QString()).width(), 0);
}

TEST(MenuFont, ResolvesPostScriptNamesToFamilyAndStyle)
{
    if (!QFontDatabase::families().contains(QStringLiteral("DejaVu Sans Mono")))
        GTEST_SKIP() << "DejaVu Sans Mono is not installed";
    const QFont bold = menuFont(QStringLiteral("DejaVuSansMono-Bold"), 11);
    const QFontInfo boldInfo(bold);
    EXPECT_EQ(boldInfo.family(), "DejaVu Sans Mono");
    EXPECT_GE(boldInfo.weight(), QFont::Bold);
    EXPECT_FALSE(boldInfo.italic());
    EXPECT_DOUBLE_EQ(bold.pointSizeF(), 11);

    const QFontInfo oblique(menuFont(QStringLiteral("DejaVuSansMono-BoldOblique"), 9));
    EXPECT_TRUE(oblique.italic());
    EXPECT_EQ(QFontInfo(menuFont(QStringLiteral("dejavu sans mono"), 9)).family(), "DejaVu Sans Mono");
}
