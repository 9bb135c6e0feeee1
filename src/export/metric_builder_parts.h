// The per-module parts of the exported figures, each appending its families.
#pragma once

#include "export/counter_keeper.h"
#include "export/export_figures.h"
#include "export/metric_family.h"

#include <QString>

namespace MetricParts {

// Appends an empty family and returns it; fill it before appending the next.
MetricFamily& newFamily(MetricFamilies& families, const char* name, MetricType type, const char* unit,
                        const char* help);
// Label names must be string literals.
MetricPoint point(double value, std::initializer_list<std::pair<const char*, QString>> labels = {});

void addMemory(MetricFamilies& families, const ExportFigures& figures, CounterKeeper& counters);
void addLoad(MetricFamilies& families, const ExportFigures& figures);
void addNetwork(MetricFamilies& families, const ExportFigures& figures, CounterKeeper& counters);
void addDisk(MetricFamilies& families, const ExportFigures& figures, CounterKeeper& counters);
void addVolume(MetricFamilies& families, const ExportFigures& figures);
void addSensors(MetricFamilies& families, const ExportFigures& figures);

} // namespace MetricParts
