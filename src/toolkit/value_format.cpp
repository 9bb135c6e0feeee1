// Memory sizes, disk rates, capacities and network rates.
#include "toolkit/value_format.h"

#include "toolkit/arranged_number.h"
#include "toolkit/fixed_text.h"

namespace TvlClasses {

namespace {

// One allocation for the result: the digits live on the stack until joined with the unit.
QString withUnit(double value, int precision, QLatin1String unit)
{
    detail::NumberBuffer buffer;
    return detail::fixedDigits(buffer, value, precision) + unit;
}

} // namespace

QString calcMemorySize(qint64 bytes, int unitNumber)
{
    if (bytes < 0)
        return QStringLiteral("---");
    const double mebibytes = static_cast<double>(bytes) / 1048576.0;
    switch (unitNumber) {
    case 2:
        return withUnit(mebibytes, 1, QLatin1String("MB"));
    case 3:
        return withUnit(mebibytes / 1024, 2, QLatin1String("GB"));
    default:
        break;
    }
    if (mebibytes > 1048576)
        return withUnit(mebibytes / 1024 / 1024, 2, QLatin1String("TB"));
    if (mebibytes > 1024)
        return withUnit(mebibytes / 1024, 2, QLatin1String("GB"));
    return withUnit(mebibytes, 1, QLatin1String("MB"));
}

QString calcDiscAccessPerSec(qint64 bytesPerSec)
{
    if (bytesPerSec <= 0)
        return QStringLiteral("0.0B/s");
    const auto rate = static_cast<double>(bytesPerSec);
    if (bytesPerSec >= 1000000001)
        return withUnit(rate / 1000 / 1000 / 1000, 1, QLatin1String("GB/s"));
    if (bytesPerSec >= 1000001)
        return withUnit(rate / 1000 / 1000, 1, QLatin1String("MB/s"));
    return withUnit(rate / 1000, 1, QLatin1String("KB/s"));
}

QString calcDiskSize(qint64 bytes)
{
    if (bytes <= 0)
        return QStringLiteral("0Byte");
    // Whole kilobytes first: every threshold and every unit below works on them.
    const auto kilobytes = static_cast<qint64>(static_cast<double>(bytes) / 1000.0);
    const auto k = static_cast<double>(kilobytes);
    if (kilobytes >= 1000000001)
        return withUnit(k / 1000 / 1000 / 1000, 2, QLatin1String("TB"));
    if (kilobytes >= 1000001)
        return withUnit(k / 1000 / 1000, 1, QLatin1String("GB"));
    if (kilobytes >= 1001)
        return withUnit(k / 1000, 1, QLatin1String("MB"));
    return withUnit(k, 1, QLatin1String("KB"));
}

QString calcBytesPerSec(double rate, bool byteToBit, int digits)
{
    const QLatin1String suffix = byteToBit ? QLatin1String("bps") : QLatin1String("B/s");
    // Written as "not above zero" so that NaN takes the placeholder too.
    if (!(rate > 0))
        return (digits > 0 ? QLatin1String("0") : QLatin1String("0.0")) + suffix;

    const double value = byteToBit ? rate * 8 : rate;
    QLatin1String prefix("");
    double scaled = value;
    if (value > 1073741824) {
        prefix = QLatin1String("G");
        scaled = value / 1073741824;
    } else if (value > 1048576) {
        prefix = QLatin1String("M");
        scaled = value / 1048576;
    } else if (value > 1024) {
        prefix = QLatin1String("K");
        scaled = value / 1024;
    }

    detail::NumberBuffer buffer;
    const QLatin1String number = digits > 0 ? detail::arrangedDigits(buffer, scaled, value, digits)
                                            : detail::fixedDigits(buffer, scaled, 1);
    return number + prefix + suffix;
}

QString calcPercent(double share)
{
    return withUnit(share * 100, 0, QLatin1String("%"));
}

} // namespace TvlClasses
