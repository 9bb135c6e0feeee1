// Theme colours: arrays of red, green, blue, alpha in 0..1, and their colour objects.
#include "prefs/theme_color.h"

#include <algorithm>
#include <cmath>

namespace TvlClasses {
namespace {

// Out-of-range components are held to the colour space's range rather than rejected: a theme
// that slipped past repair should still draw something close to what its author meant.
float component(const QVariant& value)
{
    const double number = value.toDouble();
    if (std::isnan(number))
        return 0.0f;
    return static_cast<float>(std::clamp(number, 0.0, 1.0));
}

} // namespace

QColor retColorFromArray(const QVariant& value)
{
    if (value.typeId() != QMetaType::QVariantList)
        return QColor(Qt::transparent);
    const QVariantList parts = value.toList();
    if (parts.size() != 4)
        return QColor(Qt::transparent);
    return QColor::fromRgbF(component(parts[0]), component(parts[1]), component(parts[2]),
                            component(parts[3]));
}

QVariantList colorToArray(const QColor& color)
{
    if (!color.isValid())
        return {0.0, 0.0, 0.0, 0.0};
    const QColor rgb = color.toRgb();
    return {static_cast<double>(rgb.redF()), static_cast<double>(rgb.greenF()),
            static_cast<double>(rgb.blueF()), static_cast<double>(rgb.alphaF())};
}

} // namespace TvlClasses
