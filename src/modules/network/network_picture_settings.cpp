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
    s.udLabel = d.boolValue(Network_Display_UdLabel);
    s.lamps = d.boolValue(Network_Display_UdCircle);
    s.graph = d.boolValue(Network_Display_Graph);
    s.text = d.boolValue(Network_Display_Text);
    s.udLabelWidth = d.doubleValue(NetworkInnerUdLabelWidth);
    s.udLabels = d.stringList(Network_UdLabel_ModeAry);
    s.graphWidth = static_cast<double>(d.intValue(Network_GraphWidth));
    s.graphKind = networkGraphKind(d.intValue(Network_Graph_Mode));
    s.limen = networkLimenBytes(d);
    s.bits = networkRatesInBits(d);
    s.textWidth = d.doubleValue(NetworkInnerTextWidth);
    s.up = d.color(NetworkThemeKey::C01);
    s.down = d.color(NetworkThemeKey::C02);
    s.lampFrame = d.color(NetworkThemeKey::C03);
    s.lampOff = d.color(NetworkThemeKey::C04);
    s.showAllNic = d.boolValue(Network_ShowAllNic);
    return s;
}
