// The width-limited number rule and the digit count it depends on.
#include "toolkit/arranged_number.h"

#include <gtest/gtest.h>

#include <limits>

using namespace TvlClasses;

TEST(TvlCalcDigits, CountsOneLowFromTenThousandUp)
{
    EXPECT_EQ(TvlCalcDigits(-5), 1);
    EXPECT_EQ(TvlCalcDigits(9), 1);
    EXPECT_EQ(TvlCalcDigits(10), 2);
    EXPECT_EQ(TvlCalcDigits(999), 3);
    EXPECT_EQ(TvlCalcDigits(1000), 4);
    EXPECT_EQ(TvlCalcDigits(9999), 4);
    EXPECT_EQ(TvlCalcDigits(10000), 4);
    EXPECT_EQ(TvlCalcDigits(99999), 4);
    EXPECT_EQ(TvlCalcDigits(100000), 5);
    EXPECT_EQ(TvlCalcDigits(999999), 5);
    EXPECT_EQ(TvlCalcDigits(1000000), 6);
    EXPECT_EQ(TvlCalcDigits(999999999999999LL), 14);
    EXPECT_EQ(TvlCalcDigits(1000000000000000LL), 15);
    EXPECT_EQ(TvlCalcDigits(std::numeric_limits<qint64>::max()), 15);
}

TEST(RetArrangedNumber, FitsTheNumberIntoDigitsCharacters)
{
    EXPECT_EQ(retArrangedNumber(1.5, 1536, 4), "1.50");
    EXPECT_EQ(retArrangedNumber(11.7737, 12345678, 4), "11.7");
    EXPECT_EQ(retArrangedNumber(488.28, 500000, 4), "488");
    EXPECT_EQ(retArrangedNumber(1023, 1023, 4), "1023");
    EXPECT_EQ(retArrangedNumber(1023.9, 1023.9, 4), "1023");
    EXPECT_EQ(retArrangedNumber(99999.5, 1e9, 4), "99999");
    EXPECT_EQ(retArrangedNumber(9999.9, 1e9, 4), "9999");
    EXPECT_EQ(retArrangedNumber(1.5, 1536, 8), "1.500000");
    EXPECT_EQ(retArrangedNumber(2.25, 2304, 12), "2.250000");
}

TEST(RetArrangedNumber, OutOfRangeInputStaysDefined)
{
    const double inf = std::numeric_limits<double>::infinity();
    EXPECT_EQ(retArrangedNumber(inf, inf, 4), "9223372036854775807");
    EXPECT_EQ(retArrangedNumber(-1e300, -1e300, 4), "-2147483648");
}
