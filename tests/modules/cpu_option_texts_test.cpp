// The CPU menu's detail lines: durations with and without days, placeholders for missing figures,
// and the processor line, whose count is that of the tree the collector reads.
#include "collect/load_system_information.h"
#include "modules/cpu/cpu_option_texts.h"
#include "modules/cpu/cpu_panel_facts.h"

#include "support/fixture_paths.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <fstream>

TEST(BuildUpTime, FormatsHoursMinutesSecondsAndDays)
{
    const std::pair<double, const char*> rows[] = {
        {0, "0:00:00"},
        {59.9, "0:00:59"}, // seconds are cut, not rounded
        {3600, "1:00:00"},
        {86399.99, "23:59:59"},
        {86400, "1day 0:00:00"}, // one day has no plural ending
        {2 * 86400 + 3661, "2days 1:01:01"},
        {400 * 86400 + 45296.5, "400days 12:34:56"},
        {-1.0, "23:59:59"}, // an unknown duration reads as the last second of a day
    };
    for (const auto& [seconds, text] : rows)
        EXPECT_EQ(buildUpTime(seconds), text) << seconds;
}

TEST(CpuOptionTexts, FiveLinesFromTheFigures)
{
    CpuOptionFigures figures;
    figures.secondsSinceBoot = 2 * 86400 + 3661;
    figures.awakeSeconds = 3661.0;
    figures.counts = ProcessCounts{812, 301};
    figures.loads = LoadAverages{0.5, 1.25, 12.345};
    figures.hostName = "build-host.local";
    EXPECT_EQ(cpuGetOptionData(figures), (QStringList{"2days 1:01:01", "1:01:01", "812 threads, 301 processes",
                                                      "1min: 0.50, 5min: 1.25, 15min: 12.35", "build-host.local"}));

    // Counts beyond an int are clamped rather than wrapped into negative numbers.
    figures.counts = ProcessCounts{std::int64_t{1} << 40, 7};
    EXPECT_EQ(cpuGetOptionData(figures).at(2), "2147483647 threads, 7 processes");
}

TEST(CpuOptionTexts, MissingFiguresGivePlaceholders)
{
    EXPECT_EQ(cpuGetOptionData(CpuOptionFigures{}), (QStringList{"23:59:59", "23:59:59", "---", "---", ""}));
}

TEST(CpuKindText, CountsTheProcessorsOfTheTreeNotOfThisMachine)
{
    // Sixteen processors, more than any machine these tests run on is likely to have.
    QTemporaryDir dir;
    const std::filesystem::path root = dir.path().toStdString();
    std::filesystem::create_directories(root / "proc");
    std::ofstream stat(root / "proc/stat");
    stat << "cpu  160 0 160 1600 0 0 0 0 0 0\n";
    for (int cpu = 0; cpu < 16; ++cpu)
        stat << "cpu" << cpu << " 10 0 10 100 0 0 0 0 0 0\n";
    stat << "btime 1700000000\n";
    stat.close();
    std::ofstream(root / "proc/cpuinfo") << "processor\t: 0\nmodel name\t: Example(R) Chip(TM) CPU @ 3.00GHz\n";
    LoadSystemInformation tree(makeSourceSet(root));
    EXPECT_EQ(cpuKindText(tree), "Example Chip 3.00GHz 16cores");
    tree.loadCpuData(); // and after the collector's own readings
    EXPECT_EQ(cpuKindText(tree), "Example Chip 3.00GHz 16cores");

    std::filesystem::remove(root / "proc/stat");
    LoadSystemInformation unreadable(makeSourceSet(root));
    EXPECT_EQ(cpuKindText(unreadable), "Example Chip 3.00GHz");

    if (sharedProcfsTree().empty())
        GTEST_SKIP() << "the shared captured procfs tree is not present";
    LoadSystemInformation captured(makeSourceSet(sharedProcfsTree()));
    EXPECT_EQ(cpuKindText(captured), "Intel Core i7-8650U 1.90GHz 8cores");
}
