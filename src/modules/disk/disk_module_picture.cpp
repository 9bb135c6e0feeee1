// The Disk picture: width rule, the bar's sets and words.
#include "modules/disk/disk_module_picture.h"

#include "modules/disk/disk_bar_width.h"
#include "modules/disk/disk_menu_rows.h"
#include "prefs/pref_keys.h"

using namespace PrefKey;

DiskModulePicture::DiskModulePicture(MenuModuleDelegate* delegate)
    : DiskModulePictureBase(delegate, ModuleId::Disk)
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

std::optional<BarPicture> DiskModulePicture::drawBar(bool highlighted, qreal scale)
{
    if (!settings_.barDrawable())
        return std::nullopt;
    const std::vector<StorageBarSet> sets = diskBarSets(settings_.bar, diskBaseDict_);
    return barPicture(highlighted, scale, sets, diskBarWidth(settings_.bar, sets.size()),
                      diskShownElementCount(settings_.bar), diskBarText(sets, diskBaseDict_, resumeArray));
}
