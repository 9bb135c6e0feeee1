// Locale-free fixed-point formatting and saturating truncation for the value formatters.
#include "toolkit/fixed_text.h"

#include <charconv>
#include <cmath>
#include <limits>

namespace TvlClasses::detail {

QLatin1String fixedDigits(NumberBuffer& buffer, double value, int precision)
{
    // std::to_chars follows printf in the "C" locale, independent of the process locale
    // that QCoreApplication sets, and never allocates.
    const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                      std::chars_format::fixed, precision);
    if (result.ec != std::errc())
        return QLatin1String("0");
    return QLatin1String(buffer.data(), result.ptr);
}

namespace {
template <typename Int>
Int saturatingTrunc(double value)
{
    if (std::isnan(value))
        return 0;
    // The limits as doubles: the upper one of qint64 rounds up to 2^63, hence >=.
    constexpr auto lowest = static_cast<double>(std::numeric_limits<Int>::lowest());
    constexpr auto highest = static_cast<double>(std::numeric_limits<Int>::max());
    if (value <= lowest)
        return std::numeric_limits<Int>::lowest();
    if (value >= highest)
        return std::numeric_limits<Int>::max();
    return static_cast<Int>(value);
}
} // namespace

qint64 truncToInt64(double value)
{
    return saturatingTrunc<qint64>(value);
}

int truncToInt32(double value)
{
    return saturatingTrunc<int>(value);
}

} // namespace TvlClasses::detail
