// The cadence decision of the sampling cycle.
#include "app/sampling_schedule.h"

#include <algorithm>

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
    const qint64 ticks = 1 + droppedTicks_;
    droppedTicks_ = 0;
    DueModules due;
    for (std::size_t i = 0; i < modules.size(); ++i) {
        const ModuleCadence& m = modules[i];
        Entry& entry = entries_[i];
        // Time passes for a module that is off too: its history, and the gap in it, stay.
        if (entry.sinceSample >= 0)
            entry.sinceSample += ticks;
        if (!m.sampled || !m.switchedOn)
            continue;
        due[i] = loadCounterUp(entry.counter, entry.interval, m.menuOpened || m.sampleNow);
        if (due[i]) {
            entry.covered = entry.sinceSample > 0 ? entry.sinceSample : std::max<qint64>(entry.interval, 1);
            entry.sinceSample = 0;
        }
    }
    return due;
}
