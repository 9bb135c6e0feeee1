// The Network status item's width rule.
#include "modules/network/network_bar_width.h"

#include "modules/network/image_network_bar.h"
#include "toolkit/menu_geometry.h"

int networkShownElementCount(const NetworkPictureSettings& d)
{
    return shownElementCount(d.shownElements());
}

double networkBarWidth(const NetworkPictureSettings& d)
{
    const int shown = networkShownElementCount(d);
    if (shown == 0)
        return 0;
    const double s = TvlClasses::retStatusMenuInsets(shown).spacing;
    double width = 0;
    if (d.udLabel)
        width += d.udLabelWidth + s;
    if (d.lamps)
        width += ImageNetworkBar::kLampDiameter + s;
    if (d.graph)
        width += d.graphWidth + s;
    if (d.text)
        width += d.textWidth + s;
    if (d.showLabel)
        width += 12;
    return width - s + 4;
}
