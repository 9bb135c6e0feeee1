// Process facts from /proc: thread and process counts, and a raw per-process scan.
#pragma once

#include "collect/linux/proc_file.h"
#include "collect/linux/sys_root.h"
#include "collect/process_source.h"

#include <cstdint>
#include <mutex>
#include <unordered_map>

class LinuxProcessSource final : public ProcessSource {
public:
    explicit LinuxProcessSource(const SysRoot& root);

    std::optional<ProcessCounts> counts() override;
    std::optional<std::vector<ProcessRecord>> scanProcesses() override;
    std::optional<std::string> executablePath(std::int64_t pid) override;
    std::optional<double> uptimeSeconds() override;

private:
    // Kept-open stat files between scans: one open per process instead of one per scan. Past
    // this many the rest are read once, so a machine with thousands of processes keeps its
    // file descriptors.
    static constexpr std::size_t kMaxKeptStatFiles = 512;

    SysRoot root_;
    std::mutex lock_;
    ProcFile loadavg_;
    ProcFile uptime_;
    std::mutex scanLock_;
    std::unordered_map<std::int64_t, ProcFile> statFiles_;
};
