// The Volume drop-down's panel: one block per volume with its picture, file system, used and free.
#pragma once

#include "collect/disk_sample.h"
#include "collect/history.h"
#include "collect/storage_descriptions.h"
#include "modules/storage_panel.h"
#include "modules/storage_pictures.h"

class Volume_MenuController final : public StoragePanel {
    Q_OBJECT
public:
    explicit Volume_MenuController(QWidget* parent = nullptr);

    // One block per volume: its picture, name, file system, device and mount point. The space
    // is filled by replaceData.
    void loadBaseData(const StoragePictures& pictures, const VolumeBaseDict& volumeBaseDict);
    // Every tick while the menu is open.
    void replaceData(const History<VolumeSample>& resumeArray);
};
