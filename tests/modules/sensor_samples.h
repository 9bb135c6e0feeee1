// Temp and Fan samples written out by name, for the picture and panel tests.
#pragma once

#include "collect/sensor_dat.h"

#include <initializer_list>
#include <optional>
#include <utility>

inline SensorSample sensorSample(std::initializer_list<std::pair<const char*, qint64>> values,
                                 std::optional<qint64> average)
{
    SensorSample s;
    for (const auto& [name, value] : values)
        s.values.insert(QString::fromUtf8(name), value);
    s.average = average;
    return s;
}
