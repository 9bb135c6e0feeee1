// tarvel on a desktop: the monitor in the tray or in a bar window, with its preferences.
#include "app/app_delegate.h"
#include "app/commands.h"
#include "app/front_ends/bar_window_status_bar.h"
#include "app/front_ends/desktop_parts.h"
#include "app/front_ends/front_end_choice.h"
#include "app/front_ends/quit_on_signal.h"
#include "app/front_ends/tray_status_bar.h"
#include "app/front_ends/window_probe.h"
#include "app/metrics_export.h"
#include "app/monitor_services.h"
#include "app/working_set.h"
#include "collect/source_set.h"
#include "history/history_location.h"
#include "history/history_service.h"
#include "modules/general/top_tab_metrics_section.h"
#include "modules/general/top_tab_view_controller.h"
#include "preferences/preferences_window.h"
#include "prefs/plist_settings_store.h"
#include "toolkit/localization.h"

#include <QApplication>
#include <QDateTime>

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
    attachDesktop(delegate, bar.get());
    MonitorServices::carryOutDdns(delegate);
    // Off unless the General settings switch it on; a bad address or a taken port is told in the
    // top tab, and the monitor runs on without it.
    MetricsExport metrics(delegate);
    const auto showStatus = [&delegate](const QString& status) {
        PreferencesWindow* window = preferencesWindow(delegate);
        if (auto* top = window != nullptr ? qobject_cast<TopTabViewController*>(window->tab(0)) : nullptr)
            top->metricsSection()->showStatus(status);
    };
    QObject::connect(&metrics, &MetricsExport::statusChanged, &delegate, showStatus);
    delegate.setHistoryReader(&history);
    MonitorServices::feedHistory(delegate, history);
    delegate.applicationDidFinishLaunching();
    metrics.followSettings();
    showStatus(metrics.status());
    if (options.preferencesTab)
        delegate.openPreferenceTab(*options.preferencesTab);
    WorkingSet::trimFromTimeToTime(&app);
    return QApplication::exec();
}
