// The label picture and text attributes shared by every module picture.
#include "modules/picture_label.h"

#include "prefs/pref_keys.h"
#include "toolkit/menu_font.h"
#include "toolkit/point_canvas.h"

PictureBasics pictureBasics(const ModuleDefaults& defaults, const char* showKey, const char* pictureKey,
                            const char* orderKey)
{
    PictureBasics basics;
    basics.loaded = !defaults.isEmpty();
    basics.showLabel = defaults.boolValue(QLatin1String(showKey));
    basics.label = defaults.picture(QLatin1String(pictureKey));
    basics.order = defaults.intList(QLatin1String(orderKey));
    basics.textAttributes.shadow = TvlClasses::retNormalTextShadow(defaults.color(QStringLiteral("Z01")));
    basics.textAttributes.font = TvlClasses::menuFont(defaults.stringValue(QLatin1String(PrefKey::_FontPostScriptName)),
                                                      9 + defaults.doubleValue(QLatin1String(PrefKey::_FontSizeDiff)));
    basics.fontAdjust = static_cast<int>(defaults.intValue(QLatin1String(PrefKey::_FontAdjust)));
    basics.emptyLine = defaults.color(QStringLiteral("Z03"));
    return basics;
}

void readSettings(const ModuleDefaults& defaults, std::initializer_list<SettingField<bool>> fields)
{
    for (const auto& [field, key] : fields)
        *field = defaults.boolValue(QLatin1String(key));
}

void readSettings(const ModuleDefaults& defaults, std::initializer_list<SettingField<double>> fields)
{
    for (const auto& [field, key] : fields)
        *field = defaults.doubleValue(QLatin1String(key));
}

void readSettings(const ModuleDefaults& defaults, std::initializer_list<SettingField<QColor>> fields)
{
    for (const auto& [field, key] : fields)
        *field = defaults.color(QLatin1String(key));
}

double drawModuleLabel(QPainter& painter, const PictureBasics& basics)
{
    if (!basics.showLabel)
        return 0;
    const ThemePicture& label = basics.label;
    const QSizeF size = label.size.isEmpty() ? label.image.deviceIndependentSize() : label.size;
    TvlClasses::drawImageUpright(painter, label.image, QRectF(QPointF(0, 0), size));
    return kModuleLabelWidth;
}
