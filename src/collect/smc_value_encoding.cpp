// Encodes readings into SMC value records the decoders read back unchanged.
#include "collect/smc_value_encoding.h"

#include <algorithm>
#include <cstring>

namespace {
void setType(SMCValue& value, std::string_view type)
{
    std::memcpy(value.dataType.data(), type.data(), std::min<std::size_t>(type.size(), 4));
}

void putBigEndian16(SMCValue& value, std::uint16_t number)
{
    value.bytes[0] = static_cast<std::uint8_t>(number >> 8);
    value.bytes[1] = static_cast<std::uint8_t>(number & 0xFFU);
    value.dataSize = 2;
}

// Floor division, also for negative readings.
std::int64_t floorDiv(std::int64_t a, std::int64_t b)
{
    const std::int64_t q = a / b;
    return (a % b != 0 && (a < 0) != (b < 0)) ? q - 1 : q;
}
} // namespace

SMCValue emptySmcValue(std::string_view key)
{
    SMCValue value;
    std::memcpy(value.key.data(), key.data(), std::min<std::size_t>(key.size(), 4));
    return value;
}

SMCValue sp78Value(std::string_view key, std::int64_t millidegrees)
{
    SMCValue value = emptySmcValue(key);
    setType(value, "sp78");
    // Divided before multiplying, so no reading can overflow.
    const std::int64_t raw = floorDiv(millidegrees, 1000) * 256 + floorDiv((millidegrees % 1000 + 1000) % 1000 * 256, 1000);
    putBigEndian16(value, static_cast<std::uint16_t>(std::clamp<std::int64_t>(raw, -32768, 32767)));
    return value;
}

SMCValue fanSpeedValue(std::string_view key, std::int64_t rpm)
{
    SMCValue value = emptySmcValue(key);
    rpm = std::max<std::int64_t>(rpm, 0);
    if (rpm <= 0x7FFF / 4) {
        setType(value, "fpe2");
        putBigEndian16(value, static_cast<std::uint16_t>(rpm * 4));
        return value;
    }
    setType(value, "flt ");
    const auto number = static_cast<float>(rpm);
    std::memcpy(value.bytes.data(), &number, sizeof number);
    value.dataSize = sizeof number;
    return value;
}

SMCValue ui8Value(std::string_view key, std::uint64_t number)
{
    SMCValue value = emptySmcValue(key);
    setType(value, "ui8 ");
    value.bytes[0] = static_cast<std::uint8_t>(std::min<std::uint64_t>(number, 255));
    value.dataSize = 1;
    return value;
}

SMCValue textValue(std::string_view key, std::string_view text, std::string_view type)
{
    SMCValue value = emptySmcValue(key);
    setType(value, type);
    const std::size_t size = std::min(text.size(), value.bytes.size());
    std::memcpy(value.bytes.data(), text.data(), size);
    value.dataSize = static_cast<std::uint32_t>(size);
    return value;
}
