// Counts threads and processes, scans the numeric entries of /proc and reads program links.
#include "collect/linux/linux_process_source.h"

#include "collect/linux/directory_names.h"
#include "collect/linux/loadavg_parser.h"
#include "collect/linux/process_stat_parser.h"
#include "collect/linux/rejected_text.h"

#include <algorithm>
#include <string_view>

namespace {
bool isProcessEntry(const std::string& name)
{
    return !name.empty() && std::all_of(name.begin(), name.end(), [](char c) { return c >= '0' && c <= '9'; });
}
} // namespace

LinuxProcessSource::LinuxProcessSource(const SysRoot& root)
    : root_(root)
    , loadavg_(root.join("proc/loadavg"))
    , uptime_(root.join("proc/uptime"))
{}

std::optional<ProcessCounts> LinuxProcessSource::counts()
{
    std::optional<std::uint64_t> entities;
    {
        const std::lock_guard guard(lock_);
        if (const auto text = loadavg_.read())
            if (const auto line = acceptParsed(loadavg_.path(), parseLoadAverage(*text)))
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
    const std::lock_guard guard(scanLock_);
    std::vector<ProcessRecord> records;
    records.reserve(names->size());
    std::unordered_map<std::int64_t, ProcFile> kept;
    const std::filesystem::path proc = root_.join("proc");
    // Rejections are told once for every process's stat file together: pids come and go, so a
    // warning per file would be one per process, and the set of files told of would only grow.
    // The rejected line itself starts with the pid.
    const std::filesystem::path anyStat = proc / "[pid]" / "stat";
    for (const std::string& name : *names) {
        if (!isProcessEntry(name))
            continue;
        const std::int64_t pid = std::stoll(name);
        std::optional<ProcessRecord> record;
        if (auto open = statFiles_.find(pid); open != statFiles_.end() || kept.size() < kMaxKeptStatFiles) {
            ProcFile file = open != statFiles_.end() ? std::move(open->second) : ProcFile(proc / name / "stat");
            // A process may end between the listing and this read; it is simply left out. A pid
            // reused since the last scan reads through a fresh open of the same name.
            if (const auto text = file.read())
                record = acceptParsed(anyStat, parseProcessStat(*text));
            if (record)
                kept.emplace(pid, std::move(file));
        } else if (const auto text = ProcFile::readOnce(proc / name / "stat")) {
            record = acceptParsed(anyStat, parseProcessStat(*text));
        }
        if (record)
            records.push_back(std::move(*record));
    }
    // Files of processes that ended are closed here, as the old map goes.
    statFiles_ = std::move(kept);
    return records;
}

std::optional<double> LinuxProcessSource::uptimeSeconds()
{
    const std::lock_guard guard(lock_);
    const auto text = uptime_.read();
    if (!text)
        return std::nullopt;
    return acceptParsed(uptime_.path(), parseUptime(*text));
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
