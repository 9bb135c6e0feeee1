// Watches the histories after every cycle and tells the user once when a rule fires.
#pragma once

#include "alerts/alert_engine.h"

#include <functional>

class Notifier;
struct UserNotification;

// Reads only the figures the switched-on rules watch, from the histories the cycle has just
// produced: alerts cost no read of their own.
class AlertMonitor {
public:
    using Clock = std::function<qint64()>; // milliseconds of a monotonic clock
    // notifier: asked for the program's notifier only when something is to be said, so that a
    // run that never fires an alert never makes one.
    explicit AlertMonitor(std::function<Notifier*()> notifier, Clock clock = steadyClock());

    // Replaces the clock, for tests that play histories through at their own pace.
    void setClock(Clock clock) { clock_ = std::move(clock); }
    void setRules(const QList<AlertRule>& rules);
    const AlertEngine& engine() const { return engine_; }
    // Whether any switched-on rule watches a figure of the module.
    bool watches(ModuleId module) const;
    // Whether any switched-on rule watches the figure (the cycle collects some only on asking).
    bool watches(AlertFigure figure) const { return watched_[alertFigureIndex(figure)]; }

    // After a cycle: evaluates every switched-on rule and notifies of those that fire.
    void cycleFinished(const InfoDict& info, const AlertFigureContext& context);

    // What the user is told when the rule fires with value.
    static UserNotification notification(const AlertRule& rule, double value);
    // The figure with its unit: "93 %", "0.4 KB/s", "85 °C".
    static QString valueText(AlertFigure figure, double value);

private:
    static Clock steadyClock();

    std::function<Notifier*()> notifier_;
    Clock clock_;
    AlertEngine engine_;
    std::array<bool, kAlertFigureCount> watched_{};
    bool watching_ = false;
    std::vector<AlertFiring> fired_; // kept between cycles for its capacity
};
