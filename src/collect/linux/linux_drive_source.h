// The whole disks of /sys/block, their drive sensor chips, and their pages through libatasmart.
#pragma once

#include "collect/drive_source.h"
#include "collect/linux/sys_root.h"
#include "collect/sensor_source.h"

#include <memory>
#include <set>

class LinuxDriveSource final : public DriveSource {
public:
    // askDrives: whether the drives' own device files may be opened (only on the live system:
    // below another root the device files are not the tree's).
    LinuxDriveSource(const SysRoot& root, std::shared_ptr<SensorSource> sensors, bool askDrives);

    std::vector<DriveListing> listDrives(bool readChips) override;
    std::optional<AtaPages> readAtaPages(const std::string& name) override;

private:
    // Below sys, the devices a disk's sensor chip may hang on: its own device; for an NVMe
    // namespace of a multipath subsystem, the subsystem's controllers; and for a controller, its
    // PCI function, where older kernels put the chip.
    std::set<std::string> chipDevices(const std::string& disk) const;
    std::string belowSys(const std::filesystem::path& path) const;

    SysRoot root_;
    std::shared_ptr<SensorSource> sensors_;
    bool askDrives_;
};
