// The fire-and-clear bookkeeping of the alert rules.
#include "alerts/alert_engine.h"

void AlertEngine::setRules(const QList<AlertRule>& rules)
{
    std::vector<State> states(static_cast<std::size_t>(rules.size()));
    std::vector<bool> taken(states_.size(), false);
    for (qsizetype i = 0; i < rules.size(); ++i) {
        // Two identical rules each carry the state of one old twin, in order.
        for (qsizetype j = 0; j < rules_.size(); ++j) {
            if (!taken[j] && rules_[j] == rules[i]) {
                taken[j] = true;
                states[i] = states_[j];
                break;
            }
        }
    }
    rules_ = rules;
    states_ = std::move(states);
}

void AlertEngine::evaluate(const AlertReadings& readings, qint64 nowMs, std::vector<AlertFiring>& fired)
{
    for (qsizetype i = 0; i < rules_.size(); ++i) {
        const AlertRule& rule = rules_[i];
        const std::optional<double>& reading = readings[alertFigureIndex(rule.figure)];
        if (!rule.enabled || !reading)
            continue;
        State& state = states_[i];
        const double value = *reading;
        switch (state.phase) {
        case Phase::Quiet:
            if (!rule.breached(value))
                break;
            state = {Phase::Holding, nowMs};
            [[fallthrough]];
        case Phase::Holding:
            if (!rule.breached(value))
                state.phase = Phase::Quiet;
            else if (nowMs - state.since >= rule.holdSeconds * 1000) {
                state.phase = Phase::Fired;
                fired.push_back({static_cast<int>(i), value});
            }
            break;
        case Phase::Fired:
            if (rule.cleared(value))
                state.phase = Phase::Quiet;
            break;
        }
    }
}

bool AlertEngine::moduleAlerting(ModuleId module) const
{
    for (qsizetype i = 0; i < rules_.size(); ++i) {
        if (rules_[i].enabled && states_[i].phase == Phase::Fired && alertFigureInfo(rules_[i].figure).module == module)
            return true;
    }
    return false;
}
