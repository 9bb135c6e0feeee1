// Memory facts from /proc/meminfo, /proc/vmstat, /proc/swaps and the zswap and power switches.
#pragma once

#include "collect/linux/proc_file.h"
#include "collect/linux/sys_root.h"
#include "collect/memory_source.h"

#include <mutex>

class LinuxMemorySource final : public MemorySource {
public:
    explicit LinuxMemorySource(const SysRoot& root);

    std::optional<NamedCounters> memoryInfo() override;
    std::optional<NamedCounters> vmStatistics() override;
    std::optional<MemoryCounters> memoryCounters(bool withPaging = true) override;
    std::optional<std::vector<SwapArea>> swapAreas() override;
    std::size_t pageSize() override;
    std::optional<bool> zswapEnabled() override;
    std::optional<std::uint64_t> hibernationImageSize() override;

private:
    SysRoot root_;
    std::mutex lock_;
    ProcFile meminfo_;
    ProcFile vmstat_;
    ProcFile swaps_;
    // Read when the zswap pool is empty, to tell "on but empty" from "off"; it can change at
    // any time, so it is kept open like the counters.
    ProcFile zswapSwitch_;
};
