// The two views of a memory sample, and the colours and names of their parts.
#include "modules/memory/memory_breakdown.h"

#include "modules/memory/memory_theme_keys.h"
#include "toolkit/counter_arithmetic.h"
#include "toolkit/localization.h"
#include "toolkit/value_format.h"

#include <algorithm>

namespace {

std::int64_t figure(const MemorySample& sample, MemoryFigure which)
{
    return std::max<std::int64_t>(sample[which], 0);
}

} // namespace

std::int64_t MemoryBreakdown::inUse() const
{
    std::int64_t spare = shares[5].pages;
    if (!traditional)
        spare = Counter::saturatedSum(spare, shares[4].pages); // cached files
    return Counter::saturatedDifference(total, spare);
}

double MemoryBreakdown::fraction(std::size_t share) const
{
    return total > 0 ? static_cast<double>(shares.at(share).pages) / static_cast<double>(total) : 0.0;
}

double MemoryBreakdown::inUseFraction() const
{
    return total > 0 ? static_cast<double>(inUse()) / static_cast<double>(total) : 0.0;
}

MemoryBreakdown memoryBreakdown(const MemorySample& sample, std::int64_t totalPages, bool traditional)
{
    MemoryBreakdown out;
    out.traditional = traditional;
    const std::int64_t wired = figure(sample, MemoryWired);
    const std::int64_t compressed = figure(sample, MemoryCompressor);
    const std::int64_t free = figure(sample, MemoryFree);
    if (traditional) {
        out.shares = {{{MemoryPart::Wired, wired},
                       {MemoryPart::Active, figure(sample, MemoryActive)},
                       {MemoryPart::Inactive, figure(sample, MemoryInactive)},
                       {MemoryPart::Compressed, compressed},
                       {MemoryPart::Other, 0},
                       {MemoryPart::Free, free}}};
    } else {
        out.shares = {{{MemoryPart::Application, figure(sample, MemoryApplication)},
                       {MemoryPart::Wired, wired},
                       {MemoryPart::Compressed, compressed},
                       {MemoryPart::Other, 0},
                       {MemoryPart::Cached, figure(sample, MemoryCached)},
                       {MemoryPart::Free, free}}};
    }
    std::int64_t counted = 0;
    for (const MemoryShare& share : out.shares)
        counted = Counter::saturatedSum(counted, share.pages);
    const auto other = std::find_if(out.shares.begin(), out.shares.end(),
                                    [](const MemoryShare& s) { return s.part == MemoryPart::Other; });
    other->pages = std::max<std::int64_t>(Counter::saturatedDifference(totalPages, counted), 0);
    out.total = Counter::saturatedSum(counted, other->pages);
    return out;
}

double memoryPressure(const MemorySample& sample, std::int64_t totalPages)
{
    return memoryBreakdown(sample, totalPages, false).inUseFraction();
}

QColor memoryPartColor(const ModuleDefaults& defaults, MemoryPart part)
{
    using namespace MemoryThemeKey;
    switch (part) {
    case MemoryPart::Wired:
        return defaults.color(B01);
    case MemoryPart::Active:
    case MemoryPart::Application:
        return defaults.color(B02);
    case MemoryPart::Inactive:
    case MemoryPart::Cached:
        return defaults.color(B03);
    case MemoryPart::Compressed:
        return defaults.color(B04);
    case MemoryPart::Free:
        return defaults.color(B05);
    case MemoryPart::Other: {
        QColor color = defaults.color(B06);
        color.setAlphaF(color.alphaF() / 2);
        return color;
    }
    }
    return {};
}

const char* memoryPartName(MemoryPart part)
{
    switch (part) {
    case MemoryPart::Wired:
        return Tarvel::textKey("Wired");
    case MemoryPart::Active:
        return Tarvel::textKey("Active");
    case MemoryPart::Inactive:
        return Tarvel::textKey("Inactive");
    case MemoryPart::Compressed:
        return Tarvel::textKey("Compressed");
    case MemoryPart::Other:
        return Tarvel::textKey("Other");
    case MemoryPart::Free:
        return Tarvel::textKey("Free");
    case MemoryPart::Application:
        return Tarvel::textKey("Application");
    case MemoryPart::Cached:
        return Tarvel::textKey("Cached Files");
    }
    return "";
}

QString memoryBarText(const MemoryBreakdown& breakdown, std::size_t pageSize, int unit)
{
    const auto bytes = [pageSize](std::int64_t pages) { return Counter::saturatedProduct(pages, static_cast<std::int64_t>(pageSize)); };
    return QStringLiteral("used ") + TvlClasses::calcMemorySize(bytes(breakdown.inUse()), unit) +
           QStringLiteral("  free ") + TvlClasses::calcMemorySize(bytes(breakdown.shares.back().pages), unit);
}
