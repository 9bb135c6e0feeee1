// The Memory status item: its picture in the bar, and its menu with the graph and the panel.
#pragma once

#include "collect/history.h"
#include "collect/memory_sample.h"
#include "modules/memory/image_memory_bar.h"
#include "modules/memory/memory_bar_width.h"
#include "modules/memory/memory_menu_controller.h"
#include "modules/menu_module.h"
#include "modules/module_settings.h"
#include "modules/sample_arrivals.h"

class QLabel;

// Settings whose values the picture gives a meaning to:
//   Memory_Unit: 2 all figures in MB, 3 all in GB, anything else (1) the unit that fits.
//   Memory_TradMemoryInfo: the page-list view instead of the application view (see
//   memory_breakdown.h).
//   Memory_Text_WithLongLabel, Memory_DetailText_WithLongLabel: "Used:" instead of "U:".
class Memory_MenuModule final : public MenuModule {
    Q_OBJECT
public:
    explicit Memory_MenuModule(MenuModuleDelegate* delegate, QObject* parent = nullptr);

    void setHistory(const InfoDict& info) override;
    void setResumeArray(const History<MemorySample>& history);
    // The page size and the machine's memory in pages; taken from the collector at each redraw
    // when the module has a delegate.
    void setMemorySize(std::size_t pageSize, std::int64_t totalPages);
    void refreshBar() override;

    // The detail panel under the graph; none before the menu is built.
    Memory_MenuController* controller() const { return memoryMenuController; }

protected:
    void drawBaseStatusBar() override;
    void redrawStatusItem() override;
    void prepareMenuOpening() override;
    void settingsChanged() override;
    QImage drawMenuGraph() override { return menuGraph(settings_.menu); }

private:
    static constexpr double kMenuGraphHeight = 20;

    void takeMemorySize();
    // Measures text only when the settings or the memory size changed.
    const MemoryTextWidths& textWidths();
    QImage menuGraph(const MemoryPictureSettings& settings);

    ImageMemoryBar imageMemoryBar;
    ImageMemoryBar imageMemoryMenu;
    QLabel* menuGraph_ = nullptr;                          // owned by the menu through its widget action
    Memory_MenuController* memoryMenuController = nullptr; // likewise
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
