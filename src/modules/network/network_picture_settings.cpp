// Reading the Network settings and theme colours out of the working dictionary.
#include "modules/network/network_picture_settings.h"

#include "modules/network/network_rates.h"
#include "modules/network/network_theme_keys.h"
#include "prefs/pref_keys.h"

using namespace PrefKey;

NetworkPictureSettings networkPictureSettings(const ModuleDefaults& d)
{
    NetworkPictureSettings s;
    static_cast<PictureBasics&>(s) = pictureBasics(d, Network_ShowMyLabel, NetworkThemeKey::L03, NetworkItemSortArray);
    readSettings(d, {{&s.udLabel, Network_Display_UdLabel},
                     {&s.lamps, Network_Display_UdCircle},
                     {&s.graph, Network_Display_Graph},
                     {&s.text, Network_Display_Text},
                     {&s.showAllNic, Network_ShowAllNic}});
    readSettings(d, {{&s.udLabelWidth, NetworkInnerUdLabelWidth}, {&s.textWidth, NetworkInnerTextWidth}});
    s.udLabels = d.stringList(Network_UdLabel_ModeAry);
    s.graphWidth = static_cast<double>(d.intValue(Network_GraphWidth));
    s.graphKind = networkGraphKind(d.intValue(Network_Graph_Mode));
    s.limen = networkLimenBytes(d);
    s.bits = networkRatesInBits(d);
    using namespace NetworkThemeKey;
    readSettings(d, {{&s.up, C01}, {&s.down, C02}, {&s.lampFrame, C03}, {&s.lampOff, C04}});
    return s;
}
