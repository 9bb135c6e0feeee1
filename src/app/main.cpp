// Entry point: parses the command line, then runs the monitor or the snapshot command.
#include "app/app_delegate.h"
#include "app/app_options.h"
#include "app/snapshot_report.h"
#include "collect/source_set.h"
#include "prefs/plist_settings_store.h"
#include "toolkit/localization.h"

#include <QApplication>
#include <QGuiApplication>
#include <QTextStream>

#include <cstdio>
#include <memory>

namespace {

std::unique_ptr<PlistSettingsStore> openStore(const AppOptions& options)
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
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("Tarvel"));
    installTranslations(app);

    AppDelegate delegate(openStore(options), makeSourceSet(options.root.toStdString()));
    int finished = 0;
    QObject::connect(&delegate, &AppDelegate::cycleFinished, &app, [&] {
        if (++finished < options.cycles)
            return;
        QTextStream out(stdout);
        if (options.json)
            out << SnapshotReport::json(delegate);
        else
            out << SnapshotReport::text(delegate);
        out.flush();
        QCoreApplication::quit();
    });
    delegate.applicationDidFinishLaunching();
    return QCoreApplication::exec();
}

int runMonitor(const AppOptions& options, int argc, char** argv)
{
    QApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("Tarvel"));
    QApplication::setQuitOnLastWindowClosed(false);
    installTranslations(app);

    AppDelegate delegate(openStore(options), makeSourceSet(options.root.toStdString()));
    delegate.applicationDidFinishLaunching();
    return QApplication::exec();
}

} // namespace

int main(int argc, char** argv)
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    const OptionsResult parsed = parseAppOptions(arguments, qEnvironmentVariable("TARVEL_ROOT"));
    if (!parsed.options) {
        std::fputs(parsed.message.toLocal8Bit().constData(), parsed.exitCode == 0 ? stdout : stderr);
        return parsed.exitCode;
    }
    QCoreApplication::setApplicationVersion(QStringLiteral(TARVEL_VERSION));
    return parsed.options->command == AppOptions::Command::Snapshot ? runSnapshot(*parsed.options, argc, argv)
                                                                    : runMonitor(*parsed.options, argc, argv);
}
