// Memory facts from /proc/meminfo, /proc/vmstat and /proc/swaps.
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
    std::optional<std::vector<SwapArea>> swapAreas() override;
    std::size_t pageSize() override;

private:
    std::mutex lock_;
    ProcFile meminfo_;
    ProcFile vmstat_;
    ProcFile swaps_;
};
