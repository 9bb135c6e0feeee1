// A statvfs worker thread with a deadline per query, left behind when the kernel holds it.
#include "collect/linux/statvfs_with_deadline.h"

#include <atomic>
#include <cerrno>
#include <condition_variable>
#include <string>
#include <thread>

namespace {
// Workers left stuck in the kernel at once; beyond this every query answers nothing.
constexpr int kMaxAbandoned = 8;
} // namespace

// Shared by the owner and the worker thread, so that a worker left behind outlives its owner.
struct StatvfsWithDeadline::Worker {
    std::mutex lock;
    std::condition_variable wake;
    std::string path;       // the query in progress, or the one it is stuck on
    bool requested = false; // a query waits for the worker
    bool answered = false;  // its answer is in result
    bool quit = false;
    std::optional<struct statvfs> result;
    // Counts the workers left behind; a worker counted there takes itself off when it ends.
    std::shared_ptr<std::atomic<int>> abandoned;
    bool leftBehind = false;
};

StatvfsWithDeadline::StatvfsWithDeadline(std::chrono::milliseconds deadline, Call call)
    : deadline_(deadline)
    , call_(std::move(call))
{}

StatvfsWithDeadline::~StatvfsWithDeadline()
{
    if (!worker_)
        return;
    // Never joined: a worker stuck in the kernel must not hold the program's exit.
    const std::lock_guard guard(worker_->lock);
    worker_->quit = true;
    worker_->wake.notify_all();
}

std::shared_ptr<StatvfsWithDeadline::Worker> StatvfsWithDeadline::startWorker()
{
    auto worker = std::make_shared<Worker>();
    worker->abandoned = abandoned_;
    std::thread([worker, call = call_] {
        std::unique_lock guard(worker->lock);
        for (;;) {
            worker->wake.wait(guard, [&] { return worker->quit || worker->requested; });
            if (worker->quit) {
                if (worker->leftBehind)
                    worker->abandoned->fetch_sub(1);
                return;
            }
            const std::string path = worker->path;
            guard.unlock();
            struct statvfs info {};
            int rc;
            do {
                rc = call(path.c_str(), &info);
            } while (rc != 0 && errno == EINTR);
            guard.lock();
            worker->requested = false;
            worker->answered = true;
            worker->result = rc == 0 ? std::optional(info) : std::nullopt;
            worker->wake.notify_all();
        }
    }).detach();
    return worker;
}

std::optional<struct statvfs> StatvfsWithDeadline::query(const std::filesystem::path& path)
{
    const std::lock_guard turn(queryLock_);
    if (worker_) {
        std::unique_lock guard(worker_->lock);
        if (worker_->requested) {
            // Still stuck on an earlier query: that path answers nothing until it comes back;
            // another one gets a fresh worker.
            if (worker_->path == path.native() || abandoned_->load() >= kMaxAbandoned)
                return std::nullopt;
            worker_->quit = true;
            worker_->leftBehind = true;
            abandoned_->fetch_add(1);
            guard.unlock();
            worker_.reset();
        }
    }
    if (!worker_)
        worker_ = startWorker();
    std::unique_lock guard(worker_->lock);
    worker_->path = path.native();
    worker_->requested = true;
    worker_->answered = false;
    worker_->wake.notify_all();
    if (!worker_->wake.wait_for(guard, deadline_, [&] { return worker_->answered; }))
        return std::nullopt;
    worker_->answered = false;
    return worker_->result;
}
