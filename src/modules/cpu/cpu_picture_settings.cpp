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
    readSettings(d, {{&s.average, Cpu_AverageMultiProcessors},
                     {&s.graph, Cpu_Display_Graph},
                     {&s.levelBar, Cpu_Display_LevelBar},
                     {&s.meter, Cpu_Display_CircleMeter},
                     {&s.text, Cpu_Display_Text},
                     {&s.textAverage, Cpu_Text_DisplayAverage},
                     {&s.graphAsLine, CPU_GraphAsLine},
                     {&s.lineAsBold, CPU_LineAsBold}});
    // The averaged figure is a point larger than the two it replaces.
    s.textAttributes.font = TvlClasses::menuFont(d.stringValue(_FontPostScriptName),
                                                 9 + d.doubleValue(_FontSizeDiff) + (s.textAverage ? 1 : 0));
    s.graphWidth = static_cast<double>(d.intValue(Cpu_GraphWidth));
    readSettings(d, {{&s.textWidth, CpuInnerTextWidth}});
    using namespace CpuThemeKey;
    readSettings(d, {{&s.shares[0], A01},
                     {&s.shares[1], A02},
                     {&s.shares[2], A03},
                     {&s.shares[3], A04},
                     {&s.frame, A05},
                     {&s.averageText, A07}});
    const char* shareKeys[] = {A01, A02, A03, A04};
    for (std::size_t i = 0; i < s.swatches.size(); ++i)
        s.swatches[i] = d.contains(shareKeys[i]) ? s.shares[i] : QColor();
    return s;
}
