// The CPU drop-down: standard items, the in-menu graph and the panel that scans the processes.
#include "modules/cpu/cpu_menu_module.h"

#include "modules/standard_menu_items.h"
#include "prefs/pref_keys.h"

#include <QMenu>
#include <QWidgetAction>

using namespace PrefKey;

CPU_MenuModule::CPU_MenuModule(MenuModuleDelegate* delegate, QObject* parent)
    : MenuModule(delegate, std::make_unique<CpuModulePicture>(delegate), parent)
    , cpu_(static_cast<CpuModulePicture&>(picture()))
{}

void CPU_MenuModule::drawBaseStatusBar()
{
    statusMenu->clear();
    GeneralFunctions::addStandardMenuItems(statusMenu, defaults(), defaults().boolValue(CPU_EnaMenu_Amon),
                                           defaults().boolValue(CPU_EnaMenu_Cnsl),
                                           defaults().boolValue(CPU_EnaMenu_Tmnl), [this] { openTab(); });
    statusMenu->addSeparator();
    addHistoryChoice();
    menuGraph_ = addMenuGraph(Cpu_GraphWidth);
    if (myDelegate != nullptr) {
        auto* panelAction = new QWidgetAction(statusMenu);
        cpuMenuController = new CPU_MenuController(myDelegate->collector(), myDelegate->settingsStore());
        panelAction->setDefaultWidget(cpuMenuController);
        statusMenu->addAction(panelAction);
    }
    redrawStatusItem();
}

void CPU_MenuModule::prepareMenuOpening()
{
    // Machine facts and application names are only looked up for a menu that is shown.
    if (cpuMenuController != nullptr) {
        cpuMenuController->loadBaseData(cpu_.settings().bar.label);
        cpuMenuController->reloadProcDict();
    }
}

void CPU_MenuModule::redrawStatusItem()
{
    showOpenMenuGraph(menuGraph_);
    // The process scan behind the panel runs only while someone looks at it.
    if (cpuMenuController != nullptr && menuOpened())
        cpuMenuController->replaceData(1, cpu_.settings().bar, cpu_.history());
}
