// The busiest-process list: the builder's rules on captured rows and the sampler's shares.
#include "collect/linux/linux_process_source.h"
#include "collect/process_cpu_sampler.h"
#include "collect/process_list.h"
#include "toolkit/value_format.h"

#include "support/fixture_paths.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <deque>
#include <fstream>

namespace {
using namespace std::chrono_literals;

// Rows as a sampler yields them on a lightly loaded machine.
std::vector<ProcessRow> capturedRows()
{
    return {{812, "Xorg", 12.5}, {4410, "gnome-shell", 3.0}, {77, "  Web   Content ", 1.2},
            {9001, "", 0.4},     {15, "kworker/0:1", 0.0},   {16, "sshd", 0.0}};
}

class ScriptedProcessSource : public ProcessSource {
public:
    std::deque<std::optional<std::vector<ProcessRecord>>> scans;
    std::optional<double> uptime;
    std::optional<ProcessCounts> counts() override { return std::nullopt; }
    std::optional<double> uptimeSeconds() override { return uptime; }
    std::optional<std::vector<ProcessRecord>> scanProcesses() override
    {
        auto next = scans.front();
        scans.pop_front();
        return next;
    }
};

ProcessRecord record(std::int64_t pid, const char* command, std::uint64_t ticks, std::uint64_t pages = 0,
                     std::uint64_t startTicks = 0)
{
    return {pid, command, ticks, pages, 1, startTicks};
}

// A process's stat line as the kernel writes it, with user time, start time and resident pages.
void writeStat(const std::filesystem::path& proc, int pid, std::uint64_t ticks, std::uint64_t start)
{
    std::filesystem::create_directories(proc / std::to_string(pid));
    std::ofstream(proc / std::to_string(pid) / "stat")
        << pid << " (p" << pid << ") S 1 1 1 0 -1 0 0 0 0 0 " << ticks << " 0 0 0 20 0 1 0 " << start
        << " 1000 50 18446744073709551615 0 0 0 0\n";
}
} // namespace

TEST(ProcessList, StopsAtTheLimitOrTheFirstIdleProcess)
{
    const auto rows = capturedRows();
    EXPECT_EQ(buildProcessList(rows, {}, 0, -1), QStringList({"", ""}));
    EXPECT_EQ(buildProcessList(rows, {}, 2, -1), QStringList({"Xorg\ngnome-shell\n", "12.5%\n3.0%\n"}));
    // Four busy rows, then idle ones: four lines even with room for ten.
    const QStringList all = buildProcessList(rows, {}, 10, -1);
    EXPECT_EQ(all[1], "12.5%\n3.0%\n1.2%\n0.4%\n");
    // Rows after an idle one are not looked at, busy or not.
    EXPECT_EQ(buildProcessList({{1, "a", 0.0}, {2, "b", 5.0}}, {}, 10, -1), QStringList({"", ""}));
}

TEST(ProcessList, NamesComeFromTheTableThenTheCommandThenThePid)
{
    const ProcessDict table{{"_4410", "Activities"}, {"_1", "never listed"}};
    const QStringList list = buildProcessList(capturedRows(), table, 10, -1);
    EXPECT_EQ(list[0], "Xorg\nActivities\nWeb Content\n(pid:_9001)\n");
}

TEST(ProcessList, MemoryModeHandsBytesToTheFormatter)
{
    const QStringList list = buildProcessList({{3, "postgres", 2048}, {4, "bash", 1}}, {}, 10, 2);
    EXPECT_EQ(list[0], "postgres\nbash\n");
    EXPECT_EQ(list[1], TvlClasses::calcMemorySize(2097152, 2) + "\n" + TvlClasses::calcMemorySize(1024, 2) + "\n");
}

TEST(ProcessCpuSampler, SharesSinceStartFirstThenOverTheInterval)
{
    ScriptedProcessSource source;
    // 100 ticks a second; the first scan comes 100 s after boot, the second 2 s later.
    source.scans = {
        std::vector{record(1, "init", 500, 0, 0), record(2, "busy", 1000, 0, 9000), record(3, "ends", 40, 0, 9990)},
        std::vector{record(1, "init", 510, 0, 0), record(2, "busy", 1150, 0, 9000), record(4, "new", 90, 0, 10020)},
        std::nullopt};
    ProcessCpuSampler sampler(100, 4096);
    const ProcessCpuSampler::Clock::time_point start{};

    // No earlier scan: each process's processor time over its life (1000 ticks of 1000 is a
    // whole processor; the one started a tenth of a second ago used four).
    source.uptime = 100.0;
    const auto first = sampler.sample(source, "%cpu", start);
    ASSERT_TRUE(first);
    ASSERT_EQ(first->size(), 3u);
    EXPECT_EQ((*first)[0].command, "ends");
    EXPECT_DOUBLE_EQ((*first)[0].value, 400.0);
    EXPECT_DOUBLE_EQ((*first)[1].value, 100.0);
    EXPECT_DOUBLE_EQ((*first)[2].value, 5.0);

    // Two seconds later: 150 ticks is 75% of one processor, 10 ticks 5%; the newcomer's 90
    // ticks over its 180 are 50%, not all it brought along counted against the interval.
    source.uptime = 102.0;
    const auto second = sampler.sample(source, "%cpu", start + 2s);
    ASSERT_TRUE(second);
    ASSERT_EQ(second->size(), 3u);
    EXPECT_EQ((*second)[0].command, "busy");
    EXPECT_DOUBLE_EQ((*second)[0].value, 75.0);
    EXPECT_EQ((*second)[1].command, "new");
    EXPECT_DOUBLE_EQ((*second)[1].value, 50.0);
    EXPECT_EQ((*second)[2].command, "init");
    EXPECT_DOUBLE_EQ((*second)[2].value, 5.0);

    EXPECT_FALSE(sampler.sample(source, "%cpu", start + 3s));
}

