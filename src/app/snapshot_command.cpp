// tarvel snapshot: a few cycles without any user interface, then the newest figures.
#include "app/app_delegate.h"
#include "app/commands.h"
#include "app/snapshot_report.h"
#include "collect/source_set.h"
#include "prefs/plist_settings_store.h"
#include "toolkit/localization.h"
#include "toolkit/string_helpers.h"

#include <QGuiApplication>
#include <QTextStream>

std::unique_ptr<PlistSettingsStore> openSettingsStore(const AppOptions& options)
{
    auto store = std::make_unique<PlistSettingsStore>(options.settingsFile.isEmpty() ? PlistSettingsStore::defaultPath()
                                                                                     : options.settingsFile);
    if (!store->openProblem().isEmpty())
        QTextStream(stderr) << store->openProblem() << '\n';
    // Commands without a window have nobody else to tell that their settings were not kept.
    store->setSaveProblemReporter([](const QString& problem) { QTextStream(stderr) << problem << '\n'; });
    return store;
}

int reportEndedEarly(int loopStatus)
{
    // The monitor ends itself when its figures cannot be trusted (the collector said why on
    // standard error); a script must not take the empty output for a report.
    QTextStream(stderr) << "tarvel: sampling ended before the last cycle; nothing was reported\n";
    return loopStatus != 0 ? loopStatus : 1;
}

int runSnapshot(const AppOptions& options, int argc, char** argv)
{
    // No window is shown, yet the texts are measured: whether a figure keeps its unit depends on
    // whether it fits the picture (a fan speed piled on its graph drops "rpm"), and the report
    // gives the menu bar's strings. The offscreen platform gives the fonts without a display.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("Tarvel"));
    installTranslations(app);

    AppDelegate delegate(openSettingsStore(options), makeSourceSet(options.root.toStdString()));
    int finished = 0;
    SnapshotReport report(delegate.collector());
    QObject::connect(&delegate, &AppDelegate::cycleFinished, &app, [&] {
        report.cycleFinished();
        if (++finished < options.cycles)
            return;
        QTextStream out(stdout);
        if (options.json)
            out << report.json(delegate);
        else
            out << TvlClasses::escapedForTerminal(report.text(delegate));
        out.flush();
        QCoreApplication::quit();
    });
    delegate.applicationDidFinishLaunching();
    const int loop = QCoreApplication::exec();
    if (finished < options.cycles)
        return reportEndedEarly(loop);
    return loop;
}
