// Where the sampling cycle's body runs and how its result gets back to the main thread.
#pragma once

#include <QObject>
#include <QThreadPool>

#include <atomic>
#include <cstdint>
#include <functional>

class CycleExecutor {
public:
    virtual ~CycleExecutor() = default;
    virtual void runInBackground(std::function<void()> task) = 0;
    virtual void postToMain(std::function<void()> task) = 0;
};

// The live executor: a one-thread pool for the body, queued calls for the way back. A call
// queued for a context that is gone by then is dropped by Qt.
class ThreadPoolCycleExecutor final : public CycleExecutor {
public:
    explicit ThreadPoolCycleExecutor(QObject* mainContext);
    ~ThreadPoolCycleExecutor() override;

    void runInBackground(std::function<void()> task) override;
    void postToMain(std::function<void()> task) override;

private:
    QObject* mainContext_;
    QThreadPool pool_;
    // Each hand-over between the threads also passes through an atomic counter, released by
    // the giving thread and acquired by the taking one. The pool and the event queue order the
    // two already, but through Qt's own locks, which a thread checker built into our code
    // cannot see; the counters make the order visible to it at the cost of one atomic step.
    std::atomic<std::uint64_t> toMain_{0};
};
