// One place for the monitor set-up the block-device and hwmon watchers share.
#include "collect/linux/udev_monitor.h"

#include "collect/collect_log.h"

#include <libudev.h>
#include <unistd.h>

udev_monitor* openUdevMonitor(udev* context, const char* subsystem)
{
    if (context == nullptr)
        return nullptr;
    // Without the device manager (a container, a minimal system) its events never come and
    // libudev turns such a monitor off; the kernel's own announcements still say that a device
    // came, went or changed, which is all the watchers need then.
    const bool managerRuns = ::access("/run/udev/control", F_OK) == 0;
    udev_monitor* monitor = udev_monitor_new_from_netlink(context, managerRuns ? "udev" : "kernel");
    if (monitor == nullptr)
        return nullptr;
    if (udev_monitor_filter_add_match_subsystem_devtype(monitor, subsystem, nullptr) < 0 ||
        udev_monitor_enable_receiving(monitor) < 0) {
        qCDebug(lcCollect) << "cannot listen for" << subsystem << "device events";
        udev_monitor_unref(monitor);
        return nullptr;
    }
    return monitor;
}
