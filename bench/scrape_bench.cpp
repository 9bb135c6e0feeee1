// Prints the processor time of one scrape of a large machine, in both formats, and of the export's step per cycle.
// Figures only; nothing is judged here.
#include "collect/cpu_sample.h"
#include "collect/disk_sample.h"
#include "collect/network_sample.h"
#include "collect/sensor_dat.h"
#include "export/metric_text.h"
#include "export/metrics_builder.h"

#include <cstdio>
#include <ctime>

namespace {

// 64 processors, 32 interfaces, 48 block devices, 24 volumes, 64 sensors and 8 fans.
ExportFigures largeMachine(std::int64_t step)
{
    ExportFigures f;
    f.switchedOn.fill(true);
    CpuSample cpu(65, CpuRecord{50 + step, 20, 1, 29});
    f.info.setHistory(moduleIndex(ModuleId::Cpu), History<CpuSample>::fromSamples({cpu}));
    f.info.setHistory(moduleIndex(ModuleId::Memory),
                      History<MemorySample>::fromSamples({{1, 2, 3, 4, 5, 6, 7, 8, 9, 10}}));
    std::vector<InterfaceCounters> interfaces;
    for (int i = 0; i < 32; ++i)
        interfaces.push_back({"eth" + std::to_string(i), std::uint64_t(1000 * step), 10, 2000, 20});
    f.extras.interfaces = interfaces;
    DiskSample disks{{}, 1};
    VolumeSample volumes;
    for (int i = 0; i < 48; ++i)
        disks.devices[QStringLiteral("/dev/sd%1").arg(i)] = {std::uint64_t(4096 * step), 8192};
    for (int i = 0; i < 24; ++i)
        volumes.volumes[QStringLiteral("/mnt/volume%1").arg(i)] = {1 << 30, 1 << 29, 1 << 29,
                                                                   QStringLiteral("Volume %1").arg(i)};
    f.info.setHistory(moduleIndex(ModuleId::Disk), History<DiskSample>::fromSamples({disks, disks}));
    f.info.setHistory(moduleIndex(ModuleId::Volume), History<VolumeSample>::fromSamples({volumes}));
    SensorSample temps;
    SensorSample fans;
    for (int i = 0; i < 64; ++i)
        temps.values.insert(QStringLiteral("Core %1").arg(i), 40 + i % 20);
    for (int i = 0; i < 8; ++i)
        fans.values.insert(QStringLiteral("Fan %1").arg(i), 1000 + i);
    f.info.setHistory(moduleIndex(ModuleId::Temp), History<SensorSample>::fromSamples({temps}));
    f.info.setHistory(moduleIndex(ModuleId::Fan), History<SensorSample>::fromSamples({fans}));
    f.extras.loads = LoadAverages{1, 2, 3};
    return f;
}

double threadSeconds()
{
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}

// Processor time of this thread, not wall time: the figure holds on a busy machine too.
template <class F> double microsecondsPerCall(int rounds, F f)
{
    const double start = threadSeconds();
    for (int i = 0; i < rounds; ++i)
        f(i);
    return (threadSeconds() - start) * 1e6 / rounds;
}

} // namespace

int main()
{
    constexpr int kRounds = 2000;
    MetricsBuilder builder;
    std::vector<ExportFigures> cycles;
    for (int i = 0; i < 16; ++i)
        cycles.push_back(largeMachine(i));
    SharedMetricFamilies families;
    const double build = microsecondsPerCall(kRounds, [&](int i) { families = builder.update(cycles[i % 16]); });
    qsizetype bytes = 0;
    qsizetype openBytes = 0;
    const double plain = microsecondsPerCall(kRounds, [&](int) { bytes = MetricText::plainText(*families).size(); });
    const double open =
        microsecondsPerCall(kRounds, [&](int) { openBytes = MetricText::openMetrics(*families).size(); });
    std::size_t series = 0;
    for (const MetricFamily& family : *families)
        series += family.points.size();
    std::printf("scrape of a large machine: %zu families, %zu series, %lld bytes of plain text, %lld of OpenMetrics\n",
                families->size(), series, static_cast<long long>(bytes), static_cast<long long>(openBytes));
    std::printf("  builder after a cycle:  %8.1f us\n", build);
    std::printf("  plain text per scrape:  %8.1f us\n", plain);
    std::printf("  OpenMetrics per scrape: %8.1f us\n", open);
    return 0;
}
