// Counts threads and processes, scans the numeric entries of /proc and reads program links.
#include "collect/linux/linux_process_source.h"

#include "collect/linux/loadavg_parser.h"
#include "collect/linux/process_stat_parser.h"
#include "collect/linux/rejected_text.h"

#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <string_view>

namespace {
// The pid a /proc entry stands for; none for the other entries (self, stat, sys, ...).
std::optional<std::int64_t> processEntry(const char* name)
{
    if (*name == '\0')
        return std::nullopt;
    std::int64_t pid = 0;
    for (const char* c = name; *c != '\0'; ++c) {
        if (*c < '0' || *c > '9')
            return std::nullopt;
        pid = pid * 10 + (*c - '0');
    }
    return pid;
}

// The start of the file, up to size bytes; 0 or less when it cannot be read (a process that
// ended reads as an error through a descriptor opened while it ran).
ssize_t readStart(int fd, char* buffer, std::size_t size)
{
    ssize_t got;
    do {
        got = ::pread(fd, buffer, size, 0);
    } while (got < 0 && errno == EINTR);
    return got;
}

// Half of the descriptors the process may open, as its limit stands when the source is made.
std::size_t statFileBudget()
{
    rlimit limit{};
    if (::getrlimit(RLIMIT_NOFILE, &limit) != 0 || limit.rlim_cur == RLIM_INFINITY)
        return 512;
    return static_cast<std::size_t>(std::min<rlim_t>(limit.rlim_cur / 2, 16384));
}

constexpr auto byPid = [](const auto& a, const auto& b) { return a.pid < b.pid; };
} // namespace

LinuxProcessSource::LinuxProcessSource(const SysRoot& root)
    : root_(root)
    , loadavg_(root.join("proc/loadavg"))
    , uptime_(root.join("proc/uptime"))
    , keptBudget_(statFileBudget())
    , anyStat_(root.join("proc") / "[pid]" / "stat")
{}

LinuxProcessSource::~LinuxProcessSource()
{
    closeKept(kept_);
}

std::optional<ProcessCounts> LinuxProcessSource::counts()
{
    std::optional<std::uint64_t> entities;
    {
        const std::lock_guard guard(lock_);
        if (const auto text = loadavg_.read())
            if (const auto line = acceptParsed(loadavg_.path(), parseLoadAverage(*text)))
                entities = line->schedulingEntities;
    }
    if (!entities)
        return std::nullopt;
    const std::lock_guard guard(scanLock_);
    if (!rewindProcFolder())
        return std::nullopt;
    std::int64_t processes = 0;
    while (const dirent* entry = ::readdir(procFolder_.get()))
        processes += processEntry(entry->d_name) ? 1 : 0;
    return ProcessCounts{static_cast<std::int64_t>(*entities), processes};
}

std::optional<std::vector<ProcessRecord>> LinuxProcessSource::scanProcesses()
{
    std::vector<ProcessRecord> records;
    if (!rescan(records))
        return std::nullopt;
    return records;
}

bool LinuxProcessSource::rescan(std::vector<ProcessRecord>& records)
{
    records.clear();
    const std::lock_guard guard(scanLock_);
    if (!rewindProcFolder())
        return false;
    nextKept_.clear();
    while (const dirent* entry = ::readdir(procFolder_.get())) {
        const auto pid = processEntry(entry->d_name);
        // A process may end between the listing and this read; it is simply left out.
        const auto text = pid ? readStat(*pid, entry->d_name) : std::nullopt;
        if (!text)
            continue;
        // Rejections are told once for every process's stat file together: pids come and go,
        // so a warning per file would be one per process. The rejected line starts with the pid.
        if (auto record = acceptParsed(anyStat_, parseProcessStat(*text)))
            records.push_back(std::move(*record));
    }
    // Files not met again belong to processes that ended.
    closeKept(kept_);
    // The kernel lists processes by pid; a captured tree's folder may not.
    if (!std::is_sorted(nextKept_.begin(), nextKept_.end(), byPid))
        std::sort(nextKept_.begin(), nextKept_.end(), byPid);
    if (!std::is_sorted(records.begin(), records.end(), byPid))
        std::sort(records.begin(), records.end(), byPid);
    kept_.swap(nextKept_);
    return true;
}

bool LinuxProcessSource::rewindProcFolder()
{
    if (procFolder_) {
        ::rewinddir(procFolder_.get());
        return true;
    }
    procFolder_.reset(::opendir(root_.join("proc").c_str()));
    return procFolder_ != nullptr;
}

std::optional<std::string_view> LinuxProcessSource::readStat(std::int64_t pid, const char* name)
{
    int fd = -1;
    const auto kept = std::lower_bound(kept_.begin(), kept_.end(), KeptStat{pid, -1}, byPid);
    if (kept != kept_.end() && kept->pid == pid)
        std::swap(fd, kept->fd);
    ssize_t got = fd >= 0 ? readStart(fd, buffer_.data(), buffer_.size()) : -1;
    if (got <= 0) {
        // Not kept, or the pid now belongs to another process: the old descriptor still points
        // at the one that ended, so the name is opened afresh.
        if (fd >= 0)
            ::close(fd);
        std::array<char, 32> relative{};
        std::snprintf(relative.data(), relative.size(), "%s/stat", name);
        fd = openKernelFile(::dirfd(procFolder_.get()), relative.data());
        got = fd >= 0 ? readStart(fd, buffer_.data(), buffer_.size()) : -1;
        if (got <= 0) {
            if (fd >= 0)
                ::close(fd);
            return std::nullopt;
        }
    }
    if (nextKept_.size() < keptBudget_)
        nextKept_.push_back({pid, fd});
    else
        ::close(fd);
    return std::string_view(buffer_.data(), static_cast<std::size_t>(got));
}

void LinuxProcessSource::closeKept(std::vector<KeptStat>& files)
{
    for (KeptStat& file : files)
        if (file.fd >= 0)
            ::close(file.fd);
    files.clear();
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
