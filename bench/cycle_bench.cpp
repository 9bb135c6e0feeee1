// Prints the cost of one full sampling cycle body, live and on the captured fixture tree.
#include "allocation_counter.h"
#include "every_module_due.h"

#include "app/sampling_cycle.h"
#include "collect/load_system_information.h"

#include <QCoreApplication>

#include <chrono>
#include <cstdio>
#include <filesystem>

namespace {

void measure(const char* label, const std::filesystem::path& root, int cycles)
{
    LoadSystemInformation loadInfo(makeSourceSet(root));
    CycleInput input = everyModuleDue();
    // The mounted volumes, as the tracker hands them to the cycle, so that each is measured.
    input.volumeBase = std::make_shared<const VolumeBaseDict>(loadInfo.retVolumeBase(loadInfo.retVolumeUtilDetail()));
    // Two warm-up cycles: the first primes the differences, the second fills the buffers.
    for (int i = 0; i < 2; ++i) {
        CycleOutput out = SamplingCycle::runBody(loadInfo, input);
        input.info = out.info;
    }
    const std::uint64_t allocBefore = AllocationCounter::count();
    const auto start = std::chrono::steady_clock::now();
    for (int i = 0; i < cycles; ++i) {
        CycleOutput out = SamplingCycle::runBody(loadInfo, input);
        input.info = std::move(out.info);
    }
    const auto elapsed = std::chrono::duration<double, std::micro>(std::chrono::steady_clock::now() - start);
    const double allocs = static_cast<double>(AllocationCounter::count() - allocBefore) / cycles;
    std::printf("%-10s %8.1f us/cycle %8.1f allocations/cycle  (%d cycles, root %s)\n", label, elapsed.count() / cycles,
                allocs, cycles, root.c_str());
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    const int cycles = argc > 1 ? std::max(1, std::atoi(argv[1])) : 2000;
    std::printf("One sampling cycle body, every module due:\n");
    measure("live", "/", cycles);
    const std::filesystem::path fixture = std::filesystem::path(TARVEL_SHARED_FIXTURES) / "linux-procfs";
    if (std::filesystem::is_directory(fixture / "proc"))
        measure("fixture", fixture, cycles);
    else
        std::printf("fixture    skipped: %s not found\n", fixture.c_str());
    return 0;
}
