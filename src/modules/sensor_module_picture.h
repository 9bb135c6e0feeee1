// What the Temp and Fan pictures share: one figure of the newest sensor sample, as graph or text.
#pragma once

#include "collect/history.h"
#include "collect/sensor_dat.h"
#include "modules/image_sensor_bar.h"
#include "modules/module_picture.h"
#include "modules/sensor_picture_settings.h"

#include <memory>

class SensorModulePicture : public ModulePicture {
public:
    void setHistory(const InfoDict& info) override;
    void setResumeArray(const History<SensorSample>& history) { resumeArray = history; }
    const History<SensorSample>& history() const { return resumeArray; }
    const SensorPictureSettings& settings() const { return settings_; }
    // The figure as the bar writes it now.
    QString barText() const;

    std::optional<BarPicture> drawBar(bool highlighted, qreal scale) override;

protected:
    SensorModulePicture(MenuModuleDelegate* delegate, ModuleId id, std::unique_ptr<ImageSensorBar> bar,
                        SensorPictureSettings (*build)(const ModuleDefaults&));

    void settingsChanged() override { settings_ = build_(myDefaults); }
    // The sample entry the bar follows: a sensor's name, or empty for the average.
    virtual QString shownSensor() const { return {}; }

private:
    History<SensorSample> resumeArray;
    std::unique_ptr<ImageSensorBar> bar_;
    SensorPictureSettings (*build_)(const ModuleDefaults&);
    SensorPictureSettings settings_;
};
