// The Disk and Volume menus' common items and redraws.
#include "modules/storage_menu_module.h"

#include "modules/disk/disk_utility.h"
#include "modules/standard_menu_items.h"
#include "toolkit/localization.h"

#include <QAction>
#include <QMenu>
#include <QWidgetAction>

StorageMenuModule::StorageMenuModule(MenuModuleDelegate* delegate, std::unique_ptr<ModulePicture> picture,
                                     QObject* parent)
    : MenuModule(delegate, std::move(picture), parent)
{}

void StorageMenuModule::addBaseItems(const MenuKeys& keys, const ThemePicture& utilityIcon)
{
    statusMenu->clear();
    GeneralFunctions::addStandardMenuItems(statusMenu, defaults(), defaults().boolValue(keys.amon),
                                           defaults().boolValue(keys.cnsl), defaults().boolValue(keys.tmnl),
                                           [this] { openTab(); });
    if (DiskUtility::find()) {
        QAction* utility = statusMenu->addAction(storageMenuIcon(utilityIcon), Tarvel::localized("Open Disk Utility"));
        connect(utility, &QAction::triggered, this, [] { DiskUtility::launch(); });
    }
    statusMenu->addSeparator();
    addHistoryChoice();
    menuGraph_ = addMenuGraph(keys.graphWidth);
}

void StorageMenuModule::addPanel(QWidget* panel)
{
    auto* panelAction = new QWidgetAction(statusMenu);
    panelAction->setDefaultWidget(panel);
    statusMenu->addAction(panelAction);
}

void StorageMenuModule::setStorageDescriptions(const DiskBaseDict& disks, std::shared_ptr<const VolumeBaseDict> volumes)
{
    MenuModule::setStorageDescriptions(disks, std::move(volumes));
    menuItemRefresh = true;
}

void StorageMenuModule::redrawStatusItem()
{
    if (!menuOpened())
        return;
    showOpenMenuGraph(menuGraph_);
    replacePanelData();
}
