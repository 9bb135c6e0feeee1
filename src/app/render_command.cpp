// tarvel render: a few cycles offscreen, then the pictures written as PNG, with Qt Gui alone.
#include "app/render_command.h"

#include "app/app_delegate.h"
#include "app/commands.h"
#include "app/front_ends/image_status_bar.h"
#include "collect/source_set.h"
#include "modules/module_registry.h"
#include "modules/picture_item.h"
#include "prefs/plist_settings_store.h"
#include "toolkit/localization.h"

#include <QDir>
#include <QGuiApplication>
#include <QTextStream>

namespace {

// Every picture the options ask for; false if one could not be written.
bool writePictures(AppDelegate& delegate, const ImageStatusBar& bar, const AppOptions& options, QStringList& names)
{
    bool written = bar.writeAll(options.outDir, &names);
    for (const ModuleSchema* schema : allModuleSchemas()) {
        ModuleItem* item = delegate.moduleItem(schema->id);
        const QImage graph = item != nullptr ? item->menuGraphImage() : QImage();
        const QString name = QLatin1String(schema->moduleKey) + QStringLiteral("-menu");
        if (graph.isNull())
            continue;
        const bool ok = ImageStatusBar::writePng(options.outDir, name, graph);
        if (ok)
            names.append(name + QStringLiteral(".png"));
        written = ok && written;
    }
    return written;
}

void attachPictures(AppDelegate& delegate, StatusBar* bar)
{
    delegate.setStatusBar(bar, &createPictureItem);
}

} // namespace

int renderAfterCycles(const AppOptions& options, const RenderSteps& steps)
{
    QCoreApplication::setApplicationName(QStringLiteral("Tarvel"));
    installTranslations(*QCoreApplication::instance());
    if (!QDir().mkpath(options.outDir)) {
        QTextStream(stderr) << "tarvel: cannot create the folder " << options.outDir << '\n';
        return 1;
    }

    ImageStatusBar bar;
    AppDelegate delegate(openSettingsStore(options), makeSourceSet(options.root.toStdString()));
    steps.attach(delegate, &bar);
    delegate.setPictureScale(options.scale);
    delegate.setStartupWindowAllowed(false);
    int finished = 0;
    int status = 0;
    QObject::connect(&delegate, &AppDelegate::cycleFinished, &delegate, [&] {
        // What comes after the pictures may wait for cycles of its own, which come back here.
        if (++finished != options.cycles)
            return;
        QStringList names;
        bool written = writePictures(delegate, bar, options, names);
        if (steps.writeMore != nullptr)
            written = steps.writeMore(delegate, options, names) && written;
        // Each file on a line of its own, so scripts can pick up what was made.
        QTextStream out(stdout);
        for (const QString& name : std::as_const(names))
            out << QDir(options.outDir).filePath(name) << '\n';
        if (!written) {
            QTextStream(stderr) << "tarvel: could not write every picture to " << options.outDir << '\n';
            status = 1;
        }
        QCoreApplication::quit();
    });
    delegate.applicationDidFinishLaunching();
    const int loop = QCoreApplication::exec();
    if (finished < options.cycles)
        return reportEndedEarly(loop);
    return status != 0 ? status : loop;
}

int runRender(const AppOptions& options, int argc, char** argv)
{
    // No window is shown: the pictures are drawn into images whatever the session has.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    return renderAfterCycles(options, {&attachPictures});
}
