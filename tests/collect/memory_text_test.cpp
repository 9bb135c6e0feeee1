// Parsing of /proc/meminfo, /proc/vmstat and /proc/swaps text.
#include "collect/linux/memory_parsers.h"

#include <gtest/gtest.h>

TEST(MeminfoText, ConvertsKibibytesToBytesAndKeepsPlainCounts)
{
    const auto info = parseMeminfo("MemTotal:       15666184 kB\n"
                                   "MemFree:          440324 kB\n"
                                   "HugePages_Total:       7\n"
                                   "Weird line without colon\n"
                                   "Broken:   lots kB\n"
                                   "SwapFree:             0 kB");
    ASSERT_TRUE(info);
    EXPECT_EQ(info->at("MemTotal"), 15666184ull * 1024);
    EXPECT_EQ(info->at("MemFree"), 440324ull * 1024);
    EXPECT_EQ(info->at("HugePages_Total"), 7u);
    EXPECT_EQ(info->at("SwapFree"), 0u);
    EXPECT_EQ(info->count("Broken"), 0u);
    EXPECT_EQ(info->size(), 4u);
    EXPECT_FALSE(parseMeminfo("nothing here\n"));
}

TEST(VmstatText, ReadsNameValuePairs)
{
    const auto counters = parseVmstat("nr_free_pages 110081\npgpgin 7\nbad\npswpout 3");
    ASSERT_TRUE(counters);
    EXPECT_EQ(counters->size(), 3u);
    EXPECT_EQ(counters->at("nr_free_pages"), 110081u);
    EXPECT_EQ(counters->at("pswpout"), 3u);
    EXPECT_FALSE(parseVmstat(""));
}

TEST(SwapsText, DecodesEscapedFileNamesAndSkipsTheHeader)
{
    const auto areas = parseSwaps("Filename\t\t\t\tType\t\tSize\tUsed\tPriority\n"
                                  "/dev/dm-2                               partition\t131068\t176\t-2\n"
                                  "/var/my\\040swap\\011file file\t1024\t0\t-3\n");
    ASSERT_TRUE(areas);
    ASSERT_EQ(areas->size(), 2u);
    EXPECT_EQ((*areas)[0].filename, "/dev/dm-2");
    EXPECT_EQ((*areas)[0].type, "partition");
    EXPECT_EQ((*areas)[0].sizeKiB, 131068u);
    EXPECT_EQ((*areas)[0].usedKiB, 176u);
    EXPECT_EQ((*areas)[1].filename, "/var/my swap\tfile");
    EXPECT_EQ((*areas)[1].type, "file");
}

TEST(SwapsText, TellsNoSwapFromAnUnreadableList)
{
    const auto none = parseSwaps("Filename\t\t\t\tType\t\tSize\tUsed\tPriority\n");
    ASSERT_TRUE(none);
    EXPECT_TRUE(none->empty());
    EXPECT_FALSE(parseSwaps(""));
    EXPECT_FALSE(parseSwaps("/dev/sda2 partition 10 0 -2\n"));
}
