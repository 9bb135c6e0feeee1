// What a drop-down asks of the history: a module's series over a span, answered later.
#pragma once

#include "history/history_types.h"

#include <QList>
#include <QString>

#include <cstdint>
#include <functional>

class HistoryReader {
public:
    virtual ~HistoryReader() = default;
    // The module's series over the last seconds, per minute or per hour; done is called on the
    // caller's thread once they are read, and not at all when the reader is gone by then.
    virtual void read(const QString& module, Resolution resolution, std::int64_t seconds,
                      std::function<void(const QList<SeriesHistory>&)> done) = 0;
};
