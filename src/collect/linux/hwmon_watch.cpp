// Add and remove announcements of hwmon devices from the device manager's monitor socket.
#include "collect/linux/hwmon_watch.h"

#include "collect/collect_log.h"

#include <libudev.h>
#include <poll.h>

#include <string_view>

HwmonWatch::HwmonWatch()
    : udev_(udev_new())
{
    if (udev_ == nullptr)
        return;
    // Announced after the device manager has run its rules, when the attributes are in place.
    monitor_ = udev_monitor_new_from_netlink(udev_, "udev");
    if (monitor_ == nullptr)
        return;
    if (udev_monitor_filter_add_match_subsystem_devtype(monitor_, "hwmon", nullptr) < 0 ||
        udev_monitor_enable_receiving(monitor_) < 0) {
        qCDebug(lcCollect) << "cannot listen for hwmon device events";
        udev_monitor_unref(monitor_);
        monitor_ = nullptr;
    }
}

HwmonWatch::~HwmonWatch()
{
    if (monitor_ != nullptr)
        udev_monitor_unref(monitor_);
    if (udev_ != nullptr)
        udev_unref(udev_);
}

bool HwmonWatch::changed()
{
    if (monitor_ == nullptr)
        return false;
    pollfd ready{udev_monitor_get_fd(monitor_), POLLIN, 0};
    if (::poll(&ready, 1, 0) <= 0 || (ready.revents & POLLIN) == 0)
        return false;
    bool any = false;
    // The socket does not block: an empty queue ends the loop.
    while (udev_device* device = udev_monitor_receive_device(monitor_)) {
        const char* action = udev_device_get_action(device);
        if (action != nullptr && (std::string_view(action) == "add" || std::string_view(action) == "remove"))
            any = true;
        udev_device_unref(device);
    }
    return any;
}
