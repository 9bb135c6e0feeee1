// The settings a module's picture is drawn with.
#include "modules/module_picture.h"

void ModulePicture::setMyDefaults(const ModuleDefaults& defaults)
{
    if (settingsRead_ && defaults.sharesDataWith(myDefaults))
        return;
    myDefaults = defaults;
    settingsRead_ = true;
    settingsChanged();
}

ModuleDefaults ModulePicture::withMenuLayout() const
{
    ModuleDefaults defaults = myDefaults;
    for (auto it = mnDefaults.values().cbegin(); it != mnDefaults.values().cend(); ++it)
        defaults.set(it.key(), it.value());
    return defaults;
}

QImage themePictureImage(const ThemePicture& picture)
{
    QImage image = picture.image;
    if (!image.isNull() && picture.size.width() > 0)
        image.setDevicePixelRatio(image.width() / picture.size.width());
    return image;
}
