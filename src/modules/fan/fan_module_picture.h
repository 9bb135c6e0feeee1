// The Fan picture: the fans' average speed in the bar.
#pragma once

#include "modules/fan/fan_picture_settings.h"
#include "modules/fan/image_fan_bar.h"
#include "modules/sensor_module_picture.h"

// Settings whose values the picture gives a meaning to:
//   Fax_MaxRpm: the graph's full scale, 2000 to 6000 revolutions per minute.
//   FanInnerTextFormat: the speed's format, derived from whether the text is piled.
class FanModulePicture final : public SensorModulePicture {
public:
    explicit FanModulePicture(MenuModuleDelegate* delegate)
        : SensorModulePicture(delegate, ModuleId::Fan, std::make_unique<ImageFanBar>(), &fanPictureSettings)
    {}
};
