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

// A number outside its range, or stored as something that is no number, would be drawn or
// counted as it stands ("over -5 s", a picture of negative width): the first-run value takes its
// place, in the store too, so that the preferences show what is used.
bool repairNumber(SettingsStore& store, const PrefField& field, QVariant& value)
{
    if (!field.range)
        return false;
    const QString key = QString::fromLatin1(field.key);
    const QVariant stored = store.objectForKey(key);
    bool isNumber = false;
    stored.toDouble(&isNumber);
    const qint64 number = value.toLongLong();
    const bool fits = number >= field.range->minimum && number <= field.range->maximum;
    if (!stored.isValid() || (isNumber && fits))
        return false;
    value = field.factory;
    store.setObject(key, field.factory);
    return true;
}

// An order holds known codes, each once; a damaged one keeps the first of each in its order.
bool repairOrder(SettingsStore& store, const PrefField& field, QVariant& value)
{
    if (field.type != PrefType::Array || field.factory.typeId() != QMetaType::QVariantList)
        return false;
    const QVariantList known = field.factory.toList();
    // Only lists of codes are orders; lists of dictionaries (the alert rules) repair themselves.
    if (!known.isEmpty() && known.front().typeId() == QMetaType::QVariantMap)
        return false;
    const QVariantList stored = value.toList();
    QVariantList kept;
    for (const QVariant& code : stored) {
        if (kept.size() == known.size())
            break;
        bool isInt = false;
        const int n = code.toInt(&isInt);
        if (isInt && known.contains(QVariant(n)) && !kept.contains(QVariant(n)))
            kept.append(n);
    }
    if (kept.size() == stored.size())
        return false;
    value = kept;
    store.setArray(QString::fromLatin1(field.key), kept);
    return true;
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
    bool repaired = false;
    for (const PrefField& field : schema.fields) {
        QVariant value = readField(store, field);
        repaired = repairNumber(store, field, value) || repaired;
        repaired = repairOrder(store, field, value) || repaired;
        dict.set(QString::fromLatin1(field.key), value);
    }
    if (repaired)
        store.synchronize();
    addThemeEntries(dict, schema, theme);
    if (schema.derive != nullptr)
        schema.derive(dict, store, theme, all);

    // The General tab is named after the application itself.
    dict.set(PrefName,
             schema.id == ModuleId::General ? QStringLiteral("Tarvel") : QString::fromLatin1(schema.prefName));
    return dict;
}

} // namespace PrefFunctions
