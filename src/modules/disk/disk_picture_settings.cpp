// Reading the Disk settings and theme colours out of the working dictionary.
#include "modules/disk/disk_picture_settings.h"

#include "modules/disk/disk_theme_keys.h"
#include "prefs/pref_keys.h"

using namespace PrefKey;

namespace {

DiskLabelColumn labelColumn(const ModuleDefaults& d, const char* listKey, const char* widthKey)
{
    return {d.stringList(listKey), d.doubleValue(widthKey)};
}

} // namespace

DiskPictureSettings diskPictureSettings(const ModuleDefaults& d)
{
    DiskPictureSettings s;
    static_cast<StorageBasics&>(s) = storageBasics(d, Disk_ShowMyLabel, DiskThemeKey::L04, DiskItemSortArray,
                                                   Disk_ShowEachDisk, DiskInnerIconAbleToBeBol);
    s.indicator = d.boolValue(Disk_Display_Indicator);
    s.graph = d.boolValue(Disk_Display_Graph);
    s.text = d.boolValue(Disk_Display_Text);
    s.indicatorLabels = labelColumn(d, Disk_Indicator_LabelAry, DiskInnerIndicatorLabelWidth);
    s.graphLabels = labelColumn(d, Disk_Graph_LabelAry, DiskInnerGraphLabelWidth);
    s.textLabels = labelColumn(d, Disk_Text_LabelAry, DiskInnerTextLabelWidth);
    s.graphWidth = static_cast<double>(d.intValue(Disk_GraphWidth));
    s.textValueWidth = d.doubleValue(DiskInnerTextValueWidth);
    s.graphStyle = {TvlClasses::diskGraphKind(d.intValue(Disk_Graph_Mode)),
                    TvlClasses::diskGraphScale(d.intValue(Disk_Percent_Mode)), d.color(DiskThemeKey::D01),
                    d.color(DiskThemeKey::D02)};
    s.lampFrame = d.color(DiskThemeKey::D03);
    s.lampOff = d.color(DiskThemeKey::D04);
    return s;
}
