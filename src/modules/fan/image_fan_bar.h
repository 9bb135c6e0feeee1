// The Fan status item's picture: the fans' average speed, as a graph and as text.
#pragma once

#include "modules/image_sensor_bar.h"

class ImageFanBar final : public ImageSensorBar {
public:
    // The speed in the settings' format ("%04drpm", or "%04d" piled); "---" without a reading.
    QString valueText(std::optional<qint64> rpm, bool bare) const override;
};

// rpm in format, a printf format with one integer; "---" without a reading.
QString fanSpeedText(std::optional<qint64> rpm, const QString& format);
