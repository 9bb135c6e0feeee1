// Reading the Volume settings and theme colours out of the working dictionary.
#include "modules/volume/volume_picture_settings.h"

#include "modules/volume/volume_theme_keys.h"
#include "prefs/pref_keys.h"

using namespace PrefKey;

VolumePictureSettings volumePictureSettings(const ModuleDefaults& d)
{
    VolumePictureSettings s;
    static_cast<StorageBasics&>(s) = storageBasics(d, Vlms_ShowMyLabel, VolumeThemeKey::L05, VlmsItemSortArray,
                                                   Vlms_ShowEachDisk, VlmsInnerIconAbleToBeBol);
    s.barChart = d.boolValue(Vlms_Display_BarChart);
    s.cycleChart = d.boolValue(Vlms_Display_CycleChart);
    s.graph = d.boolValue(Vlms_Display_Graph);
    s.text = d.boolValue(Vlms_Display_Text);
    s.percent = d.boolValue(Vlms_Display_Percent);
    s.graphWidth = static_cast<double>(d.intValue(Vlms_GraphWidth));
    s.graphStyle = {d.boolValue(Vlms_GraphAsLine), d.boolValue(Vlms_LineAsBold), d.boolValue(Vlms_GradientColor),
                    d.color(VolumeThemeKey::E01),  d.color(VolumeThemeKey::E02), d.color(VolumeThemeKey::E03)};
    s.freeColor = d.color(VolumeThemeKey::E04);
    s.frame = d.color(VolumeThemeKey::E05);
    s.textColor = d.color(VolumeThemeKey::E06);
    s.percentColor = d.color(VolumeThemeKey::E07);
    s.textLabels = d.stringList(Vlms_Text_LabelAry);
    s.textLabelWidth = d.doubleValue(VlmsInnerTextLabelWidth);
    s.textValueWidth = d.doubleValue(VlmsInnerTextValueWidth);
    s.percentWidth = d.doubleValue(VlmsInnerPercentWidth);
    s.coloredValue = d.boolValue(Vlms_ColoredValue);
    s.percentKind = volumePercentKind(d.intValue(Vlms_Percent_Mode));
    s.openIcon = d.picture(VolumeThemeKey::M12);
    s.ejectIcon = d.picture(VolumeThemeKey::M11);
    return s;
}