TEST(ProcessCpuSampler, WithoutAnUptimeAFirstScanIsIdle)
{
    ScriptedProcessSource source;
    source.scans = {std::vector{record(1, "init", 500, 0, 0), record(2, "late", 70, 0, 20000)}};
    ProcessCpuSampler sampler(100, 4096);
    const auto rows = sampler.sample(source, "%cpu");
    ASSERT_TRUE(rows);
    for (const ProcessRow& row : *rows)
        EXPECT_EQ(row.value, 0) << row.command;
}

TEST(ProcessCpuSampler, ResidentSizeInKiBAndAReusedPid)
{
    ScriptedProcessSource source;
    source.scans = {std::vector{record(7, "old", 900, 10), record(8, "big", 0, 300)},
                    std::vector{record(7, "reused", 20, 10), record(8, "big", 0, 300)},
                    std::vector{record(7, "reused", 20, 10), record(8, "big", 0, 300)}};
    ProcessCpuSampler sampler(100, 4096);
    const ProcessCpuSampler::Clock::time_point start{};
    ASSERT_TRUE(sampler.sample(source, "%cpu", start));
    // Fewer ticks than before means another process now has the pid: not a wrap (and without
    // an uptime, no share since its start either).
    EXPECT_EQ(sampler.sample(source, "%cpu", start + 1s)->front().value, 0);

    const auto memory = sampler.sample(source, "rss");
    ASSERT_TRUE(memory);
    EXPECT_EQ(memory->front().command, "big");
    EXPECT_DOUBLE_EQ(memory->front().value, 300 * 4.0);
    EXPECT_FALSE(sampler.sample(source, "vsz"));
}

TEST(ProcessCpuSampler, SharedTreeGivesResidentRows)
{
    const auto tree = sharedProcfsTree();
    if (tree.empty())
        GTEST_SKIP() << "shared procfs tree absent";
    LinuxProcessSource source{SysRoot(tree)};
    ProcessCpuSampler sampler(100, 4096);
    const auto rows = sampler.sample(source, "rss");
    ASSERT_TRUE(rows);
    ASSERT_FALSE(rows->empty());
    EXPECT_EQ(rows->front().command, "vim");
    EXPECT_DOUBLE_EQ(rows->front().value, 1981 * 4.0);
    EXPECT_EQ(source.executablePath(26231), "/usr/bin/vim");
    EXPECT_FALSE(source.executablePath(33));
    const QStringList list = buildProcessList(*rows, {{"_26231", "Vim"}}, 10, 2);
    EXPECT_TRUE(list[0].startsWith("Vim\n"));
}

TEST(ProcessCpuSampler, RescansOfATreeSeeProcessesEndStartAndTakeOverAPid)
{
    QTemporaryDir dir;
    const std::filesystem::path root = dir.path().toStdString();
    writeStat(root / "proc", 30, 100, 7);
    writeStat(root / "proc", 10, 100, 5);
    writeStat(root / "proc", 20, 100, 6);
    LinuxProcessSource source{SysRoot(root)};
    ProcessCpuSampler sampler(100, 4096);
    const ProcessCpuSampler::Clock::time_point start{};
    ASSERT_TRUE(sampler.sample(source, "%cpu", start));

    // A second on: 10 ran half of it, 20 ended, another process took pid 30 and 40 started.
    writeStat(root / "proc", 10, 150, 5);
    std::filesystem::remove_all(root / "proc/20");
    writeStat(root / "proc", 30, 400, 900);
    writeStat(root / "proc", 40, 100, 950);
    const auto rows = sampler.sample(source, "%cpu", start + 1s);
    ASSERT_TRUE(rows);
    std::vector<std::pair<std::int64_t, double>> shares;
    for (const ProcessRow& row : *rows)
        shares.emplace_back(row.pid, row.value);
    EXPECT_EQ(shares, (std::vector<std::pair<std::int64_t, double>>{{10, 50.0}, {30, 0.0}, {40, 0.0}}));
}
