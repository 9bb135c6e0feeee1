// The CPU status item: width rule, picture, in-menu graph and standard items.
#include "modules/cpu/cpu_menu_module.h"

#include "collect/load_system_information.h"
#include "modules/cpu/cpu_bar_width.h"
#include "modules/cpu/cpu_usage_text.h"
#include "modules/module_descriptor.h"
#include "modules/standard_menu_items.h"
#include "prefs/pref_keys.h"
#include "toolkit/localization.h"
#include "toolkit/menu_geometry.h"

#include <QLabel>
#include <QMenu>
#include <QThread>
#include <QWidgetAction>

#include <algorithm>

using namespace PrefKey;

CPU_MenuModule::CPU_MenuModule(MenuModuleDelegate* delegate, QObject* parent)
    : MenuModule(delegate, ModuleId::Cpu, parent)
{
    // The menu always shows one averaged graph, 400 points wide, in the user's colours.
    mnDefaults.set(Cpu_Display_Graph, true);
    mnDefaults.set(Cpu_Display_LevelBar, false);
    mnDefaults.set(Cpu_Display_CircleMeter, false);
    mnDefaults.set(Cpu_Display_Text, false);
    mnDefaults.set(Cpu_GraphWidth, qint64{400});
    mnDefaults.set(Cpu_AverageMultiProcessors, true);
    mnDefaults.set(Cpu_Text_DisplayAverage, false);
    mnDefaults.set(Cpu_ShowMyLabel, false);
}

void CPU_MenuModule::setHistory(const InfoDict& info)
{
    const History<CpuSample> history = moduleHistory<CpuSample>(info, ModuleId::Cpu);
    if (history.exists())
        setResumeArray(history);
}

void CPU_MenuModule::drawBaseStatusBar()
{
    statusMenu->clear();
    GeneralFunctions::addStandardMenuItems(statusMenu, myDefaults, myDefaults.boolValue(CPU_EnaMenu_Amon),
                                           myDefaults.boolValue(CPU_EnaMenu_Cnsl),
                                           myDefaults.boolValue(CPU_EnaMenu_Tmnl), [this] { openTab(); });
    statusMenu->addSeparator();
    addHistoryChoice();
    auto* graphAction = new QWidgetAction(statusMenu);
    menuGraph_ = new QLabel();
    menuGraph_->setFixedSize(static_cast<int>(mnDefaults.intValue(Cpu_GraphWidth)), static_cast<int>(kMenuGraphHeight));
    graphAction->setDefaultWidget(menuGraph_);
    statusMenu->addAction(graphAction);
    if (myDelegate != nullptr) {
        auto* panelAction = new QWidgetAction(statusMenu);
        cpuMenuController = new CPU_MenuController(myDelegate->collector(), myDelegate->settingsStore());
        panelAction->setDefaultWidget(cpuMenuController);
        statusMenu->addAction(panelAction);
    }
    redrawStatusItem();
}

void CPU_MenuModule::refreshBar()
{
    if (!settings_.barDrawable() || !statusItem)
        return;
    if (resumeArray.empty() || resumeArray.back().empty()) {
        // Before the first sample the picture still shows its elements, at 0%, once per
        // processor the collector counts (those of the tree it reads, not of this machine).
        const auto processors = myDelegate != nullptr
                                    ? myDelegate->collector().processorCount()
                                    : std::optional<std::size_t>(std::max(QThread::idealThreadCount(), 0));
        if (!processors || *processors < 1)
            return;
        resumeArray = History<CpuSample>().appended(zeroCpuSample(*processors));
    }
    const std::size_t cores = resumeArray.back().size() - 1;
    const double height = TvlClasses::retRootMenuHeight();
    const double width = cpuBarWidth(settings_.bar, cores, height);
    imageCpuBar.redrawWithSize(QSizeF(width, height),
                               TvlClasses::retStatusMenuInsets(cpuShownElementCount(settings_.bar)), menuOpened(), true,
                               settings_.bar, resumeArray);
    showImage(imageCpuBar.image(pictureScale()));
    statusItem->setText(cpuUsageText(resumeArray.back().back()));
}

void CPU_MenuModule::prepareMenuOpening()
{
    settings_.keepForOpenMenu();
    // Machine facts and application names are only looked up for a menu that is shown.
    if (cpuMenuController != nullptr) {
        cpuMenuController->loadBaseData(settings_.bar.label);
        cpuMenuController->reloadProcDict();
    }
}

QImage CPU_MenuModule::menuGraph(const CpuPictureSettings& settings)
{
    imageCpuMenu.redrawWithSize(QSizeF(settings_.menu.graphWidth, kMenuGraphHeight),
                                TvlClasses::retMenuPullDownInsets(), false, true, settings, resumeArray);
    return imageCpuMenu.image(pictureScale());
}

void CPU_MenuModule::redrawStatusItem()
{
    if (menuGraph_ != nullptr && !showHistoryGraph(menuGraph_))
        menuGraph_->setPixmap(QPixmap::fromImage(menuGraph(settings_.openMenu)));
    // The process scan behind the panel runs only while someone looks at it.
    if (cpuMenuController != nullptr && menuOpened())
        cpuMenuController->replaceData(1, settings_.bar, resumeArray);
}
