// Alert rules to and from their stored dictionaries, with the repairs a hand-edited file needs.
#include "alerts/alert_rule.h"

#include "prefs/pref_keys.h"

#include <algorithm>
#include <cmath>

namespace {

using namespace AlertRuleKey;

QVariant entry(const QVariantMap& map, const char* key)
{
    return map.value(QLatin1String(key));
}

bool isNumberType(const QVariant& value)
{
    switch (value.typeId()) {
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Double:
        return true;
    default:
        return false;
    }
}

// A finite number, or none; a number written as text is taken and marked for rewriting.
std::optional<double> number(const QVariant& value, bool& repaired)
{
    bool ok = false;
    const double n = value.toDouble(&ok);
    if (!value.isValid() || !ok || !std::isfinite(n))
        return std::nullopt;
    if (!isNumberType(value))
        repaired = true;
    return n;
}

} // namespace

AlertRule AlertRule::offered(AlertFigure figure, double threshold, double clearAt, qint64 holdSeconds)
{
    return {figure, alertFigureInfo(figure).above, threshold, clearAt, holdSeconds, false};
}

std::optional<AlertRule> alertRuleFromVariant(const QVariant& value, bool& repaired)
{
    if (value.typeId() != QMetaType::QVariantMap)
        return std::nullopt;
    const QVariantMap map = value.toMap();
    const auto figure = alertFigureById(entry(map, Figure).toString());
    bool fixed = false;
    const auto threshold = number(entry(map, Threshold), fixed);
    if (!figure || !threshold)
        return std::nullopt;
    AlertRule rule;
    rule.figure = *figure;
    rule.threshold = *threshold;
    const QVariant above = entry(map, Above);
    rule.above = above.typeId() == QMetaType::Bool ? above.toBool() : alertFigureInfo(*figure).above;
    const QVariant enabled = entry(map, Enabled);
    rule.enabled = enabled.typeId() == QMetaType::Bool && enabled.toBool();
    fixed = fixed || above.typeId() != QMetaType::Bool || enabled.typeId() != QMetaType::Bool;

    const auto hold = number(entry(map, HoldSeconds), fixed);
    rule.holdSeconds = hold ? static_cast<qint64>(std::clamp(*hold, 0.0, double(kAlertMaxHoldSeconds))) : 0;
    fixed = fixed || !hold || double(rule.holdSeconds) != *hold;

    // A clearing point past the threshold would clear a rule while it is still breached.
    const auto clearAt = number(entry(map, ClearAt), fixed);
    const bool clearUsable = clearAt && (rule.above ? *clearAt <= rule.threshold : *clearAt >= rule.threshold);
    rule.clearAt = clearUsable ? *clearAt : rule.threshold;
    repaired = repaired || fixed || !clearUsable;
    return rule;
}

QVariantMap alertRuleToMap(const AlertRule& rule)
{
    return {{QLatin1String(Figure), QLatin1String(alertFigureInfo(rule.figure).id)},
            {QLatin1String(Above), rule.above},
            {QLatin1String(Threshold), rule.threshold},
            {QLatin1String(ClearAt), rule.clearAt},
            {QLatin1String(HoldSeconds), rule.holdSeconds},
            {QLatin1String(Enabled), rule.enabled}};
}

QList<AlertRule> alertRulesFromList(const QVariantList& list, bool& repaired)
{
    QList<AlertRule> rules;
    for (const QVariant& value : list) {
        if (const auto rule = alertRuleFromVariant(value, repaired))
            rules.append(*rule);
        else
            repaired = true;
    }
    return rules;
}

QVariantList alertRulesToList(const QList<AlertRule>& rules)
{
    QVariantList list;
    for (const AlertRule& rule : rules)
        list.append(alertRuleToMap(rule));
    return list;
}
