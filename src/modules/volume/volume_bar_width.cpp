// The Volume status item's width rule and its sets.
#include "modules/volume/volume_bar_width.h"

#include "modules/volume/storage_pictures.h"
#include "prefs/pref_keys.h"
#include "toolkit/menu_geometry.h"

using namespace PrefKey;

std::vector<VolumeBarSet> volumeBarSets(const ModuleDefaults& myDefaults, const VolumeBaseDict& volumeBaseDict)
{
    std::vector<VolumeBarSet> sets;
    if (myDefaults.boolValue(Vlms_ShowEachDisk)) {
        sets.reserve(volumeBaseDict.size());
        for (const auto& [path, volume] : volumeBaseDict)
            sets.push_back({path, volumePictureKey(volume.iconKind, volume.bsdName, volume.isRemovable)});
    }
    if (sets.empty())
        sets.push_back({QString(), volumePictureKey(VolumeIconKind::Internal, QString())});
    return sets;
}

int volumeShownElementCount(const ModuleDefaults& myDefaults)
{
    int shown = 0;
    for (const char* key :
         {Vlms_Display_BarChart, Vlms_Display_CycleChart, Vlms_Display_Graph, Vlms_Display_Text, Vlms_Display_Percent})
        shown += myDefaults.boolValue(key) ? 1 : 0;
    return shown;
}

double volumeTextWidth(const ModuleDefaults& myDefaults)
{
    const double label = myDefaults.doubleValue(VlmsInnerTextLabelWidth);
    return (label > 0 ? label + 1 : 0) + myDefaults.doubleValue(VlmsInnerTextValueWidth);
}

double volumeSetWidth(const ModuleDefaults& myDefaults, double height, double spacing)
{
    const TvlClasses::Insets insets = TvlClasses::retStatusMenuInsets(volumeShownElementCount(myDefaults));
    double width = 0;
    if (myDefaults.boolValue(Vlms_Display_BarChart))
        width += kVolumeBarChartWidth + spacing;
    if (myDefaults.boolValue(Vlms_Display_CycleChart)) // square, as high as the bar less the insets
        width += height - insets.top - insets.bottom + spacing;
    if (myDefaults.boolValue(Vlms_Display_Graph))
        width += static_cast<double>(myDefaults.intValue(Vlms_GraphWidth)) + spacing;
    if (myDefaults.boolValue(Vlms_Display_Text))
        width += volumeTextWidth(myDefaults) + spacing;
    if (myDefaults.boolValue(Vlms_Display_Percent))
        width += myDefaults.doubleValue(VlmsInnerPercentWidth) + spacing;
    return width;
}

double volumeBarWidth(const ModuleDefaults& myDefaults, std::size_t setCount, double height)
{
    const int shown = volumeShownElementCount(myDefaults);
    if (shown == 0)
        return 0;
    const double s = TvlClasses::retStatusMenuInsets(shown).spacing;
    double width = volumeSetWidth(myDefaults, height, s) * static_cast<double>(setCount);
    if (myDefaults.boolValue(Vlms_ShowMyLabel))
        width += 12;
    return width - s + 4;
}
