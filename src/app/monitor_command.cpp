// tarvel: the monitor itself, in the tray, in a bar window, or as live text without a display.
#include "app/app_delegate.h"
#include "app/commands.h"
#include "app/front_ends/bar_window_status_bar.h"
#include "app/front_ends/front_end_choice.h"
#include "app/front_ends/quit_on_signal.h"
#include "app/front_ends/terminal_monitor.h"
#include "app/front_ends/terminal_status_bar.h"
#include "app/front_ends/tray_status_bar.h"
#include "app/front_ends/window_probe.h"
#include "app/history_feed.h"
#include "app/metrics_export.h"
#include "app/working_set.h"
#include "collect/source_set.h"
#include "history/history_location.h"
#include "history/history_service.h"
#include "modules/general/top_tab_metrics_section.h"
#include "modules/general/top_tab_view_controller.h"
#include "net/general_functions_ddns.h"
#include "prefs/plist_settings_store.h"
#include "toolkit/localization.h"

#include <QApplication>
#include <QDateTime>

namespace {

// Every cycle's figures also go to the long history; its writer runs on a thread of its own.
void feedHistory(AppDelegate& delegate, HistoryService& history)
{
    delegate.setCycleObserver([&history](LoadSystemInformation& loadInfo, const CycleOutput& output) {
        history.record(sampledFigures(loadInfo, output));
    });
}

// The dynamic DNS run reaches outside services, so only the real monitor carries it out.
void carryOutDdns(AppDelegate& delegate)
{
    QObject::connect(&delegate, &AppDelegate::ddnsLookupRequested, &delegate, [&delegate](bool forced) {
        GeneralFunctions::runDdnsCheck(delegate.userDefaults(), *delegate.notifier(), forced, {},
                                       [&delegate](const QString& outcome) { delegate.ddnsRunFinished(outcome); });
    });
}

// Without a display only words are shown: no status-item modules, so no widgets, no platform
// plugin and no fonts, which keeps a monitor left running on a server small.
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
    feedHistory(delegate, history);
    delegate.setPreferencesAvailable(false);
    TerminalMonitor monitor(delegate, bar);
    carryOutDdns(delegate);
    // A server without a display is where the metrics are most wanted.
    MetricsExport metrics(delegate);
    delegate.applicationDidFinishLaunching();
    metrics.followSettings();
    WorkingSet::trimFromTimeToTime(&app);
    return QCoreApplication::exec();
}

} // namespace

int runMonitor(const AppOptions& options, int argc, char** argv)
{
    if (!hasDisplay())
        return runTextView(options, argc, argv);
    QApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("Tarvel"));
    QApplication::setQuitOnLastWindowClosed(false);
    installTranslations(app);
    QuitOnSignal quitOnSignal;
    WindowProbe::installIfAsked(app);

    std::unique_ptr<StatusBar> bar;
    if (chooseFrontEnd(options.bar, true, TrayStatusBar::isAvailable()) == FrontEndKind::Tray)
        bar = std::make_unique<TrayStatusBar>();
    else
        bar = std::make_unique<BarWindowStatusBar>();

    // Made before the controller, so it outlives the cycle that feeds it; it writes the minute
    // under way when it goes.
    HistoryService history(historyDatabasePath(), [] { return QDateTime::currentMSecsSinceEpoch(); });
    AppDelegate delegate(openSettingsStore(options), makeSourceSet(options.root.toStdString()));
    delegate.setStatusBar(bar.get());
    carryOutDdns(delegate);
    // Off unless the General settings switch it on; a bad address or a taken port is told in the
    // top tab, and the monitor runs on without it.
    MetricsExport metrics(delegate);
    const auto showStatus = [&delegate](const QString& status) {
        if (auto* top = delegate.preferencePanel()
                            ? qobject_cast<TopTabViewController*>(delegate.preferencePanel()->tab(0))
                            : nullptr)
            top->metricsSection()->showStatus(status);
    };
    QObject::connect(&metrics, &MetricsExport::statusChanged, &delegate, showStatus);
    delegate.setHistoryReader(&history);
    feedHistory(delegate, history);
    delegate.applicationDidFinishLaunching();
    metrics.followSettings();
    showStatus(metrics.status());
    if (options.preferencesTab)
        delegate.openPreferenceTab(*options.preferencesTab);
    WorkingSet::trimFromTimeToTime(&app);
    return QApplication::exec();
}
