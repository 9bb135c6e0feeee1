// One alert rule: a figure, a comparison, a threshold held for a while, and where it clears.
#pragma once

#include "alerts/alert_figure.h"

#include <QList>
#include <QVariant>
#include <QVariantMap>

#include <optional>

struct AlertRule {
    AlertFigure figure = AlertFigure::CpuBusy;
    bool above = true; // fires while the figure is over the threshold, else while under it
    double threshold = 0;
    // Where a fired rule clears again: at or below it for a rule that fires above the
    // threshold, at or above it for one that fires under; never past the threshold itself, so a
    // figure hovering at the threshold cannot fire it again and again.
    double clearAt = 0;
    qint64 holdSeconds = 0; // how long the figure must stay past the threshold
    bool enabled = false;

    bool operator==(const AlertRule&) const = default;

    // Whether the figure is past the threshold, and whether it is back past the clearing point.
    [[nodiscard]] bool breached(double value) const { return above ? value > threshold : value < threshold; }
    [[nodiscard]] bool cleared(double value) const { return above ? value <= clearAt : value >= clearAt; }

    // A new rule of the figure, switched off, from the figure's usual threshold.
    static AlertRule offered(AlertFigure figure, double threshold, double clearAt, qint64 holdSeconds);
};

// The longest a figure may be asked to hold: a day.
inline constexpr qint64 kAlertMaxHoldSeconds = 86400;

// A stored entry as a rule. None when it cannot be one (no dictionary, an unknown figure, a
// threshold that is no finite number); repaired is set when an entry was usable but not as
// stored (a missing or misplaced clearing point, a hold out of range).
std::optional<AlertRule> alertRuleFromVariant(const QVariant& entry, bool& repaired);
QVariantMap alertRuleToMap(const AlertRule& rule);

// The stored list as rules: unusable entries are left out and usable ones set right, and
// repaired tells that the list is to be written back as it is now read.
QList<AlertRule> alertRulesFromList(const QVariantList& list, bool& repaired);
QVariantList alertRulesToList(const QList<AlertRule>& rules);
