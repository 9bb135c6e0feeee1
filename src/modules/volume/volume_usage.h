// What the Volume picture, menu and texts read of a volume sample.
#pragma once

#include "collect/disk_sample.h"

#include <QString>

// Vlms_Percent_Mode: the percentage shows the used share (1) or the free share (2).
enum class VolumePercentKind { Used = 1, Free = 2 };
VolumePercentKind volumePercentKind(qint64 storedMode);

// The volume mounted at path in the sample, or all volumes together for an empty path; zeros
// when the sample does not hold it (not measured yet, or gone).
VolumeUsage volumeUsageOf(const VolumeSample& sample, const QString& path);

// Used and free bytes as fractions of the total; 0 for a volume without size.
double usedFraction(const VolumeUsage& usage);
double freeFraction(const VolumeUsage& usage);
// The share the percentage shows (checkUsedFree).
double shownFraction(const VolumeUsage& usage, VolumePercentKind kind);
