// The Temp and Fan rows as lines of text, for the snapshot and the text view.
#include "modules/sensor_panel_row.h"

QString sensorPanelText(const QList<SensorPanelRow>& rows, const QString& indent)
{
    QString out;
    for (const SensorPanelRow& row : rows) {
        QString line = indent + row.name;
        if (row.kind == SensorPanelRow::Kind::Reading) {
            line += QStringLiteral("  ") + row.value;
            if (!row.marks.isEmpty())
                line += QStringLiteral("  (") + row.marks + QLatin1Char(')');
        }
        out += line + QLatin1Char('\n');
    }
    return out;
}
