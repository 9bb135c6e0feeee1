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
    readSettings(d, {{&s.indicator, Disk_Display_Indicator},
                     {&s.graph, Disk_Display_Graph},
                     {&s.text, Disk_Display_Text},
                     {&s.virtualDisks, Disk_ShowVirtualDisks}});
    s.indicatorLabels = labelColumn(d, Disk_Indicator_LabelAry, DiskInnerIndicatorLabelWidth);
    s.graphLabels = labelColumn(d, Disk_Graph_LabelAry, DiskInnerGraphLabelWidth);
    s.textLabels = labelColumn(d, Disk_Text_LabelAry, DiskInnerTextLabelWidth);
    s.graphWidth = static_cast<double>(d.intValue(Disk_GraphWidth));
    readSettings(d, {{&s.textValueWidth, DiskInnerTextValueWidth}});
    s.graphStyle.kind = TvlClasses::diskGraphKind(d.intValue(Disk_Graph_Mode));
    s.graphStyle.scale = TvlClasses::diskGraphScale(d.intValue(Disk_Percent_Mode));
    using namespace DiskThemeKey;
    readSettings(d, {{&s.graphStyle.read, D01}, {&s.graphStyle.write, D02}, {&s.lampFrame, D03}, {&s.lampOff, D04}});
    return s;
}
