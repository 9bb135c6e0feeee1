// The memory, load and network parts of the exported figures, and the helpers every part uses.
#include "export/metric_builder_parts.h"

#include <cstring>

#include "collect/network_sample.h"

namespace MetricParts {

MetricFamily& newFamily(MetricFamilies& families, const char* name, MetricType type, const char* unit, const char* help)
{
    families.push_back({name, type, unit, help, {}});
    return families.back();
}

MetricPoint point(double value, std::initializer_list<std::pair<const char*, QString>> labels)
{
    MetricPoint p;
    p.value = value;
    p.labels.reserve(labels.size());
    // Label names are literals that outlive every scrape: they are referred to, not copied.
    for (const auto& [name, text] : labels)
        p.labels.emplace_back(QByteArray::fromRawData(name, static_cast<qsizetype>(std::strlen(name))), text.toUtf8());
    return p;
}

namespace {

bool on(const ExportFigures& figures, ModuleId id)
{
    return figures.switchedOn[moduleIndex(id)];
}

template <class Sample> History<Sample> historyOf(const ExportFigures& figures, ModuleId id)
{
    return on(figures, id) ? figures.info.history<Sample>(moduleIndex(id)) : History<Sample>();
}

void addGauge(MetricFamilies& families, const char* name, const char* unit, const char* help, double value)
{
    newFamily(families, name, MetricType::Gauge, unit, help).points.push_back(point(value));
}

const char* const kMemoryKinds[] = {"wired", "active",      "inactive",   "free",        nullptr,
                                    nullptr, "speculative", "compressor", "application", "cached"};

// Bytes paged in or out since boot: shown only while the Memory menu is open, -1 otherwise.
void addPaging(MetricFamilies& families, const MemorySample& sample, double pageSize, CounterKeeper& counters)
{
    const struct {
        MemoryFigure figure;
        const char* name;
        const char* help;
    } paging[] = {{MemoryPageIns, "tarvel_memory_paged_in_bytes", "Bytes paged in since boot."},
                  {MemoryPageOuts, "tarvel_memory_paged_out_bytes", "Bytes paged out since boot."}};
    for (const auto& p : paging) {
        if (sample[p.figure] < 0)
            continue;
        const double pages = counters.observe(p.name, static_cast<std::uint64_t>(sample[p.figure]));
        newFamily(families, p.name, MetricType::Counter, "bytes", p.help).points.push_back(point(pages * pageSize));
    }
}

} // namespace

void addMemory(MetricFamilies& families, const ExportFigures& figures, CounterKeeper& counters)
{
    if (!on(figures, ModuleId::Memory))
        return;
    const History<MemorySample> history = historyOf<MemorySample>(figures, ModuleId::Memory);
    if (!history.empty()) {
        const MemorySample& sample = history.back();
        MetricFamily& memory = newFamily(families, "tarvel_memory_bytes", MetricType::Gauge, "bytes",
                                         "Memory by kind, as the Memory menu divides it.");
        for (std::size_t i = 0; i < sample.size(); ++i) {
            if (kMemoryKinds[i] != nullptr && sample[i] >= 0)
                memory.points.push_back(
                    point(static_cast<double>(sample[i]) * figures.pageSize, {{"kind", kMemoryKinds[i]}}));
        }
        addPaging(families, sample, figures.pageSize, counters);
    }
    if (const auto& totals = figures.extras.memory) {
        addGauge(families, "tarvel_memory_size_bytes", "bytes", "Memory the kernel manages.",
                 static_cast<double>(totals->totalPages) * figures.pageSize);
        addGauge(families, "tarvel_memory_available_bytes", "bytes", "Memory that can be had without swapping.",
                 static_cast<double>(totals->availablePages) * figures.pageSize);
    }
    if (const auto& swap = figures.extras.swap) {
        addGauge(families, "tarvel_swap_size_bytes", "bytes", "Swap space over every swap area.",
                 static_cast<double>(swap->total));
        addGauge(families, "tarvel_swap_used_bytes", "bytes", "Swap space in use.", static_cast<double>(swap->used));
        addGauge(families, "tarvel_swap_available_bytes", "bytes", "Swap space still free.",
                 static_cast<double>(swap->available));
    }
}

void addLoad(MetricFamilies& families, const ExportFigures& figures)
{
    const auto& loads = figures.extras.loads;
    if (!loads || !on(figures, ModuleId::Cpu))
        return;
    addGauge(families, "tarvel_load1", "", "Load average over one minute.", loads->one);
    addGauge(families, "tarvel_load5", "", "Load average over five minutes.", loads->five);
    addGauge(families, "tarvel_load15", "", "Load average over fifteen minutes.", loads->fifteen);
}

void addNetwork(MetricFamilies& families, const ExportFigures& figures, CounterKeeper& counters)
{
    if (!on(figures, ModuleId::Network))
        return;
    if (const auto& interfaces = figures.extras.interfaces) {
        const struct {
            const char* name;
            const char* unit;
            const char* help;
            std::uint64_t InterfaceCounters::*field;
        } kinds[] = {
            {"tarvel_network_receive_bytes", "bytes", "Bytes received by the interface.",
             &InterfaceCounters::receivedBytes},
            {"tarvel_network_transmit_bytes", "bytes", "Bytes sent by the interface.", &InterfaceCounters::sentBytes},
            {"tarvel_network_receive_packets", "", "Packets received by the interface.",
             &InterfaceCounters::receivedPackets},
            {"tarvel_network_transmit_packets", "", "Packets sent by the interface.", &InterfaceCounters::sentPackets},
        };
        for (const auto& kind : kinds) {
            MetricFamily& family = newFamily(families, kind.name, MetricType::Counter, kind.unit, kind.help);
            for (const InterfaceCounters& i : *interfaces) {
                const QByteArray key = QByteArray(kind.name) + '/' + QByteArray::fromStdString(i.name);
                family.points.push_back(
                    point(counters.observe(key, i.*kind.field), {{"interface", QString::fromStdString(i.name)}}));
            }
        }
    }
    const History<NetworkSample> history = historyOf<NetworkSample>(figures, ModuleId::Network);
    if (history.size() < 2 || history.back().interval <= 0)
        return;
    // The menu's rates: the newest sample's growth over the seconds it covers.
    const NetworkSample& newest = history.back();
    const NetworkSample& before = history[history.size() - 2];
    const auto rate = [&](std::int64_t now, std::int64_t then) {
        return now >= then ? static_cast<double>(now - then) / newest.interval : 0.0;
    };
    addGauge(families, "tarvel_network_upload_bytes_per_second", "bytes_per_second",
             "Bytes sent per second over every interface, as the Network menu shows it.",
             rate(newest.toUp, before.toUp));
    addGauge(families, "tarvel_network_download_bytes_per_second", "bytes_per_second",
             "Bytes received per second over every interface, as the Network menu shows it.",
             rate(newest.toDw, before.toDw));
}

} // namespace MetricParts
