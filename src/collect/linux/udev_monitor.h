// Opening the device manager's event socket for one subsystem.
#pragma once

struct udev;
struct udev_monitor;

// A monitor of subsystem's events, sent after the device manager has run its rules (so a new
// label or attribute is already in place), or straight from the kernel where no device manager
// runs; null when the socket cannot be had. The caller unreferences it.
udev_monitor* openUdevMonitor(udev* context, const char* subsystem);
