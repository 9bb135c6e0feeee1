// The Disk drop-down: standard items, the combined graph and the disk blocks.
#include "modules/disk/disk_menu_module.h"

#include "modules/disk/disk_bar_width.h"
#include "prefs/pref_keys.h"

using namespace PrefKey;

Disk_MenuModule::Disk_MenuModule(MenuModuleDelegate* delegate, QObject* parent)
    : StorageMenuModuleOf(delegate, parent)
{}

void Disk_MenuModule::drawBaseStatusBar()
{
    const DiskPictureSettings& settings = storage_.settings().bar;
    addBaseItems({Disk_EnaMenu_Amon, Disk_EnaMenu_Cnsl, Disk_EnaMenu_Tmnl, Disk_GraphWidth},
                 settings.pictures[StoragePicture::MenuInternal]);
    panel_ = new Disk_MenuController();
    panel_->loadBaseData(settings.pictures, shownDisks(settings, storage_.diskBaseDict()));
    addPanel(panel_);
    menuItemRefresh = false;
    redrawStatusItem();
}
