// Keeps the exported counters across cycles and makes each cycle's set of metric families.
#pragma once

#include "collect/cpu_sample.h"
#include "collect/history.h"
#include "export/counter_keeper.h"
#include "export/export_figures.h"
#include "export/metric_family.h"

// Lives on the main thread: fed once per finished cycle, it never reads a file itself.
class MetricsBuilder {
public:
    SharedMetricFamilies update(const ExportFigures& figures);

private:
    // The CPU history holds tick differences: each new sample is added to the per-processor sums.
    void addCpu(MetricFamilies& families, const ExportFigures& figures);

    CounterKeeper counters_;
    // The CPU history last added, held so a new one is told from it by identity.
    History<CpuSample> lastCpu_;
};
