// The Memory status item's text boxes and width rule.
#include "modules/memory/memory_bar_width.h"

#include "toolkit/menu_geometry.h"
#include "toolkit/string_helpers.h"
#include "toolkit/text_metrics.h"
#include "toolkit/value_format.h"

#include <algorithm>
#include <cmath>

namespace {

// Below 1024 MB the automatic unit prints megabytes with up to four digits before the point.
constexpr std::int64_t kLargestMegabyteText = 1000LL * 1024 * 1024;

} // namespace

MemoryTextWidths memoryTextWidths(const MemoryPictureSettings& d, std::int64_t totalBytes)
{
    const QString& font = d.fontName;
    const double size = d.fontSize;
    const int unit = d.unit;
    QStringList samples{TvlClasses::calcMemorySize(std::max<std::int64_t>(totalBytes, 0), unit)};
    if (unit != 2 && unit != 3 && totalBytes >= kLargestMegabyteText)
        samples << TvlClasses::calcMemorySize(kLargestMegabyteText, unit);
    double value = 0;
    for (const QString& sample : samples)
        value = std::max(
            value,
            TvlClasses::calcMenuLabelSize(TvlClasses::retEightNumber(sample).value_or(QString()), size, font).width());

    // One point between a header and its figure, so that the two never touch.
    const double shortHeader = d.detailLeftHeaderWidth + 1;
    MemoryTextWidths widths;
    widths.value = std::ceil(value);
    widths.header = d.longText ? d.textHeaderWidth + 1 : shortHeader;
    widths.detailLeft = (d.longDetail ? d.textHeaderWidth + 1 : shortHeader) + widths.value;
    widths.detailRight = (d.longDetail ? d.detailRightHeaderWidth + 1 : shortHeader) + widths.value;
    return widths;
}

int memoryShownElementCount(const MemoryPictureSettings& d)
{
    return shownElementCount(d.shownElements());
}

double memoryBarWidth(const MemoryPictureSettings& d, const MemoryTextWidths& widths, double height)
{
    const int shown = memoryShownElementCount(d);
    if (shown == 0)
        return 0;
    const TvlClasses::Insets insets = TvlClasses::retStatusMenuInsets(shown);
    const double s = insets.spacing;
    double width = 0;
    if (d.graph)
        width += d.graphWidth + s;
    if (d.levelBar)
        width += 7 + s;
    if (d.meter) // square, as high as the bar less the insets
        width += height - insets.top - insets.bottom + s;
    if (d.text)
        width += widths.text() + s;
    if (d.detailText)
        width += widths.detail() + s;
    if (d.showLabel)
        width += 12;
    return width - s + 4;
}
