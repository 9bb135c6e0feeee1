// tarvel serve: the sampling cycle without any user interface, its figures served to Prometheus.
#include "app/app_delegate.h"
#include "app/commands.h"
#include "app/front_ends/quit_on_signal.h"
#include "app/metrics_export.h"
#include "app/working_set.h"
#include "collect/source_set.h"
#include "export/metrics_server.h"
#include "prefs/plist_settings_store.h"
#include "toolkit/localization.h"

#include <QGuiApplication>
#include <QTextStream>

#include <cstdio>

int runServe(const AppOptions& options, int argc, char** argv)
{
    // No window is shown: the offscreen platform gives what the modules measure text with.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("Tarvel"));
    installTranslations(app);
    QuitOnSignal quitOnSignal;

    AppDelegate delegate(openSettingsStore(options), makeSourceSet(options.root.toStdString()));
    delegate.setStartupWindowAllowed(false);
    MetricsExport metrics(delegate);
    const auto address =
        parseListenAddress(options.listen.isEmpty() ? QString::fromLatin1(kDefaultListenAddress) : options.listen);
    if (!address || !metrics.serve(*address)) {
        QTextStream(stderr) << metrics.status() << '\n';
        return 1;
    }
    // The address as bound, port 0 resolved, so that whoever started the server can find it.
    QTextStream(stdout) << metricsUrl(address->host, metrics.server().port()) << '\n';
    std::fflush(stdout);
    delegate.applicationDidFinishLaunching();
    WorkingSet::trimFromTimeToTime(&app);
    return QCoreApplication::exec();
}
