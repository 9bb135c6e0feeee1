// The collection step of the sampling cycle: each due module's own step, in registry order.
#include "app/sampling_cycle.h"

#include "collect/load_system_information.h"
#include "modules/module_registry.h"

namespace SamplingCycle {

CycleOutput runBody(LoadSystemInformation& loadInfo, CycleInput input)
{
    loadInfo.beginCycle();
    // Every cycle, sampled or not, so that the base is current when the Network menu opens. The
    // base lives in the collector: this thread replaces it, the main thread reads snapshots.
    if (!loadInfo.checkInterfaceStatusChange())
        loadInfo.setNetworkBaseDict(loadInfo.retNetworkBase());
    const DueModules due = input.due;
    const bool exportWanted = input.exportWanted;
    InfoDict info = loadCycleSysInfo(loadInfo, std::move(input));
    CycleOutput output{due, std::move(info), loadInfo.terminationRequested(), std::nullopt};
    if (exportWanted)
        output.exportExtras = collectExportExtras(loadInfo);
    return output;
}

} // namespace SamplingCycle

InfoDict loadCycleSysInfo(LoadSystemInformation& loadInfo, CycleInput cycle)
{
    static const VolumeBaseDict noVolumes;
    const VolumeBaseDict& volumes = cycle.volumeBase ? *cycle.volumeBase : noVolumes;
    static const SensorDatDict noSensors;
    const SensorDatDict& sensors = cycle.sensors ? *cycle.sensors : noSensors;
    for (std::size_t i = 0; i < moduleRegistry().size(); ++i) {
        const ModuleDescriptor& module = *moduleRegistry()[i];
        if (module.sample == nullptr || !cycle.due[i])
            continue;
        module.sample({loadInfo, i, cycle.seconds[i], cycle.menuOpened[i], volumes, sensors, cycle.swapWanted},
                      cycle.info);
    }
    return std::move(cycle.info);
}
