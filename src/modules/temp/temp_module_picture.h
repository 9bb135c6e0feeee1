// The Temp picture: the chosen sensor's temperature, or the average, in the bar.
#pragma once

#include "modules/sensor_module_picture.h"
#include "modules/temp/image_temp_bar.h"
#include "modules/temp/temp_picture_settings.h"

// Settings whose values the picture gives a meaning to:
//   Temp_Unit_Mode: 1 Celsius, 2 Fahrenheit, 3 Kelvin.
//   Temp_ShowTempOnMenu: the sensor the bar follows by its name, or "(Average)".
//   Temp_MaxTemp: the graph's full scale, 60 to 100 degrees Celsius.
class TempModulePicture final : public SensorModulePicture {
public:
    explicit TempModulePicture(MenuModuleDelegate* delegate)
        : SensorModulePicture(delegate, ModuleId::Temp, std::make_unique<ImageTempBar>(), &tempPictureSettings)
    {}

protected:
    QString shownSensor() const override { return tempShownSensor(myDefaults); }
};
