// The Volume status item: width rule, picture, in-menu graph, volume blocks, open and eject.
#include "modules/volume/volume_menu_module.h"

#include "modules/disk/disk_utility.h"
#include "modules/module_descriptor.h"
#include "modules/standard_menu_items.h"
#include "modules/volume/volume_bar_width.h"
#include "modules/volume/volume_menu_rows.h"
#include "modules/volume/volume_theme_keys.h"
#include "prefs/pref_keys.h"
#include "toolkit/localization.h"
#include "toolkit/menu_geometry.h"

#include <QAction>
#include <QDesktopServices>
#include <QIcon>
#include <QLabel>
#include <QMenu>
#include <QMessageBox>
#include <QUrl>
#include <QWidgetAction>

#include <algorithm>

using namespace PrefKey;

namespace {

constexpr qint64 kMenuGraphWidth = 400;

QIcon themeIcon(const ModuleDefaults& defaults, const char* key)
{
    const ThemePicture picture = defaults.picture(QLatin1String(key));
    if (picture.image.isNull())
        return {};
    QImage image = picture.image;
    image.setDevicePixelRatio(image.width() / std::max(1.0, picture.size.width()));
    return QIcon(QPixmap::fromImage(image));
}

QString quoted(const char* key, const QString& name)
{
    return localized(key).replace(QLatin1String("%@"), name);
}

} // namespace

Volume_MenuModule::Volume_MenuModule(MenuModuleDelegate* delegate, QObject* parent)
    : MenuModule(delegate, ModuleId::Volume, parent)
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
    statusMenu->clear();
    GeneralFunctions::addStandardMenuItems(statusMenu, myDefaults, myDefaults.boolValue(Volume_EnaMenu_Amon),
                                           myDefaults.boolValue(Volume_EnaMenu_Cnsl),
                                           myDefaults.boolValue(Volume_EnaMenu_Tmnl), [this] { openTab(); });
    if (DiskUtility::find()) {
        QAction* utility = statusMenu->addAction(themeIcon(myDefaults, "O31"), localized("Open Disk Utility"));
        connect(utility, &QAction::triggered, this, [] { DiskUtility::launch(); });
    }
    statusMenu->addSeparator();
    auto* graphAction = new QWidgetAction(statusMenu);
    menuGraph_ = new QLabel();
    menuGraph_->setFixedSize(static_cast<int>(kMenuGraphWidth), static_cast<int>(kMenuGraphHeight));
    graphAction->setDefaultWidget(menuGraph_);
    statusMenu->addAction(graphAction);

    auto* panelAction = new QWidgetAction(statusMenu);
    volumeMenuController = new Volume_MenuController();
    volumeMenuController->loadBaseData(myDefaults, *volumeBaseDict_);
    panelAction->setDefaultWidget(volumeMenuController);
    statusMenu->addAction(panelAction);
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
    const QIcon open = themeIcon(myDefaults, VolumeThemeKey::M12);
    const QIcon eject = themeIcon(myDefaults, VolumeThemeKey::M11);
    for (const auto& [path, volume] : *volumeBaseDict_) {
        QAction* item = statusMenu->addAction(open, quoted("Open \"%@\"", volume.volumeName));
        item->setData(path);
        connect(item, &QAction::triggered, this, [path] { QDesktopServices::openUrl(QUrl::fromLocalFile(path)); });
    }
    for (const auto& [path, volume] : *volumeBaseDict_) {
        if (!volume.isUnmountable || volume.isNetworkVol)
            continue;
        QAction* item = statusMenu->addAction(eject, quoted("Eject \"%@\"…", volume.volumeName));
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
        QMessageBox::warning(nullptr, localized("Eject"), message);
}

void Volume_MenuModule::refreshBar()
{
    if (myDefaults.isEmpty() || myDefaults.intList(VlmsItemSortArray).isEmpty() || !statusItem)
        return;
    const std::vector<VolumeBarSet> sets = volumeBarSets(myDefaults, *volumeBaseDict_);
    const double height = TvlClasses::retRootMenuHeight();
    const double width = volumeBarWidth(myDefaults, sets.size(), height);
    imageVolumeBar.redrawWithSize(QSizeF(width, height),
                                  TvlClasses::retStatusMenuInsets(volumeShownElementCount(myDefaults)), menuOpened(),
                                  true, myDefaults, resumeArray, sets);
    showImage(imageVolumeBar.image(pictureScale()));
    statusItem->setText(
        volumeBarText(sets, *volumeBaseDict_, resumeArray, volumePercentKind(myDefaults.intValue(Vlms_Percent_Mode))));
}

void Volume_MenuModule::resetAndRefreshBar()
{
    refreshBar();
}

QImage Volume_MenuModule::drawMenuGraph(const ModuleDefaults& defaults)
{
    imageVolumeMenu.redrawWithSize(QSizeF(static_cast<double>(kMenuGraphWidth), kMenuGraphHeight),
                                   TvlClasses::retMenuPullDownInsets(), false, true, defaults, resumeArray,
                                   volumeBarSets(defaults, {}));
    return imageVolumeMenu.image(pictureScale());
}

void Volume_MenuModule::redrawStatusItem()
{
    // The graph and the figures are drawn only for a menu that is shown.
    if (!menuOpened())
        return;
    if (menuGraph_ != nullptr)
        menuGraph_->setPixmap(QPixmap::fromImage(drawMenuGraph(mnDefaultsTmp)));
    if (volumeMenuController != nullptr)
        volumeMenuController->replaceData(resumeArray);
}
