// The Network module's preferences tab: elements and their order, graph, interval, threshold,
// labels, graph style, unit, interface list, menu items and a live preview of the picture.
#pragma once

#include "collect/network_sample.h"
#include "modules/sampled_picture_tab.h"

class NetworkTabViewController : public SampledPictureTab<NetworkSample> {
    Q_OBJECT
public:
    // KB/s; 0 counts any traffic.
    static constexpr int kLimenSliderMin = 0;
    static constexpr int kLimenSliderMax = 100;

    NetworkTabViewController(SettingsStore& store, PrefNotificationCenter& center, QWidget* parent = nullptr);

protected:
    QImage drawPreview(const ModuleDefaults& defaults) override;
    // A new label pair brings its own width, as the settings loader would derive it.

private:
    QWidget* buildDisplay();
};
