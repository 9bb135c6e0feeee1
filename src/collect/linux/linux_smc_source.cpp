// Answers SMC key reads from the hwmon chips' kept-open input files.
#include "collect/linux/linux_smc_source.h"

#include "collect/linux/sensor_chip_names.h"
#include "collect/smc_value_encoding.h"

#include <algorithm>
#include <charconv>

namespace {
// The number of an input key such as "fan12"; 0 for anything else.
int inputNumber(const std::string& key)
{
    const auto digits = std::find_if(key.begin(), key.end(), [](char c) { return c >= '0' && c <= '9'; });
    int number = 0;
    std::from_chars(key.data() + (digits - key.begin()), key.data() + key.size(), number);
    return number;
}

// The fan index of a key "F<c>xx" ("0"-"9", "A"-"Z"); none for any other key.
std::optional<std::size_t> fanIndex(std::string_view key)
{
    const char c = key[1];
    if (c >= '0' && c <= '9')
        return static_cast<std::size_t>(c - '0');
    if (c >= 'A' && c <= 'Z')
        return static_cast<std::size_t>(c - 'A' + 10);
    return std::nullopt;
}

bool isFanKey(std::string_view key)
{
    if (key == "FNum")
        return true;
    const std::string_view field = key.size() == 4 ? key.substr(2) : std::string_view();
    return key.starts_with('F') && (field == "ID" || field == "Ac" || field == "Mn" || field == "Mx");
}
} // namespace

LinuxSmcSource::LinuxSmcSource(std::shared_ptr<SensorSource> sensors)
    : sensors_(std::move(sensors))
{}

bool LinuxSmcSource::open()
{
    close();
    if (sensors_)
        chips_ = sensors_->readSensors(SensorKinds::None);
    return !chips_.empty();
}

void LinuxSmcSource::close()
{
    chips_.clear();
    temperatureChips_.reset();
    temperatures_.reset();
    fanChips_.reset();
}

bool LinuxSmcSource::servesSmcKeys()
{
    return std::any_of(chips_.begin(), chips_.end(), [](const SensorChip& c) { return c.name == kAppleSmcChip; });
}

QList<TempSensorEntry> LinuxSmcSource::namedTemperatures()
{
    return namedChipTemperatures(temperatureChips());
}

int LinuxSmcSource::readValue(std::string_view key, SMCValue& value)
{
    value = emptySmcValue(key);
    if (chips_.empty())
        return kSmcKeyNotFound;
    return isFanKey(key) ? readFan(key, value) : readTemperature(key, value);
}

const std::vector<SensorChip>& LinuxSmcSource::temperatureChips()
{
    if (!temperatureChips_)
        temperatureChips_ = chips_.empty() ? std::vector<SensorChip>() : sensors_->readSensors(SensorKinds::Temperatures);
    return *temperatureChips_;
}

const std::vector<SensorChip>& LinuxSmcSource::fanChips()
{
    if (!fanChips_)
        fanChips_ = chips_.empty() ? std::vector<SensorChip>() : sensors_->readSensors(SensorKinds::Fans);
    return *fanChips_;
}

int LinuxSmcSource::readTemperature(std::string_view key, SMCValue& value)
{
    if (!temperatures_) {
        temperatures_.emplace();
        for (const SensorChip& chip : temperatureChips())
            for (const SensorReading& reading : chip.temperatures)
                temperatures_->emplace(temperatureKey(chip, reading), reading.value);
    }
    const auto found = temperatures_->find(key);
    if (found == temperatures_->end())
        return kSmcKeyNotFound;
    value = sp78Value(key, found->second);
    return 0;
}

int LinuxSmcSource::readFan(std::string_view key, SMCValue& value)
{
    if (!fans_) {
        fans_.emplace();
        for (const SensorChip& chip : fanChips())
            for (const SensorReading& fan : chip.fans)
                fans_->push_back({chip.device, fan.key, fan.label, fan.low, fan.high});
        std::stable_sort(fans_->begin(), fans_->end(), [](const FanSlot& a, const FanSlot& b) {
            return a.device != b.device ? a.device < b.device : inputNumber(a.key) < inputNumber(b.key);
        });
    }
    if (key == "FNum") {
        value = ui8Value(key, fans_->size());
        return 0;
    }
    const auto index = fanIndex(key);
    if (!index || *index >= fans_->size())
        return kSmcKeyNotFound;
    const FanSlot& slot = (*fans_)[*index];
    const std::string_view field = key.substr(2);
    if (field == "ID") {
        value = textValue(key, slot.label.value_or(""));
    } else if (field == "Ac") {
        // A speed that cannot be read now gives size 0, which reads as 0 rpm.
        if (const auto rpm = fanSpeed(slot))
            value = fanSpeedValue(key, *rpm);
    } else {
        const auto& limit = field == "Mn" ? slot.minimum : slot.maximum;
        if (limit)
            value = fanSpeedValue(key, *limit);
    }
    return 0;
}

std::optional<std::int64_t> LinuxSmcSource::fanSpeed(const FanSlot& slot)
{
    for (const SensorChip& chip : fanChips()) {
        if (chip.device != slot.device)
            continue;
        for (const SensorReading& fan : chip.fans)
            if (fan.key == slot.key)
                return fan.value;
    }
    return std::nullopt;
}
