// The memory sample, totals and swap records from kernel counter text of a new and an old kernel.
#include "collect/linux/memory_parsers.h"
#include "collect/memory_mapping.h"

#include <gtest/gtest.h>

namespace {

constexpr std::size_t kPage = 4096;

// A 6.x kernel: split lists, MemAvailable, a zswap pool.
constexpr const char* kNewMeminfo = "MemTotal:       16000000 kB\n"
                                    "MemFree:         2000000 kB\n"
                                    "MemAvailable:    9000000 kB\n"
                                    "Buffers:          400000 kB\n"
                                    "Cached:          6000000 kB\n"
                                    "Active:          5000000 kB\n"
                                    "Inactive:        6000000 kB\n"
                                    "Active(anon):    3000000 kB\n"
                                    "Inactive(anon):  1000000 kB\n"
                                    "Active(file):    2000000 kB\n"
                                    "Inactive(file):  5000000 kB\n"
                                    "Unevictable:       64000 kB\n"
                                    "Zswap:             40000 kB\n"
                                    "Zswapped:         120000 kB\n"
                                    "AnonPages:       3800000 kB\n"
                                    "Shmem:            200000 kB\n"
                                    "SReclaimable:     500000 kB\n"
                                    "SUnreclaim:       200000 kB\n"
                                    "KernelStack:       20000 kB\n"
                                    "PageTables:        60000 kB\n"
                                    "HugePages_Total:       0\n";

// A 2.6 kernel: no MemAvailable, no Shmem, no zswap, and no vmstat beside it.
constexpr const char* kOldMeminfo = "MemTotal:        1024000 kB\n"
                                    "MemFree:          100000 kB\n"
                                    "Buffers:           50000 kB\n"
                                    "Cached:           300000 kB\n"
                                    "Active:           400000 kB\n"
                                    "Inactive:         350000 kB\n"
                                    "AnonPages:        250000 kB\n"
                                    "SReclaimable:      40000 kB\n"
                                    "SUnreclaim:        20000 kB\n"
                                    "PageTables:         8000 kB\n";

MemoryCounters scanned(const char* meminfo, const char* vmstat = nullptr)
{
    auto counters = scanMeminfo(meminfo, {});
    EXPECT_TRUE(counters);
    if (!counters)
        return {};
    if (!vmstat)
        return *counters;
    auto paged = scanVmstat(vmstat, *counters);
    EXPECT_TRUE(paged);
    return paged ? *paged : *counters;
}

std::int64_t breakdown(const MemorySample& s)
{
    return s[MemoryWired] + s[MemoryActive] + s[MemoryInactive] + s[MemoryFree] +
           std::max<std::int64_t>(0, s[MemoryCompressor]);
}

} // namespace

TEST(MemoryMapping, NewKernelFiguresAddUpWithinTheTotal)
{
    const MemoryCounters counters = scanned(kNewMeminfo, "nr_free_pages 1\npswpin 1234\npswpout 5678\n");
    const auto sample = memorySampleFrom(counters, kPage, true);
    ASSERT_TRUE(sample);
    // kB / 4 = pages of 4 KiB.
    EXPECT_EQ(*sample, (MemorySample{(64000 + 200000 + 20000 + 60000) / 4, 5000000 / 4, 6000000 / 4, 2000000 / 4, 1234,
                                     5678, -1, 40000 / 4, (3800000 + 200000) / 4, (6000000 - 200000 + 400000) / 4}));
    const auto totals = memoryTotalsFrom(counters, kPage);
    ASSERT_TRUE(totals);
    EXPECT_EQ(*totals, (MemoryTotals{16000000 / 4, 9000000 / 4}));
    // What the four parts and the pool leave over is the reclaimable slab and other kernel use.
    EXPECT_LE(breakdown(*sample), totals->totalPages);
}

TEST(MemoryMapping, OldKernelUsesWholeListsAndEstimatesWhatIsAvailable)
{
    const MemoryCounters counters = scanned(kOldMeminfo);
    const auto sample = memorySampleFrom(counters, kPage, std::nullopt);
    ASSERT_TRUE(sample);
    EXPECT_EQ(*sample, (MemorySample{(20000 + 8000) / 4, 400000 / 4, 350000 / 4, 100000 / 4, -1, -1, -1, -1, 250000 / 4,
                                     (300000 + 50000) / 4}));
    const auto totals = memoryTotalsFrom(counters, kPage);
    ASSERT_TRUE(totals);
    // Free, buffers, cache and reclaimable slab.
    EXPECT_EQ(*totals, (MemoryTotals{1024000 / 4, (100000 + 50000 + 300000 + 40000) / 4}));
    EXPECT_LE(breakdown(*sample), totals->totalPages);

    MemoryCounters truncated = counters;
    truncated.memTotal.reset();
    EXPECT_FALSE(memorySampleFrom(truncated, kPage, std::nullopt));
    EXPECT_FALSE(memoryTotalsFrom(truncated, kPage));
}

TEST(MemoryMapping, CompressorNeedsZswapOnOrAPoolStillHoldingPages)
{
    MemoryCounters counters = scanned(kNewMeminfo);
    counters.zswap = 0;
    EXPECT_EQ((*memorySampleFrom(counters, kPage, true))[MemoryCompressor], 0);
    EXPECT_EQ((*memorySampleFrom(counters, kPage, false))[MemoryCompressor], -1);
    EXPECT_EQ((*memorySampleFrom(counters, kPage, std::nullopt))[MemoryCompressor], -1);
    // Switched off while the pool drains: its pages are still in memory.
    counters.zswap = 8192;
    EXPECT_EQ((*memorySampleFrom(counters, kPage, false))[MemoryCompressor], 2);
}

TEST(MemoryMapping, SwapUsageAndWhereSwappingGoes)
{
    const std::vector<SwapArea> areas{{"/var/swap/file1", "file", 1000, 250}, {"/dev/sda3", "partition", 24, 6}};
    EXPECT_EQ(swapUsageFrom(areas), (SwapUsage{1024 * 1024, 768 * 1024, 256 * 1024}));
    EXPECT_EQ(swapFileDataFrom(areas, 4096), (MemoryOptionDelayData{"/var/swap", 2, 4096}));
    EXPECT_EQ(swapFileDataFrom({areas[1]}, 0).vmPath, "/dev/sda3");
    EXPECT_EQ(swapUsageFrom({}), SwapUsage{});
    EXPECT_EQ(swapFileDataFrom({}, 0), MemoryOptionDelayData{});
}
