// The Temp status item's picture: a temperature in the user's unit, as a graph and as text.
#pragma once

#include "modules/image_sensor_bar.h"

class ImageTempBar final : public ImageSensorBar {
public:
    // Whole degrees in the unit of the settings; "---" (or "--" bare) without a reading.
    QString valueText(std::optional<qint64> celsius, bool bare) const override;
};
