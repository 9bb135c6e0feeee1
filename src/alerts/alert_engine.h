// Decides, cycle by cycle, when each alert rule fires and when it clears.
#pragma once

#include "alerts/alert_figure.h"
#include "alerts/alert_rule.h"

#include <QList>

#include <vector>

// A rule that has just fired, with the reading that fired it.
struct AlertFiring {
    int rule; // index into the engine's rules
    double value;
};

// Pure bookkeeping over readings and a clock the caller supplies, so that it is driven the same
// by the cycle and by tests. A rule is quiet, holding (past its threshold since a moment) or
// fired; it fires once when it has held for its seconds and stays silent until the figure
// reaches its clearing point, however long the breach lasts.
class AlertEngine {
public:
    enum class Phase { Quiet, Holding, Fired };

    // Takes a new rule list. A rule equal to one of the old list keeps that one's state (a
    // holding rule goes on counting, a fired one stays silent); any other starts quiet, as a
    // rule just edited should.
    void setRules(const QList<AlertRule>& rules);
    const QList<AlertRule>& rules() const { return rules_; }

    // One cycle's readings at nowMs (a monotonic clock). A figure without a reading leaves its
    // rules as they are: a sample missed is no evidence either way. The firings are appended to
    // fired, which is left as it was when nothing fires (no allocation on a quiet cycle).
    void evaluate(const AlertReadings& readings, qint64 nowMs, std::vector<AlertFiring>& fired);

    Phase phase(int rule) const { return states_.at(rule).phase; }
    // Whether any switched-on rule of the module has fired and not cleared yet.
    bool moduleAlerting(ModuleId module) const;

private:
    struct State {
        Phase phase = Phase::Quiet;
        qint64 since = 0; // when the figure went past the threshold
    };

    QList<AlertRule> rules_;
    std::vector<State> states_;
};
