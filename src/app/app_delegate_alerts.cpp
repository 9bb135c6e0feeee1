// The threshold alerts' place in the cycle: rules from the store, evaluation after each cycle.
#include "app/app_delegate.h"

#include "alerts/alert_rule_store.h"
#include "modules/menu_module.h"

void AppDelegate::reloadAlertRules()
{
    alerts_.setRules(AlertRuleStore::load(*userDefaults_));
    // An edited rule starts quiet: a mark it had set goes with it.
    markAlertingModules();
}

bool AppDelegate::swapWanted() const
{
    // The cycle observer is the long-term history's feed, which keeps the swap in use.
    return cycleObserver_ != nullptr || alerts_.watches(AlertFigure::SwapUsed);
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
    markAlertingModules();
}

void AppDelegate::markAlertingModules()
{
    // Each item draws again only when its own state changed.
    for (const auto& module : modules_) {
        if (module)
            module->setAlerting(alerts_.engine().moduleAlerting(module->moduleId()));
    }
}
