// Prints what evaluating ten alert rules costs per cycle, over full histories of every module.
#include "allocation_counter.h"

#include "alerts/alert_monitor.h"
#include "collect/cpu_sample.h"
#include "collect/disk_sample.h"
#include "collect/memory_sample.h"
#include "collect/network_sample.h"
#include "collect/sensor_dat.h"
#include "net/notifier.h"

#include <QCoreApplication>

#include <chrono>
#include <cstdio>

namespace {

class CountingNotifier final : public Notifier {
public:
    void fireNotification(const UserNotification&) override { ++count; }
    int count = 0;
};

template <class Sample> void fill(InfoDict& info, ModuleId module, const Sample& sample)
{
    History<Sample> history;
    for (std::size_t i = 0; i < History<Sample>::kMaxSamples; ++i)
        history = history.appended(sample);
    info.setHistory(moduleIndex(module), history);
}

// Every module's history full, with a machine of 16 processors, 8 disks, 12 volumes, 20 sensors.
InfoDict fullHistories()
{
    InfoDict info;
    fill(info, ModuleId::Cpu, CpuSample(17, CpuRecord{30, 10, 0, 60}));
    MemorySample memory;
    memory.fill(1000);
    fill(info, ModuleId::Memory, memory);
    History<SwapUsage> swap;
    for (std::size_t i = 0; i < History<SwapUsage>::kMaxSamples; ++i)
        swap = swap.appended(SwapUsage{8LL << 30, 6LL << 30, 2LL << 30});
    info.setHistory(kSwapHistorySlot, swap);
    fill(info, ModuleId::Network, NetworkSample{1 << 20, 1 << 24, 1, {}});
    DiskSample disks{{}, 1};
    for (int i = 0; i < 8; ++i)
        disks.devices[QStringLiteral("/dev/sd%1").arg(QChar(u'a' + i))] = {1ULL << 30, 1ULL << 29};
    fill(info, ModuleId::Disk, disks);
    VolumeSample volumes;
    for (int i = 0; i < 12; ++i)
        volumes.volumes[QStringLiteral("/mnt/v%1").arg(i)] = {1000, 400 + i, 600 - i, QString()};
    fill(info, ModuleId::Volume, volumes);
    SensorSample sensors;
    for (int i = 0; i < 20; ++i)
        sensors.values.insert(QStringLiteral("Sensor %1").arg(i), 40 + i);
    sensors.average = 50;
    fill(info, ModuleId::Temp, sensors);
    fill(info, ModuleId::Fan, sensors);
    return info;
}

// Ten rules, one per figure (swap among them) but the fastest fan, half of them past their
// thresholds and holding for a day.
QList<AlertRule> tenRules()
{
    QList<AlertRule> rules;
    bool breached = false;
    for (const AlertFigureInfo& figure : alertFigures().first(10)) {
        const double threshold = breached ? -1e9 : 1e9;
        rules.append({figure.figure, true, threshold, threshold, kAlertMaxHoldSeconds, true});
        breached = !breached;
    }
    return rules;
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    const int cycles = argc > 1 ? std::max(1, std::atoi(argv[1])) : 200000;
    const InfoDict info = fullHistories();
    CountingNotifier notifier;
    qint64 nowMs = 0;
    AlertMonitor monitor([&notifier] { return &notifier; }, [&nowMs] { return nowMs; });
    monitor.setRules(tenRules());
    monitor.cycleFinished(info, {1 << 20});
    const std::uint64_t allocBefore = AllocationCounter::count();
    const auto start = std::chrono::steady_clock::now();
    for (int i = 0; i < cycles; ++i) {
        nowMs += 1000;
        monitor.cycleFinished(info, {1 << 20});
    }
    const auto elapsed = std::chrono::duration<double, std::micro>(std::chrono::steady_clock::now() - start);
    const double allocs = static_cast<double>(AllocationCounter::count() - allocBefore) / cycles;
    std::printf("Alert evaluation, %lld rules over full histories: %.3f us/cycle, %.1f allocations/cycle "
                "(%d cycles, %d notifications)\n",
                static_cast<long long>(monitor.engine().rules().size()), elapsed.count() / cycles, allocs, cycles,
                notifier.count);
    return 0;
}
