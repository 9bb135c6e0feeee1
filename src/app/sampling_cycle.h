// The body of one sampling cycle: collecting the due modules' samples on the cycle's thread.
#pragma once

#include "app/sampling_schedule.h"
#include "collect/info_dict.h"
#include "collect/sensor_dat.h"
#include "collect/storage_descriptions.h"
#include "export/export_extras.h"

#include <array>
#include <memory>

class LoadSystemInformation;

// What the main thread hands the background body: snapshots it may read and change freely.
struct CycleInput {
    DueModules due;
    // Per due module, the seconds its sample covers (SamplingSchedule::secondsCovered).
    std::array<qint64, kModuleCount> seconds{};
    std::array<bool, kModuleCount> menuOpened{};
    InfoDict info;
    // The volumes to measure; shared and never changed, so a rebuild on the main thread
    // cannot pull it from under the cycle. None measures nothing.
    std::shared_ptr<const VolumeBaseDict> volumeBase;
    // The sensor table, fixed at start-up. None samples no sensor.
    std::shared_ptr<const SensorDatDict> sensors;
    // Someone serves the figures to scrapers: the export's own figures are gathered too.
    bool exportWanted = false;
    // Swap usage goes with the Memory sample (see kSwapHistorySlot); an extra read, so only on asking.
    bool swapWanted = false;
};

struct CycleOutput {
    DueModules sampled;
    InfoDict info;
    // The collector found the statistics of an active interface unreadable: the application is
    // to quit once this output reaches the main thread.
    bool quitRequested = false;
    std::optional<ExportExtras> exportExtras; // when the input wanted them
};

namespace SamplingCycle {

// The interface change check (with a rebuild of the interface base, which the collector keeps),
// then the collection of the due modules.
CycleOutput runBody(LoadSystemInformation& loadInfo, CycleInput input);

} // namespace SamplingCycle

// Collects the due modules into a new set of histories (the input's, each appended to by its
// module's own step).
InfoDict loadCycleSysInfo(LoadSystemInformation& loadInfo, CycleInput cycle);
