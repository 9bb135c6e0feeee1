// What the Temp and Fan tabs share: the preview of one figure drawn by the status item's picture.
#pragma once

#include "collect/sensor_dat.h"
#include "modules/image_sensor_bar.h"
#include "modules/sampled_picture_tab.h"

#include <memory>

class SensorPictureTab : public SampledPictureTab<SensorSample> {
    Q_OBJECT
protected:
    // bar: the module's own picture, which the preview draws with.
    SensorPictureTab(ModuleId id, QList<Element> elements, const char* orderKey, std::unique_ptr<ImageSensorBar> bar,
                     SensorPictureSettings (*build)(const ModuleDefaults&), SettingsStore& store,
                     PrefNotificationCenter& center, QWidget* parent);

    QImage drawPreview(const ModuleDefaults& defaults) override;
    // The sample entry the preview follows: a sensor's name, or empty for the average.
    virtual QString shownSensor(const ModuleDefaults& defaults) const
    {
        Q_UNUSED(defaults)
        return {};
    }

private:
    std::unique_ptr<ImageSensorBar> bar_;
    SensorPictureSettings (*build_)(const ModuleDefaults&);
};
