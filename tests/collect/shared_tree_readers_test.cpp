// The Linux readers against a /proc and /sys tree captured from real machines by others.
#include "collect/linux/linux_block_device_source.h"
#include "collect/linux/linux_cpu_source.h"
#include "collect/linux/linux_machine_source.h"
#include "collect/linux/linux_memory_source.h"
#include "collect/linux/linux_mount_source.h"
#include "collect/linux/linux_network_source.h"
#include "collect/linux/linux_process_source.h"
#include "collect/linux/linux_sensor_source.h"

#include "support/fixture_paths.h"

#include <gtest/gtest.h>

#include <algorithm>

class SharedTreeReaders : public ::testing::Test {
protected:
    void SetUp() override
    {
        if (sharedProcfsTree().empty())
            GTEST_SKIP() << "the shared captured procfs tree is not present";
    }

    static SysRoot root() { return SysRoot(sharedProcfsTree()); }
};

TEST_F(SharedTreeReaders, ProcessorTicksPerCoreWithoutTheTotalLine)
{
    LinuxCpuSource cpu(root());
    const auto ticks = cpu.readProcessorTicks();
    ASSERT_TRUE(ticks);
    ASSERT_EQ(ticks->size(), 8u);
    // cpu0 44490 19 21045 1087069 220 1 3410 0 0 0
    EXPECT_EQ((*ticks)[0], (ProcessorTicks{44490, 21045 + 1 + 3410, 19, 1087069 + 220}));
    // cpu7 29098 268 10164 1139282 555 0 31 0 0 0
    EXPECT_EQ((*ticks)[7], (ProcessorTicks{29098, 10164 + 31, 268, 1139282 + 555}));
    EXPECT_EQ(cpu.bootTime(), 1418183276);
    const auto loads = cpu.loadAverages();
    ASSERT_TRUE(loads);
    EXPECT_DOUBLE_EQ(loads->one, 0.02);
    EXPECT_DOUBLE_EQ(loads->fifteen, 0.05);
}

TEST_F(SharedTreeReaders, ProcessCountsAndScan)
{
    LinuxProcessSource processes(root());
    const auto counts = processes.counts();
    ASSERT_TRUE(counts);
    EXPECT_EQ(counts->threads, 497);
    EXPECT_EQ(counts->processes, 7);

    // Only some of the process directories carry a stat file.
    const auto scan = processes.scanProcesses();
    ASSERT_TRUE(scan);
    const auto byName = [&](const std::string& name) {
        return std::find_if(scan->begin(), scan->end(), [&](const ProcessRecord& r) { return r.command == name; });
    };
    ASSERT_NE(byName("vim"), scan->end());
    EXPECT_EQ(byName("vim")->cpuTicks, 1677u + 44u);
    EXPECT_EQ(byName("vim")->residentPages, 1981u);
    ASSERT_NE(byName("(a b ) ( c d) "), scan->end());
    EXPECT_EQ(byName("(a b ) ( c d) ")->pid, 1020);
    ASSERT_NE(byName("pthread_load"), scan->end());
    EXPECT_EQ(byName("pthread_load")->threads, 5);
}

TEST_F(SharedTreeReaders, MemoryCountersAndSwap)
{
    LinuxMemorySource memory(root());
    const auto info = memory.memoryInfo();
    ASSERT_TRUE(info);
    EXPECT_EQ(info->at("MemTotal"), 15666184ull * 1024);
    EXPECT_EQ(info->at("Buffers"), 1020128ull * 1024);
    const auto swaps = memory.swapAreas();
    ASSERT_TRUE(swaps);
    ASSERT_EQ(swaps->size(), 1u);
    EXPECT_EQ((*swaps)[0].filename, "/dev/dm-2");
    EXPECT_EQ((*swaps)[0].sizeKiB, 131068u);
    EXPECT_EQ((*swaps)[0].usedKiB, 176u);
}

