// The VNC item's picture is fixed: the theme's N03, or its L08 where a theme has none.
#include "modules/vnc/vnc_module_picture.h"

#include "prefs/pref_keys.h"

std::optional<BarPicture> VncModulePicture::drawBar(bool highlighted, qreal scale)
{
    Q_UNUSED(highlighted)
    Q_UNUSED(scale)
    ThemePicture picture = myDefaults.picture(QStringLiteral("N03"));
    if (picture.image.isNull())
        picture = myDefaults.picture(QStringLiteral("L08"));
    return BarPicture{themePictureImage(picture), myDefaults.stringValue(QLatin1String(PrefKey::PrefName))};
}
