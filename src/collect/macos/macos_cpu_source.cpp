// Per-processor ticks from host_processor_info, boot time from sysctl, load from getloadavg.
#include "collect/macos/macos_cpu_source.h"

#include <cstdlib>
#include <mach/mach.h>
#include <mach/mach_time.h>
#include <mach/processor_info.h>
#include <sys/sysctl.h>
#include <sys/time.h>

MacosCpuSource::MacosCpuSource() : host_(mach_host_self()) {}

MacosCpuSource::~MacosCpuSource()
{
    mach_port_deallocate(mach_task_self(), host_);
}

std::optional<std::vector<ProcessorTicks>> MacosCpuSource::readProcessorTicks()
{
    natural_t count = 0;
    processor_info_array_t info = nullptr;
    mach_msg_type_number_t infoCount = 0;
    if (host_processor_info(host_, PROCESSOR_CPU_LOAD_INFO, &count, &info, &infoCount) != KERN_SUCCESS)
        return std::nullopt;

    const std::lock_guard guard(lock_);
    const auto* load = reinterpret_cast<const processor_cpu_load_info_data_t*>(info);
    if (lastRaw_.size() != count) {
        lastRaw_.assign(count, {});
        widened_.assign(count, {});
    }
    // The system's state order is user, system, idle, nice; ours is user, system, nice, idle.
    constexpr std::array<int, 4> kState{CPU_STATE_USER, CPU_STATE_SYSTEM, CPU_STATE_NICE, CPU_STATE_IDLE};
    for (natural_t cpu = 0; cpu < count; ++cpu) {
        for (std::size_t state = 0; state < kState.size(); ++state) {
            const std::uint32_t raw = load[cpu].cpu_ticks[kState[state]];
            // Unsigned 32-bit subtraction gives the right difference across a wrap.
            widened_[cpu][state] += static_cast<std::uint32_t>(raw - lastRaw_[cpu][state]);
            lastRaw_[cpu][state] = raw;
        }
    }
    vm_deallocate(mach_task_self(), reinterpret_cast<vm_address_t>(info),
                  static_cast<vm_size_t>(infoCount) * sizeof(integer_t));
    return widened_;
}

std::optional<std::int64_t> MacosCpuSource::bootTime()
{
    int name[2] = {CTL_KERN, KERN_BOOTTIME};
    timeval boot{};
    std::size_t size = sizeof boot;
    if (sysctl(name, 2, &boot, &size, nullptr, 0) != 0)
        return std::nullopt;
    return static_cast<std::int64_t>(boot.tv_sec);
}

std::optional<double> MacosCpuSource::awakeSeconds()
{
    // mach_absolute_time stops while the machine sleeps.
    mach_timebase_info_data_t timebase{};
    if (mach_timebase_info(&timebase) != KERN_SUCCESS || timebase.denom == 0)
        return std::nullopt;
    const double nanoseconds = static_cast<double>(mach_absolute_time()) * timebase.numer / timebase.denom;
    return nanoseconds / 1e9;
}

std::optional<LoadAverages> MacosCpuSource::loadAverages()
{
    double loads[3] = {0, 0, 0};
    if (getloadavg(loads, 3) != 3)
        return std::nullopt;
    return LoadAverages{loads[0], loads[1], loads[2]};
}
