// Maximum, average, current and last traffic from the network history.
#include "collect/network_detail.h"

#include "toolkit/counter_arithmetic.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

// Cut towards zero, without undefined behaviour for values outside the range (or a NaN).
std::int64_t truncated(double value)
{
    if (std::isnan(value))
        return 0;
    constexpr double lowest = static_cast<double>(std::numeric_limits<std::int64_t>::min());
    constexpr double highest = static_cast<double>(std::numeric_limits<std::int64_t>::max());
    if (value <= lowest)
        return std::numeric_limits<std::int64_t>::min();
    if (value >= highest)
        return std::numeric_limits<std::int64_t>::max();
    return static_cast<std::int64_t>(value);
}

// Counters are unsigned underneath: their differences wrap rather than overflow.
std::int64_t difference(std::int64_t newer, std::int64_t older)
{
    return static_cast<std::int64_t>(static_cast<std::uint64_t>(newer) - static_cast<std::uint64_t>(older));
}

// Walking from the newest sample back, each older neighbour's difference is a candidate, but only
// where the newer counter is positive.
std::int64_t largestStep(const History<NetworkSample>& history, std::int64_t NetworkSample::*counter)
{
    std::int64_t largest = 0;
    for (std::size_t i = history.size() - 1; i > 0; --i) {
        const std::int64_t newer = history[i].*counter;
        if (newer >= 1)
            largest = std::max(largest, difference(newer, history[i - 1].*counter));
    }
    return largest;
}

} // namespace

namespace TvlClasses {

std::optional<NetworkDetail> getNetworkDetail(const History<NetworkSample>& history, std::int64_t NetworkSample::*up,
                                              std::int64_t NetworkSample::*down)
{
    if (history.empty())
        return std::nullopt;
    const std::size_t n = history.size();
    const NetworkSample& newest = history.back();
    const NetworkSample& oldest = history[0];
    const NetworkSample& previous = history[n >= 2 ? n - 2 : 0];

    double seconds = 0;
    for (std::size_t i = 0; i < n; ++i)
        seconds += history[i].interval;
    // A history whose intervals add up to nothing has no rate; 0 rather than a division by zero.
    const auto perSecond = [&](std::int64_t bytes) {
        return seconds > 0 ? truncated(static_cast<double>(bytes) / seconds) : 0;
    };

    NetworkDetail detail;
    detail.maxUp = largestStep(history, up);
    detail.maxDw = largestStep(history, down);
    detail.avgUp = perSecond(difference(newest.*up, oldest.*up));
    detail.avgDw = perSecond(difference(newest.*down, oldest.*down));
    detail.nowUp = difference(newest.*up, previous.*up);
    detail.nowDw = difference(newest.*down, previous.*down);
    detail.lstUp = Counter::saturated(Counter::asCounter(newest.*up));
    detail.lstDw = Counter::saturated(Counter::asCounter(newest.*down));
    return detail;
}

} // namespace TvlClasses
