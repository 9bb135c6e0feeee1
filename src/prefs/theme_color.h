// Theme colours: arrays of red, green, blue, alpha in 0..1, and their colour objects.
#pragma once

#include <QColor>
#include <QVariant>
#include <QVariantList>

namespace TvlClasses {

// The colour of a four-number array; the clear colour for any other form.
QColor retColorFromArray(const QVariant& value);

// The four-number array of a colour, components red, green, blue, alpha.
QVariantList colorToArray(const QColor& color);

} // namespace TvlClasses
