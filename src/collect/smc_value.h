// A System Management Controller key's value as a read returns it, and the record the driver exchanges.
#pragma once

#include <array>
#include <cstdint>

// What one read of a key gives: zero-filled before every read, so a key that does not exist
// reads as size 0 and decodes to 0.
struct SMCValue {
    std::array<char, 5> key{};            // four characters and a NUL
    std::uint32_t dataSize = 0;           // valid bytes; 0 when nothing was read
    std::array<char, 5> dataType{};       // four characters ("sp78", "flt ", ...) and a NUL
    std::array<std::uint8_t, 32> bytes{}; // most significant byte first
};

// The structure the driver takes and gives back, in the fields this system uses; on the wire it
// is 80 bytes, little-endian (see encodeCallRecord).
struct SMCCallRecord {
    std::uint32_t key = 0;
    std::uint32_t dataSize = 0;
    std::uint32_t dataType = 0;
    std::uint8_t result = 0;
    std::uint8_t command = 0; // kSmcReadKeyInfo or kSmcReadBytes
    std::array<std::uint8_t, 32> bytes{};
};

inline constexpr std::uint8_t kSmcReadKeyInfo = 9;
inline constexpr std::uint8_t kSmcReadBytes = 5;
inline constexpr std::size_t kSmcCallRecordSize = 80;
