// Memory panel texts: the parts in bytes, paging rates and swap.
#include "modules/memory/memory_panel_rows.h"

#include "toolkit/localization.h"
#include "toolkit/value_format.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

std::int64_t kiBToBytes(std::uint64_t kiB)
{
    return static_cast<std::int64_t>(std::min<std::uint64_t>(kiB, std::numeric_limits<std::int64_t>::max() / 1024)) *
           1024;
}

} // namespace

std::vector<MemoryPanelRow> memoryPanelRows(const MemorySample& sample, std::int64_t totalPages, std::size_t pageSize,
                                            bool traditional, int unit)
{
    const MemoryBreakdown shown = memoryBreakdown(sample, totalPages, traditional);
    const MemoryBreakdown other = memoryBreakdown(sample, totalPages, !traditional);
    // "Other" differs between the views: the chosen one, searched first, is what the picture shows.
    const auto pagesOf = [&](MemoryPart part) -> std::int64_t {
        for (const MemoryBreakdown* view : {&shown, &other}) {
            for (const MemoryShare& share : view->shares) {
                if (share.part == part)
                    return share.pages;
            }
        }
        return 0;
    };
    const auto isShare = [&shown](MemoryPart part) {
        return std::any_of(shown.shares.begin(), shown.shares.end(), [part](const auto& s) { return s.part == part; });
    };

    std::vector<MemoryPanelRow> rows;
    for (const MemoryPart part :
         {MemoryPart::Wired, MemoryPart::Active, MemoryPart::Inactive, MemoryPart::Free, MemoryPart::Application,
          MemoryPart::Cached, MemoryPart::Compressed, MemoryPart::Other}) {
        const bool unknown = part == MemoryPart::Compressed && sample[MemoryCompressor] < 0;
        const std::int64_t bytes = unknown ? -1 : pagesOf(part) * static_cast<std::int64_t>(pageSize);
        rows.push_back({part, isShare(part), TvlClasses::calcMemorySize(bytes, unit)});
    }
    return rows;
}

QString memoryPageRateText(const History<MemorySample>& history, MemoryFigure counter, double seconds)
{
    if (history.size() < 2 || seconds <= 0)
        return QStringLiteral("---");
    const std::int64_t now = history.back()[counter];
    const std::int64_t before = history[history.size() - 2][counter];
    if (now < 0 || before < 0)
        return QStringLiteral("---");
    const double rate = static_cast<double>(std::max<std::int64_t>(now - before, 0)) / seconds;
    return Tarvel::localized("%d pages/s").replace(QLatin1String("%d"), QString::number(std::llround(rate)));
}

QString swapUsedText(const SwapUsage& usage, int unit)
{
    if (usage.total <= 0)
        return QStringLiteral("---");
    return Tarvel::localized("%1 of %2")
        .arg(TvlClasses::calcMemorySize(usage.used, unit), TvlClasses::calcMemorySize(usage.total, unit));
}

QStringList swapAreaTexts(const std::vector<SwapArea>& areas, int unit)
{
    QStringList lines;
    for (const SwapArea& area : areas) {
        lines << QStringLiteral("%1 (%2): %3")
                     .arg(QString::fromStdString(area.filename), area.type == "file" ? Tarvel::localized("file") : Tarvel::localized("partition"),
                          swapUsedText({kiBToBytes(area.sizeKiB), 0, kiBToBytes(area.usedKiB)}, unit));
    }
    return lines;
}
