// Slider handlers: label text, stored value, and an immediate save.
#include "preferences/pref_slider_handlers.h"

#include "prefs/settings_store.h"
#include "toolkit/localization.h"

#include <QLabel>

namespace PrefFunctions {

QString updateSliderText(long value)
{
    return Tarvel::localized("Update Interval : %ld sec").replace(QStringLiteral("%ld"), QString::number(value));
}

QString graphSliderText(long value)
{
    return Tarvel::localized("Histgram width : %ld pixel").replace(QStringLiteral("%ld"), QString::number(value));
}

QString limenBaseSliderText(long value)
{
    return Tarvel::localized("Ignore below : %ldKB/s").replace(QStringLiteral("%ld"), QString::number(value));
}

namespace {

bool storeAndShow(SettingsStore& defaults, QLabel* label, const QString& key, long stored, const QString& text)
{
    if (label != nullptr)
        label->setText(text);
    defaults.setInteger(key, stored);
    return defaults.synchronize();
}

} // namespace

bool updateSliderChange(int value, SettingsStore& defaults, QLabel* label, const QString& key)
{
    return storeAndShow(defaults, label, key, value, updateSliderText(value));
}

bool graphSliderChange(int value, SettingsStore& defaults, QLabel* label, const QString& key)
{
    const long pixels = static_cast<long>(value) * 10;
    return storeAndShow(defaults, label, key, pixels, graphSliderText(pixels));
}

bool limenBaseSliderChange(int value, SettingsStore& defaults, QLabel* label, const QString& key)
{
    return storeAndShow(defaults, label, key, value, limenBaseSliderText(value));
}

} // namespace PrefFunctions
