// The row of range buttons above a drop-down's graph: the live samples or a past hour, day or week.
#pragma once

#include "history/history_types.h"

#include <QWidget>

#include <cstdint>

enum class HistoryRange { Live, Hour, Day, Week };

// What a past range reads: minutes for the hour and the day, hours for the week.
Resolution rangeResolution(HistoryRange range);
std::int64_t rangeSeconds(HistoryRange range);

class HistoryRangeChoice : public QWidget {
    Q_OBJECT
public:
    explicit HistoryRangeChoice(HistoryRange chosen, QWidget* parent = nullptr);

Q_SIGNALS:
    void rangeChosen(HistoryRange range);
};
