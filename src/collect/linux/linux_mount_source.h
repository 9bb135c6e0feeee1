// The mount table from mountinfo through libmount, with change detection by poll.
#pragma once

#include "collect/linux/proc_file.h"
#include "collect/linux/statvfs_with_deadline.h"
#include "collect/linux/sys_root.h"
#include "collect/mount_source.h"

#include <mutex>
#include <string_view>

class LinuxMountSource final : public MountSource {
public:
    // table: the mountinfo file relative to root; captured trees keep it under a pid.
    explicit LinuxMountSource(const SysRoot& root, std::string_view table = "proc/self/mountinfo");

    std::optional<std::vector<MountRecord>> mounts() override;
    bool changed() override;
    int changeDescriptor() override;
    std::optional<FileSystemSpace> space(const std::string& mountPoint) override;

private:
    SysRoot root_;
    std::filesystem::path path_;
    std::mutex lock_;
    // Kept open only to be polled: the kernel flags a mount or unmount on this descriptor.
    ProcFile watch_;
    // A share whose server is gone may hold statvfs for minutes; the cycle does not wait.
    StatvfsWithDeadline statvfs_{std::chrono::milliseconds(1000)};
};
