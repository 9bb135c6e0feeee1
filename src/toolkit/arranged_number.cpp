// Width-limited numbers and the digit count they depend on.
#include "toolkit/arranged_number.h"

#include <charconv>

namespace TvlClasses {

int TvlCalcDigits(qint64 value)
{
    // Thresholds from 10^15 - 1 down to 10^5 - 1 give 15 down to 5; 10^4 - 1 is skipped.
    qint64 threshold = 999999999999999LL;
    for (int count = 15; count >= 5; --count) {
        if (value > threshold)
            return count;
        threshold /= 10;
    }
    if (value > 999)
        return 4;
    if (value > 99)
        return 3;
    if (value > 9)
        return 2;
    return 1;
}

namespace detail {

QLatin1String arrangedDigits(NumberBuffer& buffer, double scaled, double ori, int digits)
{
    char* const begin = buffer.data();
    char* const end = begin + buffer.size();
    if (ori < 1024) {
        const auto result = std::to_chars(begin, end, truncToInt32(ori));
        return QLatin1String(begin, result.ptr);
    }
    const qint64 whole = truncToInt64(scaled);
    if (TvlCalcDigits(whole) >= digits) {
        const auto result = std::to_chars(begin, end, whole);
        return QLatin1String(begin, result.ptr);
    }
    QLatin1String text = fixedDigits(buffer, scaled, 6);
    if (text.size() > digits) {
        text = text.left(digits);
        if (text.endsWith(QLatin1Char('.')))
            text.chop(1);
    }
    return text;
}

} // namespace detail

QString retArrangedNumber(double scaled, double ori, int digits)
{
    detail::NumberBuffer buffer;
    return detail::arrangedDigits(buffer, scaled, ori, digits);
}

} // namespace TvlClasses
