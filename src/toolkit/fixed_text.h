// Toolkit-internal: printf-style fixed-point digits without locale or allocation.
#pragma once

#include <QLatin1String>

#include <array>

namespace TvlClasses::detail {

// Room for "%f" of the largest double (309 integer digits) plus sign, point and decimals.
using NumberBuffer = std::array<char, 400>;

// Writes value as C's "%.<precision>f" prints it in the "C" locale: exact ties round to
// even (36.5 gives 36), which Qt's own formatters would round away from zero.
// The view points into buffer.
QLatin1String fixedDigits(NumberBuffer& buffer, double value, int precision);

// Saturating conversions, so that NaN and out-of-range values stay defined (NaN gives 0).
qint64 truncToInt64(double value);
int truncToInt32(double value);

} // namespace TvlClasses::detail
