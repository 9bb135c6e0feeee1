// Gathers the export's own figures from the collector's sources.
#include "export/export_extras.h"

#include "collect/load_system_information.h"

ExportExtras collectExportExtras(LoadSystemInformation& loadInfo)
{
    ExportExtras extras;
    const SourceSet& sources = loadInfo.sources();
    if (sources.cpu)
        extras.loads = sources.cpu->loadAverages();
    if (sources.network)
        extras.interfaces = sources.network->counters();
    extras.swap = loadInfo.cycleSwapUsage();
    extras.memory = loadInfo.cycleMemoryTotals();
    return extras;
}
