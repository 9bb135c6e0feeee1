// Building a module's working dictionary: stored keys, theme colours, pictures and fonts.
#include "prefs/pref_functions.h"

#include "prefs/pref_keys.h"
#include "prefs/pref_schema.h"
#include "prefs/theme_color.h"

#include <cmath>

namespace {

using namespace PrefKey;

QVariant readField(const SettingsStore& store, const PrefField& field)
{
    const QString key = QString::fromLatin1(field.key);
    switch (field.type) {
    case PrefType::Bool:
        return store.boolForKey(key);
    case PrefType::Integer:
        return store.integerForKey(key);
    case PrefType::TruncatedInteger: {
        const double value = store.doubleForKey(key);
        return std::isfinite(value) && std::abs(value) < 1e15 ? static_cast<qint64>(value) : qint64{0};
    }
    case PrefType::String:
        return store.stringForKey(key);
    case PrefType::Array:
        return store.arrayForKey(key);
    }
    return {};
}

ThemePicture decodePicture(const QVariant& data, PictureSize size)
{
    ThemePicture picture;
    if (data.typeId() != QMetaType::QByteArray || !picture.image.loadFromData(data.toByteArray(), "PNG"))
        return {};
    picture.size =
        size == PictureSize::Half ? QSizeF(picture.image.width() * 0.5, picture.image.height() * 0.5) : QSizeF(18, 18);
    return picture;
}

void addThemeEntries(ModuleDefaults& dict, const ModuleSchema& schema, const QVariantMap& theme)
{
    for (const char* key : schema.colorKeys) {
        const QString name = QString::fromLatin1(key);
        dict.set(name, TvlClasses::retColorFromArray(theme.value(name)));
    }
    for (const ThemePictureUse& use : schema.pictures) {
        const QString name = QString::fromLatin1(use.key);
        const ThemePicture picture = decodePicture(theme.value(name), use.size);
        if (!picture.image.isNull())
            dict.set(name, QVariant::fromValue(picture));
    }
    dict.set(_FontPostScriptName, theme.value(_FontPostScriptName).toString());
    dict.set(_FontAdjust, theme.value(_FontAdjust).toLongLong());
    dict.set(_FontSizeDiff, theme.value(_FontSizeDiff).toLongLong());
    dict.set(_ForDarkAppearance, theme.value(_ForDarkAppearance).toBool());
}

} // namespace

namespace PrefFunctions {

ModuleDefaults loadModuleDefaults(const ModuleSchema& schema, SettingsStore& store, const QVariantMap& theme,
                                  ModuleSchemaList all)
{
    ModuleDefaults dict;
    for (const PrefField& field : schema.fields)
        dict.set(QString::fromLatin1(field.key), readField(store, field));
    addThemeEntries(dict, schema, theme);
    if (schema.derive != nullptr)
        schema.derive(dict, store, theme, all);

    // The General tab is named after the application itself.
    dict.set(PrefName,
             schema.id == ModuleId::General ? QStringLiteral("Tarvel") : QString::fromLatin1(schema.prefName));
    return dict;
}

} // namespace PrefFunctions
