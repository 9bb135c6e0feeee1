// The Linux readers over a tree, one row per fact: the project's own small tree holds the cases
// the captured one lacks (hwmon chips, partitions, device-tree strings, blank firmware strings,
// escapes); the tree captured from real machines by others is skipped when it is absent.
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
#include <functional>
#include <iterator>
#include <sstream>

namespace {
enum class Tree { Own, Shared };

struct TreeRow {
    const char* fact; // also the test's name
    Tree tree;
    std::function<std::string(const SysRoot&)> read;
    std::string expected;
};

template <class T> std::string show(const std::optional<T>& value)
{
    std::ostringstream out;
    if (value)
        out << std::boolalpha << *value;
    else
        out << '-';
    return out.str();
}

std::string show(const ProcessorTicks& t)
{
    return std::to_string(t[0]) + '/' + std::to_string(t[1]) + '/' + std::to_string(t[2]) + '/' + std::to_string(t[3]);
}

// Count, first and last processor.
std::string processorTicks(const SysRoot& root)
{
    const auto ticks = LinuxCpuSource(root).readProcessorTicks();
    if (!ticks || ticks->empty())
        return "-";
    return std::to_string(ticks->size()) + ": " + show(ticks->front()) + " .. " + show(ticks->back());
}

std::string loadAverages(const SysRoot& root)
{
    const auto loads = LinuxCpuSource(root).loadAverages();
    return loads ? show(std::optional(loads->one)) + ' ' + show(std::optional(loads->fifteen)) : "-";
}

std::string processCounts(const SysRoot& root)
{
    const auto counts = LinuxProcessSource(root).counts();
    return counts ? std::to_string(counts->threads) + " threads, " + std::to_string(counts->processes) : "-";
}

// Only some of the captured process directories carry a stat file; these three do.
std::string capturedProcesses(const SysRoot& root)
{
    const auto scan = LinuxProcessSource(root).scanProcesses();
    if (!scan)
        return "-";
    std::string out = std::to_string(scan->size()) + " read;";
    for (const char* name : {"vim", "(a b ) ( c d) ", "pthread_load"}) {
        const auto r =
            std::find_if(scan->begin(), scan->end(), [&](const ProcessRecord& p) { return p.command == name; });
        if (r != scan->end())
            out += " [" + r->command + "] pid " + std::to_string(r->pid) + " ticks " + std::to_string(r->cpuTicks) +
                   " threads " + std::to_string(r->threads) + " pages " + std::to_string(r->residentPages) + ';';
    }
    return out;
}

std::string swapAreas(const SysRoot& root)
{
    const auto areas = LinuxMemorySource(root).swapAreas();
    if (!areas)
        return "-";
    std::string out;
    for (const SwapArea& a : *areas)
        out +=
            '[' + a.filename + "] " + a.type + ' ' + std::to_string(a.sizeKiB) + ' ' + std::to_string(a.usedKiB) + ';';
    return out;
}

std::string memoryInfo(const SysRoot& root)
{
    const auto info = LinuxMemorySource(root).memoryInfo();
    if (!info)
        return "-";
    return "MemTotal " + std::to_string(info->at("MemTotal")) + ", Buffers " + std::to_string(info->at("Buffers"));
}

std::string interfaces(const SysRoot& root)
{
    const auto all = LinuxNetworkSource(root).interfaces();
    if (!all)
        return "-";
    std::ostringstream out;
    for (const NetworkInterface& i : *all)
        out << i.name << ' ' << show(i.operState) << ' ' << show(i.speedMbps) << ' ' << show(i.address) << ' '
            << show(i.type) << " 0x" << std::hex << i.flags.value_or(0) << std::dec << ' ' << show(i.carrier) << ';';
    return out.str();
}

std::string trafficCounters(const SysRoot& root)
{
    const auto rows = LinuxNetworkSource(root).counters();
    if (!rows)
        return "-";
    std::string out;
    for (const InterfaceCounters& c : *rows)
        out += c.name + ' ' + std::to_string(c.receivedBytes) + ' ' + std::to_string(c.receivedPackets) + ' ' +
               std::to_string(c.sentBytes) + ' ' + std::to_string(c.sentPackets) + ';';
    return out;
}

// Each device, or only those named, with its partitions.
std::string blockDevices(const SysRoot& root, const std::vector<std::string>& only = {})
{
    const auto devices = LinuxBlockDeviceSource(root).devices();
    if (!devices)
        return "-";
    std::string out;
    for (const BlockDevice& d : *devices) {
        if (!only.empty() && std::find(only.begin(), only.end(), d.name) == only.end())
            continue;
        out += d.name + ' ' + show(d.sectors) + " removable " + show(d.removable) + " rotational " +
               show(d.rotational) + " [";
        for (const BlockPartition& p : d.partitions)
            out += p.name + ' ' + show(p.sectors) + ' ';
        out += "];";
    }
    return out;
}

// How many rows, and how many of each kernel generation's length.
std::string diskStatistics(const SysRoot& root)
{
    const auto stats = LinuxBlockDeviceSource(root).diskStatistics();
    if (!stats)
        return "-";
    const auto count = [&](auto predicate) { return std::count_if(stats->begin(), stats->end(), predicate); };
    return std::to_string(stats->size()) +
           " rows: " + std::to_string(count([](const DiskStatistics& s) { return !s.discardsCompleted; })) +
           " short, " +
           std::to_string(count([](const DiskStatistics& s) { return s.discardsCompleted && !s.flushesCompleted; })) +
           " with discards, " +
           std::to_string(count([](const DiskStatistics& s) { return s.flushesCompleted.has_value(); })) +
           " with flushes";
}

// The records with a mount point among those named (all when none are), and the change flag.
std::string mountTable(const SysRoot& root, const char* table, const std::vector<std::string>& only = {})
{
    LinuxMountSource mounts(root, table);
    const auto records = mounts.mounts();
    if (!records)
        return "- changed " + show(std::optional(mounts.changed()));
    std::string out = std::to_string(records->size()) + ":";
    for (const MountRecord& m : *records) {
        if (!only.empty() && std::find(only.begin(), only.end(), m.mountPoint) == only.end())
            continue;
        out += " [" + m.mountPoint + "] [" + m.source + "] " + m.fsType + ' ' + std::to_string(m.major) + ':' +
               std::to_string(m.minor) + " root " + m.root + ';';
    }
    return out + " changed " + show(std::optional(mounts.changed()));
}

std::string machineIdentity(const SysRoot& root)
{
    LinuxMachineSource m(root);
    return show(m.hostName()) + " | " + show(m.systemVendor()) + " | " + show(m.productName()) + " | " +
           show(m.productVersion()) + " | " + show(m.productSerial()) + " | " + show(m.deviceTreeModel()) + " | " +
           show(m.processorModelName()) + " | " + show(m.maxFrequencyKHz());
}

// Chips in numeric order of their entries, with the device they belong to, their readings with
// labels and marks; read twice, so that the second pass goes through the kept-open files.
std::string sensorChips(const SysRoot& root)
{
    LinuxSensorSource sensors(root);
    sensors.readSensors(SensorKinds::All);
    const auto reading = [](const SensorReading& r) {
        std::string out = ' ' + r.key + '(' + show(r.label) + ")=" + std::to_string(r.value);
        for (const auto& [mark, value] : {std::pair{" min=", r.low}, {" max=", r.high}, {" crit=", r.critical}})
            if (value)
                out += mark + std::to_string(*value);
        return out;
    };
    std::string out;
    for (const SensorChip& chip : sensors.readSensors(SensorKinds::All)) {
        out += chip.id + " @" + chip.device + ' ' + chip.name + " temps";
        for (const SensorReading& r : chip.temperatures)
            out += reading(r);
        out += " fans";
        for (const SensorReading& r : chip.fans)
            out += reading(r);
        out += ';';
    }
    return out;
}

// Another of our own trees, beside the one the rows read.
SysRoot sibling(const SysRoot& own, const char* name)
{
    return SysRoot(own.root().parent_path() / name);
}

// Processors, processes and memory.
std::vector<TreeRow> systemRows()
{
    return {
        // cpu0 of the own tree: 1000 10 500 20000 300 5 15 5; the captured cpu0 and cpu7:
        // 44490 19 21045 1087069 220 1 3410 0 and 29098 268 10164 1139282 555 0 31 0.
        {"ProcessorTicks", Tree::Own, processorTicks, "2: 1000/525/10/20300 .. 1000/520/10/20100"},
        {"ProcessorTicks", Tree::Shared, processorTicks, "8: 44490/24456/19/1087289 .. 29098/10195/268/1139837"},
        {"BootTime", Tree::Own, [](const SysRoot& r) { return show(LinuxCpuSource(r).bootTime()); }, "1700000000"},
        {"BootTime", Tree::Shared, [](const SysRoot& r) { return show(LinuxCpuSource(r).bootTime()); }, "1418183276"},
        {"LoadAverages", Tree::Own, loadAverages, "0.5 0.1"},
        {"LoadAverages", Tree::Shared, loadAverages, "0.02 0.05"},
        // Threads from the load line, processes from the numeric entries of /proc.
        {"ProcessCounts", Tree::Own, processCounts, "345 threads, 0"},
        {"ProcessCounts", Tree::Shared, processCounts, "497 threads, 7"},
        {"ProcessScan", Tree::Own, capturedProcesses, "0 read;"},
        {"ProcessScan", Tree::Shared, capturedProcesses,
         "4 read; [vim] pid 26231 ticks 1721 threads 1 pages 1981; [(a b ) ( c d) ] pid 1020 ticks 0 threads 1 "
         "pages 155; [pthread_load] pid 27079 ticks 58140 threads 5 pages 138;"},
        {"MemoryInfo", Tree::Own, memoryInfo, "-"},
        {"MemoryInfo", Tree::Shared, memoryInfo, "MemTotal 16042172416, Buffers 1044611072"},
        {"SwapAreas", Tree::Own, swapAreas, "[/dev/sda3] partition 2097148 1024;[/var/swap file] file 524284 0;"},
        {"SwapAreas", Tree::Shared, swapAreas, "[/dev/dm-2] partition 131068 176;"},
    };
}

// Interfaces, storage, mounts, firmware and sensors.
std::vector<TreeRow> deviceRows()
{
    return {
        // bonding_masters is a control file, not an interface; -1 speed is unknown to the driver.
        {"Interfaces", Tree::Own, interfaces,
         "lo unknown - 00:00:00:00:00:00 772 0x9 true;wlan0 down - a0:b1:c2:d3:e4:f5 1 0x1003 -;"},
        {"Interfaces", Tree::Shared, interfaces, "eth0 up 1000 01:01:01:01:01:01 1 0x1303 true;"},
        {"TrafficCounters", Tree::Own, trafficCounters, "lo 5000 50 5000 50;wlan0 18446744073709551615 7 4096 3;"},
        {"TrafficCounters", Tree::Shared, trafficCounters,
         "vethf345468 648 8 438 5;lo 1664039048 1566805 1664039048 1566805;docker0 2568 38 438 5;"
         "eth0 874354587 1036395 563352563 732147;"},
        // Of the subdirectories only those with a partition number count: queue is not one.
        {"BlockDevices", Tree::Own, [](const SysRoot& r) { return blockDevices(r); },
         "loop0 0 removable false rotational false [];sda 1000 removable false rotational true [sda1 800 sda2 199 ];"},
        // size and rotational are written without a line feed in the captured tree.
        {"BlockDevices", Tree::Shared, [](const SysRoot& r) { return blockDevices(r, {"sda"}); },
         "sda 3750748848 removable - rotational true [];"},
        {"DiskStatistics", Tree::Own, diskStatistics, "-"},
        {"DiskStatistics", Tree::Shared, diskStatistics, "52 rows: 46 short, 3 with discards, 3 with flushes"},
        // Escapes decoded, the line that is not a mount skipped; a plain file never signals a change.
        {"MountTable", Tree::Own, [](const SysRoot& r) { return mountTable(r, "proc/self/mountinfo"); },
         "4: [/] [/dev/sda1] ext4 8:1 root /; [/proc] [proc] proc 0:21 root /; [/media/My Photos] [/dev/sda2] vfat 8:2 "
         "root /photos; [/mnt/back\\slash] [tmp fs] tmpfs 0:50 root /; changed false"},
        {"MountTable", Tree::Shared,
         [](const SysRoot& r) {
             return mountTable(r, "proc/26231/mountinfo", {"/", "/mnt/nfs/test"});
         },
         "8: [/] [/dev/sda1] ext4 8:1 root /; [/mnt/nfs/test] [192.168.1.1:/srv/test] nfs4 0:42 root /; "
         "[/mnt/nfs/test] "
         "[192.168.1.1:/srv/test] nfs4 0:42 root /; [/mnt/nfs/test] [192.168.1.1:/srv/test] nfs 0:44 root /; "
         "changed false"},
        {"MissingMountTable", Tree::Own, [](const SysRoot& r) { return mountTable(r, "proc/1/mountinfo"); },
         "- changed false"},
        // Blank firmware strings are unknown; the device-tree model is read without its NUL.
        {"MachineIdentity", Tree::Own, machineIdentity,
         "tarvel-test | Tarvel Labs | - | - | - | Test Board Rev 2 | - | -"},
        // The maximum clock is reached through the policy directory: cpu0/cpufreq is a link the
        // capture flattened.
        {"MachineIdentity", Tree::Shared, machineIdentity,
         "- | Dell Inc. | PowerEdge R6515 | - | 7N62AI2 | - | Intel(R) Core(TM) i7-8650U CPU @ 1.90GHz | 2400000"},
        // Numbered entries in numeric order; fan2 of coretemp holds no number, temp1_max is a
        // mark, not an input; it87 keeps its inputs on the parent device. This tree's nodes are
        // plain folders, so each is its own device.
        {"SensorChips", Tree::Own, sensorChips,
         "hwmon0 @class/hwmon/hwmon0 coretemp temps temp1(Package id 0)=45000 max=95000 temp2(-)=-5500 fans "
         "fan1(CPU Fan)=1200;hwmon1 @class/hwmon/hwmon1/device it87 temps temp1(-)=38000 fans fan2(-)=0;"
         "hwmon10 @class/hwmon/hwmon10 nvme temps temp1(-)=31850 fans;"},
        // Two packages with the same "Core 0" told apart by their devices, which stay when the
        // hwmon numbers change; a fan without a label, one standing still; a chip without a name
        // goes by its device's.
        {"SensorDevicesAndMarks", Tree::Own,
         [](const SysRoot& r) { return sensorChips(sibling(r, "sensors-desktop")); },
         "hwmon2 @devices/platform/nct6775.656 nct6775 temps fans fan1(-)=1200 min=300 max=2000 fan2(-)=0;"
         "hwmon3 @devices/platform/coretemp.0 coretemp temps temp1(Package id 0)=45000 max=80000 crit=100000 "
         "temp2(Core 0)=43000 fans;"
         "hwmon4 @devices/platform/coretemp.1 coretemp temps temp1(Package id 1)=47000 temp2(Core 0)=44000 fans;"
         "hwmon5 @devices/platform/it87.552 it87.552 temps temp1(-)=30000 fans;"},
        // Without hwmon temperatures the thermal zones stand in; other thermal entries do not.
        {"ThermalZonesOnly", Tree::Own,
         [](const SysRoot& r) { return sensorChips(sibling(r, "sensors-thermal-only")); },
         "thermal_zone0 @devices/virtual/thermal/thermal_zone0 thermal temps temp(x86_pkg_temp)=52000 fans;"
         "thermal_zone1 @devices/virtual/thermal/thermal_zone1 thermal temps temp(acpitz)=27800 fans;"},
        {"NoHwmonNoChips", Tree::Own,
         [](const SysRoot& r) { return sensorChips(SysRoot(r.root() / "does-not-exist")); }, ""},
    };
}

std::vector<TreeRow> rows()
{
    std::vector<TreeRow> all = systemRows();
    std::ranges::move(deviceRows(), std::back_inserter(all));
    return all;
}

class TreeReaders : public ::testing::TestWithParam<TreeRow> {};
} // namespace

TEST_P(TreeReaders, ReadAsExpected)
{
    const TreeRow& row = GetParam();
    std::filesystem::path root = projectFixtures() / "linux" / "small-machine";
    if (row.tree == Tree::Shared) {
        root = sharedProcfsTree();
        if (root.empty())
            GTEST_SKIP() << "the shared captured procfs tree is not present (TARVEL_SHARED_FIXTURES)";
    }
    EXPECT_EQ(row.read(SysRoot(root)), row.expected);
}

INSTANTIATE_TEST_SUITE_P(Rows, TreeReaders, ::testing::ValuesIn(rows()),
                         [](const ::testing::TestParamInfo<TreeRow>& row) {
                             return std::string(row.param.tree == Tree::Own ? "Own" : "Shared") + row.param.fact;
                         });
