// Repair of the current theme against the reference theme of its appearance.
#include "prefs/theme_repair.h"

#include "prefs/plist_io.h"
#include "prefs/pref_keys.h"
#include "prefs/theme_files.h"
#include "prefs/theme_font.h"
#include "prefs/theme_keys.h"
#include "toolkit/menu_font.h"

#include <cmath>

namespace TvlClasses {
namespace {

bool isNumber(const QVariant& value)
{
    switch (value.typeId()) {
    case QMetaType::Double:
    case QMetaType::Float:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
        return true;
    default:
        return false;
    }
}

bool isColorArray(const QVariantList& parts)
{
    if (parts.size() != 4)
        return false;
    for (const QVariant& part : parts) {
        // Written so that a NaN, which compares false both ways, fails too.
        const double number = part.toDouble();
        if (!isNumber(part) || !(number >= 0.0 && number <= 1.0))
            return false;
    }
    return true;
}

// The folder's reference copy, or the bundled one when the folder's is missing or damaged.
QVariantMap referenceTheme(bool dark)
{
    const QString name = QLatin1String(dark ? kDarkThemeName : kLightThemeName);
    const QString fileName = name + u'.' + QLatin1String(kThemeExtension);
    if (auto folderCopy = PlistIo::readDictionary(retThemeFilePath(fileName)))
        return *folderCopy;
    return PlistIo::readDictionary(retBundleThemePath(name)).value_or(QVariantMap());
}

QVariant repairedValue(const QVariant& current, const QVariant& reference)
{
    switch (current.typeId()) {
    case QMetaType::QVariantList:
        return isColorArray(current.toList()) ? current : reference;
    case QMetaType::QByteArray:
        return current.toByteArray().isEmpty() ? reference : current;
    default:
        return current;
    }
}

void writeNowTheme(const QVariantMap& theme)
{
    PlistIo::writeDictionaryAtomically(retThemeFilePath(QLatin1String(kNowThemeFileName)), theme);
}

} // namespace

QVariantMap checkThemeValues(const QVariantMap& theme)
{
    const bool dark = theme.value(QLatin1String(PrefKey::_ForDarkAppearance)).toBool();
    const QVariantMap reference = referenceTheme(dark);

    QVariantMap result;
    bool changed = false;
    for (auto it = reference.cbegin(); it != reference.cend(); ++it) {
        const QString& key = it.key();
        if (theme.contains(key)) {
            result.insert(key, repairedValue(theme.value(key), it.value()));
        } else if (it.value().typeId() == QMetaType::QString) {
            result.insert(key, QLatin1String(kUntitled));
            changed = true;
        } else {
            result.insert(key, key == QLatin1String(PrefKey::_ForDarkAppearance) ? QVariant(dark) : it.value());
            changed = true;
        }
    }

    const ThemeFont font{result.value(QLatin1String(PrefKey::_FontName)).toString(),
                         result.value(QLatin1String(PrefKey::_FontPostScriptName)).toString(),
                         result.value(QLatin1String(PrefKey::_FontStyle)).toString()};
    // Without a font database nothing is drawn, so the theme's font stands as it is.
    if (!fontsAvailable()) {
        if (changed)
            writeNowTheme(result);
        return result;
    }
    if (isInstalledThemeFont(font)) {
        writeNowTheme(result);
        return result;
    }
    // The fallback alone does not count as a change: the file keeps the font its author chose, so
    // it comes back by itself on a machine that has it.
    const ThemeFont fallback = fallbackThemeFont();
    result.insert(QLatin1String(PrefKey::_FontName), fallback.family);
    result.insert(QLatin1String(PrefKey::_FontPostScriptName), fallback.postScriptName);
    result.insert(QLatin1String(PrefKey::_FontStyle), fallback.style);
    if (changed)
        writeNowTheme(result);
    return result;
}

} // namespace TvlClasses
