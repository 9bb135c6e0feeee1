// Parsing of /proc/net/dev and /proc/diskstats text, and what a rejection names.
#include "collect/linux/diskstats_parser.h"
#include "collect/linux/net_dev_parser.h"

#include "parse_rows.h"

#include <tuple>

namespace {
// name, received bytes and packets, sent bytes and packets.
using NetRows = std::vector<std::tuple<std::string, std::uint64_t, std::uint64_t, std::uint64_t, std::uint64_t>>;

// major, minor, name, sectors read and written, weighted I/O time, then the fields only newer
// kernels print: discards completed, discard time, flushes completed, flush time.
using Opt = std::optional<std::uint64_t>;
using DiskRows = std::vector<std::tuple<std::uint32_t, std::uint32_t, std::string, std::uint64_t, std::uint64_t,
                                        std::uint64_t, Opt, Opt, Opt, Opt>>;

constexpr std::string_view kNetHeader =
    "Inter-|   Receive                                                |  Transmit\n"
    " face |bytes    packets errs drop fifo frame compressed multicast|bytes    packets errs drop fifo colls "
    "carrier compressed\n";
} // namespace

TEST(NetDevText, InterfaceRows)
{
    const std::string captured =
        std::string(kNetHeader) +
        "    lo: 1664039048 1566805    0    0    0     0          0         0 1664039048 1566805    0    0    0     0"
        "       0          0\n"
        "  eth0: 874354587 1036395    0    0    0     0          0         0 563352563  732147    0    0    0     0"
        "       0          0";
    const std::string headerAndShortRow = std::string(kNetHeader) + "eth2: 1 2 3\n";
    expectParses<NetRows>(
        {
            {"the header skipped", captured,
             NetRows{{"lo", 1664039048, 1566805, 1664039048, 1566805},
                     {"eth0", 874354587, 1036395, 563352563, 732147}}},
            // Old kernels glue large counters to the colon; short rows are skipped.
            {"counters glued to the colon", "eth1:4294967296 2 0 0 0 0 0 0 10 1 0 0 0 0 0 0\neth2: 1 2 3\n",
             NetRows{{"eth1", 4294967296, 2, 10, 1}}},
            // Counters never hold a colon, so a name may: with blanks after it, glued to a
            // counter, and with letters beyond ASCII.
            {"names end at the last colon",
             "  br:lan:   10 1 0 0 0 0 0 0 20 2 0 0 0 0 0 0\n"
             "v:1:4294967296 3 0 0 0 0 0 0 30 4 0 0 0 0 0 0\n"
             "wl\xc3\xa4n0: 7 5 0 0 0 0 0 0 8 6 0 0 0 0 0 0\n",
             NetRows{{"br:lan", 10, 1, 20, 2}, {"v:1", 4294967296, 3, 30, 4}, {"wl\xc3\xa4n0", 7, 5, 8, 6}}},
            {"only the header", kNetHeader, rejectedText("no interface row with ten counters")},
            {"a short row blamed", headerAndShortRow,
             rejectedLine("no interface row with ten counters", "eth2: 1 2 3", 3)},
        },
        parseNetDev, [](const std::vector<InterfaceCounters>& counters) {
            NetRows rows;
            for (const InterfaceCounters& c : counters)
                rows.emplace_back(c.name, c.receivedBytes, c.receivedPackets, c.sentBytes, c.sentPackets);
            return rows;
        });
}

TEST(DiskstatsText, RowsOfEveryKernelGeneration)
{
    expectParses<DiskRows>(
        {
            // 14 fields before kernel 4.18, 18 with discards, 20 with flushes.
            {"three generations",
             "   8       0 sda 25354637 34367663 1003346126 18492372 28444756 11134226 505697032 63877960 0 "
             "9653880 82621804\n"
             "   8       1 sdb1 231 3 34466 4 24 23 106 0 0 64 64 0 0 0 0\n"
             "   8      32 sdc 14202 71 579164 21861 2995 1589 180500 40875 0 11628 55200 5 6 7 8 127 182",
             DiskRows{{8, 0, "sda", 1003346126, 505697032, 82621804, {}, {}, {}, {}},
                      {8, 1, "sdb1", 34466, 106, 64, 0, 0, {}, {}},
                      {8, 32, "sdc", 579164, 180500, 55200, 5, 8, 127, 182}}},
            // Kernels of the 2.6 era printed partitions with four counters only.
            {"short and non-numeric rows skipped",
             "   8   1 sda1 250 2000 0 0\n"
             "   x   0 sdz 1 2 3 4 5 6 7 8 9 10 11\n"
             " 179   0 mmcblk0 192 3 1560 156 0 0 0 0 0 136 156 1 2 3 4 5 6 7 8 9\n",
             DiskRows{{179, 0, "mmcblk0", 1560, 0, 156, 1, 4, 5, 6}}},
            {"only a short row", "   8   1 sda1 250 2000 0 0\n",
             rejectedLine("no row of major, minor, name and eleven counters", "   8   1 sda1 250 2000 0 0", 1)},
            {"empty text", "", rejectedText("no row of major, minor, name and eleven counters")},
        },
        parseDiskstats, [](const std::vector<DiskStatistics>& stats) {
            DiskRows rows;
            for (const DiskStatistics& s : stats)
                rows.emplace_back(s.major, s.minor, s.name, s.sectorsRead, s.sectorsWritten, s.weightedIoMilliseconds,
                                  s.discardsCompleted, s.discardMilliseconds, s.flushesCompleted, s.flushMilliseconds);
            return rows;
        });
}
