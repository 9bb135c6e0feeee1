// A mounted volume's rename, and how the Volume history keeps its past under the new name.
#pragma once

#include "collect/disk_sample.h"
#include "collect/history.h"
#include "collect/storage_descriptions.h"

#include <QString>

#include <vector>

struct VolumeRename {
    QString oldName;
    QString newName;
    QString oldPath; // mount points; the same path unless the volume also moved
    QString newPath;

    bool operator==(const VolumeRename&) const = default;
};

// A new history in which each entry under the old path that still carries the old name moves
// to the new path with the new name. Entries of an earlier name under that path, and all other
// entries, stay as they were; samples without any entry are dropped.
History<VolumeSample> renameVolumeInHistory(const History<VolumeSample>& history, const VolumeRename& rename);

// The volumes mounted in both descriptions whose display names differ.
std::vector<VolumeRename> renamedVolumes(const VolumeBaseDict& before, const VolumeBaseDict& after);
