// Source of processor facts: cumulative per-processor ticks, boot time, load averages.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

// Cumulative ticks of one processor in the four monitored states, ordered user, system, nice,
// idle. Platform sources fold their finer states into these four.
using ProcessorTicks = std::array<std::uint64_t, 4>;

struct LoadAverages {
    double one = 0;
    double five = 0;
    double fifteen = 0;
};

class CpuSource {
public:
    virtual ~CpuSource() = default;
    // Ticks of every processor in the system's order; empty optional when unreadable.
    virtual std::optional<std::vector<ProcessorTicks>> readProcessorTicks() = 0;
    // How many processors a reading of the ticks would give.
    virtual std::optional<std::size_t> processorCount()
    {
        const auto ticks = readProcessorTicks();
        return ticks && !ticks->empty() ? std::optional(ticks->size()) : std::nullopt;
    }
    // Boot time in seconds since the epoch.
    virtual std::optional<std::int64_t> bootTime() = 0;
    // Seconds the system has been awake (running, not suspended) since boot.
    virtual std::optional<double> awakeSeconds() = 0;
    virtual std::optional<LoadAverages> loadAverages() = 0;
};
