// The CPU status item's width rule.
#include "modules/cpu/cpu_bar_width.h"

#include "prefs/pref_keys.h"
#include "toolkit/menu_geometry.h"

using namespace PrefKey;

int cpuShownElementCount(const ModuleDefaults& myDefaults)
{
    int shown = 0;
    for (const char* key : {Cpu_Display_Graph, Cpu_Display_LevelBar, Cpu_Display_CircleMeter, Cpu_Display_Text})
        shown += myDefaults.boolValue(key) ? 1 : 0;
    return shown;
}

double cpuBarWidth(const ModuleDefaults& myDefaults, std::size_t coreCount, double height)
{
    const bool graph = myDefaults.boolValue(Cpu_Display_Graph);
    const bool levelBar = myDefaults.boolValue(Cpu_Display_LevelBar);
    const bool meter = myDefaults.boolValue(Cpu_Display_CircleMeter);
    const bool text = myDefaults.boolValue(Cpu_Display_Text);
    const int shown = cpuShownElementCount(myDefaults);
    if (shown == 0)
        return 0;

    const double sets = myDefaults.boolValue(Cpu_AverageMultiProcessors) ? 1.0 : static_cast<double>(coreCount);
    const TvlClasses::Insets insets = TvlClasses::retStatusMenuInsets(shown);
    const double s = insets.spacing;
    double width = 0;
    if (graph)
        width += (static_cast<double>(myDefaults.intValue(Cpu_GraphWidth)) + s) * sets;
    if (levelBar)
        width += (7 + s) * sets;
    if (meter) // square, as high as the bar less the insets
        width += (height - insets.top - insets.bottom + s) * sets;
    if (text)
        width += (myDefaults.doubleValue(CpuInnerTextWidth) + s) * sets;
    if (myDefaults.boolValue(Cpu_ShowMyLabel))
        width += 12;
    return width - s + 4;
}

CpuSample zeroCpuSample(std::size_t processors)
{
    return CpuSample(processors + 1, CpuRecord{0, 0, 0, 0});
}
