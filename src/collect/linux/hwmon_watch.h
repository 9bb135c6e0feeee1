// Tells whether hardware-monitoring devices came or went, without scanning for them.
#pragma once

struct udev;
struct udev_monitor;

// Listens to the device manager's announcements for the "hwmon" subsystem. A driver reloaded
// or a drive plugged in renumbers the hwmonN entries; this says when to look for them again.
class HwmonWatch {
public:
    HwmonWatch();
    ~HwmonWatch();
    HwmonWatch(const HwmonWatch&) = delete;
    HwmonWatch& operator=(const HwmonWatch&) = delete;

    // True when a device was added or removed since the previous call. Never blocks; without a
    // device manager it never reports a change, and the chips found first are kept.
    bool changed();

private:
    udev* udev_ = nullptr;
    udev_monitor* monitor_ = nullptr;
};
