// The Temp and Fan drop-downs: the standard items and the panel.
#include "modules/sensor_menu_module.h"

#include "modules/standard_menu_items.h"

#include <QMenu>
#include <QWidgetAction>

SensorMenuModule::SensorMenuModule(MenuModuleDelegate* delegate, std::unique_ptr<SensorModulePicture> picture,
                                   MenuSwitches switches, QObject* parent)
    : MenuModule(delegate, std::move(picture), parent)
    , sensor_(static_cast<SensorModulePicture&>(this->picture()))
    , switches_(switches)
{}

const SensorDatDict& SensorMenuModule::sensorTable() const
{
    static const SensorDatDict none;
    return myDelegate != nullptr ? myDelegate->sensorDatDict() : none;
}

void SensorMenuModule::resetMenuNowCount()
{
    if (panel_ != nullptr)
        panel_->resetMenuNowCount();
}

SensorSample SensorMenuModule::newestSample() const
{
    return sensor_.history().empty() ? SensorSample{} : sensor_.history().back();
}

void SensorMenuModule::drawBaseStatusBar()
{
    statusMenu->clear();
    GeneralFunctions::addStandardMenuItems(statusMenu, defaults(), defaults().boolValue(switches_.amon),
                                           defaults().boolValue(switches_.cnsl), defaults().boolValue(switches_.tmnl),
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
