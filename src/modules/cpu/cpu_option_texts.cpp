// Formats the CPU menu's detail lines through the translation table.
#include "modules/cpu/cpu_option_texts.h"

#include "toolkit/localization.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {
// Fills a translated printf-style format. Translations carry the "%@" of the original texts
// for an inserted string, which printf knows as "%s".
template <class... Args> QString fillFormat(QString format, Args... args)
{
    format.replace(QLatin1String("%@"), QLatin1String("%s"));
    const QByteArray utf8 = format.toUtf8();
    return QString::asprintf(utf8.constData(), args...);
}

int clampedToInt(std::int64_t value)
{
    return static_cast<int>(
        std::clamp<std::int64_t>(value, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()));
}

// Cut towards zero like a C cast, but without undefined behaviour outside the int range.
int truncatedToInt(double value)
{
    constexpr double lowest = std::numeric_limits<int>::min();
    constexpr double highest = std::numeric_limits<int>::max();
    if (std::isnan(value))
        return 0;
    return static_cast<int>(std::clamp(value, lowest, highest));
}
} // namespace

QStringList cpuGetOptionData(const CpuOptionFigures& figures)
{
    QStringList lines;
    lines << buildUpTime(figures.secondsSinceBoot.value_or(-1.0));
    lines << buildUpTime(figures.awakeSeconds.value_or(-1.0));

    const auto& counts = figures.counts;
    lines << (counts ? fillFormat(Tarvel::localized("%d threads, %d processes"), clampedToInt(counts->threads),
                                  clampedToInt(counts->processes))
                     : QStringLiteral("---"));

    const auto& loads = figures.loads;
    lines << (loads ? fillFormat(Tarvel::localized("1min: %.2f, 5min: %.2f, 15min: %.2f"), loads->one, loads->five,
                                 loads->fifteen)
                    : QStringLiteral("---"));

    lines << (figures.hostName ? QString::fromStdString(*figures.hostName) : QString());
    return lines;
}

QString buildUpTime(double seconds)
{
    constexpr double kDay = 60.0 * 60.0 * 24.0;
    const int days = truncatedToInt(std::floor(seconds / 60 / 60 / 24));
    double rest = seconds - days * kDay;
    const int hours = truncatedToInt(std::floor(rest / 60 / 60));
    rest -= hours * 60.0 * 60.0;
    const int minutes = truncatedToInt(std::floor(rest / 60));
    // Seconds are cut towards zero, not floored, unlike the larger units.
    const int secs = truncatedToInt(std::trunc(rest - minutes * 60.0));

    if (days <= 0)
        return QString::asprintf("%d:%02d:%02d", hours, minutes, secs);
    const QString suffix = days == 1 ? QString() : Tarvel::localized("_dayS");
    const QByteArray suffixUtf8 = suffix.toUtf8();
    return fillFormat(Tarvel::localized("%dday%@ %d:%02d:%02d"), days, suffixUtf8.constData(), hours, minutes, secs);
}
