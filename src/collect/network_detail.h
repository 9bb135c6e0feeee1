// The traffic figures of the Network module, derived from its history of cumulative samples.
#pragma once

#include "collect/history.h"
#include "collect/network_sample.h"

#include <cstdint>
#include <optional>

struct NetworkDetail {
    std::int64_t maxUp = 0; // largest growth between neighbouring samples: bytes per sample
    std::int64_t maxDw = 0; // interval, not per second
    std::int64_t avgUp = 0; // bytes per second over the whole history
    std::int64_t avgDw = 0;
    std::int64_t nowUp = 0; // growth over the newest interval
    std::int64_t nowDw = 0;
    std::int64_t lstUp = 0; // the newest sample's counters
    std::int64_t lstDw = 0;

    bool operator==(const NetworkDetail&) const = default;
};

namespace TvlClasses {

// up and down pick the counters, normally &NetworkSample::toUp and &NetworkSample::toDw. Empty
// for an empty history. A counter that went backwards (a reset) gives negative differences:
// they never raise a maximum, and a negative "now" or average is passed on as it is.
std::optional<NetworkDetail> getNetworkDetail(const History<NetworkSample>& history, std::int64_t NetworkSample::*up,
                                              std::int64_t NetworkSample::*down);

} // namespace TvlClasses
