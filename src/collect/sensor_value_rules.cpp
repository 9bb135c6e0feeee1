// The byte-level rules of the sensor collectors, kept apart from any source.
#include "collect/sensor_value_rules.h"

#include "collect/smc_decoding.h"

#include <algorithm>

std::optional<std::int64_t> acceptedTemperature(int readResult, const SMCValue& value)
{
    if (readResult != 0 || value.dataSize == 0)
        return std::nullopt;
    const auto first = static_cast<std::int8_t>(value.bytes[0]);
    if (first < 0)
        return std::nullopt;
    const int raw = first * 256 + value.bytes[1];
    if (raw < 256)
        return std::nullopt;
    return (raw >> 2) / 64;
}

char fanIndexCharacter(int index)
{
    return static_cast<char>(index < 10 ? '0' + index : 'A' + (index - 10));
}

QString fanKey(int index, const char* suffix)
{
    return QLatin1Char('F') + QLatin1Char(fanIndexCharacter(index)) + QLatin1String(suffix);
}

std::uint32_t fanCount(const SMCValue& value)
{
    const std::uint32_t size = std::min<std::uint32_t>(value.dataSize, static_cast<std::uint32_t>(value.bytes.size()));
    return SMCBytesToUnsigned(value.bytes.data(), size, 10);
}

QString cleanedFanName(const SMCValue& value, int index)
{
    const std::uint32_t size = std::min<std::uint32_t>(value.dataSize, static_cast<std::uint32_t>(value.bytes.size()));
    QString name;
    for (std::uint32_t i = 0; i < size; ++i)
        if (static_cast<std::int8_t>(value.bytes[i]) >= 33)
            name += QLatin1Char(static_cast<char>(value.bytes[i]));
    if (name.isEmpty())
        name = QStringLiteral("(Untitled Fan #%1)").arg(index + 1);
    return name;
}
