// Temperature text with unit conversion and the no-reading placeholders.
#include "toolkit/temperature_format.h"

#include "toolkit/fixed_text.h"

namespace TvlClasses {

QString calcTempWithUnit(float celsius, int unitNum, const QString& unitStr, bool noAsHyphen)
{
    if (!(celsius > 0)) {
        const bool withUnit = !unitStr.isEmpty();
        if (noAsHyphen)
            return withUnit ? QStringLiteral("---") : QStringLiteral("--");
        return withUnit ? QStringLiteral("???") : QStringLiteral("??");
    }

    double value = celsius;
    if (unitNum == 2)
        value = value * 9 / 5 + 32;
    else if (unitNum == 3)
        value = value + 273.15;
    // Narrowed back to float before rounding, so that 310.65 K (from 37.5 °C) prints as the
    // float nearest to it would.
    const auto shown = static_cast<float>(value);

    detail::NumberBuffer buffer;
    return detail::fixedDigits(buffer, shown, 0) + unitStr;
}

} // namespace TvlClasses
