// Counters at and past 2^63, and wrapping past 2^64, from a tree through to the shown figures.
#include "collect/load_system_information.h"
#include "modules/cpu/cpu_usage_text.h"
#include "modules/disk/disk_menu_rows.h"
#include "modules/disk/disk_rates.h"
#include "modules/memory/memory_breakdown.h"
#include "modules/network/network_panel_rows.h"
#include "modules/network/network_rates.h"
#include "modules/picture_settings_tab.h"
#include "support/fixture_paths.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <filesystem>
#include <limits>

namespace {

namespace fs = std::filesystem;
constexpr auto kLargest = std::numeric_limits<std::int64_t>::max();
constexpr auto kSmallest = std::numeric_limits<std::int64_t>::min();

// The tree of counters just below 2^64, which the test then turns into the wrapped readings.
class HugeCounters : public ::testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(dir_.isValid());
        root_ = dir_.path().toStdString();
        fs::copy(projectFixtures() / "linux/huge-counters", root_, fs::copy_options::recursive);
    }

    void wrap() const
    {
        // Written over the existing files, as the kernel's stay the same files.
        for (const char* file : {"proc/stat", "proc/net/dev", "proc/diskstats"})
            fs::copy_file(projectFixtures() / "linux/huge-counters-wrapped" / file, root_ / file,
                          fs::copy_options::overwrite_existing);
    }

    QTemporaryDir dir_;
    fs::path root_;
};

} // namespace

TEST_F(HugeCounters, NetworkSumsPastTheSignedRangeShowNoNegativeFiguresAndWrapIntoSmallRates)
{
    LoadSystemInformation info(makeSourceSet(root_));
    const NetworkBase base = info.retNetworkBase();
    const auto first = info.loadNetworkData(1.0, base);
    ASSERT_TRUE(first);
    wrap();
    const auto second = info.loadNetworkData(1.0, base);
    ASSERT_TRUE(second);
    const auto history = History<NetworkSample>::fromSamples({*first, *second});

    // lo's 2^64 - 616 sent and wlan0's 614 sum to 2^64 - 2; then lo wraps to 1000.
    const NetworkRates rates = currentNetworkRates(history);
    EXPECT_EQ(rates.up, 1616.0);
    EXPECT_EQ(rates.down, 0.0);
    const NetworkPanelFigures figures = networkPanelFigures(History<NetworkSample>::fromSamples({*first}), false);
    EXPECT_FALSE(figures.totalUp.contains(QLatin1Char('-'))) << figures.totalUp.toStdString();
    EXPECT_FALSE(figures.totalDw.contains(QLatin1Char('-'))) << figures.totalDw.toStdString();
}

TEST_F(HugeCounters, DiskSectorsNearTheTopWrapIntoTheBytesReallyMoved)
{
    LoadSystemInformation info(makeSourceSet(root_));
    const auto first = info.retDiskRW(1.0);
    ASSERT_TRUE(first);
    wrap();
    const auto second = info.retDiskRW(1.0);
    ASSERT_TRUE(second);
    const auto history = History<DiskSample>::fromSamples({*first, *second});
    const QString key = QStringLiteral("/dev/sda");

    // 2^64 - 1 sectors are 2^64 - 512 bytes; seven sectors later the counter passed 2^64.
    const auto rates = diskRatesAt(history, 1, key);
    ASSERT_TRUE(rates);
    EXPECT_EQ(rates->read, 4096.0);
    EXPECT_EQ(rates->write, 4096.0);
    const QString totals = diskTotalsText(History<DiskSample>::fromSamples({*first}), key);
    EXPECT_FALSE(totals.isEmpty());
    EXPECT_FALSE(totals.contains(QLatin1Char('-'))) << totals.toStdString();
}

TEST_F(HugeCounters, ProcessorTicksWrapIntoTheirGrowthAndAnAbsurdBootTimeSaturates)
{
    LoadSystemInformation info(makeSourceSet(root_));
    EXPECT_TRUE(info.loadCpuData().empty());
    wrap();
    const CpuSample sample = info.loadCpuData();
    ASSERT_EQ(sample.size(), 3u);
    // cpu0's user ticks went from 2^64 - 6 to 4; cpu1's did not move.
    EXPECT_EQ(sample[0][CpuUser], 10);
    EXPECT_EQ(sample[1][CpuUser], 0);

    const CpuOptionFigures figures = info.cpuOptionFigures();
    ASSERT_TRUE(figures.secondsSinceBoot);
    EXPECT_EQ(*figures.secondsSinceBoot, static_cast<double>(kLargest));

    EXPECT_EQ(cpuUsageText(CpuRecord{kLargest, kLargest, kLargest, kLargest}), cpuUsageText(CpuRecord{1, 1, 1, 1}));
}

TEST(HugeFigures, MemoryAndSettingsArithmeticSaturatesInsteadOfOverflowing)
{
    MemorySample sample{};
    sample.fill(kLargest);
    const MemoryBreakdown breakdown = memoryBreakdown(sample, kLargest, false);
    EXPECT_EQ(breakdown.total, kLargest);
    EXPECT_GE(breakdown.inUse(), 0);
    EXPECT_FALSE(memoryBarText(breakdown, 4096, 1).contains(QLatin1Char('-')));

    using Kind = PictureSettingsTab::SliderKind;
    EXPECT_EQ(PictureSettingsTab::sliderPosition(Kind::GraphWidth, kLargest, 1, 10), 10);
    EXPECT_EQ(PictureSettingsTab::sliderPosition(Kind::GraphWidth, kSmallest, 1, 10), 1);
}
