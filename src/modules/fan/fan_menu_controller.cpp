// Fills the Fan panel from the fan list of start-up and the newest speeds.
#include "modules/fan/fan_menu_controller.h"

#include "modules/fan/fan_panel_rows.h"

Fan_MenuController::Fan_MenuController(const SensorDatDict& table, QWidget* parent)
    : SensorPanel(parent)
    , table_(table)
{}

void Fan_MenuController::replaceData(const SensorSample& newest)
{
    setRows(fanPanelRows(table_.fanData, newest));
}
