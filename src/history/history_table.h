// The history as the history command prints it: an aligned text table, or CSV for spreadsheets.
#pragma once

#include "history/history_types.h"

#include <QList>
#include <QString>
#include <QTimeZone>

// One row per series and bucket: series, start of the bucket in local time ("yyyy-MM-dd HH:mm"),
// samples, mean, minimum and maximum in the series' unit.
QString historyTextTable(const QList<SeriesHistory>& history, Resolution resolution,
                         const QTimeZone& zone = QTimeZone::systemTimeZone());

// The same rows with a header; the start in UTC (ISO 8601) and plain numbers for formulas.
QString historyCsv(const QList<SeriesHistory>& history, Resolution resolution);

// The unit as a word the CSV carries: "percent", "bytes", "bytes/s", "celsius", "rpm".
QString unitName(FigureUnit unit);
// A value for reading, with its unit: "12.5%", "1.50 MB/s", "45.0°C", "1200 rpm".
QString readableValue(double value, FigureUnit unit);
