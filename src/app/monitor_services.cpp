// The long history and the dynamic DNS run, as every running monitor carries them out.
#include "app/monitor_services.h"

#include "app/app_delegate.h"
#include "app/history_feed.h"
#include "history/history_service.h"
#include "net/general_functions_ddns.h"

namespace MonitorServices {

void feedHistory(AppDelegate& delegate, HistoryService& history)
{
    delegate.setCycleObserver([&history](LoadSystemInformation& loadInfo, const CycleOutput& output) {
        history.record(sampledFigures(loadInfo, output));
    });
}

void carryOutDdns(AppDelegate& delegate)
{
    QObject::connect(&delegate, &AppDelegate::ddnsLookupRequested, &delegate, [&delegate](bool forced) {
        GeneralFunctions::runDdnsCheck(delegate.userDefaults(), *delegate.notifier(), forced, {},
                                       [&delegate](const QString& outcome) { delegate.ddnsRunFinished(outcome); });
    });
}

} // namespace MonitorServices
