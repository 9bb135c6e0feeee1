// The CPU collectors: tick differences per processor and the figures of the CPU menu.
#include "collect/load_system_information.h"

#include "toolkit/counter_arithmetic.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <limits>

namespace {
// The difference of a cumulative counter; one that went backwards (iowait does on Linux)
// counts as no ticks at all rather than a negative or wrapped-around figure.
std::int64_t tickDifference(std::uint64_t current, std::uint64_t previous)
{
    return Counter::saturated(Counter::growth(current, previous));
}
} // namespace

LoadSystemInformation::LoadSystemInformation(SourceSet sources)
    : sources_(std::move(sources))
{}

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

std::optional<std::size_t> LoadSystemInformation::processorCount()
{
    {
        const std::lock_guard guard(cpuUsageLock);
        if (prevCpuInfo)
            return prevCpuInfo->size();
    }
    return sources_.cpu ? sources_.cpu->processorCount() : std::nullopt;
}

CpuOptionFigures LoadSystemInformation::cpuOptionFigures() const
{
    CpuOptionFigures figures;
    CpuSource* cpu = sources_.cpu.get();
    if (const auto boot = cpu ? cpu->bootTime() : std::nullopt; boot && *boot != 0) {
        const auto now =
            std::chrono::duration_cast<std::chrono::seconds>(std::chrono::system_clock::now().time_since_epoch());
        figures.secondsSinceBoot = static_cast<double>(Counter::saturatedDifference(now.count(), *boot));
    }
    figures.awakeSeconds = cpu ? cpu->awakeSeconds() : std::nullopt;
    figures.counts = sources_.processes ? sources_.processes->counts() : std::nullopt;
    figures.loads = cpu ? cpu->loadAverages() : std::nullopt;
    figures.hostName = sources_.machine ? sources_.machine->hostName() : std::nullopt;
    return figures;
}
