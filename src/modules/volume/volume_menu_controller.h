// The Volume drop-down's panel: one block per volume with its picture, file system, used and free.
#pragma once

#include "collect/disk_sample.h"
#include "collect/storage_descriptions.h"
#include "modules/storage_panel.h"

using Volume_MenuController = StoragePanelOf<VolumeBaseDict, VolumeSample>;

// One block per volume: its picture, name, file system, device and mount point; the space below.
template <>
void Volume_MenuController::loadBaseData(const StoragePictures& pictures, const VolumeBaseDict& volumeBaseDict);
template <> void Volume_MenuController::replaceData(const History<VolumeSample>& resumeArray);
