// Text and CSV forms of a module's aggregates.
#include "history/history_table.h"

#include <QDateTime>
#include <QLocale>
#include <QStringList>

#include <algorithm>
#include <array>

namespace {

QDateTime bucketStart(const Aggregate& aggregate, Resolution resolution)
{
    return QDateTime::fromSecsSinceEpoch(aggregate.bucket * bucketSeconds(resolution), Qt::UTC);
}

// Plain decimal figures, as precise as they are kept.
QString plainValue(double value, FigureUnit unit)
{
    const int decimals = unit == FigureUnit::Percent ? 2 : unit == FigureUnit::Celsius ? 1 : 0;
    return QString::number(value, 'f', decimals);
}

// RFC 4180: a field with a comma, a quote or a line break goes in quotes, quotes doubled.
QString csvField(QString text)
{
    if (!text.contains(u',') && !text.contains(u'"') && !text.contains(u'\n'))
        return text;
    return u'"' + text.replace(u'"', QStringLiteral("\"\"")) + u'"';
}

} // namespace

QString unitName(FigureUnit unit)
{
    switch (unit) {
    case FigureUnit::Percent:
        return QStringLiteral("percent");
    case FigureUnit::Bytes:
        return QStringLiteral("bytes");
    case FigureUnit::BytesPerSecond:
        return QStringLiteral("bytes/s");
    case FigureUnit::Celsius:
        return QStringLiteral("celsius");
    case FigureUnit::Rpm:
        break;
    }
    return QStringLiteral("rpm");
}

QString readableValue(double value, FigureUnit unit)
{
    const QLocale c = QLocale::c();
    switch (unit) {
    case FigureUnit::Percent:
        return QString::number(value, 'f', 1) + u'%';
    case FigureUnit::Bytes:
        return c.formattedDataSize(qRound64(value), 2, QLocale::DataSizeTraditionalFormat);
    case FigureUnit::BytesPerSecond:
        return c.formattedDataSize(qRound64(value), 2, QLocale::DataSizeTraditionalFormat) + QStringLiteral("/s");
    case FigureUnit::Celsius:
        return QString::number(value, 'f', 1) + QStringLiteral("°C");
    case FigureUnit::Rpm:
        break;
    }
    return QString::number(qRound64(value)) + QStringLiteral(" rpm");
}

QString historyTextTable(const QList<SeriesHistory>& history, Resolution resolution, const QTimeZone& zone)
{
    using Row = std::array<QString, 6>;
    QList<Row> rows{{QStringLiteral("Series"), QStringLiteral("Start"), QStringLiteral("Samples"),
                     QStringLiteral("Mean"), QStringLiteral("Min"), QStringLiteral("Max")}};
    for (const SeriesHistory& series : history) {
        for (const Aggregate& aggregate : series.buckets)
            rows.append(
                {series.series,
                 bucketStart(aggregate, resolution).toTimeZone(zone).toString(QStringLiteral("yyyy-MM-dd HH:mm")),
                 QString::number(aggregate.count), readableValue(aggregate.mean, series.unit),
                 readableValue(aggregate.min, series.unit), readableValue(aggregate.max, series.unit)});
    }
    std::array<qsizetype, 6> widths{};
    for (const Row& row : rows) {
        for (std::size_t i = 0; i < row.size(); ++i)
            widths[i] = std::max(widths[i], row[i].size());
    }
    QString text;
    for (const Row& row : rows) {
        QStringList cells;
        // Names and times read from the left, figures line up on the right.
        for (std::size_t i = 0; i < row.size(); ++i)
            cells.append(i < 2 ? row[i].leftJustified(widths[i]) : row[i].rightJustified(widths[i]));
        text += cells.join(QStringLiteral("  ")).trimmed() + u'\n';
    }
    return text;
}

QString historyCsv(const QList<SeriesHistory>& history, Resolution resolution)
{
    QString text = QStringLiteral("series,unit,start,samples,mean,min,max\n");
    for (const SeriesHistory& series : history) {
        for (const Aggregate& aggregate : series.buckets) {
            const QStringList fields{csvField(series.series),
                                     unitName(series.unit),
                                     bucketStart(aggregate, resolution).toString(Qt::ISODate),
                                     QString::number(aggregate.count),
                                     plainValue(aggregate.mean, series.unit),
                                     plainValue(aggregate.min, series.unit),
                                     plainValue(aggregate.max, series.unit)};
            text += fields.join(u',') + u'\n';
        }
    }
    return text;
}
