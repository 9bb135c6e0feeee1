// Parsing of /proc/net/dev and /proc/diskstats text.
#include "collect/linux/diskstats_parser.h"
#include "collect/linux/net_dev_parser.h"

#include <gtest/gtest.h>

TEST(NetDevText, ReadsByteAndPacketCountersPerInterface)
{
    const auto rows = parseNetDev(
        "Inter-|   Receive                                                |  Transmit\n"
        " face |bytes    packets errs drop fifo frame compressed multicast|bytes    packets errs drop fifo colls "
        "carrier compressed\n"
        "    lo: 1664039048 1566805    0    0    0     0          0         0 1664039048 1566805    0    0    0     0"
        "       0          0\n"
        "  eth0: 874354587 1036395    0    0    0     0          0         0 563352563  732147    0    0    0     0"
        "       0          0");
    ASSERT_TRUE(rows);
    ASSERT_EQ(rows->size(), 2u);
    EXPECT_EQ((*rows)[0].name, "lo");
    EXPECT_EQ((*rows)[1].name, "eth0");
    EXPECT_EQ((*rows)[1].receivedBytes, 874354587u);
    EXPECT_EQ((*rows)[1].receivedPackets, 1036395u);
    EXPECT_EQ((*rows)[1].sentBytes, 563352563u);
    EXPECT_EQ((*rows)[1].sentPackets, 732147u);
}

TEST(NetDevText, HandlesCountersGluedToTheColonAndSkipsShortRows)
{
    const auto rows = parseNetDev("eth1:4294967296 2 0 0 0 0 0 0 10 1 0 0 0 0 0 0\n"
                                  "eth2: 1 2 3\n");
    ASSERT_TRUE(rows);
    ASSERT_EQ(rows->size(), 1u);
    EXPECT_EQ((*rows)[0].name, "eth1");
    EXPECT_EQ((*rows)[0].receivedBytes, 4294967296u);
    EXPECT_EQ((*rows)[0].sentPackets, 1u);
    EXPECT_FALSE(parseNetDev("Inter-|   Receive\n face |bytes\n"));
}

TEST(NetDevText, NamesEndAtTheLastColonWhateverTheyHold)
{
    // Counters never hold a colon, so a name may: with blanks after it, glued to a counter,
    // and with letters beyond ASCII.
    const auto rows = parseNetDev("  br:lan:   10 1 0 0 0 0 0 0 20 2 0 0 0 0 0 0\n"
                                  "v:1:4294967296 3 0 0 0 0 0 0 30 4 0 0 0 0 0 0\n"
                                  "wlän0: 7 5 0 0 0 0 0 0 8 6 0 0 0 0 0 0\n");
    ASSERT_TRUE(rows);
    ASSERT_EQ(rows->size(), 3u);
    EXPECT_EQ((*rows)[0].name, "br:lan");
    EXPECT_EQ((*rows)[0].receivedBytes, 10u);
    EXPECT_EQ((*rows)[1].name, "v:1");
    EXPECT_EQ((*rows)[1].receivedBytes, 4294967296u);
    EXPECT_EQ((*rows)[1].sentPackets, 4u);
    EXPECT_EQ((*rows)[2].name, "wl\xc3\xa4n0");
    EXPECT_EQ((*rows)[2].sentBytes, 8u);
}

TEST(DiskstatsText, ReadsRowsOfEveryKernelGeneration)
{
    const auto rows = parseDiskstats(
        "   8       0 sda 25354637 34367663 1003346126 18492372 28444756 11134226 505697032 63877960 0 9653880 "
        "82621804\n"
        "   8       1 sdb1 231 3 34466 4 24 23 106 0 0 64 64 0 0 0 0\n"
        "   8      32 sdc 14202 71 579164 21861 2995 1589 180500 40875 0 11628 55200 5 6 7 8 127 182");
    ASSERT_TRUE(rows);
    ASSERT_EQ(rows->size(), 3u);

    const DiskStatistics& old = (*rows)[0];
    EXPECT_EQ(old.major, 8u);
    EXPECT_EQ(old.minor, 0u);
    EXPECT_EQ(old.name, "sda");
    EXPECT_EQ(old.sectorsRead, 1003346126u);
    EXPECT_EQ(old.sectorsWritten, 505697032u);
    EXPECT_EQ(old.weightedIoMilliseconds, 82621804u);
    EXPECT_FALSE(old.discardsCompleted);
    EXPECT_FALSE(old.flushesCompleted);

    const DiskStatistics& withDiscards = (*rows)[1];
    EXPECT_EQ(withDiscards.name, "sdb1");
    EXPECT_EQ(withDiscards.discardsCompleted, 0u);
    EXPECT_FALSE(withDiscards.flushesCompleted);

    const DiskStatistics& withFlushes = (*rows)[2];
    EXPECT_EQ(withFlushes.minor, 32u);
    EXPECT_EQ(withFlushes.discardsCompleted, 5u);
    EXPECT_EQ(withFlushes.discardMilliseconds, 8u);
    EXPECT_EQ(withFlushes.flushesCompleted, 127u);
    EXPECT_EQ(withFlushes.flushMilliseconds, 182u);
}

TEST(DiskstatsText, SkipsRowsTooShortOrNotNumeric)
{
    // Kernels of the 2.6 era printed partitions with four counters only.
    const auto rows = parseDiskstats("   8   1 sda1 250 2000 0 0\n"
                                     "   x   0 sdz 1 2 3 4 5 6 7 8 9 10 11\n"
                                     " 179   0 mmcblk0 192 3 1560 156 0 0 0 0 0 136 156 1 2 3 4 5 6 7 8 9\n");
    ASSERT_TRUE(rows);
    ASSERT_EQ(rows->size(), 1u);
    EXPECT_EQ((*rows)[0].name, "mmcblk0");
    EXPECT_EQ((*rows)[0].flushMilliseconds, 6u);
    EXPECT_FALSE(parseDiskstats("   8   1 sda1 250 2000 0 0\n"));
}
