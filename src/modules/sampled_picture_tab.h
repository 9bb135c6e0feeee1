// A picture tab whose preview draws the module's own live samples.
#pragma once

#include "collect/history.h"
#include "collect/info_dict.h"
#include "modules/module_descriptor.h"
#include "modules/picture_settings_tab.h"

template <class Sample> class SampledPictureTab : public PictureSettingsTab {
public:
    // Kept only once the module has samples; until then the preview shows its resting picture.
    void setLiveHistory(const InfoDict& info) override
    {
        const History<Sample> history = moduleHistory<Sample>(info, moduleId());
        if (history.empty())
            return;
        history_ = history;
        redrawPreview();
    }

protected:
    using PictureSettingsTab::PictureSettingsTab;

    void loadViews() override
    {
        loadControls();
        redrawPreview();
    }

    const History<Sample>& liveHistory() const { return history_; }
    // The live samples, or the resting sample alone before any arrived, as the bar would show it.
    History<Sample> previewHistory(Sample resting) const
    {
        return history_.empty() ? History<Sample>().appended(std::move(resting)) : history_;
    }

private:
    History<Sample> history_;
};
