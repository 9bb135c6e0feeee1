// The Volume picture: width rule, the bar's sets and words.
#include "modules/volume/volume_module_picture.h"

#include "modules/volume/volume_bar_width.h"
#include "modules/volume/volume_menu_rows.h"
#include "prefs/pref_keys.h"

using namespace PrefKey;

VolumeModulePicture::VolumeModulePicture(MenuModuleDelegate* delegate)
    : VolumeModulePictureBase(delegate, ModuleId::Volume)
    , volumeBaseDict_(std::make_shared<const VolumeBaseDict>())
{
    // The menu always shows all volumes together in one graph, 400 points wide.
    mnDefaults.set(Vlms_Display_BarChart, false);
    mnDefaults.set(Vlms_Display_CycleChart, false);
    mnDefaults.set(Vlms_Display_Graph, true);
    mnDefaults.set(Vlms_Display_Text, false);
    mnDefaults.set(Vlms_Display_Percent, false);
    mnDefaults.set(Vlms_GraphWidth, kMenuGraphWidth);
    mnDefaults.set(Vlms_ShowEachDisk, false);
    mnDefaults.set(Vlms_ShowMyLabel, false);
    mnDefaults.set(VlmsInnerIconAbleToBeBol, false);
}

void VolumeModulePicture::setVolumeBaseDict(std::shared_ptr<const VolumeBaseDict> volumeBaseDict)
{
    volumeBaseDict_ = volumeBaseDict ? std::move(volumeBaseDict) : std::make_shared<const VolumeBaseDict>();
}

std::optional<BarPicture> VolumeModulePicture::drawBar(bool highlighted, qreal scale)
{
    if (!settings_.barDrawable())
        return std::nullopt;
    const std::vector<StorageBarSet> sets = volumeBarSets(settings_.bar, *volumeBaseDict_);
    return barPicture(highlighted, scale, sets,
                      volumeBarWidth(settings_.bar, sets.size(), TvlClasses::retRootMenuHeight()),
                      volumeShownElementCount(settings_.bar),
                      volumeBarText(sets, *volumeBaseDict_, resumeArray, settings_.bar.percentKind));
}
