// Parsing of per-process stat lines.
#include "collect/linux/process_stat_parser.h"

#include <gtest/gtest.h>

TEST(ProcessStatText, ReadsTimesThreadsAndResidentPages)
{
    const auto record = parseProcessStat(
        "26231 (vim) R 5392 7446 5392 34835 7446 4218880 32533 309516 26 82 1677 44 158 99 20 0 1 0 "
        "82375 56274944 1981 18446744073709551615 4194304 6294284 140736914091744 0\n");
    ASSERT_TRUE(record);
    EXPECT_EQ(record->pid, 26231);
    EXPECT_EQ(record->command, "vim");
    EXPECT_EQ(record->cpuTicks, 1677u + 44u);
    EXPECT_EQ(record->threads, 1);
    EXPECT_EQ(record->residentPages, 1981u);
}

TEST(ProcessStatText, TakesTheNameUpToTheLastParenthesis)
{
    // A program may call itself anything, including ") R 1 2" to fool naive parsers.
    const auto odd = parseProcessStat("1020 ((a b ) ( c d) ) R 28378 1020 28378 34842 1020 4218880 286 0 0 0 "
                                      "7 3 0 0 20 0 4 0 10839175 10395648 155 18446744073709551615");
    ASSERT_TRUE(odd);
    EXPECT_EQ(odd->command, "(a b ) ( c d) ");
    EXPECT_EQ(odd->cpuTicks, 10u);
    EXPECT_EQ(odd->threads, 4);
    EXPECT_EQ(odd->residentPages, 155u);

    const auto spoof = parseProcessStat("7 (x) R 1 2) S 1 1 1 0 -1 0 0 0 0 0 5 6 0 0 20 0 2 0 1 2 3");
    ASSERT_TRUE(spoof);
    EXPECT_EQ(spoof->command, "x) R 1 2");
    EXPECT_EQ(spoof->cpuTicks, 11u);
}

TEST(ProcessStatText, AcceptsSignedKernelFieldsItDoesNotUse)
{
    // Kernel threads print extreme signed values in the child-time fields.
    const auto record = parseProcessStat("33 (ata_sff) S 2 0 0 0 -1 69238880 0 0 0 0 0 0 -9223372036854775808 "
                                         "9223372036854775807 0 -20 1 0 5 0 0 18446744073709551615 0");
    ASSERT_TRUE(record);
    EXPECT_EQ(record->pid, 33);
    EXPECT_EQ(record->cpuTicks, 0u);
    EXPECT_EQ(record->residentPages, 0u);
}

TEST(ProcessStatText, RejectsCutShortOrMalformedLines)
{
    EXPECT_FALSE(parseProcessStat(""));
    EXPECT_FALSE(parseProcessStat("12 (sh"));
    EXPECT_FALSE(parseProcessStat("12 (sh) S 1 1 1 0 -1 0 0 0 0 0 5 6"));
    EXPECT_FALSE(parseProcessStat("x (sh) S 1 1 1 0 -1 0 0 0 0 0 5 6 0 0 20 0 1 0 1 2 3"));
    EXPECT_FALSE(parseProcessStat("12 (sh) S 1 1 1 0 -1 0 0 0 0 0 five 6 0 0 20 0 1 0 1 2 3"));
}
