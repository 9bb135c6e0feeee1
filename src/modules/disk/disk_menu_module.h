// The Disk status item's drop-down: the combined graph and a block per disk.
#pragma once

#include "modules/disk/disk_menu_controller.h"
#include "modules/disk/disk_module_picture.h"
#include "modules/storage_menu_module.h"

class Disk_MenuModule final : public StorageMenuModuleOf<DiskModulePicture, Disk_MenuController> {
    Q_OBJECT
public:
    explicit Disk_MenuModule(MenuModuleDelegate* delegate, QObject* parent = nullptr);

    const DiskBaseDict& diskBaseDict() const { return storage_.diskBaseDict(); }

protected:
    void drawBaseStatusBar() override;
};
