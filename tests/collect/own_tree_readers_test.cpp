// The Linux readers against the project's own small tree, which holds the cases the captured
// tree lacks: hwmon chips, partitions, device-tree strings, blank firmware strings, escapes.
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

namespace {
SysRoot smallMachine()
{
    return SysRoot(projectFixtures() / "linux" / "small-machine");
}
}

TEST(OwnTreeReaders, CpuFactsComeFromTheRoot)
{
    LinuxCpuSource cpu(smallMachine());
    const auto ticks = cpu.readProcessorTicks();
    ASSERT_TRUE(ticks);
    ASSERT_EQ(ticks->size(), 2u);
    EXPECT_EQ((*ticks)[0], (ProcessorTicks{1000, 500 + 5 + 15 + 5, 10, 20000 + 300}));
    EXPECT_EQ(cpu.bootTime(), 1700000000);
    const auto loads = cpu.loadAverages();
    ASSERT_TRUE(loads);
    EXPECT_DOUBLE_EQ(loads->fifteen, 0.10);
}

TEST(OwnTreeReaders, SensorChipsWithLabelsNegativeReadingsAndDeviceDirectories)
{
    LinuxSensorSource sensors(smallMachine());
    const auto chips = sensors.readSensors();
    ASSERT_EQ(chips.size(), 3u);

    // Numbered entries in numeric order.
    EXPECT_EQ(chips[0].id, "hwmon0");
    EXPECT_EQ(chips[1].id, "hwmon1");
    EXPECT_EQ(chips[2].id, "hwmon10");

    const SensorChip& core = chips[0];
    EXPECT_EQ(core.name, "coretemp");
    ASSERT_EQ(core.temperatures.size(), 2u);
    EXPECT_EQ(core.temperatures[0].key, "temp1");
    EXPECT_EQ(core.temperatures[0].label, "Package id 0");
    EXPECT_EQ(core.temperatures[0].value, 45000);
    EXPECT_EQ(core.temperatures[1].key, "temp2");
    EXPECT_FALSE(core.temperatures[1].label);
    EXPECT_EQ(core.temperatures[1].value, -5500);
    // fan2 holds no number, so it is left out; temp1_max is not an input at all.
    ASSERT_EQ(core.fans.size(), 1u);
    EXPECT_EQ(core.fans[0].label, "CPU Fan");
    EXPECT_EQ(core.fans[0].value, 1200);

    // An older driver with its inputs on the parent device.
    const SensorChip& legacy = chips[1];
    EXPECT_EQ(legacy.name, "it87");
    ASSERT_EQ(legacy.temperatures.size(), 1u);
    EXPECT_EQ(legacy.temperatures[0].value, 38000);
    ASSERT_EQ(legacy.fans.size(), 1u);
    EXPECT_EQ(legacy.fans[0].key, "fan2");
    EXPECT_EQ(legacy.fans[0].value, 0);

    // Reading again goes through the kept-open files and gives the same answers.
    EXPECT_EQ(sensors.readSensors()[2].temperatures[0].value, 31850);
}

TEST(OwnTreeReaders, NoHwmonMeansNoChips)
{
    LinuxSensorSource sensors(SysRoot(projectFixtures() / "linux" / "does-not-exist"));
    EXPECT_TRUE(sensors.readSensors().empty());
}

TEST(OwnTreeReaders, MachineIdentityTreatsBlankStringsAsUnknown)
{
    LinuxMachineSource machine(smallMachine());
    EXPECT_EQ(machine.hostName(), "tarvel-test");
    EXPECT_EQ(machine.systemVendor(), "Tarvel Labs");
    EXPECT_FALSE(machine.productName());     // empty file
    EXPECT_FALSE(machine.productVersion());  // only blanks
    EXPECT_FALSE(machine.productSerial());   // missing
    EXPECT_EQ(machine.deviceTreeModel(), "Test Board Rev 2");  // without its NUL
    EXPECT_FALSE(machine.processorModelName());
    EXPECT_FALSE(machine.maxFrequencyKHz());
}

