// The Disk status item: width rule, picture, in-menu graph, disk blocks and standard items.
#include "modules/disk/disk_menu_module.h"

#include "modules/disk/disk_bar_width.h"
#include "modules/disk/disk_menu_rows.h"
#include "modules/disk/disk_utility.h"
#include "modules/module_descriptor.h"
#include "modules/standard_menu_items.h"
#include "prefs/pref_keys.h"
#include "toolkit/localization.h"
#include "toolkit/menu_geometry.h"

#include <QAction>
#include <QIcon>
#include <QLabel>
#include <QMenu>
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

} // namespace

Disk_MenuModule::Disk_MenuModule(MenuModuleDelegate* delegate, QObject* parent)
    : MenuModule(delegate, ModuleId::Disk, parent)
{
    // The menu always shows every disk together in one graph, 400 points wide, without labels.
    mnDefaults.set(Disk_Display_Indicator, false);
    mnDefaults.set(Disk_Display_Graph, true);
    mnDefaults.set(Disk_Display_Text, false);
    mnDefaults.set(Disk_GraphWidth, kMenuGraphWidth);
    mnDefaults.set(Disk_ShowEachDisk, false);
    mnDefaults.set(Disk_ShowMyLabel, false);
    mnDefaults.set(DiskInnerIconAbleToBeBol, false);
    mnDefaults.set(DiskInnerGraphLabelWidth, qint64{0});
}

void Disk_MenuModule::setHistory(const InfoDict& info)
{
    const History<DiskSample> history = moduleHistory<DiskSample>(info, ModuleId::Disk);
    if (history.exists())
        setResumeArray(history);
}

void Disk_MenuModule::setDiskBaseDict(const DiskBaseDict& diskBaseDict)
{
    diskBaseDict_ = diskBaseDict;
    menuItemRefresh = true;
}

void Disk_MenuModule::drawBaseStatusBar()
{
    statusMenu->clear();
    GeneralFunctions::addStandardMenuItems(statusMenu, myDefaults, myDefaults.boolValue(Disk_EnaMenu_Amon),
                                           myDefaults.boolValue(Disk_EnaMenu_Cnsl),
                                           myDefaults.boolValue(Disk_EnaMenu_Tmnl), [this] { openTab(); });
    if (DiskUtility::find()) {
        QAction* utility = statusMenu->addAction(themeIcon(myDefaults, "O31"), localized("Open Disk Utility"));
        connect(utility, &QAction::triggered, this, [] { DiskUtility::launch(); });
    }
    statusMenu->addSeparator();
    auto* graphAction = new QWidgetAction(statusMenu);
    menuGraph_ = new QLabel();
    menuGraph_->setFixedSize(static_cast<int>(kMenuGraphWidth), static_cast<int>(kMenuGraphHeight));
    menuGraph_->setContentsMargins(0, 0, 0, 0);
    graphAction->setDefaultWidget(menuGraph_);
    statusMenu->addAction(graphAction);

    auto* panelAction = new QWidgetAction(statusMenu);
    diskMenuController = new Disk_MenuController();
    diskMenuController->loadBaseData(myDefaults, diskBaseDict_);
    panelAction->setDefaultWidget(diskMenuController);
    statusMenu->addAction(panelAction);
    menuItemRefresh = false;
    redrawStatusItem();
}

void Disk_MenuModule::refreshBar()
{
    if (myDefaults.isEmpty() || myDefaults.intList(DiskItemSortArray).isEmpty() || !statusItem)
        return;
    const std::vector<DiskBarSet> sets = diskBarSets(myDefaults, diskBaseDict_);
    const double height = TvlClasses::retRootMenuHeight();
    const double width = diskBarWidth(myDefaults, sets.size());
    imageDiskBar.redrawWithSize(QSizeF(width, height),
                                TvlClasses::retStatusMenuInsets(diskShownElementCount(myDefaults)), menuOpened(), true,
                                myDefaults, resumeArray, sets);
    showImage(imageDiskBar.image(pictureScale()));
    statusItem->setText(diskBarText(sets, diskBaseDict_, resumeArray));
}

void Disk_MenuModule::resetAndRefreshBar()
{
    refreshBar();
}

QImage Disk_MenuModule::drawMenuGraph(const ModuleDefaults& defaults)
{
    imageDiskMenu.redrawWithSize(QSizeF(static_cast<double>(kMenuGraphWidth), kMenuGraphHeight),
                                 TvlClasses::retMenuPullDownInsets(), false, true, defaults, resumeArray,
                                 diskBarSets(defaults, {}));
    return imageDiskMenu.image(pictureScale());
}

void Disk_MenuModule::redrawStatusItem()
{
    // The graph and the figures are drawn only for a menu that is shown.
    if (!menuOpened())
        return;
    if (menuGraph_ != nullptr)
        menuGraph_->setPixmap(QPixmap::fromImage(drawMenuGraph(mnDefaultsTmp)));
    if (diskMenuController != nullptr)
        diskMenuController->replaceData(resumeArray);
}
