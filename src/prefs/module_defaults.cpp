// Forgiving typed reads of a working dictionary.
#include "prefs/module_defaults.h"

bool ModuleDefaults::boolValue(const QString& key) const
{
    const QVariant v = values_.value(key);
    return v.isValid() && v.toBool();
}

qint64 ModuleDefaults::intValue(const QString& key) const
{
    return values_.value(key).toLongLong();
}

double ModuleDefaults::doubleValue(const QString& key) const
{
    return values_.value(key).toDouble();
}

QString ModuleDefaults::stringValue(const QString& key) const
{
    return values_.value(key).toString();
}

QVariantList ModuleDefaults::listValue(const QString& key) const
{
    const QVariant v = values_.value(key);
    return v.typeId() == QMetaType::QVariantList ? v.toList() : QVariantList();
}

QList<qint64> ModuleDefaults::intList(const QString& key) const
{
    QList<qint64> out;
    for (const QVariant& item : listValue(key))
        out.append(item.toLongLong());
    return out;
}

QStringList ModuleDefaults::stringList(const QString& key) const
{
    const QVariant v = values_.value(key);
    if (v.typeId() == QMetaType::QStringList)
        return v.toStringList();
    QStringList out;
    for (const QVariant& item : listValue(key))
        out.append(item.toString());
    return out;
}

QColor ModuleDefaults::color(const QString& key) const
{
    const QVariant v = values_.value(key);
    return v.typeId() == QMetaType::QColor ? v.value<QColor>() : QColor(Qt::transparent);
}

ThemePicture ModuleDefaults::picture(const QString& key) const
{
    const QVariant v = values_.value(key);
    return v.canConvert<ThemePicture>() ? v.value<ThemePicture>() : ThemePicture{};
}
