// tarvel without a display: the monitor as live lines of text, one per module.
#include "app/app_delegate.h"
#include "app/commands.h"
#include "app/front_ends/quit_on_signal.h"
#include "app/front_ends/terminal_monitor.h"
#include "app/front_ends/terminal_status_bar.h"
#include "app/metrics_export.h"
#include "app/monitor_services.h"
#include "app/working_set.h"
#include "collect/source_set.h"
#include "history/history_location.h"
#include "history/history_service.h"
#include "prefs/plist_settings_store.h"
#include "toolkit/localization.h"

#include <QCoreApplication>
#include <QDateTime>

// Only words are shown: no status items, so no widgets, no platform plugin and no fonts, which
// keeps a monitor left running on a server small.
int runTextView(const AppOptions& options, int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("Tarvel"));
    installTranslations(app);
    QuitOnSignal quitOnSignal;

    TerminalStatusBar bar;
    HistoryService history(historyDatabasePath(), [] { return QDateTime::currentMSecsSinceEpoch(); });
    AppDelegate delegate(openSettingsStore(options), makeSourceSet(options.root.toStdString()));
    delegate.setMessageBar(&bar);
    MonitorServices::feedHistory(delegate, history);
    TerminalMonitor monitor(delegate, bar);
    MonitorServices::carryOutDdns(delegate);
    // A server without a display is where the metrics are most wanted.
    MetricsExport metrics(delegate);
    delegate.applicationDidFinishLaunching();
    metrics.followSettings();
    WorkingSet::trimFromTimeToTime(&app);
    return QCoreApplication::exec();
}
