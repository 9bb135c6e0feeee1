// Reads the processor counters; the files stay open between samples.
#include "collect/linux/linux_cpu_source.h"

#include "collect/linux/loadavg_parser.h"
#include "collect/linux/rejected_text.h"
#include "collect/linux/stat_parser.h"

#include <ctime>

LinuxCpuSource::LinuxCpuSource(const SysRoot& root)
    : stat_(root.join("proc/stat"))
    , loadavg_(root.join("proc/loadavg"))
{}

std::optional<std::vector<ProcessorTicks>> LinuxCpuSource::readProcessorTicks()
{
    const std::lock_guard guard(lock_);
    const auto text = stat_.read();
    if (!text)
        return std::nullopt;
    return acceptParsed(stat_.path(), parseProcessorTicks(*text));
}

std::optional<std::int64_t> LinuxCpuSource::bootTime()
{
    const std::lock_guard guard(lock_);
    const auto text = stat_.read();
    if (!text)
        return std::nullopt;
    return acceptParsed(stat_.path(), parseBootTime(*text));
}

std::optional<double> LinuxCpuSource::awakeSeconds()
{
    // CLOCK_MONOTONIC stops while the machine is suspended, unlike CLOCK_BOOTTIME.
    timespec now{};
    if (::clock_gettime(CLOCK_MONOTONIC, &now) != 0)
        return std::nullopt;
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) / 1e9;
}

std::optional<LoadAverages> LinuxCpuSource::loadAverages()
{
    const std::lock_guard guard(lock_);
    const auto text = loadavg_.read();
    if (!text)
        return std::nullopt;
    const auto line = acceptParsed(loadavg_.path(), parseLoadAverage(*text));
    if (!line)
        return std::nullopt;
    return line->averages;
}
