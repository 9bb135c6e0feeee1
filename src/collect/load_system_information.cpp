// The CPU collectors: tick differences per processor and the five lines of the CPU menu.
#include "collect/load_system_information.h"

#include "toolkit/localization.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <limits>

namespace {
// Fills a translated printf-style format. Translations carry the "%@" of the original texts
// for an inserted string, which printf knows as "%s".
template <class... Args>
QString fillFormat(QString format, Args... args)
{
    format.replace(QLatin1String("%@"), QLatin1String("%s"));
    const QByteArray utf8 = format.toUtf8();
    return QString::asprintf(utf8.constData(), args...);
}

int clampedToInt(std::int64_t value)
{
    return static_cast<int>(std::clamp<std::int64_t>(value, std::numeric_limits<int>::min(),
                                                     std::numeric_limits<int>::max()));
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

// The difference of a cumulative counter; one that went backwards (iowait does on Linux)
// counts as no ticks at all rather than a negative or wrapped-around figure.
std::int64_t tickDifference(std::uint64_t current, std::uint64_t previous)
{
    if (current <= previous)
        return 0;
    const std::uint64_t difference = current - previous;
    constexpr auto highest = static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max());
    return static_cast<std::int64_t>(std::min(difference, highest));
}
}

LoadSystemInformation::LoadSystemInformation(SourceSet sources) : sources_(std::move(sources)) {}

CpuSample LoadSystemInformation::loadCpuData()
{
    CpuSample result;
    if (!sources_.cpu)
        return result;
    auto current = sources_.cpu->readProcessorTicks();
    if (!current || current->empty())
        return result;

    const std::lock_guard guard(cpuUsageLock);
    const std::size_t processors = current->size();
    // A processor going on- or offline changes the count: start over as on the first call.
    if (prevCpuInfo && prevCpuInfo->size() == processors) {
        result.reserve(processors + 1);
        // Unsigned, so that even absurd counters wrap instead of overflowing.
        std::array<std::uint64_t, 4> sums{};
        for (std::size_t cpu = 0; cpu < processors; ++cpu) {
            CpuRecord record{};
            for (std::size_t state = 0; state < record.size(); ++state) {
                record[state] = tickDifference((*current)[cpu][state], (*prevCpuInfo)[cpu][state]);
                sums[state] += static_cast<std::uint64_t>(record[state]);
            }
            result.push_back(record);
        }
        CpuRecord machine{};
        for (std::size_t state = 0; state < machine.size(); ++state)
            machine[state] = std::llround(static_cast<double>(sums[state]) / static_cast<double>(processors));
        result.push_back(machine);
    }
    prevCpuInfo = std::move(current);
    return result;
}

QStringList LoadSystemInformation::cpuGetOptionData() const
{
    QStringList lines;
    CpuSource* cpu = sources_.cpu.get();

    double sinceBoot = -1.0;
    if (const auto boot = cpu ? cpu->bootTime() : std::nullopt; boot && *boot != 0) {
        const auto now = std::chrono::duration_cast<std::chrono::seconds>(
            std::chrono::system_clock::now().time_since_epoch());
        sinceBoot = static_cast<double>(now.count() - *boot);
    }
    lines << buildUpTime(sinceBoot);

    const auto awake = cpu ? cpu->awakeSeconds() : std::nullopt;
    lines << buildUpTime(awake.value_or(-1.0));

    const auto counts = sources_.processes ? sources_.processes->counts() : std::nullopt;
    lines << (counts ? fillFormat(localized("%d threads, %d processes"), clampedToInt(counts->threads),
                                  clampedToInt(counts->processes))
                     : QStringLiteral("---"));

    const auto loads = cpu ? cpu->loadAverages() : std::nullopt;
    lines << (loads ? fillFormat(localized("1min: %.2f, 5min: %.2f, 15min: %.2f"), loads->one, loads->five,
                                 loads->fifteen)
                    : QStringLiteral("---"));

    const auto host = sources_.machine ? sources_.machine->hostName() : std::nullopt;
    lines << (host ? QString::fromStdString(*host) : QString());
    return lines;
}

QString LoadSystemInformation::buildUpTime(double seconds)
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
    const QString suffix = days == 1 ? QString() : localized("_dayS");
    const QByteArray suffixUtf8 = suffix.toUtf8();
    return fillFormat(localized("%dday%@ %d:%02d:%02d"), days, suffixUtf8.constData(), hours, minutes, secs);
}
