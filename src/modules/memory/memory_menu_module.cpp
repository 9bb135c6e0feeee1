// The Memory drop-down: standard items, the in-menu graph and the panel of figures and processes.
#include "modules/memory/memory_menu_module.h"

#include "modules/standard_menu_items.h"
#include "prefs/pref_keys.h"

#include <QMenu>
#include <QWidgetAction>

using namespace PrefKey;

Memory_MenuModule::Memory_MenuModule(MenuModuleDelegate* delegate, QObject* parent)
    : MenuModule(delegate, std::make_unique<MemoryModulePicture>(delegate), parent)
    , memory_(static_cast<MemoryModulePicture&>(picture()))
{}

void Memory_MenuModule::drawBaseStatusBar()
{
    statusMenu->clear();
    GeneralFunctions::addStandardMenuItems(statusMenu, defaults(), defaults().boolValue(Memory_EnaMenu_Amon),
                                           defaults().boolValue(Memory_EnaMenu_Cnsl),
                                           defaults().boolValue(Memory_EnaMenu_Tmnl), [this] { openTab(); });
    statusMenu->addSeparator();
    addHistoryChoice();
    menuGraph_ = addMenuGraph(Memory_GraphWidth);
    if (myDelegate != nullptr) {
        auto* panelAction = new QWidgetAction(statusMenu);
        memoryMenuController = new Memory_MenuController(myDelegate->collector());
        panelAction->setDefaultWidget(memoryMenuController);
        statusMenu->addAction(panelAction);
    }
    redrawStatusItem();
}

void Memory_MenuModule::prepareMenuOpening()
{
    // Application names are only looked up for a menu that is shown.
    if (memoryMenuController != nullptr)
        memoryMenuController->reloadProcDict();
}

void Memory_MenuModule::redrawStatusItem()
{
    showOpenMenuGraph(menuGraph_);
    // The swap and process scans behind the panel run only while someone looks at it.
    if (memoryMenuController != nullptr && menuOpened()) {
        const auto& settings = memory_.settings().bar;
        const double seconds = memory_.secondsBetweenNewest(static_cast<double>(settings.updateInterval));
        memoryMenuController->replaceData(seconds, settings, memory_.history(), memory_.pageSize(),
                                          memory_.totalPages());
    }
}
