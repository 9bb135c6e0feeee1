// The Memory picture: width rule, the bar's picture and words, the in-menu graph.
#include "modules/memory/memory_module_picture.h"

#include "collect/load_system_information.h"
#include "modules/memory/memory_breakdown.h"
#include "prefs/pref_keys.h"
#include "toolkit/menu_geometry.h"

using namespace PrefKey;

MemoryModulePicture::MemoryModulePicture(MenuModuleDelegate* delegate)
    : SampledModulePicture(delegate, ModuleId::Memory)
{
    // The menu always shows one graph, 400 points wide, in the user's view and colours.
    mnDefaults.set(Memory_Display_Graph, true);
    mnDefaults.set(Memory_Display_LevelBar, false);
    mnDefaults.set(Memory_Display_CircleMeter, false);
    mnDefaults.set(Memory_Display_Text, false);
    mnDefaults.set(Memory_Display_DetailText, false);
    mnDefaults.set(Memory_GraphWidth, qint64{400});
    mnDefaults.set(Memory_ShowMyLabel, false);
}

void MemoryModulePicture::setResumeArray(const History<MemorySample>& history)
{
    resumeArray = history;
    arrivals_.note(resumeArray.identity());
}

void MemoryModulePicture::setMemorySize(std::size_t pageSize, std::int64_t totalPages)
{
    memoryPageSize_ = pageSize;
    memoryTotalPages_ = totalPages;
}

void MemoryModulePicture::takeMemorySize()
{
    // The totals are kept from the newest sample: no file is read here once sampling runs.
    if (myDelegate == nullptr || resumeArray.empty())
        return;
    LoadSystemInformation& loadInfo = myDelegate->collector();
    if (const auto totals = loadInfo.memoryTotals())
        setMemorySize(loadInfo.memoryPageSize(), totals->totalPages);
}

const MemoryTextWidths& MemoryModulePicture::textWidths()
{
    const std::int64_t totalBytes = memoryTotalPages_ * static_cast<std::int64_t>(memoryPageSize_);
    if (widthsStale_ || totalBytes != widthsTotalBytes_) {
        widthsStale_ = false;
        widthsTotalBytes_ = totalBytes;
        widths_ = memoryTextWidths(settings_.bar, totalBytes);
    }
    return widths_;
}

void MemoryModulePicture::settingsChanged()
{
    SampledModulePicture::settingsChanged();
    widthsStale_ = true;
}

std::optional<BarPicture> MemoryModulePicture::drawBar(bool highlighted, qreal scale)
{
    if (!settings_.barDrawable())
        return std::nullopt;
    takeMemorySize();
    const double height = TvlClasses::retRootMenuHeight();
    const MemoryTextWidths& widths = textWidths();
    imageMemoryBar.setMemorySize(memoryPageSize_, memoryTotalPages_);
    imageMemoryBar.redrawWithSize(QSizeF(memoryBarWidth(settings_.bar, widths, height), height),
                                  TvlClasses::retStatusMenuInsets(memoryShownElementCount(settings_.bar)), highlighted,
                                  true, settings_.bar, resumeArray, widths);
    BarPicture drawn{imageMemoryBar.image(scale), std::nullopt};
    if (!resumeArray.empty()) {
        const MemoryBreakdown parts = memoryBreakdown(resumeArray.back(), memoryTotalPages_, settings_.bar.traditional);
        drawn.text = memoryBarText(parts, memoryPageSize_, settings_.bar.unit);
    }
    return drawn;
}

QImage MemoryModulePicture::menuGraph(const MemoryPictureSettings& settings, qreal scale)
{
    imageMemoryMenu.setMemorySize(memoryPageSize_, memoryTotalPages_);
    imageMemoryMenu.redrawWithSize(QSizeF(settings_.menu.graphWidth, kMenuGraphHeight),
                                   TvlClasses::retMenuPullDownInsets(), false, true, settings, resumeArray, widths_);
    return imageMemoryMenu.image(scale);
}
