// statvfs(2) that gives up after a deadline: a dead network share can hold it for minutes.
#pragma once

#include <atomic>
#include <chrono>
#include <filesystem>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <sys/statvfs.h>

// Queries run on a worker thread; the caller waits at most the deadline. A worker stuck in the
// kernel is left behind (it ends by itself once the call returns) and the next query gets a new
// one, except for the path it is stuck on, which answers nothing at once until it comes back.
// Queries from several threads take turns.
class StatvfsWithDeadline {
public:
    using Call = std::function<int(const char*, struct statvfs*)>;

    explicit StatvfsWithDeadline(std::chrono::milliseconds deadline, Call call = &::statvfs);
    ~StatvfsWithDeadline();
    StatvfsWithDeadline(const StatvfsWithDeadline&) = delete;
    StatvfsWithDeadline& operator=(const StatvfsWithDeadline&) = delete;

    // The file system's figures; empty when the call failed or did not answer in time.
    std::optional<struct statvfs> query(const std::filesystem::path& path);

private:
    struct Worker;
    std::shared_ptr<Worker> startWorker();

    std::chrono::milliseconds deadline_;
    Call call_;
    std::mutex queryLock_;
    std::shared_ptr<Worker> worker_;
    std::shared_ptr<std::atomic<int>> abandoned_ = std::make_shared<std::atomic<int>>(0);
};
