// Gathering the sampled modules' headline figures for the history after each collection.
#include "app/history_feed.h"

#include "modules/history_figures.h"
#include "modules/module_registry.h"

QList<Figure> sampledFigures(LoadSystemInformation& loadInfo, const CycleOutput& output)
{
    QList<Figure> figures;
    for (const ModuleDescriptor* module : moduleRegistry()) {
        const ModuleId id = module->schema.id;
        if (output.sampled[moduleIndex(id)])
            figures.append(headlineFigures(id, output.info, loadInfo));
    }
    return figures;
}
