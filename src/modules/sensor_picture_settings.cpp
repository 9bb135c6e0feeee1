// Reading a sensor module's picture settings out of its working dictionary.
#include "modules/sensor_picture_settings.h"

SensorPictureSettings sensorPictureSettings(const ModuleDefaults& d, const SensorPictureKeys& keys)
{
    SensorPictureSettings s;
    static_cast<PictureBasics&>(s) = pictureBasics(d, keys.showLabel, keys.label, keys.order);
    readSettings(d, {{&s.graph, keys.displayGraph},
                     {&s.text, keys.displayText},
                     {&s.gradient, keys.gradient},
                     {&s.colored, keys.colored}});
    readSettings(d, {{&s.textWidth, keys.textWidth}, {&s.piledFontSize, keys.piledFontSize}});
    s.graphWidth = static_cast<double>(d.intValue(QLatin1String(keys.graphWidth)));
    s.maximum = static_cast<double>(d.intValue(QLatin1String(keys.maximum)));
    s.textMode = d.intValue(QLatin1String(keys.textMode));
    s.updateInterval = d.intValue(QLatin1String(keys.interval));
    readSettings(d, {{&s.low, keys.colors[0]},
                     {&s.warning, keys.colors[1]},
                     {&s.critical, keys.colors[2]},
                     {&s.textColor, keys.colors[3]}});
    return s;
}
