// Add and remove announcements of hwmon devices from the device manager's monitor socket.
#include "collect/linux/hwmon_watch.h"

#include "collect/linux/udev_monitor.h"

#include <libudev.h>
#include <poll.h>

#include <string_view>

HwmonWatch::HwmonWatch()
    : udev_(udev_new())
    , monitor_(openUdevMonitor(udev_, "hwmon"))
{}

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
