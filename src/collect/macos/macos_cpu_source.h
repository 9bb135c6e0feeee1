// Processor facts from the Mach host interface and sysctl.
#pragma once

#include "collect/cpu_source.h"

#include <array>
#include <mach/mach_types.h>
#include <mutex>

class MacosCpuSource final : public CpuSource {
public:
    MacosCpuSource();
    ~MacosCpuSource() override;
    MacosCpuSource(const MacosCpuSource&) = delete;
    MacosCpuSource& operator=(const MacosCpuSource&) = delete;

    std::optional<std::vector<ProcessorTicks>> readProcessorTicks() override;
    std::optional<std::int64_t> bootTime() override;
    std::optional<double> awakeSeconds() override;
    std::optional<LoadAverages> loadAverages() override;

private:
    host_t host_;
    std::mutex lock_;
    // The kernel's tick counters are 32 bits wide and wrap; they are widened here by adding
    // each call's wrapped difference, so the collector sees counters that only grow.
    std::vector<std::array<std::uint32_t, 4>> lastRaw_;
    std::vector<ProcessorTicks> widened_;
};
