// The Memory module's preferences tab: elements and their order, graph, interval, unit, view,
// labels, menu items and a live preview of the picture.
#pragma once

#include "collect/memory_sample.h"
#include "modules/sampled_picture_tab.h"

class MenuModuleDelegate;

class MemoryTabViewController : public SampledPictureTab<MemorySample> {
    Q_OBJECT
public:
    // The delegate lends the collector's page size and memory total for the preview; without
    // one the preview's parts add up to what the sample counts.
    MemoryTabViewController(MenuModuleDelegate* delegate, SettingsStore& store, PrefNotificationCenter& center,
                            QWidget* parent = nullptr);

protected:
    QImage drawPreview(const ModuleDefaults& defaults) override;

private:
    QWidget* buildDisplay();

    MenuModuleDelegate* delegate_;
};
