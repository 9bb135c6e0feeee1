// The Disk drop-down's panel: one block per disk with its facts, its rates and its totals.
#pragma once

#include "collect/disk_sample.h"
#include "collect/history.h"
#include "collect/storage_descriptions.h"
#include "modules/storage_panel.h"
#include "modules/storage_pictures.h"

class Disk_MenuController final : public StoragePanel {
    Q_OBJECT
public:
    explicit Disk_MenuController(QWidget* parent = nullptr);

    // One block per disk: its picture, name and model, hardware facts. Rates and totals are
    // filled by replaceData.
    void loadBaseData(const StoragePictures& pictures, const DiskBaseDict& diskBaseDict);
    // Every tick while the menu is open.
    void replaceData(const History<DiskSample>& resumeArray);
};
