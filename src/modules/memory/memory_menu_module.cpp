// The Memory status item: width rule, picture, in-menu graph, panel and standard items.
#include "modules/memory/memory_menu_module.h"

#include "collect/load_system_information.h"
#include "modules/module_descriptor.h"
#include "modules/standard_menu_items.h"
#include "prefs/pref_keys.h"
#include "toolkit/localization.h"
#include "toolkit/menu_geometry.h"

#include <QLabel>
#include <QMenu>
#include <QWidgetAction>

using namespace PrefKey;

Memory_MenuModule::Memory_MenuModule(MenuModuleDelegate* delegate, QObject* parent)
    : MenuModule(delegate, ModuleId::Memory, parent)
{
    // The menu always shows one graph, 400 points wide, in the user's view and colours.
    mnDefaults.set(Memory_Display_Graph, true);
    mnDefaults.set(Memory_Display_LevelBar, false);
    mnDefaults.set(Memory_Display_CircleMeter, false);
    mnDefaults.set(Memory_Display_Text, false);
    mnDefaults.set(Memory_Display_DetailText, false);
    mnDefaults.set(Memory_GraphWidth, qint64{400});
    mnDefaults.set(Memory_ShowMyLabel, false);
}

void Memory_MenuModule::setHistory(const InfoDict& info)
{
    const History<MemorySample> history = moduleHistory<MemorySample>(info, ModuleId::Memory);
    if (history.exists())
        setResumeArray(history);
}

void Memory_MenuModule::setResumeArray(const History<MemorySample>& history)
{
    resumeArray = history;
    arrivals_.note(resumeArray.identity());
}

void Memory_MenuModule::setMemorySize(std::size_t pageSize, std::int64_t totalPages)
{
    memoryPageSize_ = pageSize;
    memoryTotalPages_ = totalPages;
}

void Memory_MenuModule::takeMemorySize()
{
    // The totals are kept from the newest sample: no file is read here once sampling runs.
    if (myDelegate == nullptr || resumeArray.empty())
        return;
    LoadSystemInformation& loadInfo = myDelegate->collector();
    if (const auto totals = loadInfo.memoryTotals())
        setMemorySize(loadInfo.memoryPageSize(), totals->totalPages);
}

const MemoryTextWidths& Memory_MenuModule::textWidths()
{
    const std::int64_t totalBytes = memoryTotalPages_ * static_cast<std::int64_t>(memoryPageSize_);
    if (widthsStale_ || totalBytes != widthsTotalBytes_) {
        widthsStale_ = false;
        widthsTotalBytes_ = totalBytes;
        widths_ = memoryTextWidths(settings_.bar, totalBytes);
    }
    return widths_;
}

void Memory_MenuModule::settingsChanged()
{
    settings_.read(memoryPictureSettings, myDefaults, withMenuLayout());
    widthsStale_ = true;
}

void Memory_MenuModule::drawBaseStatusBar()
{
    statusMenu->clear();
    GeneralFunctions::addStandardMenuItems(statusMenu, myDefaults, myDefaults.boolValue(Memory_EnaMenu_Amon),
                                           myDefaults.boolValue(Memory_EnaMenu_Cnsl),
                                           myDefaults.boolValue(Memory_EnaMenu_Tmnl), [this] { openTab(); });
    statusMenu->addSeparator();
    addHistoryChoice();
    auto* graphAction = new QWidgetAction(statusMenu);
    menuGraph_ = new QLabel();
    menuGraph_->setFixedSize(static_cast<int>(mnDefaults.intValue(Memory_GraphWidth)),
                             static_cast<int>(kMenuGraphHeight));
    graphAction->setDefaultWidget(menuGraph_);
    statusMenu->addAction(graphAction);
    if (myDelegate != nullptr) {
        auto* panelAction = new QWidgetAction(statusMenu);
        memoryMenuController = new Memory_MenuController(myDelegate->collector());
        panelAction->setDefaultWidget(memoryMenuController);
        statusMenu->addAction(panelAction);
    }
    redrawStatusItem();
}

void Memory_MenuModule::refreshBar()
{
    if (!settings_.barDrawable() || !statusItem)
        return;
    takeMemorySize();
    const double height = TvlClasses::retRootMenuHeight();
    const MemoryTextWidths& widths = textWidths();
    imageMemoryBar.setMemorySize(memoryPageSize_, memoryTotalPages_);
    imageMemoryBar.redrawWithSize(QSizeF(memoryBarWidth(settings_.bar, widths, height), height),
                                  TvlClasses::retStatusMenuInsets(memoryShownElementCount(settings_.bar)), menuOpened(),
                                  true, settings_.bar, resumeArray, widths);
    showImage(imageMemoryBar.image(pictureScale()));
    if (!resumeArray.empty()) {
        const MemoryBreakdown parts = memoryBreakdown(resumeArray.back(), memoryTotalPages_, settings_.bar.traditional);
        statusItem->setText(memoryBarText(parts, memoryPageSize_, settings_.bar.unit));
    }
}

void Memory_MenuModule::prepareMenuOpening()
{
    settings_.keepForOpenMenu();
    // Application names are only looked up for a menu that is shown.
    if (memoryMenuController != nullptr)
        memoryMenuController->reloadProcDict();
}

QImage Memory_MenuModule::menuGraph(const MemoryPictureSettings& settings)
{
    imageMemoryMenu.setMemorySize(memoryPageSize_, memoryTotalPages_);
    imageMemoryMenu.redrawWithSize(QSizeF(settings_.menu.graphWidth, kMenuGraphHeight),
                                   TvlClasses::retMenuPullDownInsets(), false, true, settings, resumeArray, widths_);
    return imageMemoryMenu.image(pictureScale());
}

void Memory_MenuModule::redrawStatusItem()
{
    if (menuGraph_ != nullptr && menuOpened() && !showHistoryGraph(menuGraph_))
        menuGraph_->setPixmap(QPixmap::fromImage(menuGraph(settings_.openMenu)));
    // The swap and process scans behind the panel run only while someone looks at it.
    if (memoryMenuController != nullptr && menuOpened()) {
        const double seconds = arrivals_.secondsBetweenNewest(static_cast<double>(settings_.bar.updateInterval));
        memoryMenuController->replaceData(seconds, settings_.bar, resumeArray, memoryPageSize_, memoryTotalPages_);
    }
}
