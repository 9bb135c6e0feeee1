// The Network tab: each control writes its key, saves and posts "NetworkModuleNotif"; the
// preview is drawn by the status item's own picture code.
#include "modules/network/network_tab_view_controller.h"

#include "modules/network/image_network_bar.h"
#include "modules/network/network_bar_width.h"
#include "preferences/picture_preview.h"
#include "prefs/pref_keys.h"
#include "toolkit/label_lists.h"
#include "toolkit/localization.h"
#include "toolkit/menu_geometry.h"
#include "toolkit/text_metrics.h"

#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>

using namespace PrefKey;

NetworkTabViewController::NetworkTabViewController(SettingsStore& store, PrefNotificationCenter& center,
                                                   QWidget* parent)
    : SampledPictureTab(ModuleId::Network,
                        {{1, Network_Display_UdLabel, Tarvel::textKey("Upload and download labels")},
                         {2, Network_Display_UdCircle, Tarvel::textKey("Activity lamps")},
                         {3, Network_Display_Graph, Tarvel::textKey("Graph")},
                         {4, Network_Display_Text, Tarvel::textKey("Text")}},
                        NetworkItemSortArray, store, center, parent)
{
    auto* columns = new QHBoxLayout();
    columns->addWidget(buildElements());
    columns->addWidget(buildDisplay(), 1);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(buildPreview("NetworkPreview"));
    layout->addLayout(columns);
    layout->addWidget(buildMenuItems(Network_EnaMenu_Amon, Network_EnaMenu_Cnsl, Network_EnaMenu_Tmnl));
    layout->addStretch(1);
    redrawPreview();
}

QWidget* NetworkTabViewController::buildDisplay()
{
    auto* box = new QGroupBox(Tarvel::localized("Display"), this);
    auto* form = new QFormLayout(box);
    addSlider(form, Network_GraphWidth, SliderKind::GraphWidth, kGraphSliderMin, kGraphSliderMax);
    addSlider(form, Network_UpdateInterval, SliderKind::Interval, kIntervalSliderMin, kIntervalSliderMax);
    addSlider(form, Network_Limen_Base, SliderKind::Limen, kLimenSliderMin, kLimenSliderMax);
    QStringList pairs;
    for (const QStringList& pair : PlistFunction::retNetworkUdLabel())
        pairs << pair.join(QStringLiteral(" / "));
    addPopup(form, Network_UdLabel_Mode, Tarvel::textKey("Labels"), pairs);
    addPopup(form, Network_Graph_Mode, Tarvel::textKey("Graph style"), PlistFunction::retGeneralGraphKind());
    addPopup(form, Network_Text_Mode, Tarvel::textKey("Unit"), PlistFunction::retNetworkBitOrByte());
    addSwitch(form, Network_ShowAllNic, Tarvel::textKey("List every interface in the menu"),
              {{QLatin1String(NotifKey::ModuleItemRefreshNow), true}});
    addLabelSwitch(form, Network_ShowMyLabel, Tarvel::textKey("Show the Network label"));
    return box;
}

QImage NetworkTabViewController::drawPreview(const ModuleDefaults& defaults)
{
    const NetworkPictureSettings settings = networkPictureSettings(defaults);
    // Before the first sample: the elements idle, as the bar would show them.
    const History<NetworkSample> history = previewHistory(NetworkSample{});
    const double height = TvlClasses::retRootMenuHeight();
    ImageNetworkBar bar;
    bar.redrawWithSize(QSizeF(networkBarWidth(settings), height),
                       TvlClasses::retStatusMenuInsets(networkShownElementCount(settings)), false, true, settings,
                       history, currentNetworkRates(history));
    return bar.image(devicePixelRatioF() * PicturePreview::zoom());
}
