// Network facts from /sys/class/net and /proc/net/dev.
#pragma once

#include "collect/linux/proc_file.h"
#include "collect/linux/sys_root.h"
#include "collect/network_source.h"

#include <mutex>

class LinuxNetworkSource final : public NetworkSource {
public:
    explicit LinuxNetworkSource(const SysRoot& root);

    std::optional<std::vector<NetworkInterface>> interfaces() override;
    std::optional<std::vector<InterfaceCounters>> counters() override;

private:
    SysRoot root_;
    std::mutex lock_;
    ProcFile netDev_;
};
