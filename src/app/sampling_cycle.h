// The body of one sampling cycle: which modules are due, and collecting their samples.
#pragma once

#include "collect/info_dict.h"
#include "collect/storage_descriptions.h"
#include "prefs/module_defaults.h"
#include "prefs/module_table.h"

#include <array>
#include <memory>

class LoadSystemInformation;

// What the main thread hands the background body: snapshots it may read and change freely.
struct CycleInput {
    ModuleDefaults general;            // carries the cadence counters and load flags
    std::array<qint64, 7> intervals{}; // per sampled module, in cycle order
    std::array<bool, 7> menuOpened{};  // per sampled module, in cycle order
    InfoDict info;
    // The volumes to measure; shared and never changed, so a rebuild on the main thread
    // cannot pull it from under the cycle. None measures nothing.
    std::shared_ptr<const VolumeBaseDict> volumeBase;
};

struct CycleOutput {
    ModuleDefaults general;
    InfoDict info;
    // The collector found the statistics of an active interface unreadable: the application is
    // to quit once this output reaches the main thread.
    bool quitRequested = false;
};

namespace SamplingCycle {

// The per-module cadence decision on the General dictionary.
void loadCounterUp(ModuleDefaults& general, const char* switchKey, const char* counterKey, const char* intervalKey,
                   const char* loadBoolKey, bool menuOpened);

// Copies the intervals, clears the load flags and decides which modules are due.
void decideDueModules(ModuleDefaults& general, const std::array<qint64, 7>& intervals,
                      const std::array<bool, 7>& menuOpened, bool cpuHistoryExists);

// The whole body: the decision, the interface change check (with a rebuild of the interface
// base, which the collector keeps), then the collection.
CycleOutput runBody(LoadSystemInformation& loadInfo, CycleInput input);

// True when the module's switch and load flag are both on after a cycle.
bool wasSampled(const ModuleDefaults& general, ModuleId id);

} // namespace SamplingCycle

// Collects the due modules into a new set of histories.
// Paging counts are read only when wanted (the Memory menu is open).
InfoDict loadCycleSysInfo(LoadSystemInformation& loadInfo, InfoDict info, const ModuleDefaults& general,
                          const VolumeBaseDict& volumeBase, bool pagingWanted = true);
