// tarvel snapshot: a few cycles without any user interface, then the newest figures.
#include "app/app_delegate.h"
#include "app/commands.h"
#include "app/snapshot_report.h"
#include "collect/source_set.h"
#include "modules/cpu/cpu_panel_facts.h"
#include "prefs/plist_settings_store.h"
#include "toolkit/localization.h"

#include <QGuiApplication>
#include <QTextStream>

std::unique_ptr<PlistSettingsStore> openSettingsStore(const AppOptions& options)
{
    auto store = std::make_unique<PlistSettingsStore>(
        options.settingsFile.isEmpty() ? PlistSettingsStore::defaultPath() : options.settingsFile);
    if (!store->openProblem().isEmpty())
        QTextStream(stderr) << store->openProblem() << '\n';
    return store;
}

int runSnapshot(const AppOptions& options, int argc, char** argv)
{
    // No window is shown: the offscreen platform gives fonts for text measuring without a display.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("Tarvel"));
    installTranslations(app);

    AppDelegate delegate(openSettingsStore(options), makeSourceSet(options.root.toStdString()));
    int finished = 0;
    const ProcessDict names = delegate.collector().retProcessDict();
    QObject::connect(&delegate, &AppDelegate::cycleFinished, &app, [&] {
        // Every cycle scans the processes, so the last scan's shares cover the last interval.
        const auto processes = delegate.collector().psGetProccessAsKv(QStringLiteral("%cpu"), names, 10, -1);
        if (++finished < options.cycles)
            return;
        SnapshotReport::CpuPanelRows panel;
        panel.processor = cpuKindText(delegate.collector());
        panel.graphics = gpuRowTexts(delegate.collector());
        if (processes && processes->size() == 2 && !processes->at(0).isEmpty()) {
            panel.processNames = processes->at(0).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
            panel.processValues = processes->at(1).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
        }
        QTextStream out(stdout);
        if (options.json)
            out << SnapshotReport::json(delegate, panel);
        else
            out << SnapshotReport::text(delegate, panel);
        out.flush();
        QCoreApplication::quit();
    });
    delegate.applicationDidFinishLaunching();
    return QCoreApplication::exec();
}
