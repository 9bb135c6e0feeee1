// Builds the Temp menu's rows from the sensor table, the newest sample and the drive list.
#include "modules/temp/temp_panel_rows.h"

#include "toolkit/localization.h"
#include "toolkit/temperature_format.h"

namespace {

QString marks(const TempSensorEntry& entry, const TempUnit& unit)
{
    QStringList parts;
    if (entry.high)
        parts.append(Tarvel::localized("high %1").arg(tempDegreesText(*entry.high, unit)));
    if (entry.critical)
        parts.append(Tarvel::localized("critical %1").arg(tempDegreesText(*entry.critical, unit)));
    return parts.join(QStringLiteral(", "));
}

} // namespace

QString tempDegreesText(std::optional<qint64> celsius, const TempUnit& unit)
{
    return TvlClasses::calcTempWithUnit(celsius ? static_cast<float>(*celsius) : 0.0F, unit.mode, unit.text, true);
}

QList<SensorPanelRow> tempPanelRows(const std::optional<QList<TempSensorEntry>>& table, const SensorSample& sample,
                                    const TempUnit& unit, const QList<SmartReading>& drives)
{
    using Kind = SensorPanelRow::Kind;
    QList<SensorPanelRow> rows;
    if (!table || table->isEmpty()) {
        rows.append({Kind::Note, Tarvel::localized("No temperature sensors were found."), {}, {}});
    } else {
        // Chips in the order the table first names them, each with all of its sensors.
        QStringList groups;
        for (const TempSensorEntry& entry : *table) {
            if (!groups.contains(entry.group))
                groups.append(entry.group);
        }
        for (const QString& group : std::as_const(groups)) {
            rows.append({Kind::Heading, group.isEmpty() ? Tarvel::localized("Sensors") : group, {}, {}});
            for (const TempSensorEntry& entry : *table) {
                if (entry.group == group)
                    rows.append({Kind::Reading, entry.name, tempDegreesText(sample.reading(entry.name), unit),
                                 marks(entry, unit)});
            }
        }
        rows.append({Kind::Reading, Tarvel::localized("Average"), tempDegreesText(sample.average, unit), {}});
    }
    // The drive list starts with its "---" row, which stands for the section's heading.
    for (qsizetype i = 0; i < drives.size(); ++i) {
        if (i == 0)
            rows.append({Kind::Heading, Tarvel::localized("Drives"), {}, {}});
        else
            rows.append({Kind::Reading, drives.at(i).model, tempDegreesText(drives.at(i).temperature, unit), {}});
    }
    return rows;
}