TEST_F(SharedTreeReaders, NetworkInterfacesAndCounters)
{
    LinuxNetworkSource network(root());
    const auto interfaces = network.interfaces();
    ASSERT_TRUE(interfaces);
    ASSERT_EQ(interfaces->size(), 1u);
    const NetworkInterface& eth = (*interfaces)[0];
    EXPECT_EQ(eth.name, "eth0");
    EXPECT_EQ(eth.operState, "up");
    EXPECT_EQ(eth.speedMbps, 1000);
    EXPECT_EQ(eth.address, "01:01:01:01:01:01");
    EXPECT_EQ(eth.type, 1);
    EXPECT_EQ(eth.flags, 0x1303u);
    EXPECT_EQ(eth.carrier, true);

    const auto counters = network.counters();
    ASSERT_TRUE(counters);
    ASSERT_EQ(counters->size(), 4u);
    EXPECT_EQ((*counters)[1].name, "lo");
    EXPECT_EQ((*counters)[1].receivedBytes, 1664039048u);
    EXPECT_EQ((*counters)[3].name, "eth0");
    EXPECT_EQ((*counters)[3].sentPackets, 732147u);
}

TEST_F(SharedTreeReaders, BlockDevicesAndEveryDiskstatsRowLength)
{
    LinuxBlockDeviceSource block(root());
    const auto devices = block.devices();
    ASSERT_TRUE(devices);
    const auto sda = std::find_if(devices->begin(), devices->end(), [](const BlockDevice& d) { return d.name == "sda"; });
    ASSERT_NE(sda, devices->end());
    // size and rotational are written without a line feed in this tree.
    EXPECT_EQ(sda->sectors, 3750748848u);
    EXPECT_EQ(sda->rotational, true);
    EXPECT_EQ(sda->removable, std::nullopt);

    const auto stats = block.diskStatistics();
    ASSERT_TRUE(stats);
    EXPECT_EQ(stats->size(), 52u);
    const auto count = [&](auto predicate) { return std::count_if(stats->begin(), stats->end(), predicate); };
    EXPECT_EQ(count([](const DiskStatistics& s) { return !s.discardsCompleted; }), 46);
    EXPECT_EQ(count([](const DiskStatistics& s) { return s.discardsCompleted && !s.flushesCompleted; }), 3);
    EXPECT_EQ(count([](const DiskStatistics& s) { return s.flushesCompleted.has_value(); }), 3);
}

TEST_F(SharedTreeReaders, MountTableOfACapturedProcess)
{
    LinuxMountSource mounts(root(), "proc/26231/mountinfo");
    const auto table = mounts.mounts();
    ASSERT_TRUE(table);
    const auto root = std::find_if(table->begin(), table->end(), [](const MountRecord& m) { return m.mountPoint == "/"; });
    ASSERT_NE(root, table->end());
    EXPECT_EQ(root->source, "/dev/sda1");
    EXPECT_EQ(root->fsType, "ext4");
    EXPECT_EQ(root->major, 8u);
    EXPECT_EQ(root->minor, 1u);
    const auto nfs = std::find_if(table->begin(), table->end(), [](const MountRecord& m) { return m.fsType == "nfs4"; });
    ASSERT_NE(nfs, table->end());
    EXPECT_EQ(nfs->source, "192.168.1.1:/srv/test");
    EXPECT_EQ(nfs->mountPoint, "/mnt/nfs/test");
    EXPECT_FALSE(mounts.changed());
}

TEST_F(SharedTreeReaders, MachineIdentity)
{
    LinuxMachineSource machine(root());
    EXPECT_EQ(machine.systemVendor(), "Dell Inc.");
    EXPECT_EQ(machine.productName(), "PowerEdge R6515");
    EXPECT_FALSE(machine.productVersion());  // a lone line feed
    EXPECT_EQ(machine.processorModelName(), "Intel(R) Core(TM) i7-8650U CPU @ 1.90GHz");
    // Reached through the policy directory: cpu0/cpufreq is a link the capture flattened.
    EXPECT_EQ(machine.maxFrequencyKHz(), 2400000u);
}
