// The Disk and Volume menus' common items and redraws.
#include "modules/storage_menu_module.h"

#include "modules/disk/disk_utility.h"
#include "modules/standard_menu_items.h"
#include "toolkit/localization.h"

#include <QAction>
#include <QLabel>
#include <QMenu>
#include <QWidgetAction>

StorageMenuModule::StorageMenuModule(MenuModuleDelegate* delegate, ModuleId id, QObject* parent)
    : MenuModule(delegate, id, parent)
{}

void StorageMenuModule::addBaseItems(const char* amonKey, const char* cnslKey, const char* tmnlKey,
                                     const ThemePicture& utilityIcon)
{
    statusMenu->clear();
    GeneralFunctions::addStandardMenuItems(statusMenu, myDefaults, myDefaults.boolValue(amonKey),
                                           myDefaults.boolValue(cnslKey), myDefaults.boolValue(tmnlKey),
                                           [this] { openTab(); });
    if (DiskUtility::find()) {
        QAction* utility = statusMenu->addAction(storageMenuIcon(utilityIcon), Tarvel::localized("Open Disk Utility"));
        connect(utility, &QAction::triggered, this, [] { DiskUtility::launch(); });
    }
    statusMenu->addSeparator();
    addHistoryChoice();
    auto* graphAction = new QWidgetAction(statusMenu);
    menuGraph_ = new QLabel();
    menuGraph_->setFixedSize(static_cast<int>(kMenuGraphWidth), static_cast<int>(kMenuGraphHeight));
    menuGraph_->setContentsMargins(0, 0, 0, 0);
    graphAction->setDefaultWidget(menuGraph_);
    statusMenu->addAction(graphAction);
}

void StorageMenuModule::addPanel(QWidget* panel)
{
    auto* panelAction = new QWidgetAction(statusMenu);
    panelAction->setDefaultWidget(panel);
    statusMenu->addAction(panelAction);
}

void StorageMenuModule::redrawStatusItem()
{
    if (!menuOpened())
        return;
    if (menuGraph_ != nullptr && !showHistoryGraph(menuGraph_))
        menuGraph_->setPixmap(QPixmap::fromImage(openMenuGraph()));
    replacePanelData();
}
