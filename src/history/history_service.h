// The history's own thread: figures go in from the main thread, reads come back to it.
#pragma once

#include "history/history_reader.h"
#include "history/history_types.h"

#include <QObject>
#include <QThread>

#include <memory>

class HistoryWriter;

// The database connection lives on the service's thread for its whole life (a Qt SQL
// connection is bound to the thread that opened it); the cycle and the menus only post to it,
// so neither waits for a disk write.
class HistoryService final : public QObject, public HistoryReader {
    Q_OBJECT
public:
    HistoryService(const QString& path, HistoryClock clock, QObject* parent = nullptr);
    // Writes the minute under way and waits for the thread to end.
    ~HistoryService() override;

    void record(QList<Figure> figures);
    void read(const QString& module, Resolution resolution, std::int64_t seconds,
              std::function<void(const QList<SeriesHistory>&)> done) override;
    // Waits until everything posted so far has been handled (tests, quitting).
    void sync();

private:
    QThread thread_;
    QObject* worker_;                       // lives on thread_, deleted there
    std::unique_ptr<HistoryWriter> writer_; // touched on thread_ only
};
