// Writes a sensor module's block of the snapshot report.
#include "modules/sensor_snapshot.h"

SensorSample newestSensorSample(const SnapshotContext& context)
{
    const History<SensorSample> history = context.info.history<SensorSample>(context.slot);
    return history.empty() ? SensorSample{} : history.back();
}

QString sensorSnapshotText(const SnapshotContext& context, const QString& barText, const QList<SensorPanelRow>& rows)
{
    QString out = QLatin1String(context.key) + QLatin1Char('\n');
    out += QStringLiteral("  ") + barText + QLatin1Char('\n');
    return out + sensorPanelText(rows, QStringLiteral("  "));
}

void addSensorSnapshotJson(const SnapshotContext& context, const char* averageKey, QJsonObject& root)
{
    const History<SensorSample> history = context.info.history<SensorSample>(context.slot);
    if (history.empty())
        return;
    QJsonObject sample;
    for (auto it = history.back().values.cbegin(); it != history.back().values.cend(); ++it)
        sample.insert(it.key(), it.value());
    if (history.back().average)
        sample.insert(QLatin1String(averageKey), *history.back().average);
    root.insert(QLatin1String(context.key), sample);
}
