// The Network picture: the bar's labels, lamps, graph and rates, and the in-menu graph.
#pragma once

#include "collect/history.h"
#include "collect/network_sample.h"
#include "modules/module_picture.h"
#include "modules/module_settings.h"
#include "modules/network/image_network_bar.h"
#include "modules/network/network_rates.h"

// Settings whose values the picture gives a meaning to:
//   Network_UdLabel_Mode: the label pair, 1 "Up"/"Dw", 2 "Upload"/"Download", 3 "Out"/"In",
//   4 "Send"/"Receive".
//   Network_Graph_Mode: the graph style, see NetworkGraphKind.
//   Network_Text_Mode: 1 bytes per second, 2 bits per second.
//   Network_Limen_Base: KB/s below which the lamps stay off and the graph draws nothing.
//   Network_ShowAllNic: list every interface in the menu, not only those whose link is up.
class NetworkModulePicture final : public ModulePicture {
public:
    explicit NetworkModulePicture(MenuModuleDelegate* delegate);

    void setHistory(const InfoDict& info) override;
    void setResumeArray(const History<NetworkSample>& history) { resumeArray = history; }
    const History<NetworkSample>& history() const { return resumeArray; }
    const ModuleSettings<NetworkPictureSettings>& settings() const { return settings_; }
    // The rates the picture shows now, bytes per second.
    NetworkRates retNowUpDwBytes() const;

    std::optional<BarPicture> drawBar(bool highlighted, qreal scale) override;
    QImage drawMenuGraph(qreal scale) override { return menuGraph(settings_.menu, scale); }
    QImage drawOpenMenuGraph(qreal scale) override { return menuGraph(settings_.openMenu, scale); }
    void keepForOpenMenu() override { settings_.keepForOpenMenu(); }

    static constexpr double kMenuGraphHeight = 20;

protected:
    void settingsChanged() override { settings_.read(networkPictureSettings, myDefaults, withMenuLayout()); }

private:
    QImage menuGraph(const NetworkPictureSettings& settings, qreal scale);

    ImageNetworkBar imageNetworkBar;
    ImageNetworkBar imageNetworkMenu;
    History<NetworkSample> resumeArray;
    ModuleSettings<NetworkPictureSettings> settings_;
};
