// The cadence decision of the sampling cycle.
#include "app/sampling_schedule.h"

bool loadCounterUp(qint64& counter, qint64 interval, bool menuOpened)
{
    if (counter > 0 && counter < interval) {
        ++counter;
        return menuOpened;
    }
    counter = 1;
    return true;
}

DueModules SamplingSchedule::decide(const std::array<ModuleCadence, kModuleCount>& modules)
{
    DueModules due;
    for (std::size_t i = 0; i < modules.size(); ++i) {
        const ModuleCadence& m = modules[i];
        if (m.sampled && m.switchedOn)
            due[i] = loadCounterUp(entries_[i].counter, entries_[i].interval, m.menuOpened || m.sampleNow);
    }
    return due;
}
