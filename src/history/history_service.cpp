// Posting figures and reads to the history's thread, and the answers back.
#include "history/history_service.h"

#include "history/history_writer.h"

#include <QPointer>

HistoryService::HistoryService(const QString& path, HistoryClock clock, QObject* parent)
    : QObject(parent)
    , worker_(new QObject)
{
    thread_.setObjectName(QStringLiteral("history"));
    worker_->moveToThread(&thread_);
    connect(&thread_, &QThread::finished, worker_, &QObject::deleteLater);
    thread_.start(QThread::LowPriority);
    QMetaObject::invokeMethod(worker_, [this, path, clock = std::move(clock)]() mutable {
        writer_ = std::make_unique<HistoryWriter>(path, std::move(clock));
    });
}

HistoryService::~HistoryService()
{
    QMetaObject::invokeMethod(
        worker_,
        [this] {
            writer_->finish();
            writer_.reset();
        },
        Qt::BlockingQueuedConnection);
    thread_.quit();
    thread_.wait();
}

void HistoryService::record(QList<Figure> figures)
{
    QMetaObject::invokeMethod(worker_, [this, figures = std::move(figures)] { writer_->record(figures); });
}

void HistoryService::read(const QString& module, Resolution resolution, std::int64_t seconds,
                          std::function<void(const QList<SeriesHistory>&)> done)
{
    QMetaObject::invokeMethod(worker_, [this, module, resolution, seconds, done = std::move(done)]() mutable {
        QList<SeriesHistory> result = writer_->read(module, resolution, seconds);
        // Queued to this object: a service gone by then drops the answer.
        QMetaObject::invokeMethod(this, [done = std::move(done), result = std::move(result)] { done(result); });
    });
}

void HistoryService::sync()
{
    QMetaObject::invokeMethod(
        worker_, [] {}, Qt::BlockingQueuedConnection);
}
