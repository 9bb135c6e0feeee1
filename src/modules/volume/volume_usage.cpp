// Reading used and free space out of a volume sample.
#include "modules/volume/volume_usage.h"

VolumePercentKind volumePercentKind(qint64 storedMode)
{
    return storedMode == 2 ? VolumePercentKind::Free : VolumePercentKind::Used;
}

VolumeUsage volumeUsageOf(const VolumeSample& sample, const QString& path)
{
    if (path.isEmpty())
        return sample.all.value_or(VolumeUsage{});
    const auto it = sample.volumes.find(path);
    return it != sample.volumes.end() ? it->second : VolumeUsage{};
}

double usedFraction(const VolumeUsage& usage)
{
    return usage.total > 0 ? static_cast<double>(usage.used) / static_cast<double>(usage.total) : 0.0;
}

double freeFraction(const VolumeUsage& usage)
{
    return usage.total > 0 ? static_cast<double>(usage.free) / static_cast<double>(usage.total) : 0.0;
}

double shownFraction(const VolumeUsage& usage, VolumePercentKind kind)
{
    return kind == VolumePercentKind::Free ? freeFraction(usage) : usedFraction(usage);
}
