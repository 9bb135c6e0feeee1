// The Memory picture: the bar's graph, level bar, meter and texts, and the in-menu graph.
#pragma once

#include "collect/memory_sample.h"
#include "modules/memory/image_memory_bar.h"
#include "modules/memory/memory_bar_width.h"
#include "modules/sample_arrivals.h"
#include "modules/sampled_module_picture.h"

// Settings whose values the picture gives a meaning to:
//   Memory_Unit: 2 all figures in MB, 3 all in GB, anything else (1) the unit that fits.
//   Memory_TradMemoryInfo: the page-list view instead of the application view (see
//   memory_breakdown.h).
//   Memory_Text_WithLongLabel, Memory_DetailText_WithLongLabel: "Used:" instead of "U:".
class MemoryModulePicture final
    : public SampledModulePicture<MemoryPictureSettings, memoryPictureSettings, MemorySample> {
public:
    explicit MemoryModulePicture(MenuModuleDelegate* delegate);

    void setResumeArray(const History<MemorySample>& history) override;
    // The page size and the machine's memory in pages; taken from the collector at each redraw
    // when the picture has a delegate.
    void setMemorySize(std::size_t pageSize, std::int64_t totalPages);
    std::size_t pageSize() const { return memoryPageSize_; }
    std::int64_t totalPages() const { return memoryTotalPages_; }
    // The seconds between the two newest samples, or fallback before there are two.
    double secondsBetweenNewest(double fallback) const { return arrivals_.secondsBetweenNewest(fallback); }

    std::optional<BarPicture> drawBar(bool highlighted, qreal scale) override;

protected:
    void settingsChanged() override;
    QImage menuGraph(const MemoryPictureSettings& settings, qreal scale) override;

private:
    void takeMemorySize();
    // Measures text only when the settings or the memory size changed.
    const MemoryTextWidths& textWidths();

    ImageMemoryBar imageMemoryBar;
    ImageMemoryBar imageMemoryMenu;
    SampleArrivals arrivals_;
    std::size_t memoryPageSize_ = 4096;
    std::int64_t memoryTotalPages_ = 0;
    // The text widths, and the memory size they were measured for; stale after a settings change.
    MemoryTextWidths widths_;
    std::int64_t widthsTotalBytes_ = -1;
    bool widthsStale_ = true;
};
