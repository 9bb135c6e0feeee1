// The Memory picture: the bar's graph, level bar, meter and texts, and the in-menu graph.
#pragma once

#include "collect/history.h"
#include "collect/memory_sample.h"
#include "modules/memory/image_memory_bar.h"
#include "modules/memory/memory_bar_width.h"
#include "modules/module_picture.h"
#include "modules/module_settings.h"
#include "modules/sample_arrivals.h"

// Settings whose values the picture gives a meaning to:
//   Memory_Unit: 2 all figures in MB, 3 all in GB, anything else (1) the unit that fits.
//   Memory_TradMemoryInfo: the page-list view instead of the application view (see
//   memory_breakdown.h).
//   Memory_Text_WithLongLabel, Memory_DetailText_WithLongLabel: "Used:" instead of "U:".
class MemoryModulePicture final : public ModulePicture {
public:
    explicit MemoryModulePicture(MenuModuleDelegate* delegate);

    void setHistory(const InfoDict& info) override;
    void setResumeArray(const History<MemorySample>& history);
    // The page size and the machine's memory in pages; taken from the collector at each redraw
    // when the picture has a delegate.
    void setMemorySize(std::size_t pageSize, std::int64_t totalPages);
    const History<MemorySample>& history() const { return resumeArray; }
    const ModuleSettings<MemoryPictureSettings>& settings() const { return settings_; }
    std::size_t pageSize() const { return memoryPageSize_; }
    std::int64_t totalPages() const { return memoryTotalPages_; }
    // The seconds between the two newest samples, or fallback before there are two.
    double secondsBetweenNewest(double fallback) const { return arrivals_.secondsBetweenNewest(fallback); }

    std::optional<BarPicture> drawBar(bool highlighted, qreal scale) override;
    QImage drawMenuGraph(qreal scale) override { return menuGraph(settings_.menu, scale); }
    QImage drawOpenMenuGraph(qreal scale) override { return menuGraph(settings_.openMenu, scale); }
    void keepForOpenMenu() override { settings_.keepForOpenMenu(); }

    static constexpr double kMenuGraphHeight = 20;

protected:
    void settingsChanged() override;

private:
    void takeMemorySize();
    // Measures text only when the settings or the memory size changed.
    const MemoryTextWidths& textWidths();
    QImage menuGraph(const MemoryPictureSettings& settings, qreal scale);

    ImageMemoryBar imageMemoryBar;
    ImageMemoryBar imageMemoryMenu;
    History<MemorySample> resumeArray;
    SampleArrivals arrivals_;
    std::size_t memoryPageSize_ = 4096;
    std::int64_t memoryTotalPages_ = 0;
    ModuleSettings<MemoryPictureSettings> settings_;
    // The text widths, and the memory size they were measured for; stale after a settings change.
    MemoryTextWidths widths_;
    std::int64_t widthsTotalBytes_ = -1;
    bool widthsStale_ = true;
};
