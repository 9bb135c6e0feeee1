// tarvel: the monitor itself, in the tray, in a bar window, or as live text without a display.
#include "app/app_delegate.h"
#include "net/general_functions_ddns.h"
#include "app/commands.h"
#include "app/front_ends/bar_window_status_bar.h"
#include "app/front_ends/front_end_choice.h"
#include "app/front_ends/quit_on_signal.h"
#include "app/front_ends/terminal_status_bar.h"
#include "app/front_ends/tray_status_bar.h"
#include "app/metrics_export.h"
#include "collect/source_set.h"
#include "modules/general/top_tab_metrics_section.h"
#include "modules/general/top_tab_view_controller.h"
#include "app/history_feed.h"
#include "history/history_location.h"
#include "history/history_service.h"
#include "prefs/plist_settings_store.h"
#include "toolkit/localization.h"

#include <QApplication>
#include <QDateTime>

int runMonitor(const AppOptions& options, int argc, char** argv)
{
    const bool display = hasDisplay();
    // Without a display the menus and pictures still exist, drawn offscreen; only texts are shown.
    if (!display)
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("Tarvel"));
    QApplication::setQuitOnLastWindowClosed(false);
    installTranslations(app);
    QuitOnSignal quitOnSignal;

    std::unique_ptr<StatusBar> bar;
    const FrontEndKind frontEnd = chooseFrontEnd(options.bar, display, display && TrayStatusBar::isAvailable());
    switch (frontEnd) {
    case FrontEndKind::Tray:
        bar = std::make_unique<TrayStatusBar>();
        break;
    case FrontEndKind::BarWindow:
        bar = std::make_unique<BarWindowStatusBar>();
        break;
    case FrontEndKind::Terminal:
        bar = std::make_unique<TerminalStatusBar>();
        break;
    }

    // Made before the controller, so it outlives the cycle that feeds it; it writes the minute
    // under way when it goes.
    HistoryService history(historyDatabasePath(), [] { return QDateTime::currentMSecsSinceEpoch(); });
    AppDelegate delegate(openSettingsStore(options), makeSourceSet(options.root.toStdString()));
    delegate.setStatusBar(bar.get());
    delegate.setPreferencesAvailable(frontEnd != FrontEndKind::Terminal);
    // The dynamic DNS run reaches outside services, so only the real monitor carries it out.
    QObject::connect(&delegate, &AppDelegate::ddnsLookupRequested, &delegate, [&delegate](bool forced) {
        GeneralFunctions::runDdnsCheck(delegate.userDefaults(), *delegate.notifier(), forced, {},
                                       [&delegate](const QString& outcome) { delegate.ddnsRunFinished(outcome); });
    });
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
    delegate.setCycleObserver([&history](LoadSystemInformation& loadInfo, const CycleOutput& output) {
        history.record(sampledFigures(loadInfo, output));
    });
    delegate.applicationDidFinishLaunching();
    metrics.followSettings();
    showStatus(metrics.status());
    if (options.preferencesTab)
        delegate.openPreferenceTab(*options.preferencesTab);
    return QApplication::exec();
}
