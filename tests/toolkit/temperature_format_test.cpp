// Temperature conversion, rounding and the no-reading placeholders.
#include "toolkit/temperature_format.h"

#include <gtest/gtest.h>

#include <limits>

using namespace TvlClasses;

TEST(CalcTempWithUnit, ConvertsAndRoundsToWholeDegrees)
{
    EXPECT_EQ(calcTempWithUnit(45.0f, 1, QStringLiteral("°C"), true), "45°C");
    EXPECT_EQ(calcTempWithUnit(45.0f, 2, QStringLiteral("°F"), true), "113°F");
    EXPECT_EQ(calcTempWithUnit(45.0f, 3, QStringLiteral("K"), true), "318K");
    EXPECT_EQ(calcTempWithUnit(37.5f, 3, QStringLiteral("K"), true), "311K");
    EXPECT_EQ(calcTempWithUnit(45.0f, 7, QStringLiteral("°C"), true), "45°C");
    EXPECT_EQ(calcTempWithUnit(45.4f, 1, QString(), true), "45");
    // Exact halves round to even.
    EXPECT_EQ(calcTempWithUnit(36.5f, 1, QStringLiteral("°C"), true), "36°C");
    EXPECT_EQ(calcTempWithUnit(37.5f, 1, QStringLiteral("°C"), true), "38°C");
}

TEST(CalcTempWithUnit, NoReadingShowsPlaceholderInPlaceOfTheUnit)
{
    const float nan = std::numeric_limits<float>::quiet_NaN();
    EXPECT_EQ(calcTempWithUnit(0.0f, 1, QStringLiteral("°C"), true), "---");
    EXPECT_EQ(calcTempWithUnit(0.0f, 1, QStringLiteral("°C"), false), "???");
    EXPECT_EQ(calcTempWithUnit(-4.0f, 2, QString(), true), "--");
    EXPECT_EQ(calcTempWithUnit(nan, 3, QString(), false), "??");
}
