// The CPU picture: the bar's graph, level bars, meter and usage text, and the in-menu graph.
#pragma once

#include "collect/cpu_sample.h"
#include "modules/cpu/image_cpu_bar.h"
#include "modules/sampled_module_picture.h"

class CpuModulePicture final : public SampledModulePicture<CpuPictureSettings, cpuPictureSettings, CpuSample> {
public:
    explicit CpuModulePicture(MenuModuleDelegate* delegate);

    std::optional<BarPicture> drawBar(bool highlighted, qreal scale) override;

protected:
    QImage menuGraph(const CpuPictureSettings& settings, qreal scale) override;

private:
    ImageCpuBar imageCpuBar;
    ImageCpuBar imageCpuMenu;
};
