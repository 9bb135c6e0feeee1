// The Network picture: width rule, the bar's picture and words, the in-menu graph.
#include "modules/network/network_module_picture.h"

#include "modules/network/network_bar_width.h"
#include "prefs/pref_keys.h"
#include "toolkit/menu_geometry.h"

using namespace PrefKey;

NetworkModulePicture::NetworkModulePicture(MenuModuleDelegate* delegate)
    : SampledModulePicture(delegate, ModuleId::Network)
{
    // The menu always shows one graph, 400 points wide, in the user's style and colours.
    mnDefaults.set(Network_Display_UdLabel, false);
    mnDefaults.set(Network_Display_UdCircle, false);
    mnDefaults.set(Network_Display_Graph, true);
    mnDefaults.set(Network_Display_Text, false);
    mnDefaults.set(Network_GraphWidth, qint64{400});
    mnDefaults.set(Network_ShowMyLabel, false);
}

NetworkRates NetworkModulePicture::retNowUpDwBytes() const
{
    return currentNetworkRates(resumeArray);
}

std::optional<BarPicture> NetworkModulePicture::drawBar(bool highlighted, qreal scale)
{
    if (!settings_.barDrawable())
        return std::nullopt;
    const double height = TvlClasses::retRootMenuHeight();
    const NetworkRates now = retNowUpDwBytes();
    imageNetworkBar.redrawWithSize(QSizeF(networkBarWidth(settings_.bar), height),
                                   TvlClasses::retStatusMenuInsets(networkShownElementCount(settings_.bar)),
                                   highlighted, true, settings_.bar, resumeArray, now);
    BarPicture drawn{imageNetworkBar.image(scale), std::nullopt};
    if (!resumeArray.empty())
        drawn.text = networkBarText(now, settings_.bar.bits);
    return drawn;
}

QImage NetworkModulePicture::menuGraph(const NetworkPictureSettings& settings, qreal scale)
{
    imageNetworkMenu.redrawWithSize(QSizeF(settings_.menu.graphWidth, kMenuGraphHeight),
                                    TvlClasses::retMenuPullDownInsets(), false, true, settings, resumeArray,
                                    retNowUpDwBytes());
    return imageNetworkMenu.image(scale);
}
