// Counts threads and processes, scans the numeric entries of /proc and reads program links.
#include "collect/linux/linux_process_source.h"

#include "collect/linux/directory_names.h"
#include "collect/linux/loadavg_parser.h"
#include "collect/linux/process_stat_parser.h"

#include <algorithm>
#include <string_view>

namespace {
bool isProcessEntry(const std::string& name)
{
    return !name.empty() && std::all_of(name.begin(), name.end(), [](char c) { return c >= '0' && c <= '9'; });
}
}

LinuxProcessSource::LinuxProcessSource(const SysRoot& root)
    : root_(root), loadavg_(root.join("proc/loadavg"))
{
}

std::optional<ProcessCounts> LinuxProcessSource::counts()
{
    std::optional<std::uint64_t> entities;
    {
        const std::lock_guard guard(lock_);
        if (const auto text = loadavg_.read())
            if (const auto line = parseLoadAverage(*text))
                entities = line->schedulingEntities;
    }
    const auto names = directoryNames(root_.join("proc"));
    if (!entities || !names)
        return std::nullopt;
    const auto processes = std::count_if(names->begin(), names->end(), isProcessEntry);
    return ProcessCounts{static_cast<std::int64_t>(*entities), static_cast<std::int64_t>(processes)};
}

std::optional<std::vector<ProcessRecord>> LinuxProcessSource::scanProcesses()
{
    const auto names = directoryNames(root_.join("proc"));
    if (!names)
        return std::nullopt;
    std::vector<ProcessRecord> records;
    const std::filesystem::path proc = root_.join("proc");
    for (const std::string& name : *names) {
        if (!isProcessEntry(name))
            continue;
        // A process may end between the listing and this read; it is simply left out.
        const auto text = ProcFile::readOnce(proc / name / "stat");
        if (!text)
            continue;
        if (auto record = parseProcessStat(*text))
            records.push_back(std::move(*record));
    }
    return records;
}

std::optional<std::string> LinuxProcessSource::executablePath(std::int64_t pid)
{
    const std::filesystem::path link = root_.join("proc") / std::to_string(pid) / "exe";
    std::error_code error;
    std::filesystem::path target = std::filesystem::read_symlink(link, error);
    if (error) {
        // A captured tree cannot keep the kernel's link and stores its target as plain text.
        if (!std::filesystem::is_regular_file(link, error))
            return std::nullopt;
        const auto text = ProcFile::readOnce(link);
        if (!text)
            return std::nullopt;
        target = text->substr(0, text->find('\n'));
    }
    std::string path = target.string();
    // The kernel marks a program file replaced on disk since it was started.
    constexpr std::string_view deleted = " (deleted)";
    if (path.ends_with(deleted))
        path.resize(path.size() - deleted.size());
    if (path.empty())
        return std::nullopt;
    return path;
}
