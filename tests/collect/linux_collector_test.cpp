// The CPU collectors end to end over the Linux sources.
#include "collect/load_system_information.h"

#include "support/fixture_paths.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <fstream>

namespace {
void copyInPlace(const std::filesystem::path& from, const std::filesystem::path& to)
{
    // Written through the existing inode, as the kernel's file stays the same file.
    std::ifstream in(from, std::ios::binary);
    std::ofstream out(to, std::ios::binary | std::ios::trunc);
    out << in.rdbuf();
}
} // namespace

TEST(LinuxCollector, SecondSampleGivesPerProcessorDifferencesAndTheirAverage)
{
    QTemporaryDir dir;
    ASSERT_TRUE(dir.isValid());
    const std::filesystem::path root = dir.path().toStdString();
    const std::filesystem::path fixtures = projectFixtures() / "linux";
    std::filesystem::create_directories(root / "proc");
    copyInPlace(fixtures / "small-machine/proc/stat", root / "proc/stat");

    LoadSystemInformation info(makeSourceSet(root));
    EXPECT_TRUE(info.loadCpuData().empty());

    copyInPlace(fixtures / "stat-second-sample", root / "proc/stat");
    const CpuSample sample = info.loadCpuData();
    ASSERT_EQ(sample.size(), 3u);
    // cpu0: user +3, system +4 (system +2, irq +1, softirq +1), nice 0, idle +3.
    EXPECT_EQ(sample[0], (CpuRecord{3, 4, 0, 3}));
    // cpu1: idle +7 but iowait -10: the folded idle went backwards and counts as 0; steal +1.
    EXPECT_EQ(sample[1], (CpuRecord{2, 3, 0, 0}));
    // Machine: 5/2 and 7/2 round half away from zero, 3/2 as well.
    EXPECT_EQ(sample[2], (CpuRecord{3, 4, 0, 2}));
}

TEST(LinuxCollector, OptionFiguresFromTheCapturedTree)
{
    if (sharedProcfsTree().empty())
        GTEST_SKIP() << "the shared captured procfs tree is not present";
    const LoadSystemInformation info(makeSourceSet(sharedProcfsTree()));
    const CpuOptionFigures figures = info.cpuOptionFigures();
    ASSERT_TRUE(figures.counts);
    EXPECT_EQ(figures.counts->threads, 497);
    EXPECT_EQ(figures.counts->processes, 7);
    ASSERT_TRUE(figures.loads);
    EXPECT_EQ(figures.loads->one, 0.02);
    EXPECT_EQ(figures.loads->five, 0.04);
    EXPECT_EQ(figures.loads->fifteen, 0.05);
    EXPECT_FALSE(figures.hostName); // the tree has no host name
}

// The captured machine: 15666184 kB of memory, no MemAvailable (an older kernel), a zswap pool
// of 22414 kB, no /proc/vmstat and no power switches; swap on /dev/dm-2 only. Of its four
// interfaces only eth0 (up, 1 Gb/s, a bus device) is under /sys/class/net; /proc/net/dev holds
// vethf345468, lo, docker0 and eth0.
TEST(LinuxCollector, MemoryFiguresOfTheCapturedTree)
{
    if (sharedProcfsTree().empty())
        GTEST_SKIP() << "the shared captured procfs tree is not present";
    LoadSystemInformation info(makeSourceSet(sharedProcfsTree()));
    const auto pageSize = static_cast<std::int64_t>(info.memoryPageSize());
    const auto pages = [&](std::int64_t kB) { return kB * 1024 / pageSize; };

    const auto sample = info.loadMemoryData();
    ASSERT_TRUE(sample);
    EXPECT_EQ(*sample,
              (MemorySample{pages(69140 + 1616 + 5288), pages(267256 + 6494020), pages(268 + 6532440), pages(440324),
                            -1, -1, -1, pages(22414), pages(266216 + 1308), pages(12007640 - 1308 + 1020128)}));
    // Available is estimated: free, buffers, droppable cache and reclaimable slab.
    EXPECT_EQ(info.memoryTotals(), (MemoryTotals{pages(15666184), pages(440324 + 1020128 + 12006332 + 1738124)}));
    EXPECT_EQ(info.loadSwapUsage(), (SwapUsage{131068 * 1024, (131068 - 176) * 1024, 176 * 1024}));
    EXPECT_EQ(info.loadMemoryOptionDelayData(), (MemoryOptionDelayData{"/dev/dm-2", 1, 0}));
}

TEST(LinuxCollector, NetworkBaseAndSampleOfTheCapturedTree)
{
    if (sharedProcfsTree().empty())
        GTEST_SKIP() << "the shared captured procfs tree is not present";
    LoadSystemInformation info(makeSourceSet(sharedProcfsTree()));
    EXPECT_FALSE(info.checkInterfaceStatusChange());
    EXPECT_TRUE(info.checkInterfaceStatusChange());

    // A captured tree holds no addresses, and no hardware database entry for its device.
    const NetworkBase base = info.retNetworkBase();
    ASSERT_EQ(base.size(), 1u);
    const NetworkBaseEntry& eth = base.at("eth0");
    EXPECT_EQ(eth.itf, (InterfaceIdentity{"eth0", "Ethernet"}));
    EXPECT_FALSE(eth.ip);
    EXPECT_EQ(eth.nic, (NicFacts{"Active", 1'000'000'000, std::nullopt, std::nullopt, "01:01:01:01:01:01"}));

    const auto sample = info.loadNetworkData(1.0, base);
    ASSERT_TRUE(sample);
    EXPECT_EQ(sample->toUp, 438LL + 1664039048 + 438 + 563352563);
    EXPECT_EQ(sample->toDw, 648LL + 1664039048 + 2568 + 874354587);
    EXPECT_EQ(sample->packets, (std::vector<InterfacePackets>{{"eth0", 732147, 1036395}}));
    EXPECT_FALSE(info.terminationRequested());
}
