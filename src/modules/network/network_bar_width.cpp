// The Network status item's width rule.
#include "modules/network/network_bar_width.h"

#include "modules/network/image_network_bar.h"
#include "prefs/pref_keys.h"
#include "toolkit/menu_geometry.h"

using namespace PrefKey;

int networkShownElementCount(const ModuleDefaults& d)
{
    int shown = 0;
    for (const char* key :
         {Network_Display_UdLabel, Network_Display_UdCircle, Network_Display_Graph, Network_Display_Text})
        shown += d.boolValue(key) ? 1 : 0;
    return shown;
}

double networkBarWidth(const ModuleDefaults& d)
{
    const int shown = networkShownElementCount(d);
    if (shown == 0)
        return 0;
    const double s = TvlClasses::retStatusMenuInsets(shown).spacing;
    double width = 0;
    if (d.boolValue(Network_Display_UdLabel))
        width += d.doubleValue(NetworkInnerUdLabelWidth) + s;
    if (d.boolValue(Network_Display_UdCircle))
        width += ImageNetworkBar::kLampDiameter + s;
    if (d.boolValue(Network_Display_Graph))
        width += static_cast<double>(d.intValue(Network_GraphWidth)) + s;
    if (d.boolValue(Network_Display_Text))
        width += d.doubleValue(NetworkInnerTextWidth) + s;
    if (d.boolValue(Network_ShowMyLabel))
        width += 12;
    return width - s + 4;
}
