// Parsing of per-process stat lines, and what a rejection names.
#include "collect/linux/process_stat_parser.h"

#include "parse_rows.h"

#include <tuple>

namespace {
// pid, command, cpu ticks (utime + stime), threads, resident pages, start ticks.
using Record = std::tuple<std::int64_t, std::string, std::uint64_t, std::int64_t, std::uint64_t, std::uint64_t>;

constexpr std::string_view kShort = "12 (sh) S 1 1 1 0 -1 0 0 0 0 0 5 6";
constexpr std::string_view kWordForTime = "12 (sh) S 1 1 1 0 -1 0 0 0 0 0 five 6 0 0 20 0 1 0 1 2 3";
} // namespace

TEST(ProcessStatText, Records)
{
    expectParses<Record>(
        {
            {"times, threads and resident pages",
             "26231 (vim) R 5392 7446 5392 34835 7446 4218880 32533 309516 26 82 1677 44 158 99 20 0 1 0 "
             "82375 56274944 1981 18446744073709551615 4194304 6294284 140736914091744 0\n",
             Record{26231, "vim", 1677 + 44, 1, 1981, 82375}},
            // A program may call itself anything, including ") R 1 2" to fool naive parsers: the
            // name runs from the first "(" to the last ")".
            {"parentheses and blanks in the name",
             "1020 ((a b ) ( c d) ) R 28378 1020 28378 34842 1020 4218880 286 0 0 0 "
             "7 3 0 0 20 0 4 0 10839175 10395648 155 18446744073709551615",
             Record{1020, "(a b ) ( c d) ", 10, 4, 155, 10839175}},
            {"a spoofed state in the name", "7 (x) R 1 2) S 1 1 1 0 -1 0 0 0 0 0 5 6 0 0 20 0 2 0 1 2 3",
             Record{7, "x) R 1 2", 11, 2, 3, 1}},
            // Kernel threads print extreme signed values in the child-time fields.
            {"signed fields it does not use",
             "33 (ata_sff) S 2 0 0 0 -1 69238880 0 0 0 0 0 0 -9223372036854775808 "
             "9223372036854775807 0 -20 1 0 5 0 0 18446744073709551615 0",
             Record{33, "ata_sff", 0, 1, 0, 5}},
            {"empty text", "", rejectedLine("no command name in parentheses", "", 1)},
            {"name never closed", "12 (sh", rejectedLine("no command name in parentheses", "12 (sh", 1)},
            {"cut short", kShort, rejectedLine("line ends before the resident set size", kShort, 1)},
            {"no pid", "x (sh) S 1", rejectedLine("process id is not a number", "x (sh) S 1", 1)},
            {"a word for a time", kWordForTime,
             rejectedLine("times, thread count or resident set size not a number", kWordForTime, 1)},
        },
        parseProcessStat, [](const ProcessRecord& r) {
            return Record{r.pid, r.command, r.cpuTicks, r.threads, r.residentPages, r.startTime};
        });
}

TEST(ProcessStatText, Uptime)
{
    expectParses<double>(
        {
            {"seconds and idle seconds", "35165.72 64432.10\n", 35165.72},
            {"a lone figure", "12.5", 12.5},
            {"empty text", "", rejectedLine("uptime is not a number of seconds", "", 1)},
            {"a word", "up 3 days\n", rejectedLine("uptime is not a number of seconds", "up 3 days", 1)},
        },
        parseUptime, [](double seconds) { return seconds; });
}
