// The watched figures worked out from the newest samples of each module's history.
#include "alert_histories.h"

#include "alerts/alert_figure.h"
#include "collect/disk_sample.h"
#include "collect/memory_sample.h"

#include <gtest/gtest.h>

namespace {

template <class Sample> void append(InfoDict& info, std::size_t slot, Sample sample)
{
    info.setHistory(slot, info.history<Sample>(slot).appended(std::move(sample)));
}

template <class Sample> void append(InfoDict& info, ModuleId module, Sample sample)
{
    const std::size_t slot = moduleIndex(module);
    info.setHistory(slot, info.history<Sample>(slot).appended(std::move(sample)));
}

std::optional<double> read(AlertFigure figure, const InfoDict& info, std::int64_t totalPages = 0)
{
    return readAlertFigure(figure, info, {totalPages});
}

TEST(AlertFigures, RatesComeFromTheTwoNewestSamplesOverTheSecondsTheNewestCovers)
{
    InfoDict info;
    append(info, ModuleId::Network, NetworkSample{1000, 5000, 1, {}});
    EXPECT_FALSE(read(AlertFigure::NetworkDown, info)) << "one sample is no rate";
    append(info, ModuleId::Network, NetworkSample{1000 + 4096, 5000 + 2 * 10240, 2, {}});
    EXPECT_DOUBLE_EQ(*read(AlertFigure::NetworkDown, info), 10.0);
    EXPECT_DOUBLE_EQ(*read(AlertFigure::NetworkUp, info), 2.0);
    // Counters that went back (an interface reset) give no rate rather than a huge one.
    append(info, ModuleId::Network, NetworkSample{0, 0, 1, {}});
    EXPECT_FALSE(read(AlertFigure::NetworkDown, info));

    // Disks: summed over the devices of both samples; one just attached has no difference yet.
    const QString sda = QStringLiteral("/dev/sda"), sdb = QStringLiteral("/dev/sdb");
    append(info, ModuleId::Disk, DiskSample{{{sda, {1024, 0}}}, 2});
    append(info, ModuleId::Disk, DiskSample{{{sda, {1024 + 4 * 1024, 2048}}, {sdb, {1 << 30, 1 << 30}}}, 2});
    EXPECT_DOUBLE_EQ(*read(AlertFigure::DiskRead, info), 2.0);
    EXPECT_DOUBLE_EQ(*read(AlertFigure::DiskWrite, info), 1.0);
}

TEST(AlertFigures, SharesAndReadingsComeFromTheNewestSample)
{
    InfoDict info;
    // Per-processor records first; the machine's is the last. An older sample does not count.
    append(info, ModuleId::Cpu, CpuSample{{0, 0, 0, 100}, {0, 0, 0, 100}});
    append(info, ModuleId::Cpu, CpuSample{{100, 0, 0, 0}, {20, 10, 10, 60}});
    EXPECT_DOUBLE_EQ(*read(AlertFigure::CpuBusy, info), 40.0);

    // In use is all but free pages and cached files, of the machine's memory.
    MemorySample memory;
    memory.fill(-1);
    memory[MemoryApplication] = 300;
    memory[MemoryWired] = 100;
    memory[MemoryCached] = 200;
    memory[MemoryFree] = 400;
    append(info, ModuleId::Memory, memory);
    EXPECT_DOUBLE_EQ(*read(AlertFigure::MemoryUsed, info, 1200), 50.0);
    // Counters that add up to more than the total (they are read without a lock) are the total.
    EXPECT_DOUBLE_EQ(*read(AlertFigure::MemoryUsed, info, 500), 40.0);

    // Swap: of the space there is; none without a reading beside the newest Memory sample, and
    // none on a machine without swap rather than a share of nothing.
    EXPECT_FALSE(read(AlertFigure::SwapUsed, info));
    append(info, kSwapHistorySlot, SwapUsage{4096, 3072, 1024});
    EXPECT_DOUBLE_EQ(*read(AlertFigure::SwapUsed, info), 25.0);
    append(info, kSwapHistorySlot, SwapUsage{0, 0, 0});
    EXPECT_FALSE(read(AlertFigure::SwapUsed, info));

    VolumeSample volumes;
    volumes.volumes[QStringLiteral("/")] = {1000, 500, 500, QStringLiteral("root")};
    volumes.volumes[QStringLiteral("/data")] = {2000, 1940, 60, QStringLiteral("data")};
    volumes.volumes[QStringLiteral("/proc")] = {0, 0, 0, QStringLiteral("proc")};
    append(info, ModuleId::Volume, volumes);
    EXPECT_DOUBLE_EQ(*read(AlertFigure::VolumeFullest, info), 97.0);

    appendTempAverage(info, 70);
    SensorSample temps;
    temps.values = {{QStringLiteral("A"), 60}, {QStringLiteral("B"), 88}};
    temps.average = 74;
    append(info, ModuleId::Temp, temps);
    EXPECT_DOUBLE_EQ(*read(AlertFigure::TempAverage, info), 74.0);
    EXPECT_DOUBLE_EQ(*read(AlertFigure::TempHighest, info), 88.0);
    // No valid reading this time: no figure, not the last good one.
    append(info, ModuleId::Temp, SensorSample{});
    EXPECT_FALSE(read(AlertFigure::TempAverage, info));
    EXPECT_FALSE(read(AlertFigure::FanFastest, info));
}

} // namespace
