// Encoding of the SMC's keys and call records, and the decoding of its values into numbers.
#pragma once

#include "collect/smc_value.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace Smc {

// The first four characters, big-endian: the first in the top byte. Short texts pad with NUL.
std::uint32_t keyFromText(std::string_view text);
// The four bytes from the top down, as characters.
std::string keyToText(std::uint32_t key);
// A value record's four-character field (key or type) from its integer form.
std::array<char, 5> fieldFromKey(std::uint32_t key);

// The 80 bytes the driver exchanges, little-endian, with every unused field zero.
std::array<std::uint8_t, kSmcCallRecordSize> encodeCallRecord(const SMCCallRecord& record);
SMCCallRecord decodeCallRecord(const std::array<std::uint8_t, kSmcCallRecordSize>& wire);

} // namespace Smc

// Each byte as a signed 8-bit number shifted to its place; with base 16 the terms are added
// whole, with any other base only their low 8 bits, so a decimal read is its last byte alone.
std::uint32_t SMCBytesToUnsigned(const std::uint8_t* bytes, std::uint32_t count, int base);

// Every byte but the last, signed, shifted left by (8 - fractionBits) per place; the last,
// unsigned, shifted right by fractionBits; summed in single precision.
float SMCBytesToFixed(const std::uint8_t* bytes, std::uint32_t count, int fractionBits);

// The value as a whole number by its data type ("flt ", "fpe2", "ui16", "ui8 ", "sp78"), each
// with its own size; any other type or size gives 0. Always passes through single precision.
std::int64_t convertToNumber(const SMCValue& value);
