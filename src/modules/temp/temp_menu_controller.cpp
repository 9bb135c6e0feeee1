// Fills the Temp panel; drives are read on the panel's own thread, as asking them may block.
#include "modules/temp/temp_menu_controller.h"

#include "collect/load_system_information.h"

Temp_MenuController::Temp_MenuController(LoadSystemInformation& loadInfo, const SensorDatDict& table,
                                         QWidget* parent)
    : SensorPanel(parent)
    , loadInfo_(loadInfo)
    , table_(table)
{
    pool_.setMaxThreadCount(1);
}

Temp_MenuController::~Temp_MenuController()
{
    pool_.waitForDone();
}

void Temp_MenuController::replaceData(const SensorSample& newest, const TempUnit& unit, bool smartAccess)
{
    newest_ = newest;
    unit_ = unit;
    showRows();
    // A slow drive is not asked again while the last question is open.
    if (drivesInFlight_)
        return;
    drivesInFlight_ = true;
    pool_.start([this, titleOnly = !smartAccess] {
        QList<SmartReading> drives = loadInfo_.getSmartDetailTemp(titleOnly);
        QMetaObject::invokeMethod(
            this,
            [this, drives = std::move(drives)] {
                drivesInFlight_ = false;
                drives_ = drives;
                showRows();
                Q_EMIT drivesUpdated();
            },
            Qt::QueuedConnection);
    });
}

void Temp_MenuController::showRows()
{
    setRows(tempPanelRows(table_.tempData, newest_, unit_, drives_));
}
