// Checks and fields of the ATA identify and SMART data pages, and the blob that carries them.
#include "collect/ata_smart_data.h"

#include <cstring>
#include <numeric>

namespace {
constexpr std::size_t kModelAt = 54;
constexpr std::size_t kModelEnd = 94;
constexpr std::size_t kAttributesAt = 2;
constexpr std::size_t kAttributeSize = 12;
constexpr int kAttributeCount = 30;

bool sumsToZero(const AtaPage& page)
{
    return std::accumulate(page.begin(), page.end(), 0U) % 256 == 0;
}

std::uint32_t bigEndian(const std::uint8_t* at)
{
    return (std::uint32_t{at[0]} << 24) | (std::uint32_t{at[1]} << 16) | (std::uint32_t{at[2]} << 8) | at[3];
}
} // namespace

bool ataIdentifyValid(const AtaPage& identify)
{
    return identify[510] == 0xA5 && sumsToZero(identify) && (identify[164] & 1U) != 0;
}

std::string ataModelName(const AtaPage& identify)
{
    std::string model;
    for (std::size_t at = kModelAt; at < kModelEnd; at += 2) {
        for (const std::uint8_t byte : {identify[at + 1], identify[at]}) {
            if (byte == 0)
                return model;
            model += static_cast<char>(byte);
        }
    }
    return model;
}

bool ataSmartDataValid(const AtaPage& smartData)
{
    return sumsToZero(smartData);
}

int ataTemperature(const AtaPage& smartData)
{
    int remembered = 0;
    for (int n = 0; n < kAttributeCount; ++n) {
        const std::uint8_t* entry = smartData.data() + kAttributesAt + n * kAttributeSize;
        const std::uint8_t id = entry[0];
        const std::uint8_t raw = entry[5];
        if (id == 0 || raw == 0)
            continue;
        if (id == 194)
            return raw;
        if (id == 190 || id == 231)
            remembered = raw;
    }
    return remembered;
}

AtaPages ataPagesFromBlob(std::span<const std::uint8_t> blob)
{
    AtaPages pages;
    while (blob.size() >= 8) {
        const std::uint32_t size = bigEndian(blob.data() + 4);
        if (blob.size() - 8 < size)
            break;
        const std::span<const std::uint8_t> body = blob.subspan(8, size);
        if (size == kAtaPageSize) {
            AtaPage page;
            std::memcpy(page.data(), body.data(), kAtaPageSize);
            if (std::memcmp(blob.data(), "IDFY", 4) == 0)
                pages.identify = page;
            else if (std::memcmp(blob.data(), "SMDT", 4) == 0)
                pages.smartData = page;
        }
        blob = blob.subspan(8 + size);
    }
    return pages;
}
