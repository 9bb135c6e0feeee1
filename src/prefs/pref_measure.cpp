// Measuring label and value texts for the derived settings.
#include "prefs/pref_measure.h"

#include "prefs/module_defaults.h"
#include "prefs/pref_functions.h"
#include "prefs/pref_keys.h"
#include "toolkit/text_metrics.h"

#include <algorithm>
#include <cmath>

PrefMeasure PrefMeasure::fromTheme(const QVariantMap& theme)
{
    const double baseSize = static_cast<double>(theme.value(PrefKey::_FontSizeDiff).toLongLong()) + 9.0;
    return {theme.value(PrefKey::_FontPostScriptName).toString(), baseSize};
}

double PrefMeasure::width(const QString& text) const
{
    return TvlClasses::calcMenuLabelSize(text, size, font).width();
}

qint64 PrefMeasure::floorWidth(const QString& text) const
{
    return static_cast<qint64>(std::floor(width(text)));
}

qint64 PrefMeasure::widest(const QStringList& texts) const
{
    double w = 0;
    for (const QString& t : texts)
        w = std::max(w, width(t));
    return static_cast<qint64>(std::floor(w));
}

void PrefMeasure::addLabelPair(ModuleDefaults& dict, const QStringList& pair, const char* listKey,
                               const char* widthKey) const
{
    const QStringList labels = PrefFunctions::checkHyphenToNull(pair).value_or(QStringList());
    dict.set(listKey, labels);
    dict.set(widthKey, widest(labels));
}

PiledText PrefMeasure::piledText(bool text, bool graph, bool pileSetting, double graphWidth, const QString& fullText,
                                 const QString& bareText) const
{
    PiledText piled;
    piled.pileUp = text && graph && pileSetting;
    if (piled.pileUp && width(fullText) > graphWidth)
        piled.fontSize = PrefFunctions::calcPiledFontSize(bareText, size, font, graphWidth);
    piled.textMode = !text ? 0 : (piled.pileUp ? 2 : 1);
    return piled;
}
