// A drop-down graph's past ranges: the choice, the read while the menu is open, the drawing.
#pragma once

#include "history/history_types.h"
#include "modules/history_range_choice.h"

#include <QElapsedTimer>
#include <QImage>
#include <QObject>
#include <QSize>

class HistoryReader;

class MenuHistoryGraph : public QObject {
    Q_OBJECT
public:
    MenuHistoryGraph(HistoryReader& reader, QString moduleKey, QObject* parent = nullptr);

    // A new choice row showing the range in force; the menu owns it.
    QWidget* makeChoice();
    HistoryRange range() const { return range_; }
    void setRange(HistoryRange range);

    // The chosen past range drawn at that size; a null image while the range is live. Reads
    // the history when what it holds is missing or a minute old: only an open menu draws.
    QImage image(QSize size, qreal scale, const QColor& text);
    // The menu closed: what was read is let go, and read again at the next opening.
    void menuClosed();

Q_SIGNALS:
    // The range changed or a read arrived: the open menu's graph is to be drawn again.
    void changed();

private:
    void startRead();

    HistoryReader& reader_;
    QString moduleKey_;
    HistoryRange range_ = HistoryRange::Live;
    QList<SeriesHistory> series_;
    QElapsedTimer readAge_; // invalid until a read arrived
    std::int64_t readAtMs_ = 0;
    int pendingReads_ = 0;
    // Each change of range or closing starts a new generation; older answers are dropped.
    int generation_ = 0;
};
