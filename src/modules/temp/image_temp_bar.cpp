// The Temp picture writes its figure in the user's temperature unit.
#include "modules/temp/image_temp_bar.h"

#include "toolkit/temperature_format.h"

QString ImageTempBar::valueText(std::optional<qint64> celsius, bool bare) const
{
    const SensorPictureSettings& settings = mySettings;
    return TvlClasses::calcTempWithUnit(celsius ? static_cast<float>(*celsius) : 0.0F, settings.unitMode,
                                        bare ? QString() : settings.unitText, true);
}
