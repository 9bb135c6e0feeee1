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
    readSettings(d, {{&s.barChart, Vlms_Display_BarChart},
                     {&s.cycleChart, Vlms_Display_CycleChart},
                     {&s.graph, Vlms_Display_Graph},
                     {&s.text, Vlms_Display_Text},
                     {&s.percent, Vlms_Display_Percent},
                     {&s.graphStyle.asLine, Vlms_GraphAsLine},
                     {&s.graphStyle.bold, Vlms_LineAsBold},
                     {&s.graphStyle.gradient, Vlms_GradientColor},
                     {&s.coloredValue, Vlms_ColoredValue}});
    s.graphWidth = static_cast<double>(d.intValue(Vlms_GraphWidth));
    s.percentKind = volumePercentKind(d.intValue(Vlms_Percent_Mode));
    s.textLabels = d.stringList(Vlms_Text_LabelAry);
    readSettings(d, {{&s.textLabelWidth, VlmsInnerTextLabelWidth},
                     {&s.textValueWidth, VlmsInnerTextValueWidth},
                     {&s.percentWidth, VlmsInnerPercentWidth}});
    using namespace VolumeThemeKey;
    readSettings(d, {{&s.graphStyle.low, E01},
                     {&s.graphStyle.warning, E02},
                     {&s.graphStyle.critical, E03},
                     {&s.freeColor, E04},
                     {&s.frame, E05},
                     {&s.textColor, E06},
                     {&s.percentColor, E07}});
    s.openIcon = d.picture(M12);
    s.ejectIcon = d.picture(M11);
    return s;
}
