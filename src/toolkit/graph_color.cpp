// Threshold colours with the optional warning-to-critical blend.
#include "toolkit/graph_color.h"

namespace TvlClasses {

QColor retGraphColor(double value, const QColor& lowColor, const QColor& warningColor, const QColor& criticalColor,
                     bool synthesis)
{
    constexpr double kWarning = 0.7;
    constexpr double kCritical = 0.9;
    if (value < kWarning)
        return lowColor;
    if (value >= kCritical)
        return criticalColor;
    if (!synthesis)
        return warningColor;
    // Single precision, as the blend factor has always been computed.
    const auto t = static_cast<float>((value - kWarning) / (kCritical - kWarning));
    const auto mix = [t](float from, float to) { return from + (to - from) * t; };
    return QColor::fromRgbF(
        mix(warningColor.redF(), criticalColor.redF()), mix(warningColor.greenF(), criticalColor.greenF()),
        mix(warningColor.blueF(), criticalColor.blueF()), mix(warningColor.alphaF(), criticalColor.alphaF()));
}

} // namespace TvlClasses
