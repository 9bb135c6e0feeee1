// The Volume status item: width rule, picture, in-menu graph, volume blocks, open and eject.
#include "modules/volume/volume_menu_module.h"

#include "modules/module_descriptor.h"
#include "modules/volume/volume_bar_width.h"
#include "modules/volume/volume_menu_rows.h"
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
    : VolumeMenuModuleBase(delegate, ModuleId::Volume, parent)
    , ejector_(new VolumeEjector(this))
    , volumeBaseDict_(std::make_shared<const VolumeBaseDict>())
{
    // The menu always shows all volumes together in one graph, 400 points wide.
    mnDefaults.set(Vlms_Display_BarChart, false);
    mnDefaults.set(Vlms_Display_CycleChart, false);
    mnDefaults.set(Vlms_Display_Graph, true);
    mnDefaults.set(Vlms_Display_Text, false);
    mnDefaults.set(Vlms_Display_Percent, false);
    mnDefaults.set(Vlms_GraphWidth, kMenuGraphWidth);
    mnDefaults.set(Vlms_ShowEachDisk, false);
    mnDefaults.set(Vlms_ShowMyLabel, false);
    mnDefaults.set(VlmsInnerIconAbleToBeBol, false);
    connect(ejector_, &VolumeEjector::finished, this, &Volume_MenuModule::ejectFinished);
}

void Volume_MenuModule::setHistory(const InfoDict& info)
{
    const History<VolumeSample> history = moduleHistory<VolumeSample>(info, ModuleId::Volume);
    if (history.exists())
        setResumeArray(history);
}

void Volume_MenuModule::setVolumeBaseDict(std::shared_ptr<const VolumeBaseDict> volumeBaseDict)
{
    volumeBaseDict_ = volumeBaseDict ? std::move(volumeBaseDict) : std::make_shared<const VolumeBaseDict>();
    menuItemRefresh = true;
}

void Volume_MenuModule::drawBaseStatusBar()
{
    addBaseItems(Volume_EnaMenu_Amon, Volume_EnaMenu_Cnsl, Volume_EnaMenu_Tmnl,
                 settings_.bar.pictures[StoragePicture::MenuInternal]);
    panel_ = new Volume_MenuController();
    panel_->loadBaseData(settings_.bar.pictures, *volumeBaseDict_);
    addPanel(panel_);
    addVolumeItems();
    menuItemRefresh = false;
    redrawStatusItem();
}

void Volume_MenuModule::addVolumeItems()
{
    if (volumeBaseDict_->empty())
        return;
    statusMenu->addSeparator();
    // Items, not buttons in the panel: choosing one closes the menu before any dialog shows.
    const QIcon open = storageMenuIcon(settings_.bar.openIcon);
    const QIcon eject = storageMenuIcon(settings_.bar.ejectIcon);
    for (const auto& [path, volume] : *volumeBaseDict_) {
        QAction* item = statusMenu->addAction(open, quoted(Tarvel::textKey("Open \"%@\""), volume.volumeName));
        item->setData(path);
        connect(item, &QAction::triggered, this, [path] { QDesktopServices::openUrl(QUrl::fromLocalFile(path)); });
    }
    for (const auto& [path, volume] : *volumeBaseDict_) {
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

void Volume_MenuModule::refreshBar()
{
    if (!settings_.barDrawable() || !statusItem)
        return;
    const std::vector<StorageBarSet> sets = volumeBarSets(settings_.bar, *volumeBaseDict_);
    showPicture(sets, volumeBarWidth(settings_.bar, sets.size(), TvlClasses::retRootMenuHeight()),
                volumeShownElementCount(settings_.bar),
                volumeBarText(sets, *volumeBaseDict_, resumeArray, settings_.bar.percentKind));
}
