// The Disk and Volume samples: cumulative transfer per block device, and space per volume.
#pragma once

#include <QString>

#include <array>
#include <cstdint>
#include <map>
#include <optional>

// Bytes read, bytes written since the device appeared; rates are the renderers' business.
using DiskCounters = std::array<std::uint64_t, 2>;

struct DiskSample {
    std::map<QString, DiskCounters> devices; // "/dev/" + kernel name
    double interval = 0;                     // the "int" entry: the Disk module's interval in seconds
};

// One volume's space: total, used (total - free) and free bytes, with free counting only what an
// ordinary user may still write.
struct VolumeUsage {
    std::int64_t total = 0;
    std::int64_t used = 0;
    std::int64_t free = 0;
    // The volume's display name when it was measured, so that a renamed volume keeps its past.
    QString name;

    bool operator==(const VolumeUsage&) const = default;
};

struct VolumeSample {
    std::map<QString, VolumeUsage> volumes; // mount point path
    // The "all" entry: sums over the volumes that reported a size; absent without volumes.
    std::optional<VolumeUsage> all;

    [[nodiscard]] bool empty() const { return volumes.empty() && !all; }
    bool operator==(const VolumeSample&) const = default;
};
