// The Network picture: the bar's labels, lamps, graph and rates, and the in-menu graph.
#pragma once

#include "collect/network_sample.h"
#include "modules/network/image_network_bar.h"
#include "modules/network/network_rates.h"
#include "modules/sampled_module_picture.h"

// Settings whose values the picture gives a meaning to:
//   Network_UdLabel_Mode: the label pair, 1 "Up"/"Dw", 2 "Upload"/"Download", 3 "Out"/"In",
//   4 "Send"/"Receive".
//   Network_Graph_Mode: the graph style, see NetworkGraphKind.
//   Network_Text_Mode: 1 bytes per second, 2 bits per second.
//   Network_Limen_Base: KB/s below which the lamps stay off and the graph draws nothing.
//   Network_ShowAllNic: list every interface in the menu, not only those whose link is up.
class NetworkModulePicture final
    : public SampledModulePicture<NetworkPictureSettings, networkPictureSettings, NetworkSample> {
public:
    explicit NetworkModulePicture(MenuModuleDelegate* delegate);

    // The rates the picture shows now, bytes per second.
    NetworkRates retNowUpDwBytes() const;

    std::optional<BarPicture> drawBar(bool highlighted, qreal scale) override;

protected:
    QImage menuGraph(const NetworkPictureSettings& settings, qreal scale) override;

private:
    ImageNetworkBar imageNetworkBar;
    ImageNetworkBar imageNetworkMenu;
};
