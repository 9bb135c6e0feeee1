// Block device facts from /sys/block and /proc/diskstats.
#pragma once

#include "collect/block_device_source.h"
#include "collect/linux/proc_file.h"
#include "collect/linux/sys_root.h"

#include <mutex>

class LinuxBlockDeviceSource final : public BlockDeviceSource {
public:
    explicit LinuxBlockDeviceSource(const SysRoot& root);

    std::optional<std::vector<BlockDevice>> devices() override;
    std::optional<std::vector<DiskStatistics>> diskStatistics() override;

private:
    SysRoot root_;
    std::mutex lock_;
    ProcFile diskstats_;
};
