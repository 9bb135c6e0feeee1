// Thresholds, units and placeholders of the size and rate formatters.
#include "toolkit/value_format.h"

#include <gtest/gtest.h>

using namespace TvlClasses;

TEST(CalcMemorySize, AutomaticModeSwitchesUnitsOnlyAboveEachStep)
{
    EXPECT_EQ(calcMemorySize(1073741824, 1), "1024.0MB");
    EXPECT_EQ(calcMemorySize(1073741825, 1), "1.00GB");
    EXPECT_EQ(calcMemorySize(1099511627776LL, 0), "1024.00GB");
    EXPECT_EQ(calcMemorySize(1099511627776LL + 1, 0), "1.00TB");
    EXPECT_EQ(calcMemorySize(0, 1), "0.0MB");
    EXPECT_EQ(calcMemorySize(-1, 1), "---");
}

TEST(CalcMemorySize, FixedModesIgnoreMagnitude)
{
    EXPECT_EQ(calcMemorySize(8LL << 30, 2), "8192.0MB");
    EXPECT_EQ(calcMemorySize(512LL << 20, 3), "0.50GB");
    EXPECT_EQ(calcMemorySize(-5, 3), "---");
}

TEST(CalcDiscAccessPerSec, DecimalStepsWithoutAPlainByteForm)
{
    EXPECT_EQ(calcDiscAccessPerSec(1000000), "1000.0KB/s");
    EXPECT_EQ(calcDiscAccessPerSec(1000001), "1.0MB/s");
    EXPECT_EQ(calcDiscAccessPerSec(1000000000), "1000.0MB/s");
    EXPECT_EQ(calcDiscAccessPerSec(1000000001), "1.0GB/s");
    EXPECT_EQ(calcDiscAccessPerSec(500), "0.5KB/s");
    // An exact tie rounds to even, as the C formatter does.
    EXPECT_EQ(calcDiscAccessPerSec(250), "0.2KB/s");
    EXPECT_EQ(calcDiscAccessPerSec(0), "0.0B/s");
    EXPECT_EQ(calcDiscAccessPerSec(-7), "0.0B/s");
}

TEST(CalcDiskSize, WorksFromWholeKilobytes)
{
    EXPECT_EQ(calcDiskSize(999), "0.0KB");
    EXPECT_EQ(calcDiskSize(1000000), "1000.0KB");
    EXPECT_EQ(calcDiskSize(1001000), "1.0MB");
    EXPECT_EQ(calcDiskSize(1000999), "1000.0KB");
    EXPECT_EQ(calcDiskSize(1000001000), "1.0GB");
    EXPECT_EQ(calcDiskSize(1000000001000LL), "1.00TB");
    EXPECT_EQ(calcDiskSize(0), "0Byte");
    EXPECT_EQ(calcDiskSize(-1), "0Byte");
}

TEST(CalcBytesPerSec, PrefixesDigitsAndPlaceholders)
{
    EXPECT_EQ(calcBytesPerSec(1000, true, 4), "7.81Kbps");
    EXPECT_EQ(calcBytesPerSec(1023, false, 4), "1023B/s");
    EXPECT_EQ(calcBytesPerSec(1024, false, 4), "1024B/s");
    EXPECT_EQ(calcBytesPerSec(1536, false, 4), "1.50KB/s");
    EXPECT_EQ(calcBytesPerSec(1536, false, 0), "1.5KB/s");
    EXPECT_EQ(calcBytesPerSec(500000, false, 4), "488KB/s");
    EXPECT_EQ(calcBytesPerSec(11.7737 * 1048576, false, 4), "11.7MB/s");
    EXPECT_EQ(calcBytesPerSec(2.0 * 1073741824, true, 4), "16.0Gbps");
    EXPECT_EQ(calcBytesPerSec(0, false, 4), "0B/s");
    EXPECT_EQ(calcBytesPerSec(-3, true, 0), "0.0bps");
    EXPECT_EQ(calcBytesPerSec(std::numeric_limits<double>::quiet_NaN(), false, 4), "0B/s");
}

TEST(CalcPercent, WholePercentWithCRounding)
{
    EXPECT_EQ(TvlClasses::calcPercent(0.0), QStringLiteral("0%"));
    EXPECT_EQ(TvlClasses::calcPercent(1.0), QStringLiteral("100%"));
    EXPECT_EQ(TvlClasses::calcPercent(0.125), QStringLiteral("12%")); // 12.5: ties go to even
    EXPECT_EQ(TvlClasses::calcPercent(0.126), QStringLiteral("13%"));
}
