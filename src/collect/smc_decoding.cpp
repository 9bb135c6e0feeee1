// The SMC's byte layouts and number formats, as pure functions.
#include "collect/smc_decoding.h"

#include <cmath>
#include <cstring>

namespace {

std::int32_t asSigned(std::uint8_t byte)
{
    return static_cast<std::int8_t>(byte);
}

// Exactly the four characters and the terminating NUL: "flt" followed by anything but a blank
// is another type.
bool isType(const SMCValue& value, const char (&type)[5])
{
    return std::memcmp(value.dataType.data(), type, 5) == 0;
}

std::int64_t truncated(float value)
{
    return std::isfinite(value) ? static_cast<std::int64_t>(std::trunc(value)) : 0;
}

void putLittleEndian(std::uint8_t* at, std::uint32_t value)
{
    for (int i = 0; i < 4; ++i)
        at[i] = static_cast<std::uint8_t>(value >> (8 * i));
}

std::uint32_t takeLittleEndian(const std::uint8_t* at)
{
    std::uint32_t value = 0;
    for (int i = 3; i >= 0; --i)
        value = (value << 8) | at[i];
    return value;
}

// Field offsets in the driver's record.
constexpr std::size_t kKeyAt = 0;
constexpr std::size_t kDataSizeAt = 28;
constexpr std::size_t kDataTypeAt = 32;
constexpr std::size_t kResultAt = 40;
constexpr std::size_t kCommandAt = 42;
constexpr std::size_t kBytesAt = 48;

} // namespace

namespace Smc {

std::uint32_t keyFromText(std::string_view text)
{
    std::uint32_t key = 0;
    for (std::size_t i = 0; i < 4; ++i)
        key = (key << 8) | (i < text.size() ? static_cast<std::uint8_t>(text[i]) : 0U);
    return key;
}

std::string keyToText(std::uint32_t key)
{
    std::string text;
    for (int shift = 24; shift >= 0; shift -= 8)
        text += static_cast<char>((key >> shift) & 0xFFU);
    return text;
}

std::array<char, 5> fieldFromKey(std::uint32_t key)
{
    std::array<char, 5> field{};
    const std::string text = keyToText(key);
    std::memcpy(field.data(), text.data(), 4);
    return field;
}

std::array<std::uint8_t, kSmcCallRecordSize> encodeCallRecord(const SMCCallRecord& record)
{
    std::array<std::uint8_t, kSmcCallRecordSize> wire{};
    putLittleEndian(wire.data() + kKeyAt, record.key);
    putLittleEndian(wire.data() + kDataSizeAt, record.dataSize);
    putLittleEndian(wire.data() + kDataTypeAt, record.dataType);
    wire[kResultAt] = record.result;
    wire[kCommandAt] = record.command;
    std::memcpy(wire.data() + kBytesAt, record.bytes.data(), record.bytes.size());
    return wire;
}

SMCCallRecord decodeCallRecord(const std::array<std::uint8_t, kSmcCallRecordSize>& wire)
{
    SMCCallRecord record;
    record.key = takeLittleEndian(wire.data() + kKeyAt);
    record.dataSize = takeLittleEndian(wire.data() + kDataSizeAt);
    record.dataType = takeLittleEndian(wire.data() + kDataTypeAt);
    record.result = wire[kResultAt];
    record.command = wire[kCommandAt];
    std::memcpy(record.bytes.data(), wire.data() + kBytesAt, record.bytes.size());
    return record;
}

} // namespace Smc

std::uint32_t SMCBytesToUnsigned(const std::uint8_t* bytes, std::uint32_t count, int base)
{
    std::uint32_t total = 0;
    for (std::uint32_t i = 0; i < count; ++i) {
        const std::uint32_t shift = 8 * (count - 1 - i);
        if (shift >= 32)
            continue; // moved out of the 32 bits altogether
        // Sign-extended, then moved to its place; the multiplication keeps the shift defined.
        const auto term = static_cast<std::uint32_t>(asSigned(bytes[i])) * (1U << shift);
        total += base == 16 ? term : (term & 0xFFU);
    }
    return total;
}

float SMCBytesToFixed(const std::uint8_t* bytes, std::uint32_t count, int fractionBits)
{
    if (count == 0)
        return 0.0f;
    float total = 0.0f;
    for (std::uint32_t i = 0; i + 1 < count; ++i)
        total += static_cast<float>(asSigned(bytes[i])) *
                 std::ldexp(1.0f, (8 - fractionBits) * static_cast<int>(count - 1 - i));
    total += static_cast<float>(bytes[count - 1] >> fractionBits);
    return total;
}

std::int64_t convertToNumber(const SMCValue& value)
{
    const std::uint8_t* b = value.bytes.data();
    if (isType(value, "flt ") && value.dataSize == 4) {
        float number = 0;
        std::memcpy(&number, b, sizeof number);
        return truncated(number);
    }
    if (isType(value, "fpe2") && value.dataSize == 2)
        return truncated(SMCBytesToFixed(b, 2, 2));
    if (isType(value, "ui16") && value.dataSize == 2)
        return truncated(static_cast<float>(SMCBytesToUnsigned(b, 2, 10)));
    if (isType(value, "ui8 ") && value.dataSize == 1)
        return truncated(static_cast<float>(asSigned(b[0])));
    if (isType(value, "sp78") && value.dataSize == 2) {
        // Both bytes count signed; the arithmetic shift keeps the sign.
        const std::int32_t raw = asSigned(b[0]) * 256 + asSigned(b[1]);
        return truncated(static_cast<float>(raw >> 2) / 64.0f);
    }
    return 0;
}
