// Finds the hwmon inputs once, then reads each from its kept-open file on every sample.
#include "collect/linux/linux_sensor_source.h"

#include "collect/linux/directory_names.h"
#include "collect/linux/sysfs_attribute.h"
#include "collect/linux/text_fields.h"

#include <algorithm>

namespace {
// "temp3_input" with prefix "temp" gives "temp3"; anything else gives an empty key.
std::string inputKey(std::string_view file, std::string_view prefix)
{
    constexpr std::string_view suffix = "_input";
    if (!file.starts_with(prefix) || !file.ends_with(suffix))
        return {};
    const std::string_view number = file.substr(prefix.size(), file.size() - prefix.size() - suffix.size());
    if (number.empty() || !std::all_of(number.begin(), number.end(), [](char c) { return c >= '0' && c <= '9'; }))
        return {};
    return std::string(file.substr(0, file.size() - suffix.size()));
}

bool hasInputs(const std::vector<std::string>& names)
{
    return std::any_of(names.begin(), names.end(), [](const std::string& name) {
        return !inputKey(name, "temp").empty() || !inputKey(name, "fan").empty();
    });
}

// The input's label and the driver's marks, which do not change while it runs.
SensorReading fixedPart(const std::filesystem::path& dir, const std::string& key, bool fan)
{
    SensorReading r;
    r.key = key;
    r.label = readAttributeText(dir / (key + "_label"));
    if (fan) {
        r.low = readAttributeInteger(dir / (key + "_min"));
        r.high = readAttributeInteger(dir / (key + "_max"));
    } else {
        r.high = readAttributeInteger(dir / (key + "_max"));
        r.critical = readAttributeInteger(dir / (key + "_crit"));
    }
    return r;
}

} // namespace

LinuxSensorSource::LinuxSensorSource(const SysRoot& root, std::function<bool()> devicesChanged)
    : root_(root), devicesChanged_(std::move(devicesChanged))
{}

std::vector<SensorChip> LinuxSensorSource::readSensors(SensorKinds kinds)
{
    const std::lock_guard guard(lock_);
    // Asked every time, so that the announcements do not pile up before the first read.
    const bool changed = devicesChanged_ && devicesChanged_();
    if (!discovered_ || changed) {
        chips_.clear();
        discover();
    }
    std::vector<SensorChip> result;
    result.reserve(chips_.size());
    const auto readInputs = [](std::vector<Input>& inputs, std::vector<SensorReading>& readings) {
        for (Input& input : inputs) {
            const auto text = input.file.read();
            if (!text)
                continue;
            if (const auto value = parseNumber<std::int64_t>(trimSpace(*text))) {
                readings.push_back(input.fixed);
                readings.back().value = *value;
            }
        }
    };
    for (Chip& chip : chips_) {
        SensorChip reading{chip.id, chip.device, chip.name, {}, {}};
        if (includes(kinds, SensorKinds::Temperatures))
            readInputs(chip.temperatures, reading.temperatures);
        if (includes(kinds, SensorKinds::Fans))
            readInputs(chip.fans, reading.fans);
        result.push_back(std::move(reading));
    }
    return result;
}

void LinuxSensorSource::discover()
{
    discovered_ = true;
    discoverHwmon();
    const bool hwmonTemperatures =
        std::any_of(chips_.begin(), chips_.end(), [](const Chip& c) { return !c.temperatures.empty(); });
    if (!hwmonTemperatures)
        discoverThermalZones();
}

std::string LinuxSensorSource::devicePath(const std::filesystem::path& node) const
{
    std::error_code error;
    const std::filesystem::path sys = std::filesystem::canonical(root_.join("sys"), error);
    if (error)
        return {};
    std::filesystem::path target = std::filesystem::canonical(node / "device", error);
    if (error)
        target = std::filesystem::canonical(node, error);
    if (error)
        return {};
    const std::filesystem::path relative = target.lexically_relative(sys);
    return relative.empty() || *relative.begin() == ".." ? std::string() : relative.generic_string();
}

void LinuxSensorSource::discoverHwmon()
{
    const std::filesystem::path hwmon = root_.join("sys/class/hwmon");
    const auto entries = directoryNames(hwmon);
    if (!entries)
        return;
    for (const std::string& id : *entries) {
        const std::filesystem::path base = hwmon / id;
        auto names = directoryNames(base);
        if (!names)
            continue;
        // Older drivers keep their attributes on the parent device rather than on the hwmon node.
        std::filesystem::path dir = base;
        if (!hasInputs(*names)) {
            names = directoryNames(base / "device");
            if (!names || !hasInputs(*names))
                continue;
            dir = base / "device";
        }
        Chip chip;
        chip.id = id;
        chip.device = devicePath(base);
        chip.name = readAttributeText(base / "name").value_or(readAttributeText(dir / "name").value_or(""));
        if (chip.name.empty())
            chip.name = chip.device.empty() ? id : std::filesystem::path(chip.device).filename().string();
        for (const std::string& name : *names) {
            if (std::string key = inputKey(name, "temp"); !key.empty())
                chip.temperatures.push_back({fixedPart(dir, key, false), ProcFile(dir / name)});
            else if (key = inputKey(name, "fan"); !key.empty())
                chip.fans.push_back({fixedPart(dir, key, true), ProcFile(dir / name)});
        }
        chips_.push_back(std::move(chip));
    }
}

void LinuxSensorSource::discoverThermalZones()
{
    const std::filesystem::path thermal = root_.join("sys/class/thermal");
    const auto entries = directoryNames(thermal);
    if (!entries)
        return;
    for (const std::string& id : *entries) {
        if (!id.starts_with("thermal_zone"))
            continue;
        const std::filesystem::path zone = thermal / id;
        SensorReading fixed;
        fixed.key = "temp";
        fixed.label = readAttributeText(zone / "type");
        Chip chip{id, devicePath(zone), "thermal", {}, {}};
        chip.temperatures.push_back({std::move(fixed), ProcFile(zone / "temp")});
        chips_.push_back(std::move(chip));
    }
}
