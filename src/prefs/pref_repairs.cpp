// Range repairs and small label helpers of the settings schema.
#include "prefs/pref_functions.h"

#include "prefs/pref_keys.h"
#include "toolkit/text_metrics.h"

#include <cmath>

namespace PrefFunctions {

qint64 checkMaxTemp(SettingsStore& store, qint64 tempTmp)
{
    if (tempTmp >= 60 && tempTmp <= 100)
        return tempTmp;
    store.setInteger(PrefKey::Temp_MaxTemp, 100);
    store.synchronize();
    return store.integerForKey(PrefKey::Temp_MaxTemp);
}

qint64 checkMaxRpm(SettingsStore& store, qint64 rpmTmp)
{
    if (rpmTmp >= 2000 && rpmTmp <= 6000)
        return rpmTmp;
    store.setInteger(PrefKey::Fax_MaxRpm, 6000);
    store.synchronize();
    return 6000;
}

double calcPiledFontSize(const QString& text, double baseFontSize, const QString& baseFontKind,
                         double graphWidth)
{
    const auto start = static_cast<long long>(baseFontSize);
    for (long long size = start; size >= 3; --size) {
        const double width = TvlClasses::calcMenuLabelSize(text, static_cast<double>(size), baseFontKind).width();
        if (width < graphWidth)
            return static_cast<double>(size);
    }
    return 3.0;
}

std::optional<QStringList> checkHyphenToNull(const QStringList& labels)
{
    if (labels.isEmpty())
        return std::nullopt;
    QStringList out = labels;
    for (QString& label : out) {
        if (label == QLatin1String("-"))
            label.clear();
    }
    return out;
}

} // namespace PrefFunctions
