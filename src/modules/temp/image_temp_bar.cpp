// The Temp picture writes its figure in the user's temperature unit.
#include "modules/temp/image_temp_bar.h"

#include "modules/temp/temp_panel_rows.h"

QString ImageTempBar::valueText(std::optional<qint64> celsius, bool bare) const
{
    const SensorPictureSettings& settings = mySettings;
    return tempDegreesText(celsius, {settings.unitMode, bare ? QString() : settings.unitText});
}
