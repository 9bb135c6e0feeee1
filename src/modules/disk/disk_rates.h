// Transfer rates from the Disk history: the counters only grow, so a rate takes two samples.
#pragma once

#include "collect/disk_sample.h"
#include "collect/history.h"

#include <QString>

#include <cstddef>
#include <optional>

// Bytes per second.
struct DiskRates {
    double read = 0;
    double write = 0;
};

// Whether a device counts towards the combined figures. Device-mapper, software RAID and loop
// devices hand their transfers on to disks that are counted already, and a compressed memory
// disk never reaches one; counting them would count a transfer twice or count memory.
bool countsInCombinedRates(const QString& key);

// The rates between samples index - 1 and index of the device under key ("/dev/sda"), or of
// all counted devices together for an empty key. None for the first sample and for a device
// missing from either sample. A counter that went backwards (a device that came back) reads 0.
std::optional<DiskRates> diskRatesAt(const History<DiskSample>& history, std::size_t index, const QString& key);

// The rates of the newest two samples; zero until there are two.
DiskRates newestDiskRates(const History<DiskSample>& history, const QString& key);
