// The Volume status item's drop-down: the combined graph, a block per volume, open and eject.
#pragma once

#include "modules/storage_menu_module.h"
#include "modules/volume/volume_ejector.h"
#include "modules/volume/volume_menu_controller.h"
#include "modules/volume/volume_module_picture.h"

class Volume_MenuModule final : public StorageMenuModuleOf<VolumeModulePicture, Volume_MenuController> {
    Q_OBJECT
public:
    explicit Volume_MenuModule(MenuModuleDelegate* delegate, QObject* parent = nullptr);

    const VolumeBaseDict& volumeBaseDict() const { return storage_.volumeBaseDict(); }

    VolumeEjector& ejector() { return *ejector_; }

protected:
    void drawBaseStatusBar() override;

private:
    void addVolumeItems();
    void ejectFinished(const QString& path, bool ejected, const QString& message);

    VolumeEjector* ejector_; // a child of this module
};
