// The Memory status item's text boxes and width rule.
#include "modules/memory/memory_bar_width.h"

#include "prefs/pref_keys.h"
#include "toolkit/menu_geometry.h"
#include "toolkit/string_helpers.h"
#include "toolkit/text_metrics.h"
#include "toolkit/value_format.h"

#include <algorithm>
#include <cmath>

using namespace PrefKey;

namespace {

// Below 1024 MB the automatic unit prints megabytes with up to four digits before the point.
constexpr std::int64_t kLargestMegabyteText = 1000LL * 1024 * 1024;

} // namespace

MemoryTextWidths memoryTextWidths(const ModuleDefaults& d, std::int64_t totalBytes)
{
    const QString font = d.stringValue(_FontPostScriptName);
    const double size = 9 + d.doubleValue(_FontSizeDiff);
    const auto unit = static_cast<int>(d.intValue(Memory_Unit));
    QStringList samples{TvlClasses::calcMemorySize(std::max<std::int64_t>(totalBytes, 0), unit)};
    if (unit != 2 && unit != 3 && totalBytes >= kLargestMegabyteText)
        samples << TvlClasses::calcMemorySize(kLargestMegabyteText, unit);
    double value = 0;
    for (const QString& sample : samples)
        value = std::max(
            value,
            TvlClasses::calcMenuLabelSize(TvlClasses::retEightNumber(sample).value_or(QString()), size, font).width());

    // One point between a header and its figure, so that the two never touch.
    const double shortHeader = d.doubleValue(MemoryInnerDetailLHeaderWidth) + 1;
    const bool longText = d.boolValue(Memory_Text_WithLongLabel);
    const bool longDetail = d.boolValue(Memory_DetailText_WithLongLabel);
    MemoryTextWidths widths;
    widths.value = std::ceil(value);
    widths.header = longText ? d.doubleValue(MemoryInnerTextHeaderWidth) + 1 : shortHeader;
    widths.detailLeft = (longDetail ? d.doubleValue(MemoryInnerTextHeaderWidth) + 1 : shortHeader) + widths.value;
    widths.detailRight = (longDetail ? d.doubleValue(MemoryInnerDetailRHeaderWidth) + 1 : shortHeader) + widths.value;
    return widths;
}

int memoryShownElementCount(const ModuleDefaults& d)
{
    int shown = 0;
    for (const char* key : {Memory_Display_Graph, Memory_Display_LevelBar, Memory_Display_CircleMeter,
                            Memory_Display_Text, Memory_Display_DetailText})
        shown += d.boolValue(key) ? 1 : 0;
    return shown;
}

double memoryBarWidth(const ModuleDefaults& d, const MemoryTextWidths& widths, double height)
{
    const int shown = memoryShownElementCount(d);
    if (shown == 0)
        return 0;
    const TvlClasses::Insets insets = TvlClasses::retStatusMenuInsets(shown);
    const double s = insets.spacing;
    double width = 0;
    if (d.boolValue(Memory_Display_Graph))
        width += static_cast<double>(d.intValue(Memory_GraphWidth)) + s;
    if (d.boolValue(Memory_Display_LevelBar))
        width += 7 + s;
    if (d.boolValue(Memory_Display_CircleMeter)) // square, as high as the bar less the insets
        width += height - insets.top - insets.bottom + s;
    if (d.boolValue(Memory_Display_Text))
        width += widths.text() + s;
    if (d.boolValue(Memory_Display_DetailText))
        width += widths.detail() + s;
    if (d.boolValue(Memory_ShowMyLabel))
        width += 12;
    return width - s + 4;
}
