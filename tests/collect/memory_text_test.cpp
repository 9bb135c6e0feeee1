// Parsing of /proc/meminfo, /proc/vmstat and /proc/swaps text, and what a rejection names.
#include "collect/linux/memory_parsers.h"

#include "parse_rows.h"

#include <tuple>

namespace {
using SwapRows = std::vector<std::tuple<std::string, std::string, std::uint64_t, std::uint64_t>>;
// Total, free and the two paging counts: one figure of each scanner, and one left alone.
using ScanSummary = std::tuple<std::optional<std::uint64_t>, std::optional<std::uint64_t>, std::optional<std::uint64_t>,
                               std::optional<std::uint64_t>>;

ScanSummary scanned(const MemoryCounters& counters)
{
    return {counters.memTotal, counters.memFree, counters.pswpin, counters.pswpout};
}
} // namespace

TEST(MeminfoText, NamedCounters)
{
    expectParses<NamedCounters>(
        {
            // A "kB" value turns into bytes, a plain count stays a count; broken lines drop out.
            {"sizes, counts and broken lines",
             "MemTotal:       15666184 kB\nMemFree:          440324 kB\nHugePages_Total:       7\n"
             "Weird line without colon\nBroken:   lots kB\nSwapFree:             0 kB",
             NamedCounters{{"MemTotal", 15666184ull * 1024},
                           {"MemFree", 440324ull * 1024},
                           {"HugePages_Total", 7},
                           {"SwapFree", 0}}},
            {"nothing parses", "nothing here\nBroken: lots kB\n",
             rejectedLine("no \"Name: value\" line", "nothing here", 1)},
            {"empty text", "", rejectedText("no \"Name: value\" line")},
        },
        parseMeminfo);
}

TEST(VmstatText, NamedCounters)
{
    expectParses<NamedCounters>(
        {
            {"pairs with a broken line among them", "nr_free_pages 110081\npgpgin 7\nbad\npswpout 3",
             NamedCounters{{"nr_free_pages", 110081}, {"pgpgin", 7}, {"pswpout", 3}}},
            {"empty text", "", rejectedText("no \"name value\" line")},
            {"only words", "bad\nworse line\n", rejectedLine("no \"name value\" line", "bad", 1)},
        },
        parseVmstat);
}

TEST(MemoryScanText, WantedFiguresOnly)
{
    expectParses<ScanSummary>(
        {
            // "MemTotalX:" is not "MemTotal:"; fields missing from the text stay unknown.
            {"meminfo figures", "MemTotalX: 1 kB\nMemTotal: 2 kB\nMemFree: 1 kB\n",
             ScanSummary{2048, 1024, std::nullopt, std::nullopt}},
            {"no wanted line", "HugePages_Total: 7\n", rejectedText("no memory figure")},
            {"the wanted line holds no number", "HugePages_Total: 7\nMemFree: lots kB\nMemTotal: x\n",
             rejectedLine("no memory figure", "MemFree: lots kB", 2)},
        },
        [](std::string_view text) { return scanMeminfo(text, {}); }, scanned);

    MemoryCounters earlier;
    earlier.memTotal = 5;
    expectParses<ScanSummary>(
        {
            {"paging figures join the earlier ones", "pgpgin 1\npswpin 7\npswpout 9\n", ScanSummary{5, {}, 7, 9}},
            {"no paging line", "pgpgin 1\n", rejectedText("no paging figure")},
        },
        [&](std::string_view text) { return scanVmstat(text, earlier); }, scanned);
}

TEST(SwapsText, RowsUnderTheHeader)
{
    const std::string_view header = "Filename\t\t\t\tType\t\tSize\tUsed\tPriority\n";
    const std::string twoAreas = std::string(header) +
                                 "/dev/dm-2                               partition\t131068\t176\t-2\n"
                                 "/var/my\\040swap\\011file file\t1024\t0\t-3\n";
    expectParses<SwapRows>(
        {
            {"escaped file names decoded", twoAreas,
             SwapRows{{"/dev/dm-2", "partition", 131068, 176}, {"/var/my swap\tfile", "file", 1024, 0}}},
            // Only the header: no swap, which is not an unreadable list.
            {"no swap", header, SwapRows{}},
            {"empty text", "", rejectedText("empty swap list")},
            {"no header", "/dev/sda2 partition 10 0 -2\n",
             rejectedLine("header \"Filename Type Size Used Priority\" expected", "/dev/sda2 partition 10 0 -2", 1)},
        },
        parseSwaps, [](const std::vector<SwapArea>& areas) {
            SwapRows rows;
            for (const SwapArea& area : areas)
                rows.emplace_back(area.filename, area.type, area.sizeKiB, area.usedKiB);
            return rows;
        });
}
