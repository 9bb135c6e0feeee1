// Numbers squeezed into a fixed number of characters, for the narrow menu-bar rate texts.
#pragma once

#include "toolkit/fixed_text.h"

#include <QString>

namespace TvlClasses {

// Digit count as the width rule uses it. There is deliberately no step at 9999: from 10000
// upwards the count is one lower than the real number of digits (99999 counts 4,
// 999999 counts 5), which lets five-digit values through as whole numbers.
int TvlCalcDigits(qint64 value);

// scaled printed in at most `digits` characters. Below 1024 unscaled units the whole
// unscaled value is shown; a scaled value whose count reaches `digits` loses its decimals;
// otherwise "%f" of it is cut to `digits` characters, without a dangling point.
QString retArrangedNumber(double scaled, double ori, int digits);

namespace detail {
// retArrangedNumber into a caller's buffer, so that a rate text is built with one allocation.
QLatin1String arrangedDigits(NumberBuffer& buffer, double scaled, double ori, int digits);
} // namespace detail

} // namespace TvlClasses
