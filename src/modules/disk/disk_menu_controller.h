// The Disk drop-down's panel: one block per disk with its facts, its rates and its totals.
#pragma once

#include "collect/disk_sample.h"
#include "collect/storage_descriptions.h"
#include "modules/storage_panel.h"

using Disk_MenuController = StoragePanelOf<DiskBaseDict, DiskSample>;

// One block per disk: its picture, name and model, hardware facts; rates and totals below.
template <> void Disk_MenuController::loadBaseData(const StoragePictures& pictures, const DiskBaseDict& diskBaseDict);
template <> void Disk_MenuController::replaceData(const History<DiskSample>& resumeArray);
