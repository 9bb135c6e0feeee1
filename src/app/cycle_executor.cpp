// Thread-pool execution of the cycle body.
#include "app/cycle_executor.h"

#include <QMetaObject>

ThreadPoolCycleExecutor::ThreadPoolCycleExecutor(QObject* mainContext) : mainContext_(mainContext)
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
    pool_.start(std::move(task));
}

void ThreadPoolCycleExecutor::postToMain(std::function<void()> task)
{
    QMetaObject::invokeMethod(mainContext_, std::move(task), Qt::QueuedConnection);
}
