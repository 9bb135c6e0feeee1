// Builds the Fan menu's rows from the fan list and the newest sample.
#include "modules/fan/fan_panel_rows.h"

#include "toolkit/localization.h"

namespace {

QString speed(std::optional<qint64> rpm)
{
    return rpm ? QStringLiteral("%1 rpm").arg(*rpm) : QStringLiteral("---");
}

QString limits(const FanEntry& fan)
{
    QStringList parts;
    if (fan.minimum)
        parts.append(Tarvel::localized("min %1").arg(speed(*fan.minimum)));
    if (fan.maximum)
        parts.append(Tarvel::localized("max %1").arg(speed(*fan.maximum)));
    return parts.join(QStringLiteral(", "));
}

} // namespace

QList<SensorPanelRow> fanPanelRows(const QList<FanEntry>& fans, const SensorSample& sample)
{
    using Kind = SensorPanelRow::Kind;
    if (fans.isEmpty())
        return {{Kind::Note, Tarvel::localized("No fans were found."), {}, {}}};
    QList<SensorPanelRow> rows;
    for (const FanEntry& fan : fans)
        rows.append({Kind::Reading, fan.name, speed(sample.reading(fan.name)), limits(fan)});
    rows.append({Kind::Reading, Tarvel::localized("Average"), speed(sample.average), {}});
    return rows;
}
