// What the export is handed after each cycle: the sampled histories and its own extra figures.
#pragma once

#include "collect/info_dict.h"
#include "export/export_extras.h"
#include "prefs/module_id.h"

#include <array>

struct ExportFigures {
    InfoDict info;
    // Modules switched off keep their last history; their figures are no longer current.
    std::array<bool, kModuleCount> switchedOn{};
    ExportExtras extras;
    double pageSize = 4096;      // bytes per page of the memory figures
    double ticksPerSecond = 100; // the kernel's clock ticks, which the CPU figures count
};
