// The heaviest regular cycle for the benches: every sampling module due, each covering one second.
#pragma once

#include "app/sampling_cycle.h"
#include "modules/module_registry.h"

inline CycleInput everyModuleDue()
{
    CycleInput input;
    for (std::size_t i = 0; i < moduleRegistry().size(); ++i)
        input.due[i] = moduleRegistry()[i]->sample != nullptr;
    // A fake clock: every cycle covers one second, however long it took.
    input.seconds.fill(1);
    return input;
}
