// Process facts from /proc: thread and process counts, and a raw per-process scan.
#pragma once

#include "collect/linux/proc_file.h"
#include "collect/linux/sys_root.h"
#include "collect/process_source.h"

#include <dirent.h>

#include <array>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <mutex>
#include <vector>

class LinuxProcessSource final : public ProcessSource {
public:
    explicit LinuxProcessSource(const SysRoot& root);
    ~LinuxProcessSource() override;

    std::optional<ProcessCounts> counts() override;
    std::optional<std::vector<ProcessRecord>> scanProcesses() override;
    bool rescan(std::vector<ProcessRecord>& records) override;
    std::optional<std::string> executablePath(std::int64_t pid) override;
    std::optional<double> uptimeSeconds() override;

private:
    // A process's stat file kept open between scans: reading through an open file costs half
    // of opening, reading and closing it. Half of the process's file descriptors may be spent
    // on them; past that the rest are opened for each scan.
    struct KeptStat {
        std::int64_t pid = 0;
        int fd = -1;
    };

    // The /proc folder, opened once and rewound for every listing; false when it cannot be.
    bool rewindProcFolder();
    // Reads one process's stat file into buffer_ through its kept descriptor, else a fresh open.
    std::optional<std::string_view> readStat(std::int64_t pid, const char* name);
    void closeKept(std::vector<KeptStat>& files);

    SysRoot root_;
    std::mutex lock_;
    ProcFile loadavg_;
    ProcFile uptime_;
    // Everything below belongs to whoever holds scanLock_.
    std::mutex scanLock_;
    std::unique_ptr<DIR, int (*)(DIR*)> procFolder_{nullptr, &::closedir};
    // Sorted by pid, as /proc lists processes; the scan builds nextKept_ and swaps the two.
    std::vector<KeptStat> kept_;
    std::vector<KeptStat> nextKept_;
    std::size_t keptBudget_;
    // The stat files' rejections are told once for all of them (see rescan).
    std::filesystem::path anyStat_;
    std::array<char, 4096> buffer_{};
};
