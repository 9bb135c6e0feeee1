// Parsing of /proc/stat and /proc/loadavg text, and what a rejection names.
#include "collect/linux/loadavg_parser.h"
#include "collect/linux/stat_parser.h"

#include "parse_rows.h"

#include <optional>
#include <tuple>

namespace {
using Ticks = std::vector<ProcessorTicks>;

// user, system, nice, idle as the collector orders them.
ProcessorTicks ticks(std::uint64_t user, std::uint64_t system, std::uint64_t nice, std::uint64_t idle)
{
    return {user, system, nice, idle};
}

using LoadSummary = std::tuple<double, double, double, std::optional<std::uint64_t>, std::optional<std::uint64_t>>;
} // namespace

TEST(ProcStatText, ProcessorTicks)
{
    expectParses<Ticks>(
        {
            // user nice system idle iowait irq softirq steal guest guest_nice: system takes irq,
            // softirq and steal, idle takes iowait; guest time is already inside user and nice.
            {"folds the kernel columns; the aggregate line is no processor",
             "cpu  30 6 90 900 40 8 4 2 7 1\n"
             "cpu0 10 2 30 300 20 4 2 1 5 1\n"
             "cpu1 20 4 60 600 20 4 2 1 2 0\n"
             "intr 1 2 3\n",
             Ticks{ticks(10, 30 + 4 + 2 + 1, 2, 300 + 20), ticks(20, 60 + 4 + 2 + 1, 4, 600 + 20)}},
            // Old kernels print four columns; future ones may print more.
            {"short and long lines, no final line feed",
             "cpu 1 2 3 4\ncpu0 1 2 3 4\ncpu1 5 6 7 8 9 10 11 12 13 14 15 16",
             Ticks{ticks(1, 3, 2, 4), ticks(5, 7 + 10 + 11 + 12, 6, 8 + 9)}},
            // An offline processor leaves a gap in the numbering; "cpufreq" is not a processor.
            {"kernel order kept, lookalikes skipped", "cpu 0 0 0 0\ncpu0 1 0 0 0\ncpufreq 9 9 9 9\ncpu3 3 0 0 0\n",
             Ticks{ticks(1, 0, 0, 0), ticks(3, 0, 0, 0)}},
            {"empty text", "", rejectedText("no per-processor \"cpuN\" line")},
            {"only the aggregate", "cpu 1 2 3 4\nintr 5\n",
             rejectedLine("no per-processor \"cpuN\" line", "cpu 1 2 3 4", 1)},
            {"a lookalike blamed", "intr 5\ncpux 1 2 3 4\n",
             rejectedLine("no per-processor \"cpuN\" line", "intr 5", 1)},
        },
        parseProcessorTicks);
}

TEST(ProcStatText, BootTime)
{
    expectParses<std::int64_t>(
        {
            {"after the long lines", "cpu0 1 2 3 4\nintr 1 2 3\nbtime 1418183276\nprocesses 5\n", 1418183276},
            {"without a line feed", "btime 42", 42},
            {"btimex is another line", "cpu0 1 2 3 4\nbtimex 5\n", rejectedText("no \"btime\" line")},
            {"no number", "cpu0 1\nbtime soon\n", rejectedLine("boot time is not a whole number", "btime soon", 2)},
        },
        parseBootTime);
}

TEST(LoadAverageText, AveragesAndSchedulingEntities)
{
    expectParses<LoadSummary>(
        {
            {"all five fields", "0.02 0.04 0.05 1/497 11947\n", LoadSummary{0.02, 0.04, 0.05, 1, 497}},
            {"the entity count is not needed", "1.50 2.00 3.25", LoadSummary{1.5, 2.0, 3.25, {}, {}}},
            {"two averages", "0.02 0.04", rejectedLine("three load averages expected", "0.02 0.04", 1)},
            {"a word among them", "0.02 x 0.05 1/2 3\n",
             rejectedLine("three load averages expected", "0.02 x 0.05 1/2 3", 1)},
            {"what no kernel counts", "nan 0.04 0.05", rejectedLine("load averages out of range", "nan 0.04 0.05", 1)},
            {"negative", "0.02 -1 0.05", rejectedLine("load averages out of range", "0.02 -1 0.05", 1)},
            {"beyond any machine", "1e308 inf 0", rejectedLine("load averages out of range", "1e308 inf 0", 1)},
        },
        parseLoadAverage, [](const LoadAverageLine& line) {
            return LoadSummary{line.averages.one, line.averages.five, line.averages.fifteen, line.runnable,
                               line.schedulingEntities};
        });
}
