// The Memory tab: each control writes its key, saves and posts "MemoryModuleNotif"; the preview
// is drawn by the status item's own picture code.
#include "modules/memory/memory_tab_view_controller.h"

#include "collect/load_system_information.h"
#include "modules/memory/image_memory_bar.h"
#include "modules/memory/memory_bar_width.h"
#include "modules/menu_module.h"
#include "preferences/picture_preview.h"
#include "prefs/pref_keys.h"
#include "toolkit/label_lists.h"
#include "toolkit/localization.h"
#include "toolkit/menu_geometry.h"

#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QVBoxLayout>

using namespace PrefKey;

MemoryTabViewController::MemoryTabViewController(MenuModuleDelegate* delegate, SettingsStore& store,
                                                 PrefNotificationCenter& center, QWidget* parent)
    : SampledPictureTab(ModuleId::Memory,
                        {{1, Memory_Display_Graph, Tarvel::textKey("Graph")},
                         {2, Memory_Display_LevelBar, Tarvel::textKey("Level bar")},
                         {3, Memory_Display_CircleMeter, Tarvel::textKey("Cycle meter")},
                         {4, Memory_Display_Text, Tarvel::textKey("Text")},
                         {5, Memory_Display_DetailText, Tarvel::textKey("Detail text")}},
                        MemoryItemSortArray, store, center, parent)
    , delegate_(delegate)
{
    auto* columns = new QHBoxLayout();
    columns->addWidget(buildElements());
    columns->addWidget(buildDisplay(), 1);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(buildPreview("MemoryPreview"));
    layout->addLayout(columns);
    layout->addWidget(buildMenuItems(Memory_EnaMenu_Amon, Memory_EnaMenu_Cnsl, Memory_EnaMenu_Tmnl));
    layout->addStretch(1);
    redrawPreview();
}

QWidget* MemoryTabViewController::buildDisplay()
{
    auto* box = new QGroupBox(Tarvel::localized("Display"), this);
    auto* form = new QFormLayout(box);
    addSlider(form, Memory_GraphWidth, SliderKind::GraphWidth, kGraphSliderMin, kGraphSliderMax);
    addSlider(form, Memory_UpdateInterval, SliderKind::Interval, kIntervalSliderMin, kIntervalSliderMax);
    addPopup(form, Memory_Unit, Tarvel::textKey("Unit"), PlistFunction::retMemoryUnit());
    addSwitch(form, Memory_TradMemoryInfo, Tarvel::textKey("Show wired, active and inactive pages"));
    addSwitch(form, Memory_Text_WithLongLabel, Tarvel::textKey("Long labels in the text"));
    addSwitch(form, Memory_DetailText_WithLongLabel, Tarvel::textKey("Long labels in the detail text"));
    addLabelSwitch(form, Memory_ShowMyLabel, Tarvel::textKey("Show the Memory label"));
    return box;
}

QImage MemoryTabViewController::drawPreview(const ModuleDefaults& defaults)
{
    const MemoryPictureSettings settings = memoryPictureSettings(defaults);
    // Before the first sample: the elements empty and the figures at 0, as the bar would show them.
    const History<MemorySample> history = previewHistory(MemorySample{});
    std::size_t pageSize = 4096;
    std::int64_t totalPages = 0;
    if (delegate_ != nullptr) {
        LoadSystemInformation& loadInfo = delegate_->collector();
        pageSize = loadInfo.memoryPageSize();
        totalPages = loadInfo.memoryTotals().value_or(MemoryTotals{}).totalPages;
    }
    const MemoryTextWidths widths = memoryTextWidths(settings, totalPages * static_cast<std::int64_t>(pageSize));
    const double height = TvlClasses::retRootMenuHeight();
    ImageMemoryBar bar(pageSize, totalPages);
    bar.redrawWithSize(QSizeF(memoryBarWidth(settings, widths, height), height),
                       TvlClasses::retStatusMenuInsets(memoryShownElementCount(settings)), false, true, settings,
                       history, widths);
    return bar.image(devicePixelRatioF() * PicturePreview::zoom());
}
