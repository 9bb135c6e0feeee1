// Which pages of a loaded object can be given back, and when the monitor gives them back.
#include "app/working_set.h"

#include <QTimer>

#include <algorithm>

namespace WorkingSet {

std::vector<Range> unchangingPages(const std::vector<Segment>& segments, bool textRelocations, std::size_t pageSize)
{
    std::vector<Range> ranges;
    if (textRelocations || pageSize == 0)
        return ranges;
    const auto pageDown = [pageSize](std::uintptr_t address) { return address - address % pageSize; };
    const auto pageUp = [&pageDown, pageSize](std::uintptr_t address) { return pageDown(address + pageSize - 1); };
    for (const Segment& segment : segments) {
        if (segment.writable || segment.size == 0)
            continue;
        Range range{pageUp(segment.address), pageDown(segment.address + segment.size)};
        // Keep whole pages only, and none that a writable segment reaches into.
        for (const Segment& other : segments) {
            if (!other.writable || other.size == 0)
                continue;
            const Range written{pageDown(other.address), pageUp(other.address + other.size)};
            if (written.end <= range.start || written.start >= range.end)
                continue;
            if (written.start <= range.start)
                range.start = std::max(range.start, written.end);
            else
                range.end = std::min(range.end, written.start);
        }
        if (range.start < range.end)
            ranges.push_back(range);
    }
    return ranges;
}

void trimFromTimeToTime(QObject* owner)
{
    // Start-up is over once the first cycles have drawn; after that, every ten minutes.
    constexpr int kFirstMs = 15'000;
    constexpr int kEveryMs = 600'000;
    auto* timer = new QTimer(owner);
    QObject::connect(timer, &QTimer::timeout, timer, [timer] {
        trim();
        timer->setInterval(kEveryMs);
    });
    timer->start(kFirstMs);
}

} // namespace WorkingSet
