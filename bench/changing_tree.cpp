// The soak bench's changing tree: counters that wrap, interfaces, disks, mounts and processes.
#include "changing_tree.h"

#include <fstream>

namespace fs = std::filesystem;

namespace {

constexpr std::uint64_t kNearTop = ~std::uint64_t{0} - 3'000'000;
constexpr std::uint64_t kPidBase = 4000;
constexpr std::uint64_t kLivingProcesses = 40;

std::string number(std::uint64_t value)
{
    return std::to_string(value);
}

} // namespace

ChangingTree::ChangingTree(const fs::path& fixtures, const fs::path& root)
    : root_(root)
{
    fs::copy(fixtures / "linux/small-machine", root_, fs::copy_options::recursive);
    write("proc/uptime", "1000.00 1800.00\n");
    write("sys/block/sda/queue/rotational", "0\n");
    step(0);
}

void ChangingTree::step(std::uint64_t cycle)
{
    writeCounters(cycle);
    writeInterfaces(cycle, cycle % 600 < 300);
    writeStorage(cycle, cycle % 900 < 450);
    writeProcesses(cycle);
}

void ChangingTree::writeCounters(std::uint64_t cycle)
{
    // Unsigned arithmetic: these are meant to pass 2^64 and start again from 0.
    const std::uint64_t ticks = kNearTop + cycle * 100;
    write("proc/stat", "cpu  " + number(ticks * 2) + " 20 1000 " + number(ticks) + " 400 10 30 5 0 0\ncpu0 " +
                           number(ticks) + " 10 500 " + number(ticks / 2) + " 300 5 15 5 0 0\ncpu1 " + number(ticks) +
                           " 10 500 " + number(ticks / 2) +
                           " 100 5 15 0 0 0\nintr 1 0\nctxt 9\nbtime 1700000000\nprocesses " + number(cycle) +
                           "\nprocs_running 1\nprocs_blocked 0\n");
    const std::uint64_t free = 2'000'000 + (cycle * 7919) % 1'000'000;
    write("proc/meminfo", "MemTotal:        8000000 kB\nMemFree:         " + number(free) +
                              " kB\nMemAvailable:    " + number(free + 1'000'000) +
                              " kB\nBuffers:          100000 kB\nCached:          2000000 kB\nSwapCached:"
                              "            0 kB\nActive:          3000000 kB\nInactive:        1500000 kB\n"
                              "SwapTotal:       2097148 kB\nSwapFree:        2096124 kB\n");
    write("proc/loadavg", "0.50 0.25 0.10 2/345 " + number(kPidBase + cycle) + "\n");
}

void ChangingTree::writeInterfaces(std::uint64_t cycle, bool withSecond)
{
    const std::uint64_t bytes = kNearTop + cycle * 12'345;
    std::string dev = "Inter-|   Receive                                                |  Transmit\n"
                      " face |bytes    packets errs drop fifo frame compressed multicast|bytes    packets errs drop "
                      "fifo colls carrier compressed\n    lo: " +
                      number(bytes) + " " + number(cycle) + " 0 0 0 0 0 0 " + number(bytes) + " " + number(cycle) +
                      " 0 0 0 0 0 0\nwlan0: " + number(bytes * 3) + " " + number(cycle * 3) + " 0 0 0 0 0 0 " +
                      number(bytes * 2) + " " + number(cycle * 2) + " 0 0 0 0 0 0\n";
    if (withSecond)
        dev += "eth1: " + number(bytes) + " 9 0 0 0 0 0 0 " + number(bytes) + " 9 0 0 0 0 0 0\n";
    write("proc/net/dev", dev);
    write("sys/class/net/wlan0/operstate", cycle % 120 < 60 ? "up\n" : "down\n");
    write("sys/class/net/wlan0/carrier", cycle % 120 < 60 ? "1\n" : "0\n");
    const fs::path second = root_ / "sys/class/net/eth1";
    if (!withSecond) {
        fs::remove_all(second);
        return;
    }
    if (fs::exists(second))
        return;
    fs::create_directories(second);
    for (const char* file : {"operstate", "flags", "address", "type", "carrier", "speed"})
        fs::copy_file(root_ / "sys/class/net/wlan0" / file, second / file, fs::copy_options::overwrite_existing);
}

void ChangingTree::writeStorage(std::uint64_t cycle, bool withRemovable)
{
    const std::uint64_t sectors = kNearTop / 512 * 511 + cycle * 4096;
    std::string stats = "   8       0 sda 100 0 " + number(sectors) + " 0 100 0 " + number(sectors * 2) + " 0 0 0 0\n";
    std::string mounts = "22 1 8:1 / / rw,relatime shared:1 - ext4 /dev/sda1 rw\n"
                         "23 22 0:21 / /proc rw,nosuid,nodev,noexec,relatime shared:12 - proc proc rw\n";
    const fs::path disk = root_ / "sys/block/sdb";
    if (withRemovable) {
        stats += "   8      16 sdb 5 0 " + number(cycle * 8) + " 0 5 0 " + number(cycle * 8) + " 0 0 0 0\n";
        mounts += "60 22 8:17 / /media/usb rw,nosuid,nodev,relatime shared:31 - vfat /dev/sdb1 rw\n";
        if (!fs::exists(disk)) {
            write("sys/block/sdb/size", "31250000\n");
            write("sys/block/sdb/removable", "1\n");
            write("sys/block/sdb/queue/rotational", "0\n");
            write("sys/block/sdb/sdb1/size", "31248000\n");
            write("sys/block/sdb/sdb1/partition", "1\n");
        }
    } else {
        fs::remove_all(disk);
    }
    write("proc/diskstats", stats);
    write("proc/self/mountinfo", mounts);
}

void ChangingTree::writeProcesses(std::uint64_t cycle)
{
    // One process starts each cycle and the one started kLivingProcesses cycles ago ends.
    const std::uint64_t pid = kPidBase + cycle;
    const std::string name = "job " + number(cycle % 7) + ") (x";
    write("proc/" + number(pid) + "/stat", number(pid) + " (" + name + ") S 1 " + number(pid) +
                                               " 0 0 -1 4194304 100 0 0 0 " + number(cycle) +
                                               " 3 0 0 20 0 1 0 100 1000000 250 18446744073709551615\n");
    write("proc/" + number(pid) + "/cmdline", std::string("/usr/bin/job\0--cycle\0", 21));
    if (cycle >= kLivingProcesses)
        fs::remove_all(root_ / "proc" / number(pid - kLivingProcesses));
}

void ChangingTree::write(const std::string& relative, const std::string& text) const
{
    const fs::path path = root_ / relative;
    fs::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary | std::ios::trunc) << text;
}
