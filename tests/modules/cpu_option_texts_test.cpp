// The CPU menu's detail lines: durations with and without days, placeholders for missing figures.
#include "modules/cpu/cpu_option_texts.h"

#include <gtest/gtest.h>

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
