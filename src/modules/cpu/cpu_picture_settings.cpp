// Reading the CPU settings and theme colours out of the working dictionary.
#include "modules/cpu/cpu_picture_settings.h"

#include "modules/cpu/cpu_theme_keys.h"
#include "prefs/pref_keys.h"
#include "toolkit/menu_font.h"

using namespace PrefKey;

CpuPictureSettings cpuPictureSettings(const ModuleDefaults& d)
{
    CpuPictureSettings s;
    static_cast<PictureBasics&>(s) = pictureBasics(d, Cpu_ShowMyLabel, CpuThemeKey::L01, CpuItemSortArray);
    s.average = d.boolValue(Cpu_AverageMultiProcessors);
    s.graph = d.boolValue(Cpu_Display_Graph);
    s.levelBar = d.boolValue(Cpu_Display_LevelBar);
    s.meter = d.boolValue(Cpu_Display_CircleMeter);
    s.text = d.boolValue(Cpu_Display_Text);
    s.textAverage = d.boolValue(Cpu_Text_DisplayAverage);
    s.textAttributes.font = TvlClasses::menuFont(d.stringValue(_FontPostScriptName),
                                                 9 + d.doubleValue(_FontSizeDiff) + (s.textAverage ? 1 : 0));
    s.graphWidth = static_cast<double>(d.intValue(Cpu_GraphWidth));
    s.graphAsLine = d.boolValue(CPU_GraphAsLine);
    s.lineAsBold = d.boolValue(CPU_LineAsBold);
    s.textWidth = d.doubleValue(CpuInnerTextWidth);
    const char* shareKeys[] = {CpuThemeKey::A01, CpuThemeKey::A02, CpuThemeKey::A03, CpuThemeKey::A04};
    for (std::size_t i = 0; i < s.shares.size(); ++i) {
        s.shares[i] = d.color(shareKeys[i]);
        s.swatches[i] = d.contains(shareKeys[i]) ? s.shares[i] : QColor();
    }
    s.frame = d.color(CpuThemeKey::A05);
    s.averageText = d.color(CpuThemeKey::A07);
    return s;
}
