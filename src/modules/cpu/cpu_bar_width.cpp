// The CPU status item's width rule.
#include "modules/cpu/cpu_bar_width.h"

#include "toolkit/menu_geometry.h"

int cpuShownElementCount(const CpuPictureSettings& settings)
{
    return shownElementCount(settings.shownElements());
}

double cpuBarWidth(const CpuPictureSettings& settings, std::size_t coreCount, double height)
{
    const int shown = cpuShownElementCount(settings);
    if (shown == 0)
        return 0;

    const double sets = settings.average ? 1.0 : static_cast<double>(coreCount);
    const TvlClasses::Insets insets = TvlClasses::retStatusMenuInsets(shown);
    const double s = insets.spacing;
    double width = 0;
    if (settings.graph)
        width += (settings.graphWidth + s) * sets;
    if (settings.levelBar)
        width += (7 + s) * sets;
    if (settings.meter) // square, as high as the bar less the insets
        width += (height - insets.top - insets.bottom + s) * sets;
    if (settings.text)
        width += (settings.textWidth + s) * sets;
    if (settings.showLabel)
        width += 12;
    return width - s + 4;
}

CpuSample zeroCpuSample(std::size_t processors)
{
    return CpuSample(processors + 1, CpuRecord{0, 0, 0, 0});
}
