// The Volume drop-down: standard items, the combined graph, volume blocks, open and eject.
#include "modules/volume/volume_menu_module.h"

#include "prefs/pref_keys.h"
#include "toolkit/localization.h"

#include <QAction>
#include <QDesktopServices>
#include <QMenu>
#include <QMessageBox>
#include <QUrl>

using namespace PrefKey;

namespace {

QString quoted(const char* key, const QString& name)
{
    return Tarvel::localized(key).replace(QLatin1String("%@"), name);
}

} // namespace

Volume_MenuModule::Volume_MenuModule(MenuModuleDelegate* delegate, QObject* parent)
    : StorageMenuModuleOf(delegate, parent)
    , ejector_(new VolumeEjector(this))
{
    connect(ejector_, &VolumeEjector::finished, this, &Volume_MenuModule::ejectFinished);
}

void Volume_MenuModule::drawBaseStatusBar()
{
    const VolumePictureSettings& settings = storage_.settings().bar;
    addBaseItems({Volume_EnaMenu_Amon, Volume_EnaMenu_Cnsl, Volume_EnaMenu_Tmnl, Vlms_GraphWidth},
                 settings.pictures[StoragePicture::MenuInternal]);
    panel_ = new Volume_MenuController();
    panel_->loadBaseData(settings.pictures, storage_.volumeBaseDict());
    addPanel(panel_);
    addVolumeItems();
    menuItemRefresh = false;
    redrawStatusItem();
}

void Volume_MenuModule::addVolumeItems()
{
    const VolumeBaseDict& volumes = storage_.volumeBaseDict();
    if (volumes.empty())
        return;
    statusMenu->addSeparator();
    // Items, not buttons in the panel: choosing one closes the menu before any dialog shows.
    const QIcon open = storageMenuIcon(storage_.settings().bar.openIcon);
    const QIcon eject = storageMenuIcon(storage_.settings().bar.ejectIcon);
    for (const auto& [path, volume] : volumes) {
        QAction* item = statusMenu->addAction(open, quoted(Tarvel::textKey("Open \"%@\""), volume.volumeName));
        item->setData(path);
        connect(item, &QAction::triggered, this, [path] { QDesktopServices::openUrl(QUrl::fromLocalFile(path)); });
    }
    for (const auto& [path, volume] : volumes) {
        if (!volume.isUnmountable || volume.isNetworkVol)
            continue;
        QAction* item = statusMenu->addAction(eject, quoted(Tarvel::textKey("Eject \"%@\"…"), volume.volumeName));
        item->setData(path);
        connect(item, &QAction::triggered, this,
                [this, path, volume] { ejector_->ejectWithConfirmation(path, volume); });
    }
}

void Volume_MenuModule::ejectFinished(const QString& path, bool ejected, const QString& message)
{
    Q_UNUSED(path)
    // A successful eject shows itself: the volume leaves the menu bar with the next unmount.
    if (!ejected)
        QMessageBox::warning(nullptr, Tarvel::localized("Eject"), message);
}
