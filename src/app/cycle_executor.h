// Where the sampling cycle's body runs and how its result gets back to the main thread.
#pragma once

#include <QObject>
#include <QThreadPool>

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
};
