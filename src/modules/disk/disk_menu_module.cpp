// The Disk status item: width rule, picture, in-menu graph, disk blocks and standard items.
#include "modules/disk/disk_menu_module.h"

#include "modules/disk/disk_bar_width.h"
#include "modules/disk/disk_menu_rows.h"
#include "modules/module_descriptor.h"
#include "prefs/pref_keys.h"
#include "toolkit/localization.h"

using namespace PrefKey;

Disk_MenuModule::Disk_MenuModule(MenuModuleDelegate* delegate, QObject* parent)
    : DiskMenuModuleBase(delegate, ModuleId::Disk, parent)
{
    // The menu always shows every disk together in one graph, 400 points wide, without labels.
    mnDefaults.set(Disk_Display_Indicator, false);
    mnDefaults.set(Disk_Display_Graph, true);
    mnDefaults.set(Disk_Display_Text, false);
    mnDefaults.set(Disk_GraphWidth, kMenuGraphWidth);
    mnDefaults.set(Disk_ShowEachDisk, false);
    mnDefaults.set(Disk_ShowMyLabel, false);
    mnDefaults.set(DiskInnerIconAbleToBeBol, false);
    mnDefaults.set(DiskInnerGraphLabelWidth, qint64{0});
}

void Disk_MenuModule::setHistory(const InfoDict& info)
{
    const History<DiskSample> history = moduleHistory<DiskSample>(info, ModuleId::Disk);
    if (history.exists())
        setResumeArray(history);
}

void Disk_MenuModule::setDiskBaseDict(const DiskBaseDict& diskBaseDict)
{
    diskBaseDict_ = diskBaseDict;
    menuItemRefresh = true;
}

void Disk_MenuModule::drawBaseStatusBar()
{
    addBaseItems(Disk_EnaMenu_Amon, Disk_EnaMenu_Cnsl, Disk_EnaMenu_Tmnl,
                 settings_.bar.pictures[StoragePicture::MenuInternal]);
    panel_ = new Disk_MenuController();
    panel_->loadBaseData(settings_.bar.pictures, shownDisks(settings_.bar, diskBaseDict_));
    addPanel(panel_);
    menuItemRefresh = false;
    redrawStatusItem();
}

void Disk_MenuModule::refreshBar()
{
    if (!settings_.barDrawable() || !statusItem)
        return;
    const std::vector<StorageBarSet> sets = diskBarSets(settings_.bar, diskBaseDict_);
    showPicture(sets, diskBarWidth(settings_.bar, sets.size()), diskShownElementCount(settings_.bar),
                diskBarText(sets, diskBaseDict_, resumeArray));
}
