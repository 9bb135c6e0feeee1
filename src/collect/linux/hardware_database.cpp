// Looks up device names in the hwdb through libudev.
#include "collect/linux/hardware_database.h"

#include <libudev.h>

#include <string>

HardwareDatabase::HardwareDatabase()
    : udev_(udev_new())
{
    if (udev_)
        hwdb_ = udev_hwdb_new(udev_);
}

HardwareDatabase::~HardwareDatabase()
{
    if (hwdb_)
        udev_hwdb_unref(hwdb_);
    if (udev_)
        udev_unref(udev_);
}

HardwareNames HardwareDatabase::lookup(std::string_view modalias) const
{
    HardwareNames names;
    if (!hwdb_ || modalias.empty())
        return names;
    const std::string key(modalias);
    udev_list_entry* entry = nullptr;
    udev_list_entry_foreach(entry, udev_hwdb_get_properties_list_entry(hwdb_, key.c_str(), 0))
    {
        const std::string_view name = udev_list_entry_get_name(entry);
        const char* value = udev_list_entry_get_value(entry);
        if (!value || !*value)
            continue;
        if (name == "ID_VENDOR_FROM_DATABASE")
            names.vendor = value;
        else if (name == "ID_MODEL_FROM_DATABASE")
            names.model = value;
    }
    return names;
}
