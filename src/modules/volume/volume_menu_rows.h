// The Volume drop-down's rows and the menu bar's words, as text.
#pragma once

#include "collect/disk_sample.h"
#include "collect/history.h"
#include "collect/storage_descriptions.h"
#include "modules/volume/volume_bar_width.h"
#include "modules/volume/volume_usage.h"

#include <QString>

#include <vector>

// The file system, where it comes from and where it is mounted, joined by " · ":
// "ext4 · /dev/sda2 · /home"; a share shows its server instead of a device.
QString volumeFactsText(const QString& path, const VolumeBaseEntry& volume);

// "Used 123.4GB (45%) · Free 150.1GB · of 273.5GB"; "Not measured yet" before the first sample
// holding the volume.
QString volumeUsageText(const VolumeUsage& usage);

// The menu bar's figures as words, per set: "Root 45% used", or "Root --" before the volume is
// measured; sets apart by " | ". The combined set has no name.
QString volumeBarText(const std::vector<StorageBarSet>& sets, const VolumeBaseDict& volumeBaseDict,
                      const History<VolumeSample>& history, VolumePercentKind kind);
