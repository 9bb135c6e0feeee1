// The CPU picture: the bar's graph, level bars, meter and usage text, and the in-menu graph.
#pragma once

#include "collect/cpu_sample.h"
#include "collect/history.h"
#include "modules/cpu/image_cpu_bar.h"
#include "modules/module_picture.h"
#include "modules/module_settings.h"

class CpuModulePicture final : public ModulePicture {
public:
    explicit CpuModulePicture(MenuModuleDelegate* delegate);

    void setHistory(const InfoDict& info) override;
    void setResumeArray(const History<CpuSample>& history) { resumeArray = history; }
    const History<CpuSample>& history() const { return resumeArray; }
    const ModuleSettings<CpuPictureSettings>& settings() const { return settings_; }

    std::optional<BarPicture> drawBar(bool highlighted, qreal scale) override;
    QImage drawMenuGraph(qreal scale) override { return menuGraph(settings_.menu, scale); }
    QImage drawOpenMenuGraph(qreal scale) override { return menuGraph(settings_.openMenu, scale); }
    void keepForOpenMenu() override { settings_.keepForOpenMenu(); }

    static constexpr double kMenuGraphHeight = 20;

protected:
    void settingsChanged() override { settings_.read(cpuPictureSettings, myDefaults, withMenuLayout()); }

private:
    QImage menuGraph(const CpuPictureSettings& settings, qreal scale);

    ImageCpuBar imageCpuBar;
    ImageCpuBar imageCpuMenu;
    History<CpuSample> resumeArray;
    ModuleSettings<CpuPictureSettings> settings_;
};
