// The Memory status item: width rule, picture, in-menu graph, panel and standard items.
#include "modules/memory/memory_menu_module.h"

#include "collect/load_system_information.h"
#include "modules/module_descriptor.h"
#include "modules/standard_menu_items.h"
#include "prefs/pref_keys.h"
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
    const WidthInputs inputs{myDefaults.stringValue(_FontPostScriptName),
                             myDefaults.doubleValue(_FontSizeDiff),
                             myDefaults.intValue(Memory_Unit),
                             myDefaults.boolValue(Memory_Text_WithLongLabel),
                             myDefaults.boolValue(Memory_DetailText_WithLongLabel),
                             {myDefaults.doubleValue(MemoryInnerTextHeaderWidth),
                              myDefaults.doubleValue(MemoryInnerDetailLHeaderWidth),
                              myDefaults.doubleValue(MemoryInnerDetailRHeaderWidth)},
                             memoryTotalPages_ * static_cast<std::int64_t>(memoryPageSize_)};
    if (!(inputs == widthInputs_)) {
        widthInputs_ = inputs;
        widths_ = memoryTextWidths(myDefaults, inputs.totalBytes);
    }
    return widths_;
}

void Memory_MenuModule::drawBaseStatusBar()
{
    statusMenu->clear();
    GeneralFunctions::addStandardMenuItems(statusMenu, myDefaults, myDefaults.boolValue(Memory_EnaMenu_Amon),
                                           myDefaults.boolValue(Memory_EnaMenu_Cnsl),
                                           myDefaults.boolValue(Memory_EnaMenu_Tmnl), [this] { openTab(); });
    statusMenu->addSeparator();
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
    if (myDefaults.isEmpty() || myDefaults.intList(MemoryItemSortArray).isEmpty() || !statusItem)
        return;
    takeMemorySize();
    const double height = TvlClasses::retRootMenuHeight();
    const MemoryTextWidths& widths = textWidths();
    imageMemoryBar.setMemorySize(memoryPageSize_, memoryTotalPages_);
    imageMemoryBar.redrawWithSize(QSizeF(memoryBarWidth(myDefaults, widths, height), height),
                                  TvlClasses::retStatusMenuInsets(memoryShownElementCount(myDefaults)), menuOpened(),
                                  true, myDefaults, resumeArray, widths);
    showImage(imageMemoryBar.image(pictureScale()));
    if (!resumeArray.empty()) {
        const MemoryBreakdown parts =
            memoryBreakdown(resumeArray.back(), memoryTotalPages_, myDefaults.boolValue(Memory_TradMemoryInfo));
        statusItem->setText(memoryBarText(parts, memoryPageSize_, static_cast<int>(myDefaults.intValue(Memory_Unit))));
    }
}

void Memory_MenuModule::prepareMenuOpening()
{
    // Application names are only looked up for a menu that is shown.
    if (memoryMenuController != nullptr)
        memoryMenuController->reloadProcDict();
}

QImage Memory_MenuModule::drawMenuGraph(const ModuleDefaults& defaults)
{
    imageMemoryMenu.setMemorySize(memoryPageSize_, memoryTotalPages_);
    imageMemoryMenu.redrawWithSize(
        QSizeF(static_cast<double>(mnDefaults.intValue(Memory_GraphWidth)), kMenuGraphHeight),
        TvlClasses::retMenuPullDownInsets(), false, true, defaults, resumeArray, widths_);
    return imageMemoryMenu.image(pictureScale());
}

void Memory_MenuModule::redrawStatusItem()
{
    if (menuGraph_ != nullptr && menuOpened())
        menuGraph_->setPixmap(QPixmap::fromImage(drawMenuGraph(mnDefaultsTmp)));
    // The swap and process scans behind the panel run only while someone looks at it.
    if (memoryMenuController != nullptr && menuOpened()) {
        const double seconds =
            arrivals_.secondsBetweenNewest(static_cast<double>(myDefaults.intValue(Memory_UpdateInterval)));
        memoryMenuController->replaceData(seconds, myDefaults, resumeArray, memoryPageSize_, memoryTotalPages_);
    }
}
