// The sensor tabs' preview: the live samples, or an empty graph and the placeholder before any.
#include "modules/sensor_picture_tab.h"

#include "preferences/picture_preview.h"
#include "toolkit/menu_geometry.h"

SensorPictureTab::SensorPictureTab(ModuleId id, QList<Element> elements, const char* orderKey,
                                   std::unique_ptr<ImageSensorBar> bar,
                                   SensorPictureSettings (*build)(const ModuleDefaults&), SettingsStore& store,
                                   PrefNotificationCenter& center, QWidget* parent)
    : SampledPictureTab(id, std::move(elements), orderKey, store, center, parent)
    , bar_(std::move(bar))
    , build_(build)
{}

QImage SensorPictureTab::drawPreview(const ModuleDefaults& defaults)
{
    const SensorPictureSettings settings = build_(defaults);
    const double height = TvlClasses::retRootMenuHeight();
    bar_->redrawWithSize(QSizeF(sensorBarWidth(settings), height),
                         TvlClasses::retStatusMenuInsets(sensorShownElementCount(settings)), false, true, settings,
                         liveHistory(), shownSensor(defaults));
    return bar_->image(devicePixelRatioF() * PicturePreview::zoom());
}
