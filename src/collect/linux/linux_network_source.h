// Network facts from /sys/class/net, /proc/net/dev and the system's address list.
#pragma once

#include "collect/linux/hardware_database.h"
#include "collect/linux/netlink_watch.h"
#include "collect/linux/proc_file.h"
#include "collect/linux/sys_root.h"
#include "collect/network_source.h"

#include <map>
#include <memory>
#include <mutex>

class LinuxNetworkSource final : public NetworkSource {
public:
    explicit LinuxNetworkSource(const SysRoot& root);
    ~LinuxNetworkSource() override;

    std::optional<std::vector<NetworkInterface>> interfaces() override;
    std::optional<std::vector<InterfaceCounters>> counters() override;
    std::optional<std::vector<LinkState>> linkStates() override;
    // The live system's addresses; none below any other root, whose tree cannot hold them.
    std::optional<std::vector<InterfaceAddress>> addresses() override;
    InterfaceRecheck recheck(const std::string& name) override;
    bool linksMayHaveChanged() override;

private:
    SysRoot root_;
    std::mutex lock_;
    ProcFile netDev_;
    // The link state of each interface is read every tick: its file stays open until the
    // interface goes away.
    std::map<std::string, ProcFile, std::less<>> operStates_;
    std::mutex linkLock_;
    // Opened at the first listing; the database is large and mapped once.
    std::unique_ptr<HardwareDatabase> hardware_;
    // The live system's announcements; below another root nothing announces the tree's changes.
    std::unique_ptr<NetlinkWatch> watch_;
};
