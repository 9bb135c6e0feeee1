// Names every chip input uniquely and lastingly, for the sensor table.
#include "collect/linux/sensor_chip_names.h"

#include <QHash>

#include <algorithm>
#include <filesystem>

namespace {

bool isSmcKey(const std::string& text)
{
    return text.size() == 4 && std::all_of(text.begin(), text.end(), [](char c) { return c > ' ' && c < 0x7F; });
}

std::string deviceName(const SensorChip& chip)
{
    return chip.device.empty() ? chip.id : std::filesystem::path(chip.device).filename().string();
}

std::optional<int> wholeDegrees(const std::optional<std::int64_t>& millidegrees)
{
    return millidegrees ? std::optional(static_cast<int>(*millidegrees / 1000)) : std::nullopt;
}

struct Named {
    TempSensorEntry entry;
    QString qualified; // the name that tells it from others alike
};

Named nameInput(const SensorChip& chip, const SensorReading& reading)
{
    const QString chipName = QString::fromStdString(chip.name);
    const QString input = QString::fromStdString(reading.label.value_or(reading.key));
    const QString device = QString::fromStdString(deviceName(chip));
    Named named;
    named.entry.key = QString::fromStdString(temperatureKey(chip, reading));
    named.entry.group = chipName;
    named.entry.high = wholeDegrees(reading.high);
    named.entry.critical = wholeDegrees(reading.critical);
    if (chip.name == kThermalZoneChip) {
        const QString type = reading.label ? QString::fromStdString(*reading.label) : device;
        named.entry.name = type;
        named.qualified = device + u' ' + type;
    } else {
        named.entry.name = chipName + u' ' + input;
        named.qualified = device + u' ' + input;
    }
    return named;
}

} // namespace

std::string temperatureKey(const SensorChip& chip, const SensorReading& reading)
{
    if (chip.name == kAppleSmcChip && reading.label && isSmcKey(*reading.label))
        return *reading.label;
    return (chip.device.empty() ? "class/hwmon/" + chip.id : chip.device) + '/' + reading.key;
}

QList<TempSensorEntry> namedChipTemperatures(const std::vector<SensorChip>& chips)
{
    std::vector<Named> all;
    for (const SensorChip& chip : chips)
        for (const SensorReading& reading : chip.temperatures)
            all.push_back(nameInput(chip, reading));
    std::sort(all.begin(), all.end(), [](const Named& a, const Named& b) { return a.entry.key < b.entry.key; });
    QHash<QString, int> uses;
    for (const Named& n : all)
        ++uses[n.entry.name];
    for (Named& n : all)
        if (uses.value(n.entry.name) > 1)
            n.entry.name = n.qualified;
    QHash<QString, int> seen;
    QList<TempSensorEntry> result;
    for (Named& n : all) {
        const int count = ++seen[n.entry.name];
        if (count > 1)
            n.entry.name += QStringLiteral(" #%1").arg(count);
        result.append(std::move(n.entry));
    }
    return result;
}
