// Process facts from /proc: thread and process counts, and a raw per-process scan.
#pragma once

#include "collect/linux/proc_file.h"
#include "collect/linux/sys_root.h"
#include "collect/process_source.h"

#include <mutex>

class LinuxProcessSource final : public ProcessSource {
public:
    explicit LinuxProcessSource(const SysRoot& root);

    std::optional<ProcessCounts> counts() override;
    std::optional<std::vector<ProcessRecord>> scanProcesses() override;
    std::optional<std::string> executablePath(std::int64_t pid) override;

private:
    SysRoot root_;
    std::mutex lock_;
    ProcFile loadavg_;
};
