// Source of the drives' own temperature reports: the whole disks, their sensor chips and pages.
#pragma once

#include "collect/ata_smart_data.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

// One whole disk as the system lists it.
struct DriveListing {
    std::string name;  // "sda", "nvme0n1"
    std::string model; // as the system reports it, trimmed; empty when it names none
    // A sensor chip of the drive's own reports its temperature (an NVMe controller, drivetemp);
    // then the drive is not asked through its pages.
    bool hasSensorChip = false;
    std::optional<std::int64_t> chipMillidegrees; // its reading, when asked for and readable
};

class DriveSource {
public:
    virtual ~DriveSource() = default;
    // Whole disks in a stable order; with readChips the chips' temperatures are read too, else
    // nothing is asked of any drive.
    virtual std::vector<DriveListing> listDrives(bool readChips) = 0;
    // The drive's identify and SMART data pages, asking the drive itself; empty when it cannot be
    // asked here (no access, not an ATA drive, or asleep, which it is left to be).
    virtual std::optional<AtaPages> readAtaPages(const std::string& name) = 0;
};
