// Cadence counters and the collection step of the sampling cycle.
#include "app/sampling_cycle.h"

#include "collect/load_system_information.h"

#include <algorithm>
#include <cstddef>

namespace SamplingCycle {

void loadCounterUp(ModuleDefaults& general, const char* switchKey, const char* counterKey, const char* intervalKey,
                   const char* loadBoolKey, bool menuOpened)
{
    if (!general.boolValue(switchKey))
        return;
    const qint64 n = general.intValue(counterKey);
    const qint64 i = general.intValue(intervalKey);
    if (n > 0 && n < i) {
        general.set(counterKey, n + 1);
        general.set(loadBoolKey, menuOpened);
    } else {
        // The regular sample: the first after switching on, then every i-th cycle.
        general.set(counterKey, qint64{1});
        general.set(loadBoolKey, true);
    }
}

void decideDueModules(ModuleDefaults& general, const std::array<qint64, 7>& intervals,
                      const std::array<bool, 7>& menuOpened, bool cpuHistoryExists)
{
    for (std::size_t m = 0; m < kSampledModules.size(); ++m)
        general.set(moduleKeys(kSampledModules[m]).intervalKey, intervals[m]);
    for (ModuleId id : kSampledModules)
        general.set(moduleKeys(id).loadFlagKey, false);
    for (std::size_t m = 0; m < kSampledModules.size(); ++m) {
        const ModuleKeys& keys = moduleKeys(kSampledModules[m]);
        // The first CPU sample is taken at once, whatever the interval, so the picture fills early.
        const bool open = menuOpened[m] || (kSampledModules[m] == ModuleId::Cpu && !cpuHistoryExists);
        loadCounterUp(general, keys.switchKey, keys.counterKey, keys.intervalKey, keys.loadFlagKey, open);
    }
}

CycleOutput runBody(LoadSystemInformation& loadInfo, CycleInput input)
{
    decideDueModules(input.general, input.intervals, input.menuOpened, input.info.cpu.exists());
    // Every cycle, sampled or not, so that the base is current when the Network menu opens. The
    // base lives in the collector: this thread replaces it, the main thread reads snapshots.
    if (!loadInfo.checkInterfaceStatusChange())
        loadInfo.setNetworkBaseDict(loadInfo.retNetworkBase());
    static const VolumeBaseDict noVolumes;
    const bool memoryMenuOpen = input.menuOpened[static_cast<std::size_t>(
        std::find(kSampledModules.begin(), kSampledModules.end(), ModuleId::Memory) - kSampledModules.begin())];
    InfoDict info = loadCycleSysInfo(loadInfo, std::move(input.info), input.general,
                                     input.volumeBase ? *input.volumeBase : noVolumes, memoryMenuOpen);
    return {std::move(input.general), std::move(info), loadInfo.terminationRequested()};
}

bool wasSampled(const ModuleDefaults& general, ModuleId id)
{
    const ModuleKeys& keys = moduleKeys(id);
    return keys.loadFlagKey != nullptr && general.boolValue(keys.switchKey) && general.boolValue(keys.loadFlagKey);
}

} // namespace SamplingCycle

InfoDict loadCycleSysInfo(LoadSystemInformation& loadInfo, InfoDict info, const ModuleDefaults& general,
                          const VolumeBaseDict& volumeBase, bool pagingWanted)
{
    if (general.boolValue(moduleKeys(ModuleId::Cpu).loadFlagKey)) {
        CpuSample sample = loadInfo.loadCpuData();
        if (!sample.empty())
            info.cpu = info.cpu.appended(std::move(sample));
    }
    if (general.boolValue(moduleKeys(ModuleId::Memory).loadFlagKey)) {
        if (auto sample = loadInfo.loadMemoryData(pagingWanted))
            info.memory = info.memory.appended(*sample);
    }
    if (general.boolValue(moduleKeys(ModuleId::Network).loadFlagKey)) {
        const double interval = general.doubleValue(moduleKeys(ModuleId::Network).intervalKey);
        if (auto sample = loadInfo.loadNetworkData(interval, *loadInfo.networkBaseDict()))
            info.network = info.network.appended(std::move(*sample));
    }
    // An empty volume sample is kept too: it says that no volume is mounted.
    if (general.boolValue(moduleKeys(ModuleId::Volume).loadFlagKey))
        info.volume = info.volume.appended(loadInfo.retDiskUsage(volumeBase));
    if (general.boolValue(moduleKeys(ModuleId::Disk).loadFlagKey)) {
        const ModuleKeys& disk = moduleKeys(ModuleId::Disk);
        if (auto sample = loadInfo.retDiskRW(general.doubleValue(disk.intervalKey)))
            info.disk = info.disk.appended(std::move(*sample));
    }
    info.vnc = true;
    return info;
}
