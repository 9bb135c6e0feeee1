// The Disk status item's width rule and its sets.
#include "modules/disk/disk_bar_width.h"

#include "modules/volume/storage_pictures.h"
#include "prefs/pref_keys.h"
#include "toolkit/menu_geometry.h"

using namespace PrefKey;

namespace {

double labelColumn(const ModuleDefaults& d, const char* widthKey)
{
    const double width = d.doubleValue(widthKey);
    return width > 0 ? width + 1 : 0;
}

} // namespace

std::vector<DiskBarSet> diskBarSets(const ModuleDefaults& myDefaults, const DiskBaseDict& diskBaseDict)
{
    std::vector<DiskBarSet> sets;
    if (myDefaults.boolValue(Disk_ShowEachDisk)) {
        sets.reserve(diskBaseDict.size());
        for (const auto& [key, disk] : diskBaseDict)
            sets.push_back({key, volumePictureKey(disk.iconKind, disk.bsdName)});
    }
    if (sets.empty())
        sets.push_back({QString(), volumePictureKey(VolumeIconKind::Internal, QString())});
    return sets;
}

int diskShownElementCount(const ModuleDefaults& myDefaults)
{
    int shown = 0;
    for (const char* key : {Disk_Display_Indicator, Disk_Display_Graph, Disk_Display_Text})
        shown += myDefaults.boolValue(key) ? 1 : 0;
    return shown;
}

double diskIndicatorWidth(const ModuleDefaults& myDefaults)
{
    return labelColumn(myDefaults, DiskInnerIndicatorLabelWidth) + kDiskLampDiameter;
}

double diskGraphElementWidth(const ModuleDefaults& myDefaults)
{
    return labelColumn(myDefaults, DiskInnerGraphLabelWidth) +
           static_cast<double>(myDefaults.intValue(Disk_GraphWidth));
}

double diskTextWidth(const ModuleDefaults& myDefaults)
{
    return labelColumn(myDefaults, DiskInnerTextLabelWidth) + myDefaults.doubleValue(DiskInnerTextValueWidth);
}

double diskSetWidth(const ModuleDefaults& myDefaults, double spacing)
{
    double width = 0;
    if (myDefaults.boolValue(Disk_Display_Indicator))
        width += diskIndicatorWidth(myDefaults) + spacing;
    if (myDefaults.boolValue(Disk_Display_Graph))
        width += diskGraphElementWidth(myDefaults) + spacing;
    if (myDefaults.boolValue(Disk_Display_Text))
        width += diskTextWidth(myDefaults) + spacing;
    return width;
}

double diskBarWidth(const ModuleDefaults& myDefaults, std::size_t setCount)
{
    const int shown = diskShownElementCount(myDefaults);
    if (shown == 0)
        return 0;
    const double s = TvlClasses::retStatusMenuInsets(shown).spacing;
    double width = diskSetWidth(myDefaults, s) * static_cast<double>(setCount);
    if (myDefaults.boolValue(Disk_ShowMyLabel))
        width += 12;
    return width - s + 4;
}
