// The ATA identify and SMART data pages a drive reports about itself, read as pure functions.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string>

inline constexpr std::size_t kAtaPageSize = 512;
using AtaPage = std::array<std::uint8_t, kAtaPageSize>;

// The pages a drive gave; each absent when it could not be had.
struct AtaPages {
    std::optional<AtaPage> identify;
    std::optional<AtaPage> smartData;
};

// The identify page is to be used only when it carries its signature (0xA5 in byte 510), its 512
// bytes add up to 0 modulo 256, and it says the drive has the SMART feature set (bit 0 of byte
// 164).
bool ataIdentifyValid(const AtaPage& identify);

// The model: the 40 bytes from offset 54, each 16-bit word byte-swapped, up to the first NUL;
// not trimmed, so the drive's padding blanks stay.
std::string ataModelName(const AtaPage& identify);

// A SMART data page is whole when its bytes add up to 0 modulo 256 (its last byte is the check).
bool ataSmartDataValid(const AtaPage& smartData);

// The temperature from the 30 attribute entries of 12 bytes from offset 2: entries with id 0
// or a first raw byte (byte 5) of 0 are passed over; id 194 gives its first raw byte at once;
// ids 190 and 231 are remembered, a later one replacing an earlier; else 0.
int ataTemperature(const AtaPage& smartData);

// The identify and SMART data sections of a disk-health library's blob: a run of sections, each a
// four-character tag ("IDFY", "SMDT", ...), a size as a big-endian 32-bit number, and that many
// bytes. Sections of other tags or of a size other than a page are passed over; a blob cut short
// ends the reading there.
AtaPages ataPagesFromBlob(std::span<const std::uint8_t> blob);
