// Builds a full set of figures by hand, as the cycle would leave them.
#include "export_test_figures.h"

#include "collect/cpu_sample.h"
#include "collect/disk_sample.h"
#include "collect/network_sample.h"
#include "collect/sensor_dat.h"

namespace {

template <class Sample> void put(ExportFigures& figures, ModuleId id, std::vector<Sample> samples)
{
    figures.info.setHistory(moduleIndex(id), History<Sample>::fromSamples(std::move(samples)));
}

} // namespace

ExportFigures fullTestFigures()
{
    ExportFigures f;
    f.switchedOn.fill(true);
    f.pageSize = 4096;
    f.ticksPerSecond = 100;
    put<CpuSample>(f, ModuleId::Cpu, {{{50, 20, 0, 30}, {10, 10, 5, 75}, {30, 15, 3, 52}}});
    put<MemorySample>(f, ModuleId::Memory, {{100, 200, 300, 400, 10, 20, -1, 0, 150, 250}});
    put<NetworkSample>(f, ModuleId::Network, {{1000, 2000, 2, {}}, {3000, 2600, 2, {{"eth0", 7, 9}}}});
    DiskSample before{{{QStringLiteral("/dev/sda"), {1000, 2000}}}, 1};
    DiskSample after{{{QStringLiteral("/dev/sda"), {5096, 2000}}, {QStringLiteral("/dev/nvme0n1"), {1, 2}}}, 1};
    put<DiskSample>(f, ModuleId::Disk, {before, after});
    VolumeSample volumes;
    volumes.volumes.insert({QStringLiteral("/media/My \"Disk\""), {1000, 600, 400, QStringLiteral("Mein\\Laufwerk")}});
    volumes.volumes.insert({QStringLiteral("/"), {2000, 1000, 1000, QStringLiteral("系统")}});
    put<VolumeSample>(f, ModuleId::Volume, {volumes});
    SensorSample temps;
    temps.values.insert(QStringLiteral("Core 0"), 45);
    temps.values.insert(QStringLiteral("Odd\nname"), -3);
    temps.average = 21;
    put<SensorSample>(f, ModuleId::Temp, {temps});
    SensorSample fans;
    fans.values.insert(QStringLiteral("CPU Fan"), 1200);
    fans.average = 1200;
    put<SensorSample>(f, ModuleId::Fan, {fans});
    f.extras.loads = LoadAverages{0.5, 0.25, 0.125};
    f.extras.swap = SwapUsage{8192, 4096, 4096};
    f.extras.memory = MemoryTotals{2000, 1500};
    f.extras.interfaces = std::vector<InterfaceCounters>{{"lo", 500, 5, 500, 5}, {"eth0", 10000, 70, 2000, 30}};
    return f;
}
