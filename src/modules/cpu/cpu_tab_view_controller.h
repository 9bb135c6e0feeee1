// The CPU module's preferences tab: its elements and their order, graph, interval, menu items
// and a live preview of the picture.
#pragma once

#include "collect/cpu_sample.h"
#include "collect/history.h"
#include "modules/picture_settings_tab.h"

class QCheckBox;

class CpuTabViewController : public PictureSettingsTab {
    Q_OBJECT
public:
    CpuTabViewController(SettingsStore& store, PrefNotificationCenter& center, QWidget* parent = nullptr);

    void setLiveHistory(const InfoDict& info) override;

protected:
    void loadViews() override;
    void redrawPreview() override;

private:
    QWidget* buildDisplay();

    QCheckBox* boldLine_ = nullptr;
    History<CpuSample> history_;
};