TEST(OwnTreeReaders, MountTableDecodesEscapesAndSkipsBadLines)
{
    LinuxMountSource mounts(smallMachine());
    const auto table = mounts.mounts();
    ASSERT_TRUE(table);
    ASSERT_EQ(table->size(), 4u);

    EXPECT_EQ((*table)[0].mountPoint, "/");
    EXPECT_EQ((*table)[0].source, "/dev/sda1");
    EXPECT_EQ((*table)[0].fsType, "ext4");
    EXPECT_EQ((*table)[0].major, 8u);
    EXPECT_EQ((*table)[0].minor, 1u);

    const MountRecord& photos = (*table)[2];
    EXPECT_EQ(photos.mountPoint, "/media/My Photos");
    EXPECT_EQ(photos.root, "/photos");
    EXPECT_EQ(photos.fsType, "vfat");
    EXPECT_NE(photos.options.find("nosuid"), std::string::npos);
    EXPECT_NE(photos.options.find("fmask=0022"), std::string::npos);

    EXPECT_EQ((*table)[3].mountPoint, "/mnt/back\\slash");
    EXPECT_EQ((*table)[3].source, "tmp fs");
    EXPECT_EQ((*table)[3].major, 0u);
    EXPECT_EQ((*table)[3].minor, 50u);

    // A plain file never signals a change.
    EXPECT_FALSE(mounts.changed());
}

TEST(OwnTreeReaders, MissingMountTableGivesNothing)
{
    LinuxMountSource mounts(smallMachine(), "proc/1/mountinfo");
    EXPECT_FALSE(mounts.mounts());
    EXPECT_FALSE(mounts.changed());
}

TEST(OwnTreeReaders, BlockDevicesWithPartitions)
{
    LinuxBlockDeviceSource block(smallMachine());
    const auto devices = block.devices();
    ASSERT_TRUE(devices);
    ASSERT_EQ(devices->size(), 2u);
    const BlockDevice& loop = (*devices)[0];
    EXPECT_EQ(loop.name, "loop0");
    EXPECT_EQ(loop.rotational, false);
    EXPECT_TRUE(loop.partitions.empty());

    // Of the subdirectories only those with a partition number count: queue is not one.
    const BlockDevice& disk = (*devices)[1];
    EXPECT_EQ(disk.name, "sda");
    EXPECT_EQ(disk.sectors, 1000u);
    EXPECT_EQ(disk.removable, false);
    EXPECT_EQ(disk.rotational, true);
    ASSERT_EQ(disk.partitions.size(), 2u);
    EXPECT_EQ(disk.partitions[0].name, "sda1");
    EXPECT_EQ(disk.partitions[0].sectors, 800u);
    EXPECT_EQ(disk.partitions[1].sectors, 199u);
    EXPECT_FALSE(block.diskStatistics());
}

TEST(OwnTreeReaders, NetworkInterfacesKeepOnlyWhatIsKnown)
{
    LinuxNetworkSource network(smallMachine());
    const auto interfaces = network.interfaces();
    ASSERT_TRUE(interfaces);
    // bonding_masters is a control file, not an interface.
    ASSERT_EQ(interfaces->size(), 2u);

    const NetworkInterface& lo = (*interfaces)[0];
    EXPECT_EQ(lo.name, "lo");
    EXPECT_EQ(lo.operState, "unknown");
    EXPECT_FALSE(lo.speedMbps);
    EXPECT_EQ(lo.type, 772);
    EXPECT_EQ(lo.flags, 0x9u);
    EXPECT_EQ(lo.carrier, true);

    const NetworkInterface& wlan = (*interfaces)[1];
    EXPECT_EQ(wlan.operState, "down");
    EXPECT_FALSE(wlan.speedMbps);  // -1: unknown to the driver
    EXPECT_EQ(wlan.address, "a0:b1:c2:d3:e4:f5");
    EXPECT_EQ(wlan.flags, 0x1003u);
    EXPECT_FALSE(wlan.carrier);

    const auto counters = network.counters();
    ASSERT_TRUE(counters);
    ASSERT_EQ(counters->size(), 2u);
    EXPECT_EQ((*counters)[1].name, "wlan0");
    EXPECT_EQ((*counters)[1].receivedBytes, 18446744073709551615u);
    EXPECT_EQ((*counters)[1].sentBytes, 4096u);
}

TEST(OwnTreeReaders, SwapAreasWithEscapedNames)
{
    LinuxMemorySource memory(smallMachine());
    const auto swaps = memory.swapAreas();
    ASSERT_TRUE(swaps);
    ASSERT_EQ(swaps->size(), 2u);
    EXPECT_EQ((*swaps)[1].filename, "/var/swap file");
    EXPECT_EQ((*swaps)[1].sizeKiB, 524284u);
    EXPECT_FALSE(memory.memoryInfo());
    EXPECT_GT(memory.pageSize(), 0u);
}

TEST(OwnTreeReaders, ProcessCountsNeedTheLoadLine)
{
    LinuxProcessSource processes(smallMachine());
    const auto counts = processes.counts();
    ASSERT_TRUE(counts);
    EXPECT_EQ(counts->threads, 345);
    EXPECT_EQ(counts->processes, 0);
    const auto scan = processes.scanProcesses();
    ASSERT_TRUE(scan);
    EXPECT_TRUE(scan->empty());
}
