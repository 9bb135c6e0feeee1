// tarvel render: a few cycles offscreen, then every status item's picture written as PNG.
#include "app/app_delegate.h"
#include "app/commands.h"
#include "app/front_ends/image_status_bar.h"
#include "collect/source_set.h"
#include "modules/cpu/cpu_menu_module.h"
#include "modules/disk/disk_menu_module.h"
#include "modules/memory/memory_menu_module.h"
#include "modules/network/network_menu_module.h"
#include "modules/volume/volume_menu_module.h"
#include "prefs/plist_settings_store.h"
#include "toolkit/localization.h"

#include <QApplication>
#include <QDir>
#include <QTextStream>

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
    delegate.setStatusBar(&bar);
    delegate.setPictureScale(options.scale);
    int finished = 0;
    int status = 0;
    QObject::connect(&delegate, &AppDelegate::cycleFinished, &app, [&] {
        if (++finished < options.cycles)
            return;
        bool written = bar.writeAll(options.outDir);
        if (auto* cpu = dynamic_cast<CPU_MenuModule*>(delegate.menuModule(ModuleId::Cpu)))
            written =
                ImageStatusBar::writePng(options.outDir, QStringLiteral("CPU-menu"), cpu->menuGraphImage()) && written;
        if (auto* memory = dynamic_cast<Memory_MenuModule*>(delegate.menuModule(ModuleId::Memory)))
            written =
                ImageStatusBar::writePng(options.outDir, QStringLiteral("Memory-menu"), memory->menuGraphImage()) &&
                written;
        if (auto* network = dynamic_cast<Network_MenuModule*>(delegate.menuModule(ModuleId::Network)))
            written =
                ImageStatusBar::writePng(options.outDir, QStringLiteral("Network-menu"), network->menuGraphImage()) &&
                written;
        if (auto* disk = dynamic_cast<Disk_MenuModule*>(delegate.menuModule(ModuleId::Disk)))
            written = ImageStatusBar::writePng(options.outDir, QStringLiteral("Disk-menu"), disk->menuGraphImage()) &&
                      written;
        if (auto* volume = dynamic_cast<Volume_MenuModule*>(delegate.menuModule(ModuleId::Volume)))
            written =
                ImageStatusBar::writePng(options.outDir, QStringLiteral("Volume-menu"), volume->menuGraphImage()) &&
                written;
        if (!written) {
            QTextStream(stderr) << "tarvel: could not write every picture to " << options.outDir << '\n';
            status = 1;
        }
        QCoreApplication::quit();
    });
    delegate.applicationDidFinishLaunching();
    const int loop = QCoreApplication::exec();
    return status != 0 ? status : loop;
}
