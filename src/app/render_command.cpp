// tarvel render: a few cycles offscreen, then every status item's picture written as PNG, and on
// request the open drop-downs and the preferences window.
#include "app/app_delegate.h"
#include "app/commands.h"
#include "app/front_ends/desktop_parts.h"
#include "app/front_ends/image_status_bar.h"
#include "app/render_panels.h"
#include "collect/source_set.h"
#include "modules/menu_module.h"
#include "modules/module_registry.h"
#include "prefs/plist_settings_store.h"
#include "toolkit/localization.h"

#include <QApplication>
#include <QDir>
#include <QEventLoop>
#include <QTextStream>
#include <QTimer>

namespace {

// Long enough for the process scans and the like that open menus start in the background.
constexpr int kDetailsSettleMs = 400;

// Every picture the options ask for; false if one could not be written.
bool writePictures(AppDelegate& delegate, const ImageStatusBar& bar, const AppOptions& options, QStringList& names)
{
    bool written = bar.writeAll(options.outDir, &names);
    for (const ModuleSchema* schema : allModuleSchemas()) {
        MenuModule* module = menuModule(delegate, schema->id);
        const QImage graph = module != nullptr ? module->menuGraphImage() : QImage();
        const QString name = QLatin1String(schema->moduleKey) + QStringLiteral("-menu");
        if (graph.isNull())
            continue;
        const bool ok = ImageStatusBar::writePng(options.outDir, name, graph);
        if (ok)
            names.append(name + QStringLiteral(".png"));
        written = ok && written;
    }
    if (!options.panels)
        return written;
    // One more cycle with every menu open, then a moment for what menus fetch on their own.
    const auto waitForFigures = [&delegate] {
        QEventLoop wait;
        QObject::connect(&delegate, &AppDelegate::cycleFinished, &wait, &QEventLoop::quit);
        wait.exec();
        QTimer::singleShot(kDetailsSettleMs, &wait, &QEventLoop::quit);
        wait.exec();
    };
    written = RenderPanels::writeDropDowns(delegate, options.outDir, options.scale, waitForFigures, names) && written;
    return RenderPanels::writePreferences(delegate, options.outDir, options.scale, names) && written;
}

} // namespace

int runRender(const AppOptions& options, int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("Tarvel"));
    installTranslations(app);
    if (!QDir().mkpath(options.outDir)) {
        QTextStream(stderr) << "tarvel: cannot create the folder " << options.outDir << '\n';
        return 1;
    }

    ImageStatusBar bar;
    AppDelegate delegate(openSettingsStore(options), makeSourceSet(options.root.toStdString()));
    attachDesktop(delegate, &bar);
    delegate.setPictureScale(options.scale);
    delegate.setStartupWindowAllowed(false);
    int finished = 0;
    int status = 0;
    QObject::connect(&delegate, &AppDelegate::cycleFinished, &app, [&] {
        // The panels wait for cycles of their own, which come back here.
        if (++finished != options.cycles)
            return;
        QStringList names;
        const bool written = writePictures(delegate, bar, options, names);
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
