// The threshold alerts' place in the cycle: rules from the store, evaluation after each cycle.
#include "app/app_delegate.h"

#include "alerts/alert_rule_store.h"

void AppDelegate::reloadAlertRules()
{
    alerts_.setRules(AlertRuleStore::load(*userDefaults_));
}

void AppDelegate::checkAlerts()
{
    // Alerts belong to a running monitor (its items or its text lines); a snapshot or a render
    // run tells nobody anything.
    if (statusBar_ == nullptr && messageBar_ == nullptr)
        return;
    AlertFigureContext context;
    // The collector keeps the totals of its last memory sample; asked only when there is one,
    // so that this never reads the kernel itself.
    if (alerts_.watches(ModuleId::Memory) && infoDict_.size(moduleIndex(ModuleId::Memory)) > 0) {
        if (const auto totals = loadInfo_->memoryTotals())
            context.memoryTotalPages = totals->totalPages;
    }
    alerts_.cycleFinished(infoDict_, context);
}
