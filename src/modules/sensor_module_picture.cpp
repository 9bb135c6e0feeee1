// The Temp and Fan pictures: width, the bar's picture and its figure.
#include "modules/sensor_module_picture.h"

#include "modules/module_descriptor.h"
#include "toolkit/menu_geometry.h"

SensorModulePicture::SensorModulePicture(MenuModuleDelegate* delegate, ModuleId id, std::unique_ptr<ImageSensorBar> bar,
                                         SensorPictureSettings (*build)(const ModuleDefaults&))
    : ModulePicture(delegate, id)
    , bar_(std::move(bar))
    , build_(build)
{}

void SensorModulePicture::setHistory(const InfoDict& info)
{
    const History<SensorSample> history = moduleHistory<SensorSample>(info, moduleId());
    if (history.exists())
        setResumeArray(history);
}

QString SensorModulePicture::barText() const
{
    const std::optional<qint64> value =
        resumeArray.empty() ? std::nullopt : sensorValue(resumeArray.back(), shownSensor());
    return bar_->valueText(value, false);
}

std::optional<BarPicture> SensorModulePicture::drawBar(bool highlighted, qreal scale)
{
    if (!settings_.loaded || settings_.order.isEmpty())
        return std::nullopt;
    const double height = TvlClasses::retRootMenuHeight();
    bar_->redrawWithSize(QSizeF(sensorBarWidth(settings_), height),
                         TvlClasses::retStatusMenuInsets(sensorShownElementCount(settings_)), highlighted, true,
                         settings_, resumeArray, shownSensor());
    return BarPicture{bar_->image(scale), barText()};
}
