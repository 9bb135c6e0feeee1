// Processor facts from /proc/stat, /proc/loadavg and the monotonic clock.
#pragma once

#include "collect/cpu_source.h"
#include "collect/linux/proc_file.h"
#include "collect/linux/sys_root.h"

#include <mutex>

class LinuxCpuSource final : public CpuSource {
public:
    explicit LinuxCpuSource(const SysRoot& root);

    std::optional<std::vector<ProcessorTicks>> readProcessorTicks() override;
    std::optional<std::int64_t> bootTime() override;
    std::optional<double> awakeSeconds() override;
    std::optional<LoadAverages> loadAverages() override;

private:
    // The sampling thread and a menu may ask at once; the files' buffers are shared.
    std::mutex lock_;
    ProcFile stat_;
    ProcFile loadavg_;
};
