// Thread-pool execution of the cycle body.
#include "app/cycle_executor.h"

#include <QMetaObject>
#include <QRunnable>

namespace {

// The body, with the hand-over's acquiring half; the pool deletes it after running it. The
// counter is the class's own, so that acquiring it reads nothing the main thread wrote.
class HandedOverTask final : public QRunnable {
public:
    explicit HandedOverTask(std::function<void()> task)
        : task_(std::move(task))
    {}
    static void handOver() { handOvers_.fetch_add(1, std::memory_order_release); }
    void run() override
    {
        handOvers_.load(std::memory_order_acquire);
        task_();
    }

private:
    static inline std::atomic<std::uint64_t> handOvers_{0};
    std::function<void()> task_;
};

} // namespace

ThreadPoolCycleExecutor::ThreadPoolCycleExecutor(QObject* mainContext)
    : mainContext_(mainContext)
{
    // One cycle at a time anyway; a single thread keeps the collectors' state on one thread.
    pool_.setMaxThreadCount(1);
    pool_.setExpiryTimeout(-1);
}

ThreadPoolCycleExecutor::~ThreadPoolCycleExecutor()
{
    pool_.waitForDone();
}

void ThreadPoolCycleExecutor::runInBackground(std::function<void()> task)
{
    // Made whole before the release, so the pool thread reads nothing written after it.
    auto* runnable = new HandedOverTask(std::move(task));
    HandedOverTask::handOver();
    pool_.start(runnable);
}

void ThreadPoolCycleExecutor::postToMain(std::function<void()> task)
{
    auto queued = [this, task = std::move(task)] {
        toMain_.load(std::memory_order_acquire);
        task();
    };
    toMain_.fetch_add(1, std::memory_order_release);
    QMetaObject::invokeMethod(mainContext_, std::move(queued), Qt::QueuedConnection);
}
