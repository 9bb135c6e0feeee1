// The Temp and Fan status items: width, picture, the panel and the standard items.
#include "modules/sensor_menu_module.h"

#include "modules/module_descriptor.h"
#include "modules/standard_menu_items.h"
#include "toolkit/menu_geometry.h"

#include <QMenu>
#include <QWidgetAction>

SensorMenuModule::SensorMenuModule(MenuModuleDelegate* delegate, ModuleId id, std::unique_ptr<ImageSensorBar> bar,
                                   SensorPictureSettings (*build)(const ModuleDefaults&), MenuSwitches switches,
                                   QObject* parent)
    : MenuModule(delegate, id, parent)
    , bar_(std::move(bar))
    , build_(build)
    , switches_(switches)
{}

const SensorDatDict& SensorMenuModule::sensorTable() const
{
    static const SensorDatDict none;
    return myDelegate != nullptr ? myDelegate->sensorDatDict() : none;
}

void SensorMenuModule::setHistory(const InfoDict& info)
{
    const History<SensorSample> history = moduleHistory<SensorSample>(info, moduleId());
    if (history.exists())
        setResumeArray(history);
}

void SensorMenuModule::resetMenuNowCount()
{
    if (panel_ != nullptr)
        panel_->resetMenuNowCount();
}

QString SensorMenuModule::barText() const
{
    const std::optional<qint64> value =
        resumeArray.empty() ? std::nullopt : sensorValue(resumeArray.back(), shownSensor());
    return bar_->valueText(value, false);
}

void SensorMenuModule::refreshBar()
{
    if (!settings_.loaded || settings_.order.isEmpty() || !statusItem)
        return;
    const double height = TvlClasses::retRootMenuHeight();
    bar_->redrawWithSize(QSizeF(sensorBarWidth(settings_), height),
                         TvlClasses::retStatusMenuInsets(sensorShownElementCount(settings_)), menuOpened(), true,
                         settings_, resumeArray, shownSensor());
    showImage(bar_->image(pictureScale()));
    statusItem->setText(barText());
}

void SensorMenuModule::drawBaseStatusBar()
{
    statusMenu->clear();
    GeneralFunctions::addStandardMenuItems(statusMenu, myDefaults, myDefaults.boolValue(switches_.amon),
                                           myDefaults.boolValue(switches_.cnsl), myDefaults.boolValue(switches_.tmnl),
                                           [this] { openTab(); });
    statusMenu->addSeparator();
    auto* panelAction = new QWidgetAction(statusMenu);
    panel_ = createPanel();
    panelAction->setDefaultWidget(panel_);
    statusMenu->addAction(panelAction);
    redrawStatusItem();
}

void SensorMenuModule::redrawStatusItem()
{
    if (panel_ != nullptr && menuOpened())
        refreshPanel(*panel_);
}
