// The label picture and text attributes shared by every module picture.
#include "modules/picture_label.h"

#include "prefs/pref_keys.h"
#include "toolkit/menu_font.h"
#include "toolkit/point_canvas.h"

double drawModuleLabel(QPainter& painter, const ModuleDefaults& defaults, const char* showKey,
                       const char* pictureKey)
{
    if (!defaults.boolValue(QLatin1String(showKey)))
        return 0;
    const ThemePicture label = defaults.picture(QLatin1String(pictureKey));
    const QSizeF size = label.size.isEmpty() ? label.image.deviceIndependentSize() : label.size;
    TvlClasses::drawImageUpright(painter, label.image, QRectF(QPointF(0, 0), size));
    return kModuleLabelWidth;
}

TvlClasses::TextAttributes menuTextAttributes(const ModuleDefaults& defaults)
{
    TvlClasses::TextAttributes attributes;
    attributes.shadow = TvlClasses::retNormalTextShadow(defaults.color(QStringLiteral("Z01")));
    attributes.font = TvlClasses::menuFont(defaults.stringValue(QLatin1String(PrefKey::_FontPostScriptName)),
                                           9 + defaults.doubleValue(QLatin1String(PrefKey::_FontSizeDiff)));
    return attributes;
}
