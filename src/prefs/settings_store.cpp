// Typed reads of the settings store, forgiving of values written with another type.
#include "prefs/settings_store.h"

#include <cmath>
#include <optional>

namespace {

// Strings count as true the way hand-edited files mean them ("YES", "true", "1").
bool stringIsTrue(const QString& text)
{
    const QString t = text.trimmed();
    if (t.compare(QLatin1String("yes"), Qt::CaseInsensitive) == 0
        || t.compare(QLatin1String("true"), Qt::CaseInsensitive) == 0)
        return true;
    bool ok = false;
    const double number = t.toDouble(&ok);
    return ok && number != 0;
}

} // namespace

bool SettingsStore::boolForKey(const QString& key) const
{
    const QVariant value = objectForKey(key);
    switch (value.typeId()) {
    case QMetaType::Bool:
        return value.toBool();
    case QMetaType::QString:
        return stringIsTrue(value.toString());
    case QMetaType::Int:
    case QMetaType::LongLong:
    case QMetaType::UInt:
    case QMetaType::ULongLong:
    case QMetaType::Double:
        return value.toDouble() != 0;
    default:
        return false;
    }
}

// A stored value read as a number: numbers and booleans as they are, strings parsed.
static std::optional<double> numberOf(const QVariant& value)
{
    switch (value.typeId()) {
    case QMetaType::Bool:
    case QMetaType::Int:
    case QMetaType::LongLong:
    case QMetaType::UInt:
    case QMetaType::ULongLong:
    case QMetaType::Double:
        return value.toDouble();
    case QMetaType::QString: {
        bool ok = false;
        const double number = value.toString().trimmed().toDouble(&ok);
        return ok ? std::optional<double>(number) : std::nullopt;
    }
    default:
        return std::nullopt;
    }
}

qint64 SettingsStore::integerForKey(const QString& key) const
{
    const QVariant value = objectForKey(key);
    // Whole numbers as they are: a double would lose the low digits of large ones.
    if (value.typeId() == QMetaType::LongLong || value.typeId() == QMetaType::Int || value.typeId() == QMetaType::Bool)
        return value.toLongLong();
    const double number = numberOf(value).value_or(0.0);
    return std::isfinite(number) && std::abs(number) < 9.2e18 ? static_cast<qint64>(number) : 0;
}

double SettingsStore::doubleForKey(const QString& key) const
{
    return numberOf(objectForKey(key)).value_or(0.0);
}

QString SettingsStore::stringForKey(const QString& key) const
{
    const QVariant value = objectForKey(key);
    switch (value.typeId()) {
    case QMetaType::QString:
        return value.toString();
    case QMetaType::Int:
    case QMetaType::LongLong:
    case QMetaType::Double:
        return value.toString();
    default:
        return {};
    }
}

QVariantList SettingsStore::arrayForKey(const QString& key) const
{
    const QVariant value = objectForKey(key);
    return value.typeId() == QMetaType::QVariantList ? value.toList() : QVariantList();
}
