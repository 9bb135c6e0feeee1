// The exported families of one cycle, the CPU's counters summed from its tick differences.
#include "export/metrics_builder.h"

#include "export/metric_builder_parts.h"

namespace {

const char* const kCpuModes[] = {"user", "system", "nice", "idle"};

QString cpuLabel(std::size_t index, std::size_t records)
{
    // The last record is the machine's, averaged over the processors.
    return index + 1 == records ? QStringLiteral("all") : QString::number(index);
}

} // namespace

using namespace MetricParts;

SharedMetricFamilies MetricsBuilder::update(const ExportFigures& figures)
{
    auto families = std::make_shared<MetricFamilies>();
    addCpu(*families, figures);
    addLoad(*families, figures);
    addMemory(*families, figures, counters_);
    addNetwork(*families, figures, counters_);
    addDisk(*families, figures, counters_);
    addVolume(*families, figures);
    addSensors(*families, figures);
    return families;
}

void MetricsBuilder::addCpu(MetricFamilies& families, const ExportFigures& figures)
{
    if (!figures.switchedOn[moduleIndex(ModuleId::Cpu)])
        return;
    const History<CpuSample> history = figures.info.history<CpuSample>(moduleIndex(ModuleId::Cpu));
    if (history.empty())
        return;
    const CpuSample& newest = history.back();
    const bool fresh = history.identity() != lastCpu_.identity();
    lastCpu_ = history;
    const double ticksPerSecond = figures.ticksPerSecond > 0 ? figures.ticksPerSecond : 100;
    MetricFamily& seconds = newFamily(families, "tarvel_cpu_seconds", MetricType::Counter, "seconds",
                                      "Seconds each processor spent in each state since the export started.");
    for (std::size_t cpu = 0; cpu + 1 < newest.size(); ++cpu) {
        for (std::size_t mode = 0; mode < 4; ++mode) {
            const QByteArray key = "cpu/" + QByteArray::number(qulonglong(cpu)) + '/' + kCpuModes[mode];
            const double sum = counters_.add(key, fresh ? static_cast<double>(newest[cpu][mode]) / ticksPerSecond : 0);
            seconds.points.push_back(point(sum, {{"cpu", QString::number(cpu)}, {"mode", kCpuModes[mode]}}));
        }
    }
    MetricFamily& usage = newFamily(families, "tarvel_cpu_usage_ratio", MetricType::Gauge, "ratio",
                                    "Share of the newest sample's ticks in each state, as the CPU menu shows it.");
    for (std::size_t cpu = 0; cpu < newest.size(); ++cpu) {
        const CpuRecord& record = newest[cpu];
        const double all = static_cast<double>(record[0] + record[1] + record[2] + record[3]);
        for (std::size_t mode = 0; mode < 4; ++mode) {
            const double share = all > 0 ? static_cast<double>(record[mode]) / all : 0;
            usage.points.push_back(point(share, {{"cpu", cpuLabel(cpu, newest.size())}, {"mode", kCpuModes[mode]}}));
        }
    }
}
