// The disk, volume and sensor parts of the exported figures.
#include "export/metric_builder_parts.h"

#include "collect/disk_sample.h"
#include "collect/sensor_dat.h"

namespace MetricParts {

namespace {

template <class Sample> History<Sample> historyOf(const ExportFigures& figures, ModuleId id)
{
    return figures.switchedOn[moduleIndex(id)] ? figures.info.history<Sample>(moduleIndex(id)) : History<Sample>();
}

QString deviceLabel(const QString& path)
{
    return path.startsWith(QLatin1String("/dev/")) ? path.mid(5) : path;
}

void addDiskRates(MetricFamilies& families, const History<DiskSample>& history)
{
    const DiskSample& newest = history.back();
    if (history.size() < 2 || newest.interval <= 0)
        return;
    const DiskSample& before = history[history.size() - 2];
    const char* const names[] = {"tarvel_disk_read_bytes_per_second", "tarvel_disk_write_bytes_per_second"};
    const char* const helps[] = {"Bytes read per second, as the Disk menu shows it.",
                                 "Bytes written per second, as the Disk menu shows it."};
    for (std::size_t kind = 0; kind < 2; ++kind) {
        MetricFamily& family = newFamily(families, names[kind], MetricType::Gauge, "bytes_per_second", helps[kind]);
        for (const auto& [device, figures] : newest.devices) {
            const auto it = before.devices.find(device);
            if (it == before.devices.end() || figures[kind] < it->second[kind])
                continue;
            family.points.push_back(point(static_cast<double>(figures[kind] - it->second[kind]) / newest.interval,
                                          {{"device", deviceLabel(device)}}));
        }
    }
}

void addSensorFamily(MetricFamilies& families, const SensorSample& sample, const char* name, const char* unit,
                     const char* label, const char* help, const char* averageName, const char* averageHelp)
{
    MetricFamily& family = newFamily(families, name, MetricType::Gauge, unit, help);
    for (auto it = sample.values.cbegin(); it != sample.values.cend(); ++it) {
        if (!it.key().startsWith(QLatin1String("__")))
            family.points.push_back(point(static_cast<double>(it.value()), {{label, it.key()}}));
    }
    if (sample.average)
        newFamily(families, averageName, MetricType::Gauge, unit, averageHelp)
            .points.push_back(point(static_cast<double>(*sample.average)));
}

} // namespace

void addDisk(MetricFamilies& families, const ExportFigures& figures, CounterKeeper& counters)
{
    const History<DiskSample> history = historyOf<DiskSample>(figures, ModuleId::Disk);
    if (history.empty())
        return;
    const char* const names[] = {"tarvel_disk_read_bytes", "tarvel_disk_written_bytes"};
    const char* const helps[] = {"Bytes read from the device.", "Bytes written to the device."};
    for (std::size_t kind = 0; kind < 2; ++kind) {
        MetricFamily& family = newFamily(families, names[kind], MetricType::Counter, "bytes", helps[kind]);
        for (const auto& [device, transfer] : history.back().devices) {
            const QByteArray key = QByteArray(names[kind]) + '/' + device.toUtf8();
            family.points.push_back(point(counters.observe(key, transfer[kind]), {{"device", deviceLabel(device)}}));
        }
    }
    addDiskRates(families, history);
}

void addVolume(MetricFamilies& families, const ExportFigures& figures)
{
    const History<VolumeSample> history = historyOf<VolumeSample>(figures, ModuleId::Volume);
    if (history.empty())
        return;
    const struct {
        const char* name;
        const char* help;
        std::int64_t VolumeUsage::*field;
    } kinds[] = {{"tarvel_volume_size_bytes", "Size of the volume.", &VolumeUsage::total},
                 {"tarvel_volume_used_bytes", "Space in use on the volume.", &VolumeUsage::used},
                 {"tarvel_volume_free_bytes", "Space an ordinary user may still write.", &VolumeUsage::free}};
    for (const auto& kind : kinds) {
        MetricFamily& family = newFamily(families, kind.name, MetricType::Gauge, "bytes", kind.help);
        for (const auto& [mountPoint, usage] : history.back().volumes) {
            if (usage.total > 0)
                family.points.push_back(
                    point(static_cast<double>(usage.*kind.field), {{"mountpoint", mountPoint}, {"name", usage.name}}));
        }
    }
}

void addSensors(MetricFamilies& families, const ExportFigures& figures)
{
    if (const auto temps = historyOf<SensorSample>(figures, ModuleId::Temp); !temps.empty())
        addSensorFamily(families, temps.back(), "tarvel_temperature_celsius", "celsius", "sensor",
                        "Temperature of each sensor.", "tarvel_temperature_average_celsius",
                        "Average of the sensors' valid readings.");
    if (const auto fans = historyOf<SensorSample>(figures, ModuleId::Fan); !fans.empty())
        addSensorFamily(families, fans.back(), "tarvel_fan_speed_rpm", "rpm", "fan", "Speed of each fan.",
                        "tarvel_fan_speed_average_rpm", "Average of the fans' valid readings.");
}

} // namespace MetricParts
