// Colour arrays: only four numbers make a colour, and colours turn back into the same numbers.
#include "prefs/theme_color.h"

#include <gtest/gtest.h>

#include <limits>

using TvlClasses::colorToArray;
using TvlClasses::retColorFromArray;

TEST(ThemeColor, FourNumbersMakeTheColour)
{
    const QColor color = retColorFromArray(QVariantList{1.0, 0.5, 0.0, 0.25});
    EXPECT_NEAR(color.redF(), 1.0, 1e-4);
    EXPECT_NEAR(color.greenF(), 0.5, 1e-4);
    EXPECT_NEAR(color.blueF(), 0.0, 1e-4);
    EXPECT_NEAR(color.alphaF(), 0.25, 1e-4);
}

TEST(ThemeColor, AnyOtherFormIsClear)
{
    const QVariant forms[] = {
        QVariant(),
        QVariantList{1.0, 0.0, 0.0},
        QVariantList{1.0, 0.0, 0.0, 1.0, 1.0},
        QVariant(QStringLiteral("red")),
        QVariant(QByteArray("\x01\x02\x03\x04")),
    };
    for (const QVariant& form : forms) {
        const QColor color = retColorFromArray(form);
        EXPECT_TRUE(color.isValid());
        EXPECT_EQ(color.alpha(), 0) << form.toString().toStdString();
    }
}

TEST(ThemeColor, OutOfRangeComponentsAreHeldToTheRange)
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const QColor color = retColorFromArray(QVariantList{1.7, -0.3, nan, 2.0});
    EXPECT_TRUE(color.isValid());
    EXPECT_EQ(color.red(), 255);
    EXPECT_EQ(color.green(), 0);
    EXPECT_EQ(color.blue(), 0);
    EXPECT_EQ(color.alpha(), 255);
}

TEST(ThemeColor, ArrayRoundTripsThroughTheColour)
{
    const QVariantList array{0.2, 0.4, 0.6, 0.8};
    const QVariantList back = colorToArray(retColorFromArray(array));
    ASSERT_EQ(back.size(), 4);
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(back[i].typeId(), QMetaType::Double);
        EXPECT_NEAR(back[i].toDouble(), array[i].toDouble(), 1e-4);
    }
}
