// Parsing of /proc/stat and /proc/loadavg text.
#include "collect/linux/loadavg_parser.h"
#include "collect/linux/stat_parser.h"

#include <gtest/gtest.h>

namespace {
ProcessorTicks ticks(std::uint64_t user, std::uint64_t system, std::uint64_t nice, std::uint64_t idle)
{
    return {user, system, nice, idle};
}
}

TEST(ProcStatText, FoldsKernelColumnsIntoFourStatesPerProcessor)
{
    // user nice system idle iowait irq softirq steal guest guest_nice
    const auto parsed = parseProcessorTicks("cpu  30 6 90 900 40 8 4 2 7 1\n"
                                            "cpu0 10 2 30 300 20 4 2 1 5 1\n"
                                            "cpu1 20 4 60 600 20 4 2 1 2 0\n"
                                            "intr 1 2 3\n");
    ASSERT_TRUE(parsed);
    // The aggregate line is not a processor; guest columns are already part of user and nice.
    ASSERT_EQ(parsed->size(), 2u);
    EXPECT_EQ((*parsed)[0], ticks(10, 30 + 4 + 2 + 1, 2, 300 + 20));
    EXPECT_EQ((*parsed)[1], ticks(20, 60 + 4 + 2 + 1, 4, 600 + 20));
}

TEST(ProcStatText, ToleratesShortAndLongLinesAndAMissingFinalLineFeed)
{
    // Old kernels print four columns; future ones may print more.
    const auto parsed = parseProcessorTicks("cpu 1 2 3 4\ncpu0 1 2 3 4\ncpu1 5 6 7 8 9 10 11 12 13 14 15 16");
    ASSERT_TRUE(parsed);
    ASSERT_EQ(parsed->size(), 2u);
    EXPECT_EQ((*parsed)[0], ticks(1, 3, 2, 4));
    EXPECT_EQ((*parsed)[1], ticks(5, 7 + 10 + 11 + 12, 6, 8 + 9));
}

TEST(ProcStatText, KeepsTheKernelsProcessorOrderAndSkipsLookalikeLines)
{
    // An offline processor leaves a gap in the numbering; "cpufreq" is not a processor.
    const auto parsed = parseProcessorTicks("cpu 0 0 0 0\ncpu0 1 0 0 0\ncpufreq 9 9 9 9\ncpu3 3 0 0 0\n");
    ASSERT_TRUE(parsed);
    ASSERT_EQ(parsed->size(), 2u);
    EXPECT_EQ((*parsed)[0][CpuUser], 1u);
    EXPECT_EQ((*parsed)[1][CpuUser], 3u);
}

TEST(ProcStatText, GivesNothingWithoutProcessorLines)
{
    EXPECT_FALSE(parseProcessorTicks(""));
    EXPECT_FALSE(parseProcessorTicks("cpu 1 2 3 4\nintr 5\n"));
}

TEST(ProcStatText, FindsBootTimeAfterTheLongLines)
{
    EXPECT_EQ(parseBootTime("cpu0 1 2 3 4\nintr 1 2 3\nbtime 1418183276\nprocesses 5\n"), 1418183276);
    EXPECT_EQ(parseBootTime("btime 42"), 42);
    EXPECT_FALSE(parseBootTime("cpu0 1 2 3 4\nbtimex 5\n"));
    EXPECT_FALSE(parseBootTime("btime soon\n"));
}

TEST(LoadAverageText, ReadsAveragesAndSchedulingEntities)
{
    const auto line = parseLoadAverage("0.02 0.04 0.05 1/497 11947\n");
    ASSERT_TRUE(line);
    EXPECT_DOUBLE_EQ(line->averages.one, 0.02);
    EXPECT_DOUBLE_EQ(line->averages.five, 0.04);
    EXPECT_DOUBLE_EQ(line->averages.fifteen, 0.05);
    EXPECT_EQ(line->runnable, 1u);
    EXPECT_EQ(line->schedulingEntities, 497u);
}

TEST(LoadAverageText, NeedsAllThreeAveragesButNotTheEntityCount)
{
    EXPECT_FALSE(parseLoadAverage("0.02 0.04"));
    EXPECT_FALSE(parseLoadAverage("0.02 x 0.05 1/2 3"));
    const auto line = parseLoadAverage("1.50 2.00 3.25");
    ASSERT_TRUE(line);
    EXPECT_DOUBLE_EQ(line->averages.fifteen, 3.25);
    EXPECT_FALSE(line->schedulingEntities);
}
