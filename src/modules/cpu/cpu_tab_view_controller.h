// The CPU module's preferences tab: its elements and their order, graph, interval, menu items
// and a live preview of the picture.
#pragma once

#include "collect/cpu_sample.h"
#include "modules/sampled_picture_tab.h"

class QCheckBox;

class CpuTabViewController : public SampledPictureTab<CpuSample> {
    Q_OBJECT
public:
    CpuTabViewController(SettingsStore& store, PrefNotificationCenter& center, QWidget* parent = nullptr);

protected:
    void loadViews() override;
    QImage drawPreview(const ModuleDefaults& defaults) override;

private:
    QWidget* buildDisplay();

    QCheckBox* boldLine_ = nullptr;
};
